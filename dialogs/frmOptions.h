#pragma once

#include <cstddef>
#include <string>

#include "core/Application.h"
#include "core/MainWindow.h"
#include "dialogs/FileBrowser.h"
#include "dialogs/FolderBrowser.h"
#include "dialogs/GetIcons.h"
#include "reports/AlternateColourOnListview.h"
#include "reports/ResultList.h"

namespace marlo {

/// What the Options dialog shows. Texts are fields (see core/Text.h).
struct OptionsState {
    int tab = 0;  ///< the selected tab, 0-based
    std::string lblHeader;
    ResultList LstPaths;     ///< one column; a row's key and text are a folder's path
    std::string imgcboPath;  ///< the program for CSV files
    bool chkIgnoreDX = false;
    bool chkIgnoreOff = false;
    std::string Label1;  ///< when projects were searched last
    std::string Text1;   ///< which folder
    std::string Label7;  ///< when the inventory was taken last
    std::string Label2;  ///< a note on the general settings
};

/// The dialog's window, as far as its logic goes.
class OptionsView {
  public:
    virtual ~OptionsView() = default;

    /// Brings the controls in line with the state, which has changed.
    virtual void Show(const OptionsState& state) = 0;
    /// Fits the column of `LstPaths` to its texts.
    virtual void AutoSizeListViewColumns() = 0;
    /// What shows `LstPaths`, for its row colours.
    virtual LedgerView& Ledger() = 0;
    virtual MessageAnswer ShowMessage(const Message& message) = 0;
    virtual void Close() = 0;
};

/// What the Options dialog needs around it.
struct OptionsParts {
    OptionsView& view;
    FolderChooser& folders;
    FileChooser& files;
    PictureBox& Picture1;     ///< the icon of the program in `imgcboPath`
    PictureBox& firstCsvBox;  ///< the two of the main window
    PictureBox& secondCsvBox;
};

/// The Options dialog: edits a copy of the settings, which `cmdOk_Click` writes. Each routine logs
/// a failure under "frmOptions:" and its own name, unless it says otherwise, and tells the user.
class frmOptions {
  public:
    frmOptions(const Application& application, OptionsParts parts);

    const OptionsState& State() const { return state_; }

    /// Shows what the settings hold. It fails at a folder that they hold twice, which leaves what
    /// comes after it empty.
    void Form_Load();
    /// @param tab the tab that the user has selected, 0-based.
    void Tabs_Click(int tab);
    /// Fits the column of `LstPaths` and gives its rows their alternating colours, as opening and
    /// adding do; to be called on a screen where texts have another size. A column that cannot be
    /// fitted is the caller's failure.
    void ShadePaths();

    // What the user does in the controls themselves, which show it already. These do not fail.

    /// Selects a row of `LstPaths`. @param position 1-based; one that does not exist is none.
    void SelectPath(std::size_t position);
    void SetIgnoreDX(bool isChecked) { state_.chkIgnoreDX = isChecked; }
    void SetIgnoreOff(bool isChecked) { state_.chkIgnoreOff = isChecked; }

    /// Lets the user choose a folder and adds it. The selected one stays selected. One that is
    /// listed already is told, not logged.
    void cmdAdd_Click();
    /// Takes the selected folder off the list, and selects the one that moves up, or else the last.
    /// With no folder selected it fails, unless the list is empty.
    void cmdRemove_Click();
    /// Lets the user choose the program for CSV files. A cancel drops one that was chosen before,
    /// which stays shown. Logs under "cmdTab2Search_Click".
    void cmdTab2Search_Click();

    /// Writes the settings and closes the dialog. A setting that cannot be written is logged under
    /// "WriteSetting" and does not count as a failure.
    void cmdOk_Click();
    /// Closes the dialog; nothing is written.
    void cmdCancel_Click();

  private:
    void SelectTab(int tab);
    void LoadImageIntoCombo(const std::string& path);

    const Application& application_;
    OptionsParts parts_;
    OptionsState state_;
    std::string pendingProgram_;
};

}  // namespace marlo
