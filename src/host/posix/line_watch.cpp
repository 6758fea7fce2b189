#include "host/system/line_watch.h"

#include <sys/epoll.h>

#include <QSocketNotifier>
#include <cerrno>
#include <optional>

#include "host/posix/descriptor.h"

namespace ovl::host {
namespace {

constexpr int kNoLine = -1;

}  // namespace

// QSerialPort reports a hang-up in some versions of Qt only. It has the one notifier that Qt allows for
// reading a descriptor, so the line is watched through a descriptor of epoll, which has a notifier of its
// own.
struct LineWatch::Source {
  explicit Source(std::function<void()> call) : gone(std::move(call)) {}

  // Returns an error number, or 0.
  int Create() {
    if (events) return 0;
    const int number = ::epoll_create1(EPOLL_CLOEXEC);
    if (number < 0) return errno;
    events.emplace(number);
    notifier = std::make_unique<QSocketNotifier>(number, QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this] { Look(); });
    return 0;
  }

  void Look() const {
    epoll_event event = {};
    if (::epoll_wait(events->Number(), &event, 1, 0) == 1 && (event.events & (EPOLLHUP | EPOLLERR)) != 0)
      gone();
  }

  std::function<void()> gone;
  std::optional<Descriptor> events;
  std::unique_ptr<QSocketNotifier> notifier;
  int line = kNoLine;
};

LineWatch::LineWatch(std::function<void()> gone) : source_(std::make_unique<Source>(std::move(gone))) {}

LineWatch::~LineWatch() = default;

int LineWatch::Start(LineHandle line) {
  if (const int error = source_->Create()) return error;
  epoll_event event = {};
  // A driver that hangs up wakes only those that wait for input or output, so EPOLLHUP alone is not enough.
  // With EPOLLET waiting input is reported once.
  event.events = EPOLLIN | EPOLLET;
  if (::epoll_ctl(source_->events->Number(), EPOLL_CTL_ADD, line, &event) != 0) return errno;
  source_->line = line;
  return 0;
}

void LineWatch::Stop() {
  if (source_->line == kNoLine) return;
  ::epoll_ctl(source_->events->Number(), EPOLL_CTL_DEL, source_->line, nullptr);
  source_->line = kNoLine;
}

}  // namespace ovl::host
