// The event loop, let run until something has come to pass, and how long it was held meanwhile: how much
// later than due a timer of one millisecond came. What the dispatchers tell of themselves differs from one to
// the other.
#pragma once

#include <chrono>
#include <functional>

namespace ovl::bench {

class EventLoop {
 public:
  // False if it takes longer than a minute.
  bool RunUntil(const std::function<bool()>& condition);

  // Since the last restart, while it ran.
  double LongestHold() const { return std::chrono::duration<double, std::milli>(longest_).count(); }
  void Restart() { longest_ = {}; }

 private:
  std::chrono::steady_clock::duration longest_ = {};
};

}  // namespace ovl::bench
