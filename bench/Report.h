#pragma once

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace marlo::bench {

/// Something that is measured over inputs of growing size, against a baseline over the same inputs
/// in the same run. All times are the wall clock's.
struct Series {
    using Run = std::function<void(benchmark::State& state, std::size_t size)>;

    std::string name;  ///< of its benchmarks
    std::string what;  ///< the same for readers, with the unit of its sizes
    Run run;
    std::string baselineName;  ///< for readers
    Run baseline;
    std::vector<std::size_t> sizes;  ///< from the smallest to the largest
    /// How many times as long as the baseline it may take at the largest size.
    double mostRatio = 0;
    /// How many times as long as at the smallest size it may take for each unit at the largest.
    double mostGrowth = 0;
};

/// Registers the benchmarks of a series and its line in the table; to be called before the
/// benchmarks run.
void Register(Series series);

/// Prints the runs as usual and remembers the medians of their times, in milliseconds, for the
/// table.
class Report final : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Prints a table in Markdown, with a line for each series that was not left out by a filter.
    /// @return whether each one keeps its bounds.
    bool PrintTable(std::ostream& output) const;

  private:
    std::vector<double> Medians(const std::string& name,
                                const std::vector<std::size_t>& sizes) const;

    std::map<std::string, double> medians_;  // milliseconds by the benchmark's name
};

/// Runs the benchmarks, then prints the table.
/// @return whether each series keeps its bounds.
bool RunAll();

}  // namespace marlo::bench
