#pragma once

/// The titles by which a list's columns are known, whatever report or search they belong to. A
/// report's first column has the report's own title.
namespace marlo::column_title {

inline constexpr const char* kProject = "Project";
inline constexpr const char* kModified = "Last Modified";
inline constexpr const char* kPlugin = "Plugin";
inline constexpr const char* kType = "Type";
inline constexpr const char* kPath = "Path";
inline constexpr const char* kStatus = "Status";

}  // namespace marlo::column_title
