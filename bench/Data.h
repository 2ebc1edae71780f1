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

/// 300 projects of a real archive's sizes, 80 KiB to 8 MiB, 400 MB in all, each with a dozen
/// plug-ins. @return their paths.
const std::vector<std::string>& RealisticLibrary();

/// `count` projects of 4 KiB that all use the same 20 plug-ins. @return their paths.
std::vector<std::string> SmallProjects(std::size_t count);

/// A folder of `count` projects of 80 KiB, the smallest in a real archive, that all use the same 20
/// plug-ins. @return its path.
std::string ProjectFolder(std::size_t count);

/// A file whose bytes are made by `make` if it is not there yet. @return its path.
std::string HostileFile(const std::string& name, std::string (*make)(std::size_t size),
                        std::size_t size);

/// A tree of `folderCount` folders, forty in each at most, with ten empty files each, whose names
/// end with `extensions` in turn. @return its path.
std::string FileTree(const std::string& name, std::size_t folderCount,
                     const std::vector<std::string>& extensions);

/// A Wine prefix whose "system.reg" has about `size` bytes, with `effectCount` registered effects
/// among the other classes. @return its path.
std::string WinePrefixFolder(std::size_t size, std::size_t effectCount);

/// The name of one of many plug-ins, which begin with all sorts of letters.
std::string PluginName(std::size_t number);

/// An application folder with result files: a "tln.csv" and an "installedplugins.csv" with as many
/// lines as asked for. Half of the lines of the shorter file are in the longer one.
std::string ResultFilesFolder(std::size_t used, std::size_t installed);

/// A plug-in that `SearchFolder`'s projects use rarely.
inline constexpr const char* kRarePlugin = "Rare Gem";
inline constexpr std::size_t kRareUses = 1000;

/// An application folder with an "fln.csv" of 1,000,000 lines, of which `kRareUses` are of
/// `kRarePlugin`, and the projects of those.
std::string SearchFolder();

}  // namespace marlo::bench
