// Ends the event loop once a window has been painted, and says so on standard output with the peak memory.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <fstream>
#include <string>

namespace ovl::bench {

inline constexpr const char* kPainted = "painted ";

class PaintWatch : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && !painted_ && qobject_cast<QWidget*>(watched)->isWindow()) {
      painted_ = true;
      QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  bool painted_ = false;
};

inline void TellPainted() {
  std::ifstream status("/proc/self/status");
  long kibibytes = 0;
  for (std::string line; std::getline(status, line);) {
    if (line.rfind("VmHWM:", 0) == 0) kibibytes = std::stol(line.substr(6));
  }
  std::printf("%s%ld\n", kPainted, kibibytes);
  std::fflush(stdout);
}

}  // namespace ovl::bench
