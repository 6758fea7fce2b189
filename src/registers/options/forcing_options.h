// Options whose protocol needs certain line settings: a pick also moves selections of other panels.
#pragma once

#include "core/application.h"

namespace ovl::registers {

// Gives these options their handlers.
void WireForcingOptions(controls::RegisterOptions& form);

}  // namespace ovl::registers
