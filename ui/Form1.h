#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "core/Application.h"
#include "core/MainWindow.h"
#include "reports/ResultPane.h"
#include "reports/ResultSearch.h"
#include "scan/SearchLists.h"
#include "ui/FormView.h"

namespace marlo {

/// The main window: what it does when the user does something, over a view that only shows.
///
/// Routines are named after the control and the event that they handle. What they log, they log
/// under that name, except where it says otherwise; a failure of `Form_Load` and `cmdButtons_Click`
/// is told, other failures are not.
class Form1 final : public MainWindow {
  public:
    /// @param helpSite what the paths of the help and donation pages are put behind: the address
    ///        of a web site, or a folder, in which they get the system's separators.
    Form1(const Application& application, FormView& view, std::string helpSite);

    const FormState& State() const { return state_; }
    ResultList& lstSongs() { return pane_.lstSongs; }
    /// What the result list shows, for a heading: a field.
    const std::string& ListTitle() const { return listTitle_; }
    /// The column that orders the rows of the result list, 1-based; 0 for none.
    int SortedColumn() const { return marlo::SortedColumn(pane_); }

    /// Saves the result list under its title (see SaveList.h).
    void SaveList(const std::string& path);

    /// Shows the saved choices, fills in the settings that can be found out, and lays the window
    /// out.
    void Form_Load();

    /// Lays the window out for its size, unless it is minimised. Failures are ignored.
    void Form_Resize();
    /// Lays the window out anew, on a screen where the view's lengths and texts have other sizes.
    /// Failures are ignored.
    void Form_ScaleChange();

    /// Whether the window may close. During a run it may not: the run is cancelled, asks and tells
    /// nothing any more, and the window closes when it has ended.
    bool Form_QueryUnload();
    /// Saves the choices of the search controls. Failures are ignored.
    void Form_Unload();

    /// A click on a command item. @param index 0-based; one that no item has does nothing.
    void cmdButtons_Click(int index);

    /// A second has passed: after a minute the donate button goes for good.
    void Timer1_Timer();
    /// Opens the donation page. A failure is logged under "lstSongs_ColumnClick", a text that
    /// users' logs have always had.
    void btnDonate_Click();

    /// Runs the search of the result files.
    void cmdFind_Click();
    /// Runs it for Enter. @param character the code of the character typed.
    void txtSearchText_KeyPress(int character);

    /// See ResultListView.h.
    void lstSongs_ColumnClick(int column);
    void lstSongs_DblClick();

    // The mouse is over something. Failures are ignored.
    void cmdbuttons_MouseMove(std::size_t index);
    void Form_MouseMove();
    void imgMenu_MouseMove();
    void imgRightPane_MouseMove();

    void SetText1(const std::string& text) override;
    void SetText2(const std::string& text) override;
    void ClearStatusBar() override;
    void Repaint() override;
    void LetEventsRun() override;
    void SetHourglass(bool isShown) override;
    void AutoSizeListViewColumns() override;
    void SetListViewLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                           std::int32_t sizingKind) override;
    std::string CancelTag() const override { return cancelTag_; }
    void SetCancelTag(const std::string& tag) override { cancelTag_ = tag; }
    void DisableButtons() override;
    void EnableButtons() override;
    MessageAnswer ShowMessage(const Message& message) override;
    std::string PickFolder(const std::string& prompt, const std::string& startFolder) override;

  private:
    void RunCommand(const CommandItem& item);
    template <class Body>
    void RunLong(Body body);
    void EndRun();
    void ShowReport(const char* kind);
    void ShowHelp();
    void ToggleSearchMode();
    void LoadSearchControls();
    bool HasAllResultFiles() const;
    int OpenPage(const char* path) const;
    template <class IsMeant>
    void ClearHoverMarks(IsMeant isMeant);
    SearchPane CurrentSearch() const;

    const Application& application_;
    FormView& view_;
    std::string helpSite_;
    FormState state_;
    FormLayout layout_;
    ResultPane pane_;
    SearchLists lists_;
    SearchMode searchMode_ = SearchMode::ProjectsByPlugin;
    std::string cancelTag_;
    std::string listTitle_;
    std::int32_t donateCountdown_ = 0;  ///< seconds
    bool isRunning_ = false;            ///< a search or an inventory is
    bool isClosing_ = false;            ///< the window closes as soon as the run has ended
};

}  // namespace marlo
