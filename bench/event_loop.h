// The event loop, let run until something has come to pass, and how long it was held meanwhile: how much
// later than due a timer of one millisecond came. What the dispatchers tell of themselves differs from one to
// the other.
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
  void Restart() { longest_ = most_work_ = 0; }

 private:
  double longest_ = 0;
  double most_work_ = 0;
};

}  // namespace ovl::bench
