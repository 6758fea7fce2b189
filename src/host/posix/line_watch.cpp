#include "host/system/line_watch.h"

#include <sys/epoll.h>

#include <QSocketNotifier>
#include <cerrno>

#include "host/posix/descriptor.h"

namespace ovl::host {
namespace {

constexpr int kNoLine = -1;

}  // namespace

// QSerialPort reports a hang-up in some versions of Qt only. It has the one notifier that Qt allows for
// reading a descriptor, so the line is watched through a descriptor of epoll, which has a notifier of its
// own.
struct LineWatch::Source {
  explicit Source(std::function<void()> call)
      : gone(std::move(call)), events(::epoll_create1(EPOLL_CLOEXEC)) {
    if (events.Number() < 0) return;
    notifier = std::make_unique<QSocketNotifier>(events.Number(), QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this] { Look(); });
  }

  void Look() const {
    epoll_event event = {};
    if (::epoll_wait(events.Number(), &event, 1, 0) == 1 && (event.events & (EPOLLHUP | EPOLLERR)) != 0)
      gone();
  }

  std::function<void()> gone;
  Descriptor events;
  std::unique_ptr<QSocketNotifier> notifier;
  int line = kNoLine;
};

LineWatch::LineWatch(std::function<void()> gone) : source_(std::make_unique<Source>(std::move(gone))) {}

LineWatch::~LineWatch() = default;

int LineWatch::Start(LineHandle line) {
  epoll_event event = {};
  // A driver that hangs up wakes those who wait for input and those who wait for output, and nobody else.
  // Input is what the event loop wakes for anyway. With EPOLLET it is reported once and not as long as it
  // waits.
  event.events = EPOLLIN | EPOLLET;
  if (::epoll_ctl(source_->events.Number(), EPOLL_CTL_ADD, line, &event) != 0) return errno;
  source_->line = line;
  return 0;
}

void LineWatch::Stop() {
  if (source_->line == kNoLine) return;
  ::epoll_ctl(source_->events.Number(), EPOLL_CTL_DEL, source_->line, nullptr);
  source_->line = kNoLine;
}

}  // namespace ovl::host
