// Waits shorter than a millisecond, which QTimer lacks.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace ovl::host {

// Fires once, in the event loop, after a time given in microseconds.
class ShortTimer {
 public:
  explicit ShortTimer(std::function<void()> fire);
  ~ShortTimer();
  ShortTimer(const ShortTimer&) = delete;
  ShortTimer& operator=(const ShortTimer&) = delete;

  void Start(std::chrono::microseconds time);
  void Stop();

 private:
  struct Source;
  std::unique_ptr<Source> source_;
};

}  // namespace ovl::host
