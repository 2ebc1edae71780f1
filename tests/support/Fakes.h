#pragma once

#include <cstdint>
#include <deque>
#include <exception>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/MainWindow.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"

namespace marlo::test {

/// A clock that stands still and writes dates the British way.
class FakeClock final : public platform::Clock {
  public:
    FakeClock();

    std::tm Now() const override { return now; }
    std::string TimeText(const std::tm& moment) const override;
    std::string ShortDateText(const std::tm& moment) const override;

    /// 03:10:22 on 15 November 2026, until a test sets it.
    std::tm now{};
};

/// A desktop that describes files by their extensions.
class FakeDesktop final : public platform::Desktop {
  public:
    std::string FileTypeDescription(const std::string& path, platform::FileKind kind,
                                    std::error_code& error) const override;

    /// From an extension, with its dot, to the type's description.
    std::map<std::string, std::string> descriptions = {{".cpr", "CPR File"},
                                                       {".CPR", "CPR File"},
                                                       {".dll", "Application Extension"},
                                                       {".DLL", "Application Extension"}};
    std::optional<std::string> ProgramForExtension(const std::string& extension) const override;
    int ShellExecute(const platform::ShellRequest& request) const override;
    std::string ShortPath(const std::string& path) const override;
    std::optional<platform::ShellIcon> SmallIcon(const std::string& path) const override;

    /// From an extension to its program; empty for a desktop that keeps them in the registry.
    std::map<std::string, std::string> programs;
    /// The names of files that cannot be asked about.
    std::set<std::string> unreadable;
    /// What the shell was asked, and what it answers.
    mutable std::vector<platform::ShellRequest> shellRequests;
    int shellAnswer = 33;
    /// Thrown by the shell, if set.
    std::exception_ptr shellFailure;
    /// From a file's path to its icon.
    std::map<std::string, platform::ShellIcon> icons;
    /// Called when an icon is asked for, if set.
    std::function<void()> onSmallIcon;
};

/// A window that writes down what it is asked, in `events`, one line each: "Text1: …",
/// "Text2: …", "ClearStatusBar", "Repaint", "Events", "DisableButtons", "EnableButtons",
/// "PickFolder: <prompt> <start folder>", "Message: <text>", "Hourglass", "Usual pointer",
/// "AutoSizeListViewColumns", "SetListViewLedger <colours in hexadecimal> <sizing kind>".
class RecordingWindow final : public MainWindow {
  public:
    void SetText1(const std::string& text) override;
    void SetText2(const std::string& text) override;
    void ClearStatusBar() override;
    void Repaint() override;
    void LetEventsRun() override;
    void SetHourglass(bool isShown) override;
    void AutoSizeListViewColumns() override;
    void SetListViewLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                           std::int32_t sizingKind) override;
    std::string CancelTag() const override { return cancelTag; }
    void SetCancelTag(const std::string& tag) override { cancelTag = tag; }
    void DisableButtons() override;
    void EnableButtons() override;
    MessageAnswer ShowMessage(const Message& message) override;
    std::string PickFolder(const std::string& prompt, const std::string& startFolder) override;

    /// The texts of the messages shown.
    std::vector<std::string> MessageTexts() const;
    /// The texts that the first status box showed, "" left out.
    std::vector<std::string> Phases() const;
    /// How often `event` was written down.
    std::size_t Count(const std::string& event) const;

    std::vector<std::string> events;
    /// Events at which the window fails, once they are written down.
    std::set<std::string> failing;
    std::vector<Message> messages;
    std::string cancelTag;
    std::string text1;
    std::string text2;

    /// What the folder picker answers.
    std::string folder;
    /// What the message boxes answer, in order; when it is used up, their first button.
    std::deque<MessageAnswer> answers;
    /// Called when events run, when columns are fitted, when the window is repainted and when a
    /// message is shown, so that a test can meddle.
    std::function<void()> onEvents;
    std::function<void()> onAutoSize;
    std::function<void()> onRepaint;
    std::function<void(const Message&)> onMessage;

  private:
    void WriteDown(std::string event);
};

}  // namespace marlo::test
