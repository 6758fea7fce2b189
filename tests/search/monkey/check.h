// What a user must be able to rely on after every act.
#pragma once

#include <string>

#include "unit/ui/screen.h"

namespace ovl::testing {

// The first place where the windows show something else than the model holds, a window that is outside of the
// screen, or a lost keyboard focus. Empty if all is right.
std::string WhatIsWrong(Screen& screen);

}  // namespace ovl::testing
