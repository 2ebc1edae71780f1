#include "bench/Report.h"

#include <iomanip>
#include <iostream>
#include <sstream>
#include <utility>

namespace marlo::bench {

namespace {

constexpr int kRepetitions = 9;
constexpr double kShortestRepetition = 0.05;  // seconds

std::vector<Series>& AllSeries() {
    static std::vector<Series> series;
    return series;
}

std::string BenchmarkName(const std::string& name, std::size_t size) {
    return name + "/" + std::to_string(size);
}

void RegisterOne(const std::string& name, std::size_t size, const Series::Run& run) {
    const auto runOfSize = [run, size](benchmark::State& state) { run(state, size); };
    benchmark::RegisterBenchmark(BenchmarkName(name, size).c_str(), runOfSize)
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(kRepetitions)
        ->MinTime(kShortestRepetition)
        ->ReportAggregatesOnly()
        ->UseRealTime();
}

std::string Rounded(double value, int digits) {
    std::ostringstream text;
    text.setf(std::ios::fixed);
    text.precision(digits);
    text << value;
    return text.str();
}

/// With commas between the thousands.
std::string Counted(std::size_t number) {
    constexpr std::size_t thousand = 1000;
    if (number < thousand)
        return std::to_string(number);
    std::ostringstream rest;
    rest << ',' << std::setw(3) << std::setfill('0') << number % thousand;
    return Counted(number / thousand) + rest.str();
}

template <class Values, class Format>
std::string Joined(const Values& values, Format format) {
    std::ostringstream text;
    for (const char* separator = ""; const auto& value : values) {
        text << separator << format(value);
        separator = " / ";
    }
    return text.str();
}

std::string BoundOf(double most, double value) {
    return Rounded(most, 2) + (value <= most ? "" : " MISSED");
}

std::string BaselineOf(const Series& series) {
    return series.name + "-baseline";
}

}  // namespace

void Register(Series series) {
    for (const std::size_t size : series.sizes) {
        RegisterOne(BaselineOf(series), size, series.baseline);
        RegisterOne(series.name, size, series.run);
    }
    AllSeries().push_back(std::move(series));
}

void Report::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs)
        if (run.aggregate_name == "median")
            medians_[run.run_name.function_name] = run.GetAdjustedRealTime();
}

/// @return the times at all sizes; nothing when one is missing.
std::vector<double> Report::Medians(const std::string& name,
                                    const std::vector<std::size_t>& sizes) const {
    std::vector<double> times;
    for (const std::size_t size : sizes) {
        const auto found = medians_.find(BenchmarkName(name, size));
        if (found == medians_.end())
            return {};
        times.push_back(found->second);
    }
    return times;
}

bool Report::PrintTable(std::ostream& output) const {
    bool areAllKept = true;
    output << "\n| what | sizes | against | ratio | at most | growth | at most | ms |\n"
              "|---|---|---|---|---|---|---|---|\n";
    for (const Series& series : AllSeries()) {
        const std::vector<double> times = Medians(series.name, series.sizes);
        const std::vector<double> baselines = Medians(BaselineOf(series), series.sizes);
        if (times.empty() || baselines.empty())
            continue;
        std::vector<double> ratios;
        std::vector<double> growths;
        for (std::size_t i = 0; i < times.size(); ++i) {
            ratios.push_back(times[i] / baselines[i]);
            const double sizeRatio =
                static_cast<double>(series.sizes[i]) / static_cast<double>(series.sizes[0]);
            growths.push_back(times[i] / times[0] / sizeRatio);
        }
        areAllKept =
            areAllKept && ratios.back() <= series.mostRatio && growths.back() <= series.mostGrowth;
        const auto twoDigits = [](double value) { return Rounded(value, 2); };
        output << "| " << series.what << " | " << Joined(series.sizes, Counted) << " | "
               << series.baselineName << " | " << Joined(ratios, twoDigits) << " | "
               << BoundOf(series.mostRatio, ratios.back()) << " | " << Joined(growths, twoDigits)
               << " | " << BoundOf(series.mostGrowth, growths.back()) << " | "
               << Rounded(times.back(), 1) << " against " << Rounded(baselines.back(), 1) << " |\n";
    }
    return areAllKept;
}

bool RunAll() {
    Report report;
    benchmark::RunSpecifiedBenchmarks(&report);
    return report.PrintTable(std::cout);
}

}  // namespace marlo::bench
