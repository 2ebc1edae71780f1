#pragma once

#include <string>

#include "reports/ResultPane.h"

namespace marlo {

/// Saves the result list to a file: as a page of HTML where the path ends with ".html" or ".htm",
/// else as comma-separated values (see reports/ListPage.h). An old file is replaced when the new
/// one is complete. A failure is logged under "SaveList" and told, and leaves the old file.
/// @param title of the page, a field.
/// @param path the file's full path.
/// @return whether the list was saved.
bool SaveList(const ResultPane& pane, const std::string& title, const std::string& path);

/// The path that a list is saved to as a page when the user has chosen that kind and then a name of
/// the other kind, or of none: ".html" takes the place of ".csv", or comes behind the name.
std::string PagePath(const std::string& path);

}  // namespace marlo
