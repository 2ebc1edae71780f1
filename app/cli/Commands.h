#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Registry.h"
#include "reports/ReportView.h"
#include "reports/SearchMatch.h"

namespace marlo::cli {

/// What the program tells the shell when it ends.
enum ExitCode { kDone = 0, kFailed = 1, kWrongUsage = 2, kCancelled = 130 };

/// What every command gets from the command line and the machine.
struct Environment {
    std::string applicationFolder;  ///< without a separator at its end
    const platform::Clock& clock;
    const platform::Desktop& desktop;
    platform::Registry& registry;
};

/// The options that work with every command.
struct SharedOptions {
    std::optional<std::string> applicationFolder;  ///< nothing: the program's usual one
};

enum class OutputFormat { Table, Csv, Json, JsonLines };

/// How a report or the result of a search is printed.
enum class ListFormat { Table, Csv, Json, Html, Paths };

/// Whether a table shows greyed rows by colours rather than by marks.
enum class Colours {
    AsUsual,  ///< as `Auto`, but not where the environment variable NO_COLOR is set, unless to ""
    Auto,     ///< where the standard output is a terminal that shows them
    Always,   ///< wherever it goes, but not to a terminal that would show their sequences as text
    Never,
};

struct PluginsOptions {
    std::vector<std::string> files;
    bool merged = false;  ///< a line for each plug-in of a file rather than for each use
    OutputFormat format = OutputFormat::Table;
};

/// Prints the plug-in uses of project files, by their full paths; touches no result file. As lines
/// of JSON, those of a project are printed when it has been read.
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

struct InstalledOptions {
    std::optional<std::string> winePrefix;  ///< nothing: the user's own
    bool showProgress = false;              ///< also where the standard error stream is no terminal
};

/// Writes the list of installed plug-ins anew and prints how many of each type there are.
/// @return kCancelled after an interrupt, kFailed when anything failed, which is said on the
///         standard error stream.
int RunInstalled(const Environment& environment, const InstalledOptions& options);

struct ReportOptions {
    ReportKind kind = ReportKind::Used;
    ListFormat format = ListFormat::Table;
    bool endsWithNull = false;  ///< each path ends with a NUL byte, not with a line feed
    Colours colours = Colours::AsUsual;
};

/// Prints a report from the result files.
/// @return kWrongUsage when paths are asked of a report that has none, or a NUL byte behind
///         something else, kFailed when anything failed, which is said on the standard error
///         stream; what was found is printed all the same.
int RunReport(const Environment& environment, const ReportOptions& options);

struct FindOptions {
    enum class Where { Plugins, Projects };

    std::string text;
    Where where = Where::Plugins;        ///< in whose names the text is looked for
    std::optional<MatchType> matchType;  ///< nothing: the one that was chosen last
    std::optional<bool> ignoreCase;      ///< nothing: the same
    ListFormat format = ListFormat::Table;
    bool endsWithNull = false;  ///< as in `ReportOptions`
    Colours colours = Colours::AsUsual;
};

/// Searches the result files and prints what it finds.
/// @return as `RunReport`.
int RunFind(const Environment& environment, const FindOptions& options);

/// Prints the VST plug-in folders, one a line; those that are not there now are said on the
/// standard error stream too.
int RunFoldersList(const Environment& environment);

struct FolderOptions {
    std::string folder;
};

/// Adds a VST plug-in folder behind the others.
/// @return kFailed when there is no such folder, or it is in the list already.
int RunFoldersAdd(const Environment& environment, const FolderOptions& options);

/// Takes a VST plug-in folder off the list.
/// @return kFailed when it is not in the list.
int RunFoldersRemove(const Environment& environment, const FolderOptions& options);

/// The options to set; the others stay as they are.
struct OptionChanges {
    std::optional<std::string> csvProgram;
    std::optional<bool> ignoreDirectX;
    std::optional<bool> ignoreOff;
};

/// Sets the options that are given, and prints all of them as they are then.
int RunOptions(const Environment& environment, const OptionChanges& changes);

/// Prints when the last runs were and what was searched.
int PrintRunLog(const Environment& environment);

enum class Shell { Bash, Zsh, Fish };

struct CompletionOptions {
    Shell shell = Shell::Bash;
};

/// Prints the script that completes the program's command lines in a shell.
int PrintCompletion(const CompletionOptions& options);

}  // namespace marlo::cli
