#include <exception>
#include <filesystem>
#include <iostream>

#include <benchmark/benchmark.h>

#include "bench/Baselines.h"
#include "bench/Data.h"
#include "bench/Report.h"

int main(int argc, char** argv) {
    try {
        benchmark::Initialize(&argc, argv);
        if (benchmark::ReportUnrecognizedArguments(argc, argv))
            return 2;
        marlo::bench::ReadFromDisk(marlo::bench::RealisticLibrary(marlo::bench::kLibraryFiles));
        const bool areBoundsKept = marlo::bench::RunAll();
        // Each failure of a hostile project is logged with its record, which may be the whole file.
        std::filesystem::remove(marlo::bench::DataFolder() + "/resultfiles/errorlog.txt");
        return areBoundsKept ? 0 : 1;
    } catch (const std::exception& failure) {
        std::cerr << "marlo-bench: " << failure.what() << '\n';
        return 1;
    }
}
