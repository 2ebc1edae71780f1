#include "tests/support/Program.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace marlo::test {

namespace {

[[noreturn]] void Become(const std::vector<std::string>& arguments) {
    std::vector<char*> words;
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    // An ordinary user for good, as a program whose users differ cannot be looked into.
    if (setreuid(geteuid(), geteuid()) == 0)
        execv(words[0], words.data());
    _exit(127);
}

int ExitCodeOf(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

/// Reads two pipes to their ends, whichever has something first.
void ReadBoth(int outPipe, int errorPipe, ProgramResult& result) {
    std::array<pollfd, 2> pipes = {{{outPipe, POLLIN, 0}, {errorPipe, POLLIN, 0}}};
    const std::array<std::string*, 2> texts = {&result.out, &result.error};
    std::array<char, 65536> buffer{};
    while (pipes[0].fd >= 0 || pipes[1].fd >= 0) {
        poll(pipes.data(), pipes.size(), -1);
        for (std::size_t i = 0; i < pipes.size(); ++i) {
            if (pipes.at(i).fd < 0 || pipes.at(i).revents == 0)
                continue;
            const ssize_t count = read(pipes.at(i).fd, buffer.data(), buffer.size());
            if (count > 0)
                texts.at(i)->append(buffer.data(), static_cast<std::size_t>(count));
            else
                pipes.at(i).fd = -1;
        }
    }
}

}  // namespace

ProgramResult Run(const std::vector<std::string>& arguments, const std::string& workingFolder) {
    std::array<int, 2> outPipe{};
    std::array<int, 2> errorPipe{};
    if (pipe2(outPipe.data(), O_CLOEXEC) != 0 || pipe2(errorPipe.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipes");
    const pid_t process = fork();
    if (process == 0) {
        const int nothing = open("/dev/null", O_RDONLY);
        dup2(nothing, STDIN_FILENO);
        dup2(outPipe[1], STDOUT_FILENO);
        dup2(errorPipe[1], STDERR_FILENO);
        if (!workingFolder.empty() && chdir(workingFolder.c_str()) != 0)
            _exit(127);
        Become(arguments);
    }
    close(outPipe[1]);
    close(errorPipe[1]);
    ProgramResult result;
    ReadBoth(outPipe[0], errorPipe[0], result);
    close(outPipe[0]);
    close(errorPipe[0]);
    int status = 0;
    waitpid(process, &status, 0);
    result.exitCode = ExitCodeOf(status);
    return result;
}

struct Program::Process {
    pid_t id;
    int terminal = -1;  ///< -1 without a terminal
};

Program::Program(std::unique_ptr<Process> process) : process_(std::move(process)) {}

Program::Program(Program&&) noexcept = default;

Program Program::Start(const std::vector<std::string>& arguments) {
    const pid_t process = fork();
    if (process == 0) {
        const int nothing = open("/dev/null", O_RDWR);
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            dup2(nothing, stream);
        Become(arguments);
    }
    return Program(std::make_unique<Process>(Process{process}));
}

Program Program::StartInTerminal(const std::vector<std::string>& arguments) {
    winsize size{};
    size.ws_col = 80;
    size.ws_row = 24;
    int terminal = -1;
    const pid_t process = forkpty(&terminal, nullptr, nullptr, &size);
    if (process == 0)
        Become(arguments);
    if (process < 0)
        throw std::runtime_error("no terminal");
    return Program(std::make_unique<Process>(Process{process, terminal}));
}

Program::~Program() {
    if (!process_)
        return;
    if (process_->id > 0) {
        Kill();
        Wait();
    }
    if (process_->terminal >= 0)
        close(process_->terminal);
}

void Program::Kill() {
    kill(process_->id, SIGKILL);
}

void Program::Interrupt() {
    kill(process_->id, SIGINT);
}

void Program::Type(const std::string& text) {
    if (write(process_->terminal, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
        throw std::runtime_error("cannot type");
}

const std::string& Program::ReadUntil(const std::string& text) {
    std::array<char, 4096> buffer{};
    while (text.empty() || read_.find(text) == std::string::npos) {
        const ssize_t count = read(process_->terminal, buffer.data(), buffer.size());
        if (count <= 0)
            break;
        read_.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return read_;
}

const std::string& Program::ReadAll() {
    return ReadUntil("");
}

bool Program::IsRunning() {
    siginfo_t ended{};
    return waitid(P_PID, static_cast<id_t>(process_->id), &ended, WEXITED | WNOHANG | WNOWAIT) ==
               0 &&
           ended.si_pid == 0;
}

int Program::Wait() {
    int status = 0;
    waitpid(std::exchange(process_->id, 0), &status, 0);
    return ExitCodeOf(status);
}

}  // namespace marlo::test
