#include "host/system/short_timer.h"

#include <sys/prctl.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cstdint>
#include <ctime>

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

// By default the system lets a thread sleep 50 us longer.
void MeasuredSleep::Sleep(std::chrono::nanoseconds time) {
  if (time.count() <= 0) return;
  constexpr unsigned long kExact = 1, kDefault = 0;
  ::prctl(PR_SET_TIMERSLACK, kExact, 0, 0, 0);
  timespec wait = {};
  wait.tv_nsec = time.count();
  ::clock_nanosleep(CLOCK_MONOTONIC, 0, &wait, nullptr);
  ::prctl(PR_SET_TIMERSLACK, kDefault, 0, 0, 0);
}

}  // namespace ovl::host
