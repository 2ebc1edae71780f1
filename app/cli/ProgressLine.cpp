#include "app/cli/ProgressLine.h"

#include <algorithm>
#include <charconv>
#include <iostream>
#include <optional>
#include <string_view>

#include "app/cli/TerminalText.h"
#include "platform/Terminal.h"

namespace marlo::cli {

namespace {

constexpr std::chrono::milliseconds kRedrawInterval{150};
constexpr int kBarWidth = 20;
constexpr const char* kClearLine = "\r\x1b[K";

/// The percentage that a phase text shows, "… (28%) …".
std::optional<int> PercentageIn(std::string_view phase) {
    const std::size_t percentSign = phase.find("%)");
    const std::size_t bracket = phase.rfind('(', percentSign);
    if (percentSign == std::string_view::npos || bracket == std::string_view::npos)
        return std::nullopt;
    int percentage = 0;
    std::from_chars(phase.data() + bracket + 1, phase.data() + percentSign, percentage);
    return std::clamp(percentage, 0, 100);
}

std::string Bar(int percentage) {
    std::string bar = "[";
    for (int i = 0; i < kBarWidth; ++i)
        bar += i < percentage * kBarWidth / 100 ? '#' : '.';
    return bar + "] ";
}

}  // namespace

void ProgressLine::Show(const std::string& phase, const std::string& item) {
    if (phase.empty() || style_ == ProgressStyle::None)
        return;
    const bool newPhase = phase != lastPhase_;
    lastPhase_ = phase;
    if (style_ == ProgressStyle::Redrawn)
        Redraw(phase, item, newPhase);
    else if (newPhase)
        std::cerr << Printable(phase + (item.empty() ? "" : " " + item)) << std::endl;
}

void ProgressLine::Redraw(const std::string& phase, const std::string& item, bool newPhase) {
    const auto percentage = PercentageIn(phase);
    const bool mayWait = percentage || !newPhase;
    const auto now = std::chrono::steady_clock::now();
    if (visible_ && mayWait && now - lastDrawn_ < kRedrawInterval)
        return;
    lastDrawn_ = now;
    visible_ = true;
    const std::string line = (percentage ? Bar(*percentage) : "") + phase + " " + item;
    // The last cell stays free: some terminals wrap as soon as it is written.
    const int width = platform::TerminalWidth(platform::Stream::Error) - 1;
    std::cerr << kClearLine << FitToWidth(Printable(line), width) << std::flush;
}

void ProgressLine::Clear() {
    if (visible_)
        std::cerr << kClearLine << std::flush;
    visible_ = false;
}

}  // namespace marlo::cli
