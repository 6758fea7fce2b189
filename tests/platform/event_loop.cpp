#include "platform/event_loop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace ovl {

void NeedEventLoop() {
  static int count = 1;
  static char name[] = "test";
  static char* arguments[] = {name, nullptr};
  static const QCoreApplication application(count, arguments);
}

bool RunUntil(const std::function<bool()>& condition) {
  const QDeadlineTimer patience(10'000);
  while (!condition()) {
    if (patience.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  }
  return true;
}

void RunForAWhile() {
  bool over = false;
  QTimer::singleShot(50, [&] { over = true; });
  RunUntil([&] { return over; });
}

bool BecomesIdle() {
  constexpr int kTurns = 1000;
  for (int turn = 0; turn < kTurns; ++turn) {
    if (!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) return true;
  }
  return false;
}

}  // namespace ovl
