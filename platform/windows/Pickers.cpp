#include "platform/Pickers.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>

#include "platform/WideText.h"
#include "platform/windows/System.h"

namespace marlo::platform {

namespace {

constexpr std::size_t kChosenPathSize = 512;  // bytes

struct ItemDeleter {
    void operator()(ITEMIDLIST* item) const { CoTaskMemFree(item); }
};

/// @param bufferSize of the buffer for the path, at least MAX_PATH bytes.
/// @return the path as it stands there; empty when the item is not in the file system.
std::string PathOf(PCIDLIST_ABSOLUTE item, std::size_t bufferSize) {
    std::string path(bufferSize, '\0');
    if (SHGetPathFromIDListA(item, path.data()) == FALSE)
        return {};
    // It never takes more than MAX_PATH bytes, which are few characters of some languages.
    constexpr std::size_t surelyWhole = MAX_PATH - 4;
    std::array<wchar_t, MAX_PATH> wide{};
    if (path.find('\0') > surelyWhole && SHGetPathFromIDListW(item, wide.data()) != FALSE)
        return NarrowText(wide.data());
    return path;
}

/// What a `BROWSEINFOA`'s callback is called about.
class BrowsedFolder final : public OpenFolderPicker {
  public:
    BrowsedFolder(HWND window, PCIDLIST_ABSOLUTE item) : window_(window), item_(item) {}

    void SetSelection(const std::string& folder) override {
        SendMessageA(window_, BFFM_SETSELECTIONA, TRUE, reinterpret_cast<LPARAM>(folder.c_str()));
    }
    void SetStatusText(const std::string& text) override {
        SendMessageA(window_, BFFM_SETSTATUSTEXTA, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
    std::string SelectedPath() const override {
        const std::string path = PathOf(item_, MAX_PATH);
        return path.substr(0, path.find('\0'));
    }

  private:
    HWND window_;
    PCIDLIST_ABSOLUTE item_;
};

int CALLBACK BrowseCallbackProc(HWND window, UINT message, LPARAM item, LPARAM data) {
    BrowsedFolder picker(window, reinterpret_cast<PCIDLIST_ABSOLUTE>(item));
    const auto& callback = reinterpret_cast<const FolderRequest*>(data)->callback;
    if (message == BFFM_INITIALIZED)
        callback(BrowseMessage::Initialized, picker);
    else if (message == BFFM_SELCHANGED)
        callback(BrowseMessage::SelectionChanged, picker);
    return 0;
}

/// Brings the working folder back that a picker leaves in the folder that was chosen from.
class KeptWorkingFolder {
  public:
    KeptWorkingFolder() : folder_(GetCurrentDirectoryW(0, nullptr), L'\0') {
        GetCurrentDirectoryW(static_cast<DWORD>(folder_.size()), folder_.data());
    }
    KeptWorkingFolder(const KeptWorkingFolder&) = delete;
    KeptWorkingFolder& operator=(const KeptWorkingFolder&) = delete;
    KeptWorkingFolder(KeptWorkingFolder&&) = delete;
    KeptWorkingFolder& operator=(KeptWorkingFolder&&) = delete;
    ~KeptWorkingFolder() { SetCurrentDirectoryW(folder_.c_str()); }

  private:
    std::wstring folder_;
};

const char* TextOrNone(const std::string& text) {
    return text.empty() ? nullptr : text.c_str();
}

}  // namespace

std::optional<std::string> ChooseFolder(void* owner, const FolderRequest& request) {
    std::array<char, MAX_PATH> displayName{};
    BROWSEINFOA info{};
    info.hwndOwner = static_cast<HWND>(owner);
    info.pszDisplayName = displayName.data();
    info.lpszTitle = request.title.c_str();
    info.ulFlags = request.flags;
    if (request.callback) {
        info.lpfn = BrowseCallbackProc;
        info.lParam = reinterpret_cast<LPARAM>(&request);
    }
    const std::unique_ptr<ITEMIDLIST, ItemDeleter> item(SHBrowseForFolderA(&info));
    if (!item)
        return std::nullopt;
    return PathOf(item.get(), kChosenPathSize);
}

bool ChooseFile(void* owner, OpenFileName& record) {
    const KeptWorkingFolder workingFolder;
    OPENFILENAMEA info{};
    info.lStructSize = sizeof info;
    info.hwndOwner = static_cast<HWND>(owner);
    info.lpstrFilter = record.filter.c_str();
    info.nFilterIndex = static_cast<DWORD>(record.filterIndex);
    info.lpstrFile = record.file.data();
    info.nMaxFile = static_cast<DWORD>(record.file.size());
    info.lpstrFileTitle = record.fileTitle.data();
    info.nMaxFileTitle = static_cast<DWORD>(record.fileTitle.size());
    info.lpstrInitialDir = TextOrNone(record.initialFolder);
    info.lpstrTitle = TextOrNone(record.title);
    info.Flags = record.flags;
    BOOL isChosen = GetOpenFileNameA(&info);
    if (isChosen == FALSE && CommDlgExtendedError() == FNERR_INVALIDFILENAME) {
        // What is proposed cannot be a file's name; another one can still be chosen.
        std::fill(record.file.begin(), record.file.end(), '\0');
        isChosen = GetOpenFileNameA(&info);
    }
    if (isChosen == FALSE)
        return false;
    record.flags = info.Flags;
    record.filterIndex = static_cast<std::int32_t>(info.nFilterIndex);
    return true;
}

}  // namespace marlo::platform
