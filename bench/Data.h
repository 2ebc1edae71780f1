#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace marlo::bench {

/// The folder for the files that the benchmarks read. Files are made when they are missing and
/// stay for the next run.
const std::string& DataFolder();

/// 300 projects of a real archive's sizes, 80 KiB to 8 MiB, 400 MB in all, each with a dozen
/// plug-ins. @return their paths.
const std::vector<std::string>& RealisticLibrary();

/// `count` projects of 4 KiB that all use the same 20 plug-ins. @return their paths.
std::vector<std::string> SmallProjects(std::size_t count);

/// A file whose bytes are made by `make` if it is not there yet. @return its path.
std::string HostileFile(const std::string& name, std::string (*make)(std::size_t size),
                        std::size_t size);

}  // namespace marlo::bench
