// Runs the event loop until a condition holds, and measures how long the loop was held meanwhile: how late a
// timer of one millisecond was. The reports of the event dispatchers themselves differ between platforms.
#pragma once

#include <functional>

namespace ovl::bench {

class EventLoop {
 public:
  // False if it takes longer than a minute.
  bool RunUntil(const std::function<bool()>& condition);

  // In milliseconds since the last restart, while it ran; and the most work between two beats, which a
  // machine that is busy with other things does not lengthen.
  double LongestHold() const { return longest_; }
  double MostWork() const { return most_work_; }

  // The longest hold that ended before the condition was found to hold.
  double LongestHoldBefore() const { return longest_before_last_; }

  void Restart() { longest_ = longest_before_last_ = most_work_ = 0; }

 private:
  double longest_ = 0;
  double longest_before_last_ = 0;
  double most_work_ = 0;
};

}  // namespace ovl::bench
