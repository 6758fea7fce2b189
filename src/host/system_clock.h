#pragma once

#include "core/platform.h"

namespace ovl::host {

// The computer's local time, for Platform::clock.
core::ClockTime LocalClockTime();

}  // namespace ovl::host
