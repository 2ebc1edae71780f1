#include "inventory/ScanVSTFolder.h"

#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

#include "core/FolderWalk.h"
#include "core/Records.h"
#include "core/RunTimeError.h"
#include "core/Text.h"
#include "inventory/DirectXPlugins.h"
#include "platform/AnsiCodePage.h"
#include "platform/FileSystem.h"

namespace marlo {

namespace {

class LibraryWalk {
  public:
    LibraryWalk(const Application& application, MainWindow& window, bool includeSubfolders,
                LineWriter& output)
        : application_(application),
          window_(window),
          includeSubfolders_(includeSubfolders),
          output_(output) {}

    /// @return false when the user cancelled, which ends the walk.
    bool Visit(const std::string& path) {
        window_.SetText2(path);
        window_.LetEventsRun();
        window_.LetEventsRun();  // for a click that the first round has only put into the queue
        if (window_.CancelTag() == kCancelTag)
            return false;
        std::error_code error;
        auto folder = platform::Folder::Open(path, error);
        if (error)
            return true;
        auto entries = visited_.ReadOnce(std::move(folder));
        if (!entries)
            return true;
        VisitFiles(path, std::move(entries->files));
        return !includeSubfolders_ || VisitSubfolders(path, std::move(entries->folders));
    }

  private:
    void VisitFiles(const std::string& folder, std::vector<platform::FileEntry> files) {
        for (const std::string& name :
             FilesOfTypes(application_, folder, std::move(files), {"Application Extension"}))
            Write(name, platform::JoinPath(folder, name));
    }

    bool VisitSubfolders(const std::string& folder, std::vector<std::string> names) {
        SortIgnoringCase(names);
        return std::all_of(names.begin(), names.end(), [&](const std::string& name) {
            return Visit(platform::JoinPath(folder, name));
        });
    }

    void Write(const std::string& fileName, const std::string& path) {
        const std::size_t dot = fileName.rfind('.');
        if (dot == std::string::npos)
            throw RunTimeError(ErrorNumber::InvalidProcedureCall);
        const std::string name = platform::NameFromUtf8(fileName.substr(0, dot));
        if (!IsIncompatible(name + ";"))
            output_.WriteLine(QuotedFields({"VST", name, path}));
    }

    const Application& application_;
    MainWindow& window_;
    bool includeSubfolders_;
    LineWriter& output_;
    VisitedFolders visited_;
};

}  // namespace

void ScanVSTFolder(const Application& application, MainWindow& window, const std::string& folder,
                   bool includeSubfolders, LineWriter& output, bool& cancelled) {
    cancelled =
        !LibraryWalk(application, window, includeSubfolders, output).Visit(folder) || cancelled;
}

}  // namespace marlo
