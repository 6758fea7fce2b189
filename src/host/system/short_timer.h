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

// Waits for a moment less than a millisecond away. A sleep ends late, and how late differs between computers
// and with what else they do. So each sleep is measured, and the next one is shorter.
class MeasuredSleep {
  using Clock = std::chrono::steady_clock;
  using Duration = Clock::duration;

 public:
  // Returns a little before the moment, and the caller waits for the rest in a busy loop. A computer that is
  // later than usual makes it return after the moment.
  void Until(Clock::time_point moment) {
    const auto end = moment - std::min(late_ + kReserve, kLongestBusyPart);
    const auto left = end - Clock::now();
    if (left <= Duration(0)) return;
    Sleep(left);
    const auto late = Clock::now() - end;
    if (late > Duration(0)) late_ += (std::min(late, kLongestBusyPart) - late_) / kShareOfOne;
  }

 private:
  // Sleeps for about this long, without the event loop. Where the system cannot sleep so briefly it returns
  // at once.
  static void Sleep(std::chrono::nanoseconds time);

  // At 115200 baud a character takes 87 us. The busy part must leave more than half of the processor.
  static constexpr Duration kLongestBusyPart = std::chrono::microseconds(35);
  static constexpr Duration kReserve = std::chrono::microseconds(8);
  static constexpr int kShareOfOne = 16;

  Duration late_ = std::chrono::microseconds(15);  // about the mean of the last sleeps
};

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
