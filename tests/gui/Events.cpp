#include "tests/gui/Events.h"

#include <chrono>
#include <utility>

#include "tests/gui/Display.h"

namespace marlo::test {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience{10};
constexpr int kInterval = 2;  // milliseconds

}  // namespace

bool RunEventsUntil(const std::function<bool()>& isReached) {
    const auto end = Clock::now() + kPatience;
    bool wasReached = false;
    const Observer observer([&] { wasReached = wasReached || isReached(); });
    while (!wasReached && Clock::now() <= end)
        RunNextEvent();
    return wasReached;
}

void RunEvents() {
    // What is done when idle may be due only once events have been handled.
    for (int round = 0; round < 2; ++round)
        RunDueEvents();
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
