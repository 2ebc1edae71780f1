#include "bench/Baselines.h"

#include <array>
#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace marlo::bench {

namespace {

/// Aligned, as reading into a buffer that is not takes some 40 % longer.
struct alignas(4096) PlainBuffer : std::array<char, std::size_t{256} * 1024> {};

std::size_t ReadFile(const std::string& path) {
    static PlainBuffer buffer;
    const int file = open(path.c_str(), O_RDONLY);
    if (file < 0)
        throw std::runtime_error("cannot open " + path);
    std::size_t total = 0;
    for (;;) {
        const ssize_t count = read(file, buffer.data(), buffer.size());
        if (count <= 0)
            break;
        total += static_cast<std::size_t>(count);
    }
    close(file);
    return total;
}

}  // namespace

void ReadFiles(benchmark::State& state, const std::vector<std::string>& paths) {
    std::size_t total = 0;
    for (auto iteration : state)
        for (const std::string& path : paths)
            total += ReadFile(path);
    state.SetBytesProcessed(static_cast<std::int64_t>(total));
}

void ReadFromDisk(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
        const int file = open(path.c_str(), O_RDONLY);
        if (file < 0 || fsync(file) != 0 || posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED) != 0)
            throw std::runtime_error("cannot leave " + path + " to the disk");
        close(file);
        ReadFile(path);
    }
}

void ReadLines(benchmark::State& state, const std::vector<std::string>& paths) {
    for (auto iteration : state) {
        std::size_t lines = 0;
        for (const std::string& path : paths) {
            std::ifstream file(path, std::ios::binary);
            for (std::string line; std::getline(file, line);)
                ++lines;
        }
        benchmark::DoNotOptimize(lines);
    }
}

void RunProgram(benchmark::State& state, const std::vector<std::string>& words,
                const std::string& output) {
    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC, 0644);
    std::vector<std::string> ownWords = words;
    std::vector<char*> arguments;
    for (std::string& word : ownWords)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    for (auto iteration : state) {
        pid_t process = 0;
        int status = 0;
        if (posix_spawnp(&process, arguments[0], &actions, nullptr, arguments.data(), environ) !=
                0 ||
            waitpid(process, &status, 0) != process || status != 0)
            throw std::runtime_error("cannot run " + words.front());
    }
    posix_spawn_file_actions_destroy(&actions);
}

}  // namespace marlo::bench
