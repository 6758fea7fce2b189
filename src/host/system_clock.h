#pragma once

#include "core/platform.h"

namespace ovl {

// The computer's local time, for Platform::clock.
ClockTime LocalClockTime();

}  // namespace ovl
