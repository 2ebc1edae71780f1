#include "tests/support/Fakes.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "tests/support/TempFolder.h"

namespace marlo::test {

namespace {

std::string Format(const std::tm& moment, const char* format) {
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), format, &moment)};
}

MessageAnswer FirstButton(MessageButtons buttons) {
    const bool yesFirst =
        buttons == MessageButtons::YesNo || buttons == MessageButtons::YesNoCancel;
    return yesFirst ? MessageAnswer::Yes : MessageAnswer::Ok;
}

}  // namespace

FakeClock::FakeClock() {
    now.tm_year = 2026 - 1900;
    now.tm_mon = 11 - 1;
    now.tm_mday = 15;
    now.tm_hour = 3;
    now.tm_min = 10;
    now.tm_sec = 22;
}

std::string FakeClock::TimeText(const std::tm& moment) const {
    return Format(moment, "%H:%M:%S");
}

std::string FakeClock::ShortDateText(const std::tm& moment) const {
    return Format(moment, "%d/%m/%Y");
}

std::string FakeDesktop::FileTypeDescription(const std::string& path, platform::FileKind /*kind*/,
                                             std::error_code& error) const {
    const std::filesystem::path file = PathOf(path);
    error.clear();
    if (unreadable.contains(file.filename().string()))
        error = std::make_error_code(std::errc::permission_denied);
    const auto found = descriptions.find(file.extension().string());
    return error || found == descriptions.end() ? "" : found->second;
}

std::optional<std::string> FakeDesktop::ProgramForExtension(const std::string& extension) const {
    if (programs.empty())
        return std::nullopt;
    const auto found = programs.find(extension);
    return found == programs.end() ? "" : found->second;
}

int FakeDesktop::ShellExecute(const platform::ShellRequest& request) const {
    shellRequests.push_back(request);
    if (shellFailure)
        std::rethrow_exception(shellFailure);
    return shellAnswer;
}

std::string FakeDesktop::ShortPath(const std::string& path) const {
    return std::filesystem::exists(PathOf(path)) ? "short:" + path : "";
}

std::optional<platform::ShellIcon> FakeDesktop::SmallIcon(const std::string& path) const {
    if (onSmallIcon)
        onSmallIcon();
    if (shellFailure)
        std::rethrow_exception(shellFailure);
    const auto found = icons.find(path);
    return found == icons.end() ? std::nullopt : std::optional(found->second);
}

void RecordingWindow::WriteDown(std::string event) {
    events.push_back(std::move(event));
    if (failing.contains(events.back()))
        throw std::runtime_error("the window fails");
}

void RecordingWindow::SetText1(const std::string& text) {
    text1 = text;
    WriteDown("Text1: " + text);
}

void RecordingWindow::SetText2(const std::string& text) {
    text2 = text;
    WriteDown("Text2: " + text);
}

void RecordingWindow::ClearStatusBar() {
    text1.clear();
    text2.clear();
    WriteDown("ClearStatusBar");
}

void RecordingWindow::Repaint() {
    WriteDown("Repaint");
    if (onRepaint)
        onRepaint();
}

void RecordingWindow::LetEventsRun() {
    WriteDown("Events");
    if (onEvents)
        onEvents();
}

void RecordingWindow::SetHourglass(bool isShown) {
    WriteDown(isShown ? "Hourglass" : "Usual pointer");
}

void RecordingWindow::AutoSizeListViewColumns() {
    WriteDown("AutoSizeListViewColumns");
    if (onAutoSize)
        onAutoSize();
}

void RecordingWindow::SetListViewLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                                        std::int32_t sizingKind) {
    std::ostringstream event;
    event << "SetListViewLedger " << std::hex << bar1Colour << " " << bar2Colour << " "
          << sizingKind;
    WriteDown(event.str());
}

void RecordingWindow::DisableButtons() {
    WriteDown("DisableButtons");
}

void RecordingWindow::EnableButtons() {
    WriteDown("EnableButtons");
}

MessageAnswer RecordingWindow::ShowMessage(const Message& message) {
    WriteDown("Message: " + message.text);
    messages.push_back(message);
    if (onMessage)
        onMessage(message);
    if (answers.empty())
        return FirstButton(message.buttons);
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer;
}

std::string RecordingWindow::PickFolder(const std::string& prompt, const std::string& startFolder) {
    WriteDown("PickFolder: " + prompt + " " + startFolder);
    return folder;
}

std::vector<std::string> RecordingWindow::MessageTexts() const {
    std::vector<std::string> texts;
    for (const Message& message : messages)
        texts.push_back(message.text);
    return texts;
}

std::vector<std::string> RecordingWindow::Phases() const {
    const std::string prefix = "Text1: ";
    std::vector<std::string> phases;
    for (const std::string& event : events)
        if (event.starts_with(prefix) && event.size() > prefix.size())
            phases.push_back(event.substr(prefix.size()));
    return phases;
}

std::size_t RecordingWindow::Count(const std::string& event) const {
    return static_cast<std::size_t>(std::count(events.begin(), events.end(), event));
}

}  // namespace marlo::test
