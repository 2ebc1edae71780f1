#pragma once

#include <string>

#include "reports/ResultList.h"

namespace marlo {

// A list as a file that a person or a program can keep.

/// The list's rows from the top, and its headers in front of them, as comma-separated values: each
/// field in quotes, a quote inside doubled, lines ended by CR LF. Fields are bytes as they are. A
/// last column "Greyed" tells "yes" or "no". A row that only tells that there are no others is left
/// out.
std::string ListAsCsv(const ResultList& list);

/// The list as a page of HTML in UTF-8 that needs no other file, whose columns can be sorted.
/// Fields are escaped; nothing in them can act on the page.
/// @param title in UTF-8; stands above the list and counts its rows.
/// @param date in UTF-8; when the list was made.
std::string ListAsHtml(const ResultList& list, const std::string& title, const std::string& date);

}  // namespace marlo
