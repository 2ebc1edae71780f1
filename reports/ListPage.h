#pragma once

#include <cstddef>
#include <ctime>
#include <string>
#include <vector>

#include "reports/ResultList.h"

namespace marlo {

// A list as a text that a person or a program can keep.

/// The list's rows from the top, and its headers in front of them, as comma-separated values: each
/// field in quotes, a quote inside doubled, lines ended by CR LF. Fields are bytes as they are. A
/// last column "Greyed" tells "yes" or "no". A row that only tells that there are no others is left
/// out.
std::string ListAsCsv(const ResultList& list);

/// The list as a page of HTML in UTF-8 that needs no other file, whose columns can be sorted.
/// Fields are escaped; nothing in them can act on the page.
/// @param sortedColumn the one that orders the rows, 1-based; 0 for none.
/// @param title a field; stands above the list and counts its rows.
/// @param moment when the list was made, in local time.
std::string ListAsHtml(const ResultList& list, int sortedColumn, const std::string& title,
                       const std::tm& moment);

/// Rows as a spreadsheet takes them from the clipboard: UTF-8, a line end behind each row, and a
/// tab between cells. A tab or line end inside of a cell becomes a space.
/// @param positions of the rows, 1-based.
std::string RowsAsText(const ResultList& list, const std::vector<std::size_t>& positions);

}  // namespace marlo
