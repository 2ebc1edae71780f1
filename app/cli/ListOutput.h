#pragma once

#include <string>

#include "app/cli/Commands.h"
#include "reports/ResultPane.h"

namespace marlo::cli {

/// Prints the list of a report or search, its rows in the order in which a window shows them.
/// @param title what it shows, a field; for a page that is kept.
void PrintList(const ResultPane& pane, const std::string& title, ListFormat format);

}  // namespace marlo::cli
