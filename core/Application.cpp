#include "core/Application.h"

#include <algorithm>

#include "core/Text.h"
#include "platform/FileSystem.h"

namespace marlo {

namespace {

constexpr std::string_view kResultFolder = "resultfiles";

}  // namespace

std::string ResultFolder(const std::string& applicationFolder) {
    std::error_code error;
    std::string usual = platform::JoinPath(applicationFolder, kResultFolder);
    if (platform::IsFolder(usual, error))
        return usual;
    const auto folder = platform::Folder::Open(applicationFolder, error);
    if (error)
        return usual;
    const auto names = folder.Entries(error).folders;
    const auto found = std::ranges::find_if(names, [](const platform::SubfolderEntry& entry) {
        return EqualIgnoringCase(entry.name, kResultFolder);
    });
    return found == names.end() ? usual : platform::JoinPath(applicationFolder, found->name);
}

std::string ApplicationPath(const Application& application, std::string_view relativePath) {
    std::string path = application.folder;
    while (!relativePath.empty()) {
        relativePath.remove_prefix(1);
        const std::string_view name = relativePath.substr(0, relativePath.find('\\'));
        relativePath.remove_prefix(name.size());
        path = EqualIgnoringCase(name, kResultFolder) ? ResultFolder(application.folder)
                                                      : platform::JoinPath(path, name);
    }
    return path;
}

}  // namespace marlo
