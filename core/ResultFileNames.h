#pragma once

/// The files of the result folder, as `ApplicationPath` takes them.
namespace marlo::result_file {

inline constexpr const char* kOccurrences = "\\resultfiles\\results.csv";
inline constexpr const char* kProjectPlugins = "\\resultfiles\\fln.csv";
inline constexpr const char* kUsedPlugins = "\\resultfiles\\tln.csv";
inline constexpr const char* kInstalledPlugins = "\\resultfiles\\installedplugins.csv";
inline constexpr const char* kErrorLog = "\\resultfiles\\errorlog.txt";

}  // namespace marlo::result_file
