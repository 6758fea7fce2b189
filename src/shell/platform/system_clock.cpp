#include "shell/platform/system_clock.h"

#include <QDateTime>

namespace ovl {

ClockTime LocalClockTime() {
  const auto now = QDateTime::currentDateTime();
  const auto date = now.date();
  const auto time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

}  // namespace ovl
