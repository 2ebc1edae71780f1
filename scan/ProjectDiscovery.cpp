#include "scan/ProjectDiscovery.h"

#include <system_error>

#include "core/FolderWalk.h"
#include "core/RunTimeError.h"

namespace marlo {

namespace {

class ProjectCollector final : public FolderVisitor {
  public:
    ProjectCollector(MainWindow& window, SearchLists& lists, std::int32_t& projectCount)
        : window_(window), lists_(lists), projectCount_(projectCount) {}

    bool EnterFolder(const std::string& /*path*/) override { return true; }

    void CannotOpen(const std::string& /*path*/, const std::error_code& error) override {
        ThrowOnPath(error);
    }

    void VisitFile(const std::string& path, const std::string& /*name*/) override {
        lists_.ProjectFiles.Append(path);
        ++projectCount_;
        window_.SetText2(path);
        window_.Repaint();
        window_.LetEventsRun();
    }

  private:
    MainWindow& window_;
    SearchLists& lists_;
    std::int32_t& projectCount_;
};

}  // namespace

void GetListOfProjects(const Application& application, MainWindow& window, SearchLists& lists,
                       const std::string& folder, bool includeSubfolders, bool /*sameAsLastRun*/,
                       DateNumber /*lastRunDate*/, std::int32_t& projectCount) {
    ProjectCollector collector(window, lists, projectCount);
    WalkFolder(application,
               {.start = folder,
                .includeSubfolders = includeSubfolders,
                .types = {"CubaseSX Project", "CPR File"}},
               collector);
}

}  // namespace marlo
