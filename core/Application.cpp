#include "core/Application.h"

#include <algorithm>
#include <vector>

#include "core/Text.h"
#include "platform/FileSystem.h"

namespace marlo {

namespace {

constexpr std::string_view kResultFolder = "resultfiles";

enum class Kind { File, Folder };

bool IsThere(const std::string& path, Kind kind) {
    std::error_code ignored;
    return kind == Kind::File ? platform::IsFile(path, ignored) : platform::IsFolder(path, ignored);
}

/// The names of all files or folders in `folder`; none when it cannot be read.
std::vector<std::string> NamesIn(const std::string& folder, Kind kind) {
    std::error_code error;
    const auto open = platform::Folder::Open(folder, error);
    if (error)
        return {};
    const platform::FolderEntries entries = open.Entries(error);
    std::vector<std::string> names;
    if (kind == Kind::Folder)
        for (const platform::SubfolderEntry& subfolder : entries.folders)
            names.push_back(subfolder.name);
    else
        for (const platform::FileEntry& file : entries.files)
            names.push_back(file.name);
    return names;
}

/// The path of a file or folder in `folder`, whatever the case of its name. An exact match wins,
/// then the first name in byte order.
std::string PathIn(const std::string& folder, std::string_view usualName, Kind kind) {
    std::string usual = platform::JoinPath(folder, usualName);
    if (IsThere(usual, kind))
        return usual;
    std::vector<std::string> names = NamesIn(folder, kind);
    std::erase_if(names,
                  [&](const std::string& name) { return !EqualIgnoringCase(name, usualName); });
    const auto first = std::min_element(names.begin(), names.end());
    return first == names.end() ? usual : platform::JoinPath(folder, *first);
}

}  // namespace

std::string ResultFolder(const std::string& applicationFolder) {
    return PathIn(applicationFolder, kResultFolder, Kind::Folder);
}

std::string ApplicationPath(const std::string& applicationFolder, std::string_view relativePath) {
    std::string path = applicationFolder;
    while (!relativePath.empty()) {
        relativePath.remove_prefix(1);
        const std::string_view name = relativePath.substr(0, relativePath.find('\\'));
        relativePath.remove_prefix(name.size());
        path = PathIn(path, EqualIgnoringCase(name, kResultFolder) ? kResultFolder : name,
                      relativePath.empty() ? Kind::File : Kind::Folder);
    }
    return path;
}

std::string ApplicationPath(const Application& application, std::string_view relativePath) {
    return ApplicationPath(application.folder, relativePath);
}

}  // namespace marlo
