// Waits shorter than a millisecond, which QTimer lacks.
#pragma once

#include <QTimer>
#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>

namespace ovl::host {

// A timer of the operating system. Fires once, in the event loop.
class SystemTimer {
 public:
  explicit SystemTimer(const std::function<void()>& fire);
  ~SystemTimer();
  SystemTimer(const SystemTimer&) = delete;
  SystemTimer& operator=(const SystemTimer&) = delete;

  // Takes a time of more than zero. False if the system has no such timer for this program.
  bool Start(std::chrono::microseconds time);
  void Stop();

 private:
  struct Source;
  std::unique_ptr<Source> source_;
};

// Sleeps for about this long, without the event loop. Where the system cannot sleep so briefly it returns at
// once.
void SleepBriefly(std::chrono::nanoseconds time);

// Fires once, in the event loop. Without a timer of the system it waits whole milliseconds.
class ShortTimer {
 public:
  explicit ShortTimer(const std::function<void()>& fire) : timer_(fire) {
    fallback_.setSingleShot(true);
    fallback_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&fallback_, &QTimer::timeout, &fallback_, fire);
  }

  void Start(std::chrono::microseconds time) {
    const auto wait = std::max(time, std::chrono::microseconds(1));
    if (!timer_.Start(wait)) fallback_.start(std::chrono::ceil<std::chrono::milliseconds>(wait));
  }

  void Stop() {
    timer_.Stop();
    fallback_.stop();
  }

 private:
  SystemTimer timer_;
  QTimer fallback_;
};

}  // namespace ovl::host
