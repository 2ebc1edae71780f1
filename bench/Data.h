#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/Application.h"

namespace marlo::bench {

/// The folder for the files that the benchmarks read. Files are made when they are missing and
/// stay for the next run.
const std::string& DataFolder();

/// An application in that folder, on this machine.
Application BenchApplication();

/// The most projects that `RealisticLibrary` has.
inline constexpr std::size_t kLibraryFiles = 300;

/// Projects of a real archive's sizes, 80 KiB to 8 MiB, each with a dozen plug-ins; all of them
/// have 400 MB. @param count how many, all sizes among them. @return their paths.
std::vector<std::string> RealisticLibrary(std::size_t count);

/// A folder of `count` projects, which are those of the library again and again, by hard links.
/// @return its path.
std::string LibraryFolder(std::size_t count);

/// The paths of the projects in that folder.
std::vector<std::string> ProjectsOf(const std::string& folder);

/// `count` projects of 4 KiB that all use the same 20 plug-ins. @return their paths.
std::vector<std::string> SmallProjects(std::size_t count);

/// A folder of `count` projects of 80 KiB, the smallest in a real archive, that all use the same 20
/// plug-ins. @return its path.
std::string ProjectFolder(std::size_t count);

/// A file whose bytes are made by `make` if it is not there yet. @return its path.
std::string HostileFile(const std::string& name, std::string (*make)(std::size_t size),
                        std::size_t size);

/// A tree of `fileCount` empty files, ten in each folder, and forty folders in another at most. The
/// files' names end with `extensions` in turn. @return its path.
std::string FileTree(const std::string& name, std::size_t fileCount,
                     const std::vector<std::string>& extensions);

/// A Wine prefix whose "system.reg" has about `size` bytes, with `effectCount` registered effects
/// among the other classes. @return its path.
std::string WinePrefixFolder(std::size_t size, std::size_t effectCount);

/// The name of one of many plug-ins, which begin with all sorts of letters.
std::string PluginName(std::size_t number);

/// An application folder with result files: a "tln.csv" and an "installedplugins.csv" with as many
/// lines as asked for. Half of the lines of the shorter file are in the longer one.
std::string ResultFilesFolder(std::size_t used, std::size_t installed);

/// A plug-in that `SearchFolder`'s projects use rarely: in one line of `kLinesPerRareUse`.
inline constexpr const char* kRarePlugin = "Rare Gem";
inline constexpr std::size_t kLinesPerRareUse = 1000;

/// An application folder with an "fln.csv" of so many lines, and the projects of those that are of
/// `kRarePlugin`.
std::string SearchFolder(std::size_t lines);

}  // namespace marlo::bench
