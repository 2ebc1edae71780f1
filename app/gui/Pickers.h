#pragma once

#include "dialogs/FileBrowser.h"
#include "dialogs/FolderBrowser.h"

class wxWindow;

namespace marlo::gui {

/// The system's folder picker where it has one, else the toolkit's.
class FolderPicker final : public FolderChooser {
  public:
    explicit FolderPicker(wxWindow* owner) : owner_(owner) {}
    std::optional<std::string> ChooseFolder(const FolderRequest& request) override;

  private:
    wxWindow* owner_;
};

/// The system's picker of a file to open where it has one, else the toolkit's; that one offers all
/// files besides what the filter lets through, as programs have no extension everywhere.
class FilePicker final : public FileChooser {
  public:
    FilePicker(wxWindow* owner, const Application& application)
        : owner_(owner), application_(application) {}
    bool GetOpenFileName(OpenFileName& record) override;

  private:
    wxWindow* owner_;
    const Application& application_;
};

}  // namespace marlo::gui
