#include "scan/ProjectDiscovery.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "core/RunTimeError.h"
#include "core/Text.h"
#include "platform/FileSystem.h"

namespace marlo {

namespace {

void SortIgnoringCase(std::vector<std::string>& names) {
    std::vector<std::pair<std::u32string, std::string>> keyed;
    keyed.reserve(names.size());
    for (std::string& name : names) {
        std::u32string key = UpperCase(Decode(name));
        keyed.emplace_back(std::move(key), std::move(name));
    }
    std::sort(keyed.begin(), keyed.end());
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = std::move(keyed[i].second);
}

class ProjectWalk {
  public:
    ProjectWalk(const Application& application, MainWindow& window, SearchLists& lists,
                bool includeSubfolders, std::int32_t& projectCount)
        : application_(application),
          window_(window),
          lists_(lists),
          includeSubfolders_(includeSubfolders),
          projectCount_(projectCount) {}

    void Start(const std::string& path) {
        std::error_code error;
        auto folder = platform::Folder::Open(path, error);
        if (!error)
            Visit(path, std::move(folder));
    }

  private:
    void Visit(const std::string& path, platform::Folder folder) {
        auto entries = EntriesOfNew(std::move(folder));
        if (!entries)
            return;
        VisitFiles(path, std::move(entries->files));
        if (includeSubfolders_)
            VisitSubfolders(path, std::move(entries->folders));
    }

    /// Reads and closes a folder; a deep tree would otherwise keep one open a level.
    /// @return nothing for a folder that was visited before.
    std::optional<platform::FolderEntries> EntriesOfNew(platform::Folder folder) {
        std::error_code error;
        const bool isNew = visited_.insert(folder.Identity(error)).second;
        ThrowOn(error);
        if (!isNew)
            return std::nullopt;
        auto entries = folder.Entries(error);
        ThrowOn(error);
        return entries;
    }

    void VisitFiles(const std::string& folder, std::vector<std::string> names) {
        std::vector<std::string> projects;
        for (std::string& name : names)
            if (IsProject(platform::JoinPath(folder, name)))
                projects.push_back(std::move(name));
        SortIgnoringCase(projects);
        for (const std::string& name : projects)
            Add(platform::JoinPath(folder, name));
    }

    void VisitSubfolders(const std::string& folder, std::vector<std::string> names) {
        SortIgnoringCase(names);
        for (const std::string& name : names) {
            const std::string path = platform::JoinPath(folder, name);
            std::error_code error;
            auto subfolder = platform::Folder::Open(path, error);
            ThrowOnPath(error);
            Visit(path, std::move(subfolder));
        }
    }

    bool IsProject(const std::string& path) const {
        std::error_code error;
        const std::string type = application_.desktop.FileTypeDescription(path, error);
        ThrowOn(error);
        return type == "CubaseSX Project" || type == "CPR File";
    }

    void Add(const std::string& path) {
        lists_.ProjectFiles.Append(path);
        ++projectCount_;
        window_.SetText2(path);
        window_.Repaint();
        window_.LetEventsRun();
    }

    const Application& application_;
    MainWindow& window_;
    SearchLists& lists_;
    bool includeSubfolders_;
    std::int32_t& projectCount_;
    std::set<platform::FileIdentity> visited_;
};

}  // namespace

void GetListOfProjects(const Application& application, MainWindow& window, SearchLists& lists,
                       const std::string& folder, bool includeSubfolders, bool /*sameAsLastRun*/,
                       DateNumber /*lastRunDate*/, std::int32_t& projectCount) {
    ProjectWalk(application, window, lists, includeSubfolders, projectCount).Start(folder);
}

}  // namespace marlo
