#include "tests/support/System.h"

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string_view>
#include <windows.h>
// After the header that it needs.
#include <psapi.h>

#include "tests/support/TempFolder.h"

namespace marlo::test {

namespace {

using UnixName = char*(CDECL*)(const wchar_t*);

/// What tells a path's name in the system below Wine; nullptr on Windows.
UnixName UnixNameFinder() {
    return reinterpret_cast<UnixName>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleA("kernel32.dll"), "wine_get_unix_file_name")));
}

std::wstring NameBelowWine(UnixName unixName, const std::filesystem::path& path) {
    char* const name = unixName(path.c_str());
    const std::wstring result = PathOf(name).generic_wstring();
    HeapFree(GetProcessHeap(), 0, name);
    return result;
}

/// Runs a program of the system below Wine, which can do with links what Wine cannot. Wine does not
/// always tell when it has ended.
void RunBelowWine(const std::wstring& command, const std::function<bool()>& isDone) {
    std::wstring line = L"start.exe /unix " + command;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                       &process) == FALSE)
        return;
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
    constexpr DWORD interval = 2;  // milliseconds
    constexpr int patience = 5000;
    for (int i = 0; i < patience && !isDone(); ++i)
        Sleep(interval);
}

bool linksWereMade = false;

/// The most memory that this process has had so far, in bytes.
std::size_t PeakMemory() {
    PROCESS_MEMORY_COUNTERS counters{};
    if (GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters) == FALSE)
        throw std::runtime_error("the system does not tell of this process's memory");
    return counters.PeakWorkingSetSize;
}

}  // namespace

void SetVariable(const std::string& name, const std::string& value) {
    _putenv_s(name.c_str(), value.c_str());
}

void ClearVariable(const std::string& name) {
    _putenv_s(name.c_str(), "");
}

bool MoveToCentralEurope() {
    const char* const zone = std::getenv("TZ");
    return zone != nullptr && std::string_view(zone) == "Europe/Berlin";
}

std::string OddName() {
    return "Chorus, 'live'";
}

bool MakeLink(const std::string& target, const std::string& path) {
    const std::filesystem::path link = PathOf(path);
    const std::filesystem::path to = PathOf(target).make_preferred();
    if (const UnixName unixName = UnixNameFinder()) {
        // Wine shows no link that leads nowhere, but does not delete its folder either.
        if (!std::filesystem::exists(link.parent_path() / to))
            return false;
        RunBelowWine(L"/bin/ln -s \"" + to.generic_wstring() + L"\" \"" +
                         NameBelowWine(unixName, link.parent_path()) + L"/" +
                         link.filename().wstring() + L"\"",
                     [&] { return std::filesystem::exists(link); });
        linksWereMade = true;
        return true;
    }
    const bool isFolder = std::filesystem::is_directory(link.parent_path() / to);
    constexpr DWORD allowOrdinaryUsers = 2;
    const DWORD flags = (isFolder ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0) | allowOrdinaryUsers;
    return CreateSymbolicLinkW(link.c_str(), to.c_str(), flags) != FALSE;
}

bool CanTellLinks() {
    return UnixNameFinder() == nullptr;
}

void RemoveTree(const std::filesystem::path& folder) {
    // Wine cannot delete a link to a folder.
    if (const UnixName unixName = UnixNameFinder(); unixName != nullptr && linksWereMade)
        RunBelowWine(L"/bin/rm -rf \"" + NameBelowWine(unixName, folder) + L"\"",
                     [&] { return !std::filesystem::exists(folder); });
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

bool CanBeOrdinaryUser() {
    return false;
}

FileSizeLimit::FileSizeLimit(std::size_t /*size*/) {
    throw std::logic_error("cannot limit the size of files");
}

FileSizeLimit::~FileSizeLimit() = default;

bool FileSizeLimit::IsPossible() {
    return false;
}

std::size_t MemoryTakenBy(const std::function<void()>& action) {
    const std::size_t before = PeakMemory();
    action();
    return PeakMemory() - before;
}

bool CanLimitMemory() {
    return false;
}

bool HasUnixShell() {
    return false;
}

OrdinaryUser::OrdinaryUser() {
    throw std::logic_error("cannot become an ordinary user");
}

OrdinaryUser::~OrdinaryUser() = default;

}  // namespace marlo::test
