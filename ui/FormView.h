#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "core/MainWindow.h"
#include "dialogs/FolderBrowser.h"
#include "dialogs/GetIcons.h"
#include "reports/AlternateColourOnListview.h"
#include "ui/CommandItems.h"
#include "ui/FormLayout.h"

namespace marlo {

/// What the main window's controls show, but for the status boxes, the result list and what the
/// user types or picks. Texts are fields (see core/Text.h).
struct FormState {
    struct Item {
        std::string caption;
        bool isEnabled = true;
        bool isHovered = false;
    };

    std::array<Item, kCommandItemCount> cmdbuttons;
    bool isFindEnabled = true;
    bool isDonateEnabled = true;
    bool isDonateVisible = true;
};

/// The main window as its logic sees it: controls without a will of their own.
class FormView {
  public:
    virtual ~FormView() = default;

    /// Brings the controls in line with the state, which has changed.
    virtual void Show(const FormState& state) = 0;
    /// Shows texts in the status boxes, fields that change many thousand times in a run: what is
    /// not on the screen for long enough to be seen should not take time.
    virtual void ShowText1(const std::string& text) = 0;
    virtual void ShowText2(const std::string& text) = 0;
    /// Brings the result list in line with its model, which has changed.
    virtual void ShowList() = 0;

    /// How large the controls have to be for their texts, in twips.
    virtual NaturalSizes Sizes() const = 0;
    /// The room for controls in the window, in twips.
    virtual TwipSize ClientArea() const = 0;
    /// Whether the window is minimised, and has no room to lay out.
    virtual bool IsMinimised() const = 0;
    /// Moves the panes and controls to their places.
    virtual void Place(const FormLayout& layout) = 0;

    /// Puts texts into the list of search types, in the place of all others.
    virtual void FillSearchTypes(const std::vector<std::string>& types) = 0;
    /// The search type that is picked, 0-based; -1 for none.
    virtual int SearchType() const = 0;
    virtual void SetSearchType(int index) = 0;
    virtual bool IgnoreCase() const = 0;
    virtual void SetIgnoreCase(bool isChecked) = 0;
    /// The text to search for as it was typed, a field.
    virtual std::string SearchText() const = 0;

    /// Starts calling `Form1::Timer1_Timer`.
    /// @param interval in milliseconds.
    virtual void StartTimer(int interval) = 0;
    /// Stops the calls; without effect when there are none.
    virtual void StopTimer() = 0;

    /// Calls `action` soon, when the window has been painted; not at all when it is closed before.
    virtual void Later(const std::function<void()>& action) = 0;

    /// Takes the window's icons from a file; none when there is no such file.
    virtual void SetProgramIcon(const std::string& path) = 0;
    /// The boxes beside the items that open a result file. @param index 0 or 1.
    virtual PictureBox& CsvIcon(std::size_t index) = 0;

    /// See the routines of `MainWindow` by the same names.
    virtual void Repaint() = 0;
    virtual void LetEventsRun() = 0;
    virtual void SetHourglass(bool isShown) = 0;
    virtual void AutoSizeListViewColumns() = 0;
    virtual MessageAnswer ShowMessage(const Message& message) = 0;

    /// What shows the result list, for the shading of its rows.
    virtual LedgerView& Ledger() = 0;

    /// The folder picker, which is shown over the window.
    virtual FolderChooser& Folders() = 0;
    /// Shows a dialog until the user closes it.
    virtual void ShowOptions() = 0;
    virtual void ShowAbout() = 0;

    /// Closes the window, as if the user did.
    virtual void Close() = 0;
};

}  // namespace marlo
