#include "host/system/line_watch.h"

#include <QTimer>

namespace ovl::host {

// A driver may leave a read unfinished when its device goes, so it is asked at intervals.
struct LineWatch::Source {
  explicit Source(const std::function<void()>& gone) {
    constexpr auto kInterval = std::chrono::milliseconds(50);
    timer.setInterval(kInterval);
    QObject::connect(&timer, &QTimer::timeout, &timer, [this, gone] {
      if (!LineAlive(line)) gone();
    });
  }

  QTimer timer;
  LineHandle line = nullptr;
};

LineWatch::LineWatch(std::function<void()> gone) : source_(std::make_unique<Source>(gone)) {}

LineWatch::~LineWatch() = default;

int LineWatch::Start(LineHandle line) {
  source_->line = line;
  source_->timer.start();
  return 0;
}

void LineWatch::Stop() {
  source_->timer.stop();
}

}  // namespace ovl::host
