#include "host/system/short_timer.h"

#include <windows.h>

#include <QTimer>
#include <QWinEventNotifier>
#include <algorithm>

namespace ovl::host {
namespace {

// Systems before Windows 10 1803 refuse the flag.
HANDLE CreateTimer() {
  constexpr DWORD kHighResolution = 2;
  return ::CreateWaitableTimerExW(nullptr, nullptr, kHighResolution, TIMER_ALL_ACCESS);
}

}  // namespace

struct ShortTimer::Source {
  explicit Source(const std::function<void()>& fire) : timer(CreateTimer()) {
    fallback.setSingleShot(true);
    fallback.setTimerType(Qt::PreciseTimer);
    QObject::connect(&fallback, &QTimer::timeout, &fallback, fire);
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

  bool Set(std::chrono::microseconds time) const {
    if (timer == nullptr) return false;
    constexpr LONGLONG kTicks = 10;  // of 100 ns in a microsecond
    LARGE_INTEGER due = {};
    due.QuadPart = -time.count() * kTicks;
    return ::SetWaitableTimer(timer, &due, 0, nullptr, nullptr, FALSE) != 0;
  }

  HANDLE timer;
  QWinEventNotifier notifier;
  // For a system without such timers.
  QTimer fallback;
};

ShortTimer::ShortTimer(std::function<void()> fire) : source_(std::make_unique<Source>(fire)) {}

ShortTimer::~ShortTimer() = default;

void ShortTimer::Start(std::chrono::microseconds time) {
  const auto wait = std::max(time, std::chrono::microseconds(1));
  if (source_->Set(wait)) return;
  source_->fallback.start(std::chrono::ceil<std::chrono::milliseconds>(wait));
}

void ShortTimer::Stop() {
  if (source_->timer != nullptr) ::CancelWaitableTimer(source_->timer);
  source_->fallback.stop();
}

}  // namespace ovl::host
