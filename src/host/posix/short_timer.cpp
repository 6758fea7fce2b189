#include "host/system/short_timer.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cstdint>

#include "host/posix/descriptor.h"

namespace ovl::host {

// A program that may open no further descriptor has no timer.
struct SystemTimer::Source {
  explicit Source(const std::function<void()>& fire)
      : descriptor(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)) {
    if (descriptor.Number() < 0) return;
    notifier = std::make_unique<QSocketNotifier>(descriptor.Number(), QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this, fire] {
      std::uint64_t times = 0;
      if (::read(descriptor.Number(), &times, sizeof times) == sizeof times) fire();
    });
  }

  Descriptor descriptor;
  std::unique_ptr<QSocketNotifier> notifier;
};

SystemTimer::SystemTimer(const std::function<void()>& fire) : source_(std::make_unique<Source>(fire)) {}

SystemTimer::~SystemTimer() = default;

bool SystemTimer::Start(std::chrono::microseconds time) {
  const auto nanoseconds = std::chrono::nanoseconds(time).count();
  constexpr long kSecond = 1'000'000'000;
  itimerspec spec = {};
  spec.it_value.tv_sec = nanoseconds / kSecond;
  spec.it_value.tv_nsec = nanoseconds % kSecond;
  return ::timerfd_settime(source_->descriptor.Number(), 0, &spec, nullptr) == 0;
}

void SystemTimer::Stop() {
  const itimerspec never = {};
  ::timerfd_settime(source_->descriptor.Number(), 0, &never, nullptr);
}

}  // namespace ovl::host
