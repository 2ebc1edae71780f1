#pragma once

#include <chrono>
#include <cstdint>
#include <wx/timer.h>

#include "tests/soak/Heap.h"
#include "tests/soak/OpenDialogs.h"
#include "tests/soak/Playground.h"
#include "tests/soak/RandomUser.h"
#include "tests/soak/Record.h"

namespace marlo::soak {

/// The window under a random user for some time, in the middle of runs, dialogs and menus, too; for
/// up to as long again while something that is to happen has not. It is opened anew when it has
/// been closed. Every few seconds all is brought to rest, and the heap looked at.
class Soak final : private wxTimer {
  public:
    Soak(std::chrono::seconds time, std::uint32_t seed);

    /// Begins. The event loop ends when the time is over.
    void Begin();

    /// Prints what has happened. @return whether all is well.
    bool Report();

  private:
    using Moment = std::chrono::steady_clock::time_point;

    void Notify() override;
    void Open();
    void CountClicks(gui::PictureControl* control, const std::string& name);
    void NoteRun();
    void Rest();
    void CountLogEntries();
    double PartOver() const;

    std::chrono::seconds time_;
    Moment begin_{};
    Moment nextRest_{};
    Record record_;
    Heap heap_;
    Playground playground_;
    OpenDialogs dialogs_;
    RandomUser user_;
    gui::Form1Window* window_ = nullptr;  ///< owned by the toolkit
    std::string run_;                     ///< the command that has been used last
    bool wasRunning_ = false;
    bool isOver_ = false;
};

}  // namespace marlo::soak
