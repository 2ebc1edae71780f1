#include "platform/windows/WindowsDesktop.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/windows/ShellIcons.h"
#include "platform/windows/System.h"
#include "platform/windows/Wide.h"
#include "platform/windows/WindowsError.h"

namespace marlo::platform {

namespace {

std::string ExtensionOf(const std::string& path) {
    const std::size_t mark = path.find_last_of("\\/.");
    return mark == std::string::npos || path[mark] != '.' ? "" : path.substr(mark);
}

/// What the shell says of files with such a name, whether there is one or not.
std::string DescriptionOf(const std::string& name) {
    SHFILEINFOA info{};
    const DWORD_PTR answer = SHGetFileInfoA(name.c_str(), FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                                            SHGFI_TYPENAME | SHGFI_USEFILEATTRIBUTES);
    return answer == 0 ? "" : static_cast<const char*>(info.szTypeName);
}

/// An argument as programs split the command line into words again. Most come through as they are.
std::string Quoted(const std::string& argument) {
    if (argument.find_first_of(" \t,;=\"") == std::string::npos)
        return argument;
    std::string quoted = "\"";
    std::size_t backslashes = 0;
    const auto doubleBackslashes = [&] { quoted.append(std::exchange(backslashes, 0), '\\'); };
    for (const char c : argument) {
        if (c == '"') {
            doubleBackslashes();
            quoted += '\\';
        }
        backslashes = c == '\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    doubleBackslashes();
    return quoted + '"';
}

}  // namespace

std::string WindowsDesktop::FileTypeDescription(const std::string& path, FileKind kind,
                                                std::error_code& error) const {
    error.clear();
    if (kind != FileKind::Regular && !IsFile(path, error))
        return {};
    const std::string extension = ExtensionOf(path);
    const auto known = descriptions_.find(extension);
    if (known != descriptions_.end())
        return known->second;
    return descriptions_.emplace(extension, DescriptionOf("file" + extension)).first->second;
}

std::optional<std::string> WindowsDesktop::ProgramForExtension(
    const std::string& /*extension*/) const {
    return std::nullopt;
}

std::optional<ShellIcon> WindowsDesktop::SmallIcon(const std::string& path) const {
    return DrawnSmallIcon(path);
}

int WindowsDesktop::ShellExecute(const ShellRequest& request) const {
    // What stands in front of a NUL is something else.
    for (const std::string* const text : {&request.file, &request.parameters, &request.folder})
        if (text->find('\0') != std::string::npos)
            return ERROR_FILE_NOT_FOUND;
    const HINSTANCE answer = ShellExecuteA(nullptr, request.verb.c_str(), request.file.c_str(),
                                           Quoted(request.parameters).c_str(),
                                           request.folder.c_str(), request.showState);
    return static_cast<int>(reinterpret_cast<INT_PTR>(answer));
}

std::string WindowsDesktop::ShortPath(const std::string& path) const {
    std::array<char, MAX_PATH> buffer{};
    const DWORD length = GetShortPathNameA(path.c_str(), buffer.data(), MAX_PATH);
    // For a buffer that is too small, the length is the one that it should have.
    return length < buffer.size() ? std::string(buffer.data(), length) : path;
}

}  // namespace marlo::platform
