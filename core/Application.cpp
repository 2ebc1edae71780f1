#include "core/Application.h"

#include <algorithm>

#include "core/Text.h"
#include "platform/FileSystem.h"

namespace marlo {

namespace {

constexpr std::string_view kResultFolder = "resultfiles";

std::string ResultFolderName(const Application& application) {
    std::error_code error;
    std::string usual(kResultFolder);
    if (platform::IsFolder(platform::JoinPath(application.folder, usual), error))
        return usual;
    const auto folder = platform::Folder::Open(application.folder, error);
    if (error)
        return usual;
    const auto names = folder.Entries(error).folders;
    const auto found = std::find_if(names.begin(), names.end(), [](const std::string& name) {
        return EqualIgnoringCase(name, kResultFolder);
    });
    return found == names.end() ? usual : *found;
}

}  // namespace

std::string ApplicationPath(const Application& application, std::string_view relativePath) {
    std::string path = application.folder;
    while (!relativePath.empty()) {
        relativePath.remove_prefix(1);
        const std::string_view name = relativePath.substr(0, relativePath.find('\\'));
        relativePath.remove_prefix(name.size());
        const bool isResultFolder = EqualIgnoringCase(name, kResultFolder);
        path = platform::JoinPath(path, isResultFolder ? ResultFolderName(application) : name);
    }
    return path;
}

}  // namespace marlo
