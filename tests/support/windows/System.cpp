#include "tests/support/System.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <windows.h>

namespace marlo::test {

namespace {

/// Wine makes no links, but can start the program of the system below that does.
bool MakeLinkBelowWine(const std::filesystem::path& target, const std::filesystem::path& path) {
    using UnixName = char*(CDECL*)(const wchar_t*);
    const auto unixName = reinterpret_cast<UnixName>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleA("kernel32.dll"), "wine_get_unix_file_name")));
    if (unixName == nullptr)
        return false;
    char* const folder = unixName(path.parent_path().c_str());
    if (folder == nullptr)
        return false;
    std::wstring command = L"start.exe /wait /unix /bin/ln -s \"";
    command += target.generic_wstring() + L"\" \"";
    command += std::filesystem::path(folder).wstring() + L"/" + path.filename().wstring() + L"\"";
    HeapFree(GetProcessHeap(), 0, folder);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &start, &process) == FALSE)
        return false;
    WaitForSingleObject(process.hProcess, INFINITE);
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
    return true;
}

}  // namespace

void SetVariable(const std::string& name, const std::string& value) {
    _putenv_s(name.c_str(), value.c_str());
}

void ClearVariable(const std::string& name) {
    _putenv_s(name.c_str(), "");
}

bool CanChooseTimeZone() {
    return false;
}

bool MakeLink(const std::string& target, const std::string& path) {
    const std::filesystem::path link(path);
    std::filesystem::path to(target);
    to.make_preferred();
    const bool isFolder = std::filesystem::is_directory(link.parent_path() / to);
    constexpr DWORD allowOrdinaryUsers = 2;
    const DWORD flags = (isFolder ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0) | allowOrdinaryUsers;
    return CreateSymbolicLinkW(link.c_str(), to.c_str(), flags) != FALSE ||
           MakeLinkBelowWine(to, link);
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

bool HasUnixShell() {
    return false;
}

OrdinaryUser::OrdinaryUser() {
    throw std::logic_error("cannot become an ordinary user");
}

OrdinaryUser::~OrdinaryUser() = default;

}  // namespace marlo::test
