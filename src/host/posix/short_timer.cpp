#include "host/system/short_timer.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cstdint>

#include "host/posix/descriptor.h"

namespace ovl::host {

struct ShortTimer::Source {
  explicit Source(const std::function<void()>& fire)
      : descriptor(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)) {
    fallback.setSingleShot(true);
    fallback.setTimerType(Qt::PreciseTimer);
    QObject::connect(&fallback, &QTimer::timeout, &fallback, fire);
    if (descriptor.Number() < 0) return;
    notifier = std::make_unique<QSocketNotifier>(descriptor.Number(), QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this, fire] {
      std::uint64_t times = 0;
      if (::read(descriptor.Number(), &times, sizeof times) == sizeof times) fire();
    });
  }

  bool Set(std::chrono::microseconds time) const {
    const auto nanoseconds = std::chrono::nanoseconds(time).count();
    constexpr long kSecond = 1'000'000'000;
    itimerspec spec = {};
    spec.it_value.tv_sec = nanoseconds / kSecond;
    spec.it_value.tv_nsec = nanoseconds % kSecond;
    return ::timerfd_settime(descriptor.Number(), 0, &spec, nullptr) == 0;
  }

  Descriptor descriptor;
  std::unique_ptr<QSocketNotifier> notifier;
  // For a program that may open no further descriptor.
  QTimer fallback;
};

ShortTimer::ShortTimer(std::function<void()> fire) : source_(std::make_unique<Source>(fire)) {}

ShortTimer::~ShortTimer() = default;

void ShortTimer::Start(std::chrono::microseconds time) {
  // A time of zero would stop the system's timer.
  const auto wait = std::max(time, std::chrono::microseconds(1));
  if (source_->Set(wait)) return;
  source_->fallback.start(std::chrono::ceil<std::chrono::milliseconds>(wait));
}

void ShortTimer::Stop() {
  source_->Set(std::chrono::microseconds::zero());
  source_->fallback.stop();
}

}  // namespace ovl::host
