#include "bench/Baselines.h"

#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace marlo::bench {

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
