// How fast the list is filled, sorted and asked for its keys, against sorting the same texts.

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Data.h"
#include "bench/Report.h"
#include "reports/ResultList.h"

namespace marlo::bench {
namespace {

using benchmark::State;

/// The names of different plug-ins, in no order.
std::vector<std::string> Names(std::size_t count) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i)
        names.push_back(PluginName(i));
    return names;
}

void FillList(ResultList& list, const std::vector<std::string>& names) {
    list.AddColumn("Plugin");
    for (const std::string& name : names)
        list.AddRow(name, name);
}

void SortTexts(State& state, std::size_t rows) {
    const std::vector<std::string> names = Names(rows);
    for (auto iteration : state) {
        std::vector<std::string> sorted = names;
        std::stable_sort(sorted.begin(), sorted.end());
        benchmark::DoNotOptimize(sorted.data());
    }
}

void FillAndSortList(State& state, std::size_t rows) {
    const std::vector<std::string> names = Names(rows);
    for (auto iteration : state) {
        ResultList list;
        FillList(list, names);
        list.SetSorted(true);
        benchmark::DoNotOptimize(list.RowAt(1));
    }
}

void FindKeys(State& state, std::size_t rows) {
    const std::vector<std::string> names = Names(rows);
    ResultList list;
    FillList(list, names);
    for (auto iteration : state)
        for (const std::string& name : names)
            if (list.AddRowUnlessThere(name, name))
                throw std::runtime_error("a key was not found");
}

const bool registered = [] {
    const auto add = [](const std::string& name, const std::string& what, const Series::Run& run,
                        double mostRatio) {
        Register({.name = name,
                  .what = what,
                  .run = run,
                  .baselineName = "stable_sort of the texts",
                  .baseline = SortTexts,
                  .sizes = {2'000, 20'000, 200'000},
                  .mostRatio = mostRatio,
                  .mostGrowth = 3});
    };
    add("list-fill-and-sort", "filling and sorting a list, rows", FillAndSortList, 4);
    add("list-find-keys", "finding each key of a list, rows", FindKeys, 1);
    return true;
}();

}  // namespace
}  // namespace marlo::bench
