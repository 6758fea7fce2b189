// The options whose protocol dictates line settings: their picks move the selections of other panels too.
#pragma once

#include "core/application.h"

namespace ovl::registers {

// Gives these options their handlers.
void WireForcingOptions(controls::RegisterOptions& form);

}  // namespace ovl::registers
