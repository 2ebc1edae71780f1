#pragma once

#include <cstdint>
#include <string>

#include "core/MainWindow.h"

namespace marlo::bench {

/// A window that shows nothing and cancels nothing.
class QuietWindow final : public MainWindow {
  public:
    void SetText1(const std::string& /*text*/) override {}
    void SetText2(const std::string& /*text*/) override {}
    void ClearStatusBar() override {}
    void Repaint() override {}
    void LetEventsRun() override {}
    void SetHourglass(bool /*isShown*/) override {}
    void AutoSizeListViewColumns() override {}
    void SetListViewLedger(std::int32_t /*bar1Colour*/, std::int32_t /*bar2Colour*/,
                           std::int32_t /*sizingKind*/) override {}
    std::string CancelTag() const override { return {}; }
    void SetCancelTag(const std::string& /*tag*/) override {}
    void DisableButtons() override {}
    void EnableButtons() override {}
    MessageAnswer ShowMessage(const Message& /*message*/) override { return MessageAnswer::Cancel; }
    std::string PickFolder(const std::string& /*prompt*/,
                           const std::string& /*startFolder*/) override {
        return {};
    }
};

}  // namespace marlo::bench
