#pragma once

#include <functional>
#include <wx/timer.h>

namespace marlo::test {

/// Runs an event loop until `isReached`, at most some seconds. What the events start, a command or
/// a dialog, runs to its end first.
/// @return whether it was reached.
bool RunEventsUntil(const std::function<bool()>& isReached);

/// Runs all that is due: what the display has sent up to now, what that leads to, and what the
/// program does when it is idle.
void RunEvents();

/// Does something, and runs what is due, again and again until `isReached`, at most some seconds.
/// @return whether it was reached.
bool RepeatUntil(const std::function<bool()>& isReached, const std::function<void()>& action);

/// Looks at the program again and again for as long as this lives, whenever events run: in the
/// middle of a command, too, if that lets them.
class Observer final : private wxTimer {
  public:
    explicit Observer(std::function<void()> look);

  private:
    void Notify() override { look_(); }

    std::function<void()> look_;
};

}  // namespace marlo::test
