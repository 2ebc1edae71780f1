#pragma once

#include <string>

#include "app/cli/Commands.h"
#include "reports/ResultPane.h"

namespace marlo::cli {

/// How a list is printed, as in `ReportOptions`.
struct ListStyle {
    ListFormat format = ListFormat::Table;
    bool endsWithNull = false;
    Colours colours = Colours::AsUsual;
};

/// Prints the list of a report or search, its rows in the order in which a window shows them.
/// @param title what it shows, a field; for a page that is kept.
void PrintList(const ResultPane& pane, const std::string& title, const ListStyle& style);

}  // namespace marlo::cli
