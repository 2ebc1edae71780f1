#pragma once

#include <chrono>
#include <string>

namespace marlo::cli {

/// How a run's progress is shown on the standard error stream.
enum class ProgressStyle {
    None,
    Redrawn,  ///< one line on a terminal, redrawn a few times a second
    Lines,    ///< a line for each phase and each percent of it
};

/// The progress of a run: its phase with the percentage in it, and the item being worked on.
class ProgressLine {
  public:
    explicit ProgressLine(ProgressStyle style) : style_(style) {}

    /// @param phase for example "(2) Finding Plugins (28%) ...".
    /// @param item for example a project's path.
    void Show(const std::string& phase, const std::string& item);

    /// Takes the line off the terminal, so that something else can be written there.
    void Clear();

  private:
    void Redraw(const std::string& phase, const std::string& item, bool newPhase);

    ProgressStyle style_;
    std::string lastPhase_;
    std::chrono::steady_clock::time_point lastDrawn_;
    bool visible_ = false;
};

}  // namespace marlo::cli
