#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace marlo::bench {

/// Prints the runs as usual and remembers the medians of their times, in milliseconds, so that
/// ratios can be made of them.
class Report final : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Prints the comparisons that were registered (see below), as a table in Markdown.
    /// @return whether each one meets its bound.
    bool PrintComparisons() const;

  private:
    double Median(const std::string& name) const;

    std::map<std::string, double> medians_;  // milliseconds by the benchmark's name
};

/// Asks for a line in the table: how the times of two benchmarks compare.
struct Comparison {
    std::string what;         ///< what the ratio tells
    std::string numerator;    ///< a benchmark's name
    std::string denominator;  ///< a benchmark's name
    double atLeast = 0;
    double atMost = 0;  ///< 0: no upper bound
};

/// Registers a comparison; to be called before the benchmarks run.
void Compare(Comparison comparison);

/// Registers a benchmark; its time is the wall clock's. To be called before the benchmarks run.
void Register(const std::string& name, const std::function<void(benchmark::State&)>& run);

}  // namespace marlo::bench
