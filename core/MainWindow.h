#pragma once

#include <cstdint>
#include <string>

#include "core/Application.h"
#include "platform/MessageBox.h"

namespace marlo {

using platform::MessageAnswer;
using platform::MessageButtons;
using platform::MessageIcon;

/// A message box. It goes by the application's title unless it has a title of its own; an empty
/// one is a title too.
struct Message {
    std::string text;
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;
    std::string title = std::string(kApplicationTitle);
};

/// What the logic may ask of the window that it runs in. All texts are fields: bytes that the
/// window decodes for display (see Text.h).
class MainWindow {
  public:
    virtual ~MainWindow() = default;

    /// The first status box: the phase of a run.
    virtual void SetText1(const std::string& text) = 0;
    /// The second status box: the item being worked on.
    virtual void SetText2(const std::string& text) = 0;
    /// Empties both status boxes.
    virtual void ClearStatusBar() = 0;

    /// Brings what has changed to the screen.
    virtual void Repaint() = 0;
    /// Lets pending events run, so that the window stays alive and Cancel can be pressed.
    virtual void LetEventsRun() = 0;

    /// Shows the hourglass as the mouse pointer, or the usual one again.
    virtual void SetHourglass(bool isShown) = 0;

    /// Fits each column of the result list to the wider of its header and its cells.
    virtual void AutoSizeListViewColumns() = 0;
    /// Shades the result list's rows in two colours, in turn (see
    /// reports/AlternateColourOnListview.h). Its failures are its own.
    /// @param bar1Colour the first row's; blue in the high byte, red in the low one.
    /// @param bar2Colour the second row's.
    /// @param sizingKind what decides the height of a row.
    virtual void SetListViewLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                                   std::int32_t sizingKind) = 0;

    /// The mark on the Cancel button: "Cancel" once it was pressed, empty before.
    virtual std::string CancelTag() const = 0;
    virtual void SetCancelTag(const std::string& tag) = 0;

    /// Locks every command but Cancel for the time of a run.
    virtual void DisableButtons() = 0;
    /// Unlocks the commands that are possible now, and locks Cancel.
    virtual void EnableButtons() = 0;

    /// Shows a message box and waits for the answer.
    virtual MessageAnswer ShowMessage(const Message& message) = 0;
    /// Lets the user pick a folder, starting at `startFolder`.
    /// @return the folder's path; empty when the user cancels.
    virtual std::string PickFolder(const std::string& prompt, const std::string& startFolder) = 0;
};

/// The Cancel button's mark after it was pressed.
inline constexpr const char* kCancelTag = "Cancel";

/// Tells the user that something failed which no message of its own is foreseen for.
void ShowUnexpectedError(MainWindow& window);

}  // namespace marlo
