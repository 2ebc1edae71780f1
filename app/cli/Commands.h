#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "platform/Desktop.h"

namespace marlo::cli {

/// What the program tells the shell when it ends.
enum ExitCode { kDone = 0, kFailed = 1, kWrongUsage = 2, kCancelled = 130 };

/// What every command gets from the command line and the machine.
struct Environment {
    std::string applicationFolder;  ///< without a separator at its end
    const platform::Clock& clock;
    const platform::Desktop& desktop;
};

enum class OutputFormat { Table, Csv, Json };

struct PluginsOptions {
    std::vector<std::string> files;
    bool merged = false;  ///< a line for each plug-in of a file rather than for each use
    OutputFormat format = OutputFormat::Table;
};

/// Prints the plug-in uses of project files, by their full paths; touches no result file.
/// @return kFailed when a file could not be scanned, which is said on the standard error stream;
///         what was found is printed all the same.
int RunPlugins(const Environment& environment, const PluginsOptions& options);

struct SearchOptions {
    std::optional<std::string> folder;  ///< nothing: the folder of the last search
    bool includeSubfolders = true;
    bool showProgress = false;  ///< also where the standard error stream is no terminal
};

/// Runs a whole search and prints a summary.
/// @return kWrongUsage when there is no folder to search, kCancelled after an interrupt that came
///         before the result files were written or at a question about them, kFailed when anything
///         failed, which is said on the standard error stream.
int RunSearch(const Environment& environment, const SearchOptions& options);

/// Flushes the standard output.
/// @return `exitCode`, or kFailed when the output could not be written, which is said.
int FinishOutput(int exitCode);

}  // namespace marlo::cli
