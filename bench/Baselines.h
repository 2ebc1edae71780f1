#pragma once

#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace marlo::bench {

/// Reads files with `read()`, in blocks of 256 KiB.
void ReadFiles(benchmark::State& state, const std::vector<std::string>& paths);

/// Reads files from the disk into the page cache, where they are then as a user's files are. What
/// has just been written lies there in larger pages, which are read in two thirds of the time.
void ReadFromDisk(const std::vector<std::string>& paths);

/// Reads the lines of files with `std::getline`.
void ReadLines(benchmark::State& state, const std::vector<std::string>& paths);

/// Runs a program that is found in the search path.
/// @param words the program's name first.
/// @param output the file that its output goes to.
void RunProgram(benchmark::State& state, const std::vector<std::string>& words,
                const std::string& output = "/dev/null");

}  // namespace marlo::bench
