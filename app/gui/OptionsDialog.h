#pragma once

#include <array>
#include <wx/dialog.h>

#include "app/gui/IconBox.h"
#include "app/gui/LedgerList.h"
#include "app/gui/Pickers.h"
#include "dialogs/frmOptions.h"

class wxBitmapComboBox;
class wxBookCtrlBase;
class wxButton;
class wxCheckBox;
class wxStaticText;
class wxTextCtrl;

namespace marlo::gui {

/// The Options dialog's controls.
class OptionsDialog final : public wxDialog, private OptionsView {
  public:
    /// @param firstCsvBox, secondCsvBox the main window's, for the icon of the program chosen.
    OptionsDialog(wxWindow* mainWindow, const Application& application, PictureBox& firstCsvBox,
                  PictureBox& secondCsvBox);
    OptionsDialog(const OptionsDialog&) = delete;
    OptionsDialog& operator=(const OptionsDialog&) = delete;
    OptionsDialog(OptionsDialog&&) = delete;
    OptionsDialog& operator=(OptionsDialog&&) = delete;
    ~OptionsDialog() override { DestroyChildren(); }  // which tell the logic what happens to them

  private:
    void Show(const OptionsState& state) override;
    void AutoSizeListViewColumns() override { lstPaths_->AutoSizeColumns(); }
    LedgerView& Ledger() override { return *lstPaths_; }
    MessageAnswer ShowMessage(const Message& message) override;
    void Close() override;
    using wxDialog::Close;
    using wxDialog::Show;

    void CreateControls();
    wxWindow* CreateFoldersTab();
    wxWindow* CreateCsvTab();
    wxWindow* CreateGeneralTab();
    wxWindow* CreateLogTab();
    wxSizer* CreateSearchFrame(wxWindow* page);
    wxSizer* CreateInventoryFrame(wxWindow* page);
    wxSizer* AddGrid(wxSizer* frame) const;
    void BindEvents();
    void BindListEvents();
    void LayOut();
    void FollowScreen();
    int Pixels(int designPixels) const;

    FolderPicker folders_;
    FilePicker files_;
    IconBox Picture1_;
    frmOptions logic_;

    wxStaticText* lblHeader_ = nullptr;
    wxBookCtrlBase* tabs_ = nullptr;
    LedgerList* lstPaths_ = nullptr;
    wxButton* cmdAdd_ = nullptr;
    wxButton* cmdRemove_ = nullptr;
    wxBitmapComboBox* imgcboPath_ = nullptr;
    wxButton* cmdTab2Search_ = nullptr;
    wxCheckBox* chkIgnoreDX_ = nullptr;
    wxCheckBox* chkIgnoreOff_ = nullptr;
    wxStaticText* label2_ = nullptr;
    wxStaticText* label1_ = nullptr;
    wxTextCtrl* text1_ = nullptr;
    wxStaticText* label7_ = nullptr;
};

}  // namespace marlo::gui
