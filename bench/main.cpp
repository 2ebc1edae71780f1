#include <exception>
#include <iostream>

#include <benchmark/benchmark.h>

#include "bench/Report.h"

int main(int argc, char** argv) {
    try {
        benchmark::Initialize(&argc, argv);
        if (benchmark::ReportUnrecognizedArguments(argc, argv))
            return 2;
        return marlo::bench::RunAll() ? 0 : 1;
    } catch (const std::exception& failure) {
        std::cerr << "marlo-bench: " << failure.what() << '\n';
        return 1;
    }
}
