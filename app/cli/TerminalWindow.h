#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "app/cli/ProgressLine.h"
#include "core/Application.h"
#include "core/MainWindow.h"

namespace marlo::cli {

/// What the command line says in advance to the questions of a run.
struct Answers {
    std::string folder;
    MessageAnswer includeSubfolders = MessageAnswer::Yes;
};

/// The terminal as the window of a run. Messages and progress go to the standard error stream. A
/// question that the command line does not answer is asked on a terminal and answered with Cancel
/// elsewhere. The interrupt key is the Cancel button.
class TerminalWindow final : public MainWindow {
  public:
    explicit TerminalWindow(ProgressStyle progress) : progress_(progress) {}

    void SetAnswers(Answers answers) { answers_ = std::move(answers); }

    void SetText1(const std::string& text) override;
    void SetText2(const std::string& text) override;
    void ClearStatusBar() override;
    void Repaint() override;
    void LetEventsRun() override { Repaint(); }
    void SetHourglass(bool /*isShown*/) override {}
    void AutoSizeListViewColumns() override {}
    void SetListViewLedger(std::int32_t /*bar1Colour*/, std::int32_t /*bar2Colour*/,
                           std::int32_t /*sizingKind*/) override {}
    std::string CancelTag() const override;
    void SetCancelTag(const std::string& tag) override;
    void DisableButtons() override {}
    void EnableButtons() override {}
    MessageAnswer ShowMessage(const Message& message) override;
    std::string PickFolder(const std::string& prompt, const std::string& startFolder) override;

    /// Says what went to the error log, if it is a failure.
    void ShowLogEntry(const ErrorEntry& entry);

    /// Whether a message or a log entry told of a failure.
    bool SawFailure() const { return sawFailure_; }

    /// Whether the interrupt key answered a question.
    bool WasInterruptedAtQuestion() const { return interruptedAtQuestion_; }

  private:
    void Say(const std::string& text);
    MessageAnswer Ask(const Message& message);
    MessageAnswer Tell(const Message& message);

    Answers answers_;
    ProgressLine progress_;
    std::string text1_;
    std::string text2_;
    std::string cancelTag_;
    bool sawFailure_ = false;
    bool interruptedAtQuestion_ = false;
};

}  // namespace marlo::cli
