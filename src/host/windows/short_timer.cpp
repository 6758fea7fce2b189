#include "host/system/short_timer.h"

#include <windows.h>

#include <QWinEventNotifier>

namespace ovl::host {
namespace {

// Systems before Windows 10 1803 refuse the flag.
HANDLE CreateTimer() {
  constexpr DWORD kHighResolution = 2;
  return ::CreateWaitableTimerExW(nullptr, nullptr, kHighResolution, TIMER_ALL_ACCESS);
}

}  // namespace

struct SystemTimer::Source {
  explicit Source(const std::function<void()>& fire) : timer(CreateTimer()) {
    if (timer == nullptr) return;
    notifier.setHandle(timer);
    notifier.setEnabled(true);
    QObject::connect(&notifier, &QWinEventNotifier::activated, &notifier, fire);
  }
  ~Source() {
    notifier.setEnabled(false);
    if (timer != nullptr) ::CloseHandle(timer);
  }
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;

  HANDLE timer;
  QWinEventNotifier notifier;
};

SystemTimer::SystemTimer(const std::function<void()>& fire) : source_(std::make_unique<Source>(fire)) {}

SystemTimer::~SystemTimer() = default;

bool SystemTimer::Start(std::chrono::microseconds time) {
  if (source_->timer == nullptr) return false;
  constexpr LONGLONG kTicks = 10;  // of 100 ns in a microsecond
  LARGE_INTEGER due = {};
  due.QuadPart = -time.count() * kTicks;
  return ::SetWaitableTimer(source_->timer, &due, 0, nullptr, nullptr, FALSE) != 0;
}

void SystemTimer::Stop() {
  if (source_->timer != nullptr) ::CancelWaitableTimer(source_->timer);
}

// The shortest sleep of the system is half a millisecond.
void MeasuredSleep::Sleep(std::chrono::nanoseconds) {}

}  // namespace ovl::host
