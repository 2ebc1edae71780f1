#include "bench/Report.h"

#include <iostream>
#include <sstream>
#include <utility>

namespace marlo::bench {

namespace {

constexpr int kRepetitions = 9;

std::vector<Comparison>& Comparisons() {
    static std::vector<Comparison> comparisons;
    return comparisons;
}

std::string Rounded(double value, int digits) {
    std::ostringstream text;
    text.setf(std::ios::fixed);
    text.precision(digits);
    text << value;
    return text.str();
}

std::string BoundOf(const Comparison& comparison) {
    if (comparison.atMost > 0)
        return "at most " + Rounded(comparison.atMost, 2);
    return "at least " + Rounded(comparison.atLeast, 2);
}

bool Meets(const Comparison& comparison, double ratio) {
    return ratio >= comparison.atLeast && (comparison.atMost == 0 || ratio <= comparison.atMost);
}

}  // namespace

void Compare(Comparison comparison) {
    Comparisons().push_back(std::move(comparison));
}

void Register(const std::string& name, const std::function<void(benchmark::State&)>& run) {
    benchmark::RegisterBenchmark(name.c_str(), run)
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(kRepetitions)
        ->ReportAggregatesOnly()
        ->UseRealTime();
}

void Report::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs)
        if (run.aggregate_name == "median")
            medians_[run.run_name.function_name] = run.GetAdjustedRealTime();
}

double Report::Median(const std::string& name) const {
    const auto found = medians_.find(name);
    return found == medians_.end() ? 0 : found->second;
}

bool Report::PrintComparisons() const {
    bool allMet = true;
    std::cout << "\n| what | ratio | bound | times (ms) |\n|---|---|---|---|\n";
    for (const Comparison& comparison : Comparisons()) {
        const double numerator = Median(comparison.numerator);
        const double denominator = Median(comparison.denominator);
        if (numerator == 0 || denominator == 0)
            continue;  // left out by a filter on the command line
        const double ratio = numerator / denominator;
        const bool met = Meets(comparison, ratio);
        allMet = allMet && met;
        std::cout << "| " << comparison.what << " | " << Rounded(ratio, 2) << " | "
                  << BoundOf(comparison) << (met ? "" : " MISSED") << " | " << Rounded(numerator, 1)
                  << " / " << Rounded(denominator, 1) << " |\n";
    }
    return allMet;
}

}  // namespace marlo::bench
