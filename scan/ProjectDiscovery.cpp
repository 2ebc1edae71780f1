#include "scan/ProjectDiscovery.h"

#include <system_error>
#include <utility>
#include <vector>

#include "core/FolderWalk.h"
#include "core/RunTimeError.h"
#include "core/Text.h"
#include "platform/FileSystem.h"

namespace marlo {

namespace {

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
        auto entries = visited_.ReadOnce(std::move(folder));
        if (!entries)
            return;
        VisitFiles(path, std::move(entries->files));
        if (includeSubfolders_)
            VisitSubfolders(path, std::move(entries->folders));
    }

    void VisitFiles(const std::string& folder, std::vector<platform::FileEntry> files) {
        for (const std::string& name :
             FilesOfTypes(application_, folder, std::move(files), {"CubaseSX Project", "CPR File"}))
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
    VisitedFolders visited_;
};

}  // namespace

void GetListOfProjects(const Application& application, MainWindow& window, SearchLists& lists,
                       const std::string& folder, bool includeSubfolders, bool /*sameAsLastRun*/,
                       DateNumber /*lastRunDate*/, std::int32_t& projectCount) {
    ProjectWalk(application, window, lists, includeSubfolders, projectCount).Start(folder);
}

}  // namespace marlo
