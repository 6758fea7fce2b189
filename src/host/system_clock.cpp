#include "host/system_clock.h"

#include <QDateTime>

namespace ovl::host {

core::ClockTime LocalClockTime() {
  const auto now = QDateTime::currentDateTime();
  const auto date = now.date();
  const auto time = now.time();
  return {.year = date.year(),
          .month = date.month(),
          .day = date.day(),
          .hour = time.hour(),
          .minute = time.minute(),
          .second = time.second()};
}

}  // namespace ovl::host
