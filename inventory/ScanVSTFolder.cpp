#include <system_error>
#include <utility>

#include "core/FolderWalk.h"
#include "core/Records.h"
#include "core/RunTimeError.h"
#include "inventory/DirectXPlugins.h"
#include "inventory/GetInstalledPlugins.h"
#include "platform/AnsiCodePage.h"
#include "platform/FileSystem.h"

namespace marlo {

namespace {

class LibraryWriter final : public FolderVisitor {
  public:
    /// @param startText what to show of the start, in the place of its full path.
    LibraryWriter(MainWindow& window, std::string startText, LineWriter& output)
        : window_(window), startText_(std::move(startText)), output_(output) {}

    bool EnterFolder(const std::string& path) override {
        const std::string start = std::exchange(startText_, {});
        window_.SetText2(start.empty() ? path : start);
        window_.LetEventsRun();
        window_.LetEventsRun();  // for a click that the first round has only put into the queue
        return window_.CancelTag() != kCancelTag;
    }

    void CannotOpen(const std::string& /*path*/, const std::error_code& /*error*/) override {}

    void VisitFile(const std::string& path, const std::string& fileName) override {
        const std::size_t dot = fileName.rfind('.');
        if (dot == std::string::npos)
            throw RunTimeError(ErrorNumber::InvalidProcedureCall);
        const std::string name = platform::NameFromUtf8(fileName.substr(0, dot));
        if (!IsIncompatible(name + ";"))
            output_.WriteLine(QuotedFields({"VST", name, path}));
    }

  private:
    MainWindow& window_;
    std::string startText_;  ///< until it is shown
    LineWriter& output_;
};

}  // namespace

void ScanVSTFolder(const Application& application, MainWindow& window, const std::string& folder,
                   bool includeSubfolders, LineWriter& output, bool& cancelled) {
    LibraryWriter writer(window, folder, output);
    std::error_code ignored;  // a path that has no full one cannot be opened either
    const FolderWalk walk{.start = platform::FullPath(folder, ignored),
                          .includeSubfolders = includeSubfolders,
                          .types = {"Application Extension"}};
    if (!WalkFolder(application, walk, writer))
        cancelled = true;
}

}  // namespace marlo
