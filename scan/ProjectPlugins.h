#pragma once

#include <cstddef>
#include <string>

#include "core/Application.h"
#include "scan/SearchLists.h"

namespace marlo {

/// How much record text, in bytes, one project may add to the lists. No real project comes near;
/// a hostile one whose banks share one endless name would otherwise fill the disk.
inline constexpr std::size_t kMaxRecordText = std::size_t{256} * 1024 * 1024;

/// Scans one project file for plug-ins and appends a record for each bank found to
/// `lists.PluginOccurrences`, and for each plug-in of the project to `lists.ProjectPluginKeys`,
/// with its merged state in `lists.ProjectPluginStates`. Path and names go into the records byte
/// for byte.
///
/// @param path the project's path, which need not be free of commas or quotes.
/// @return true when the file was scanned, also when it ends in the middle of a bank. False after a
///         failure: the file cannot be opened or read, a bank starts within the first 52 bytes, or
///         the records would pass `kMaxRecordText`, or those of all projects `kMaxTotalRecordText`
///         ("Out of memory"). It is logged under "GetPlugins4Project <path> <last record built>";
///         what was found before is kept.
bool GetPlugins4Project(const Application& application, SearchLists& lists,
                        const std::string& path);

}  // namespace marlo
