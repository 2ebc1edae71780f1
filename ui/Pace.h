#pragma once

#include <chrono>

namespace marlo {

/// Limits how often something is done that nobody needs more often than the eye can follow.
class Pace {
  public:
    using Moment = std::chrono::steady_clock::time_point;

    /// Whether it is time again; if so, the next time is counted from now.
    bool IsDue(Moment now) {
        if (last_ != Moment{} && now - last_ < kInterval)
            return false;
        last_ = now;
        return true;
    }

  private:
    static constexpr std::chrono::milliseconds kInterval{66};  // 15 times a second

    Moment last_{};
};

}  // namespace marlo
