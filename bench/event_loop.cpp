#include "event_loop.h"

#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <ctime>

namespace ovl::bench {
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

// Of this thread alone.
double ProcessorMilliseconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

}  // namespace

bool EventLoop::RunUntil(const std::function<bool()>& condition) {
  constexpr std::chrono::milliseconds kBeat(1);
  constexpr std::chrono::seconds kLongest(60);
  const auto start = Clock::now();
  auto due = start + kBeat;
  double worked = ProcessorMilliseconds();
  QEventLoop loop;
  QTimer beat;
  beat.setInterval(kBeat);
  beat.setTimerType(Qt::PreciseTimer);
  bool met = false;
  QObject::connect(&beat, &QTimer::timeout, &loop, [&] {
    const auto now = Clock::now();
    longest_before_last_ = longest_;
    longest_ = std::max(longest_, Milliseconds(now - due).count());
    most_work_ = std::max(most_work_, ProcessorMilliseconds() - worked);
    met = condition();
    if (met || now - start > kLongest) loop.quit();
    due = Clock::now() + kBeat;
    worked = ProcessorMilliseconds();
  });
  beat.start();
  loop.exec();
  return met;
}

}  // namespace ovl::bench
