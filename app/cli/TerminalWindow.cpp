#include "app/cli/TerminalWindow.h"

#include <iostream>
#include <string_view>
#include <utility>

#include "app/cli/TerminalText.h"
#include "platform/Terminal.h"
#include "platform/Utf8.h"

namespace marlo::cli {

namespace {

/// A log entry's context may hold a whole record; this much of it tells which.
constexpr std::size_t kMaxProcedureLength = 300;

/// `text` without what goes beyond that length, in whole characters where it is UTF-8.
std::string Shortened(std::string_view text) {
    if (text.size() <= kMaxProcedureLength)
        return std::string(text);
    std::size_t length = kMaxProcedureLength;
    while (length > 0 && platform::ContinuesCharacter(text[length]))
        --length;
    return std::string(text.substr(0, length)) + " ...";
}

bool CanAsk() {
    return platform::IsTerminal(platform::Stream::In) &&
           platform::IsTerminal(platform::Stream::Error);
}

}  // namespace

void TerminalWindow::SetText1(const std::string& text) {
    text1_ = text;
}

void TerminalWindow::SetText2(const std::string& text) {
    text2_ = text;
}

void TerminalWindow::ClearStatusBar() {
    text1_.clear();
    text2_.clear();
    progress_.Clear();
}

void TerminalWindow::Repaint() {
    progress_.Show(text1_, text2_);
}

std::string TerminalWindow::CancelTag() const {
    return platform::Interrupted() ? kCancelTag : cancelTag_;
}

void TerminalWindow::SetCancelTag(const std::string& tag) {
    cancelTag_ = tag;
}

MessageAnswer TerminalWindow::ShowMessage(const Message& message) {
    if (message.buttons == MessageButtons::YesNoCancel)
        return answers_.includeSubfolders;
    const MessageAnswer answer =
        message.buttons == MessageButtons::OkCancel ? Ask(message) : Tell(message);
    // A message without an icon tells of a failure too; good news has the information icon.
    const bool mended = message.buttons == MessageButtons::OkCancel && answer == MessageAnswer::Ok;
    if (message.icon != MessageIcon::Information && !mended)
        sawFailure_ = true;
    return answer;
}

MessageAnswer TerminalWindow::Tell(const Message& message) {
    Say(message.text);
    return MessageAnswer::Ok;
}

MessageAnswer TerminalWindow::Ask(const Message& message) {
    Say(message.text);
    if (!CanAsk())
        return MessageAnswer::Cancel;
    std::cerr << "[o]k or [c]ancel? " << std::flush;
    const auto line = platform::ReadLine();
    interruptedAtQuestion_ = !line && platform::Interrupted();
    const bool isOk = line && (line->starts_with('o') || line->starts_with('O'));
    return isOk ? MessageAnswer::Ok : MessageAnswer::Cancel;
}

std::string TerminalWindow::PickFolder(const std::string& /*prompt*/,
                                       const std::string& /*startFolder*/) {
    return answers_.folder;
}

void TerminalWindow::ShowLogEntry(const ErrorEntry& entry) {
    // An entry may only tell that something was not found.
    if (entry.number == 0 && entry.description.empty())
        return;
    sawFailure_ = true;
    Say(Shortened(entry.procedure) + ": " + entry.description + " (error " +
        std::to_string(entry.number) + ")");
}

void TerminalWindow::Say(const std::string& text) {
    progress_.Clear();
    std::cerr << "marlo-cli: " << Printable(text) << std::endl;
}

}  // namespace marlo::cli
