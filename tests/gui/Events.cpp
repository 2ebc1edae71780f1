#include "tests/gui/Events.h"

#include <chrono>
#include <glib.h>
#include <utility>
#include <wx/app.h>

#include "tests/gui/Display.h"

namespace marlo::test {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience{10};
constexpr int kInterval = 2;  // milliseconds

/// Runs events until it is ended. It is not one of the toolkit's own loops: inside of one, dialogs
/// do not close.
class EventLoop {
  public:
    EventLoop() : loop_(g_main_loop_new(nullptr, FALSE)) {}
    EventLoop(const EventLoop&) = delete;
    EventLoop& operator=(const EventLoop&) = delete;
    EventLoop(EventLoop&&) = delete;
    EventLoop& operator=(EventLoop&&) = delete;
    ~EventLoop() { g_main_loop_unref(loop_); }

    void Run() { g_main_loop_run(loop_); }
    void End() { g_main_loop_quit(loop_); }

  private:
    GMainLoop* loop_;
};

}  // namespace

bool RunEventsUntil(const std::function<bool()>& isReached) {
    EventLoop loop;
    const auto end = Clock::now() + kPatience;
    bool wasReached = false;
    const Observer observer([&] {
        wasReached = wasReached || isReached();
        if (wasReached || Clock::now() > end)
            loop.End();
    });
    loop.Run();
    return wasReached;
}

void RunEvents() {
    // What is done when idle may be due only once events have been handled.
    for (int round = 0; round < 2; ++round) {
        FetchEvents();
        EventLoop loop;
        wxTheApp->CallAfter([&loop] { loop.End(); });
        loop.Run();
    }
}

bool RepeatUntil(const std::function<bool()>& isReached, const std::function<void()>& action) {
    const auto end = Clock::now() + kPatience;
    while (!isReached()) {
        if (Clock::now() > end)
            return false;
        action();
        RunEvents();
    }
    return true;
}

Observer::Observer(std::function<void()> look) : look_(std::move(look)) {
    Start(kInterval);
}

}  // namespace marlo::test
