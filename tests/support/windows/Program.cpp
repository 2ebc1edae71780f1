#include "tests/support/Program.h"

#include <array>
#include <filesystem>
#include <stdexcept>
#include <thread>
#include <utility>
#include <windows.h>

#include "tests/support/TempFolder.h"

namespace marlo::test {

namespace {

/// An argument as programs take their command lines apart.
std::wstring Quoted(const std::string& argument) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : PathOf(argument).wstring()) {
        if (c == L'"')
            quoted.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    quoted.append(backslashes, L'\\');
    return quoted + L'"';
}

/// Starts a program with its standard streams. @return its process.
HANDLE StartProcess(const std::vector<std::string>& arguments, const std::string& workingFolder,
                    HANDLE out, HANDLE error) {
    std::wstring commandLine;
    for (const std::string& argument : arguments)
        commandLine += Quoted(argument) + L' ';
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = out;
    start.hStdError = error;
    const std::wstring folder = PathOf(workingFolder).wstring();
    PROCESS_INFORMATION process{};
    // A group of its own, so that it alone is interrupted. Now and then Wine starts no program, but
    // does so when it is asked again.
    bool hasStarted = false;
    for (int attempt = 0; attempt < 2 && !hasStarted; ++attempt)
        hasStarted =
            CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE,
                           CREATE_NEW_PROCESS_GROUP, nullptr,
                           folder.empty() ? nullptr : folder.c_str(), &start, &process) != FALSE;
    if (!hasStarted)
        throw std::runtime_error("cannot start " + arguments.at(0) + " (error " +
                                 std::to_string(GetLastError()) + ")");
    CloseHandle(process.hThread);
    return process.hProcess;
}

int ExitCodeOf(HANDLE process) {
    WaitForSingleObject(process, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process, &code);
    CloseHandle(process);
    return static_cast<int>(code);
}

/// A pipe whose end for writing is inherited.
struct Pipe {
    HANDLE read = nullptr;
    HANDLE write = nullptr;

    Pipe() {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        if (CreatePipe(&read, &write, &inherited, 0) == FALSE)
            throw std::runtime_error("no pipes");
        SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
    }

    std::string ReadToEnd() const {
        std::string text;
        std::array<char, 65536> buffer{};
        DWORD count = 0;
        while (ReadFile(read, buffer.data(), buffer.size(), &count, nullptr) != FALSE && count > 0)
            text.append(buffer.data(), count);
        CloseHandle(read);
        return text;
    }
};

}  // namespace

ProgramResult Run(const std::vector<std::string>& arguments, const std::string& workingFolder) {
    const Pipe out;
    const Pipe error;
    const HANDLE process = StartProcess(arguments, workingFolder, out.write, error.write);
    CloseHandle(out.write);
    CloseHandle(error.write);
    ProgramResult result;
    std::thread errorReader([&] { result.error = error.ReadToEnd(); });
    result.out = out.ReadToEnd();
    errorReader.join();
    result.exitCode = ExitCodeOf(process);
    return result;
}

struct Program::Process {
    HANDLE handle;
};

Program::Program(std::unique_ptr<Process> process) : process_(std::move(process)) {}

Program::Program(Program&&) noexcept = default;

Program Program::Start(const std::vector<std::string>& arguments) {
    return Program(
        std::make_unique<Process>(Process{StartProcess(arguments, "", nullptr, nullptr)}));
}

Program::~Program() {
    if (process_ && process_->handle != nullptr) {
        Kill();
        Wait();
    }
}

void Program::Kill() {
    constexpr UINT killed = 137;
    TerminateProcess(process_->handle, killed);
}

void Program::Interrupt() {
    GenerateConsoleCtrlEvent(CTRL_BREAK_EVENT, GetProcessId(process_->handle));
}

bool Program::IsRunning() {
    return WaitForSingleObject(process_->handle, 0) == WAIT_TIMEOUT;
}

int Program::Wait() {
    return ExitCodeOf(std::exchange(process_->handle, nullptr));
}

// Nobody reads a console here.

Program Program::StartInTerminal(const std::vector<std::string>& /*arguments*/) {
    throw std::logic_error("there are no terminals here");
}

void Program::Type(const std::string& /*text*/) {}

const std::string& Program::ReadUntil(const std::string& /*text*/) {
    return read_;
}

const std::string& Program::ReadAll() {
    return read_;
}

}  // namespace marlo::test
