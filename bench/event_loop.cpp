#include "event_loop.h"

#include <QEventLoop>
#include <QTimer>
#include <algorithm>

namespace ovl::bench {

bool EventLoop::RunUntil(const std::function<bool()>& condition) {
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::milliseconds kBeat(1);
  constexpr std::chrono::seconds kLongest(60);
  const auto start = Clock::now();
  auto due = start + kBeat;
  QEventLoop loop;
  QTimer beat;
  beat.setInterval(kBeat);
  beat.setTimerType(Qt::PreciseTimer);
  bool met = false;
  QObject::connect(&beat, &QTimer::timeout, &loop, [&] {
    const auto now = Clock::now();
    longest_ = std::max(longest_, now - due);
    met = condition();
    if (met || now - start > kLongest) loop.quit();
    due = Clock::now() + kBeat;
  });
  beat.start();
  loop.exec();
  return met;
}

}  // namespace ovl::bench
