#include "app/ApplicationFolder.h"

#include <system_error>

#include "core/Application.h"
#include "platform/FileSystem.h"
#include "platform/Installation.h"

namespace marlo {

namespace {

/// PREFIX/share/marlo; nothing when the program is not installed.
std::optional<std::string> InstalledFiles() {
    const auto prefix = platform::InstallPrefix();
    if (!prefix)
        return std::nullopt;
    std::error_code error;
    std::string files = platform::JoinPath(platform::JoinPath(*prefix, "share"), "marlo");
    if (!platform::IsFile(platform::JoinPath(files, "installed"), error))
        return std::nullopt;
    return files;
}

/// Makes a folder, and those on the way to it that are missing.
void MakeFolders(const std::string& path, std::error_code& error) {
    if (platform::IsFolder(path, error) || error)
        return;
    if (const auto parent = platform::ParentPath(path))
        MakeFolders(*parent, error);
    if (error)
        return;
    platform::MakeFolder(path, error);
    std::error_code ignored;
    if (error == std::errc::file_exists && platform::IsFolder(path, ignored))
        error.clear();  // another program was faster
}

ApplicationFolder GivenFolder(const std::string& given) {
    ApplicationFolder folder;
    std::error_code error;
    folder.path = platform::FullPath(given, error);
    if (error || !platform::IsFolder(folder.path, error))
        folder.failure = "the application folder " + given + " does not exist";
    return folder;
}

ApplicationFolder UsersFolder() {
    ApplicationFolder folder;
    const auto data = platform::UserDataFolder();
    if (!data) {
        folder.failure =
            "there is no home folder to keep settings and results in; name a folder for them with "
            "--app-folder DIR";
        return folder;
    }
    std::error_code error;
    folder.path = platform::FullPath(platform::JoinPath(*data, "marlo"), error);
    const std::string results = ResultFolder(folder.path);
    if (!error)
        MakeFolders(results, error);
    if (error)
        folder.failure = "the folder " + results + " cannot be made (" + error.message() + ")";
    return folder;
}

/// Warns when the program cannot write into its folder, or into the result folder if that is there.
void CheckWritable(ApplicationFolder& folder, const std::string& advice) {
    for (const auto& path : {folder.path, ResultFolder(folder.path)}) {
        std::error_code error;
        platform::CheckWritable(path, error);
        if (!error || error == std::errc::no_such_file_or_directory)
            continue;
        folder.warnings = {
            "Settings and results cannot be saved in " + path + " (" + error.message() + ").",
            advice + ", or name another folder with --app-folder DIR."};
        return;
    }
}

}  // namespace

std::string ProgramFiles() {
    const auto files = InstalledFiles();
    return files ? *files : platform::ProgramFolder();
}

ApplicationFolder FindApplicationFolder(const std::optional<std::string>& given) {
    if (given)
        return GivenFolder(*given);
    const bool isInstalled = InstalledFiles().has_value();
    ApplicationFolder folder = isInstalled ? UsersFolder() : GivenFolder(platform::ProgramFolder());
    if (folder.failure.empty())
        CheckWritable(folder, isInstalled ? "Make that folder writable"
                                          : "Move the program's folder to where you can write");
    return folder;
}

}  // namespace marlo
