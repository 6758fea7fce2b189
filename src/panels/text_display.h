// How transaction text lies on the picture, and when the overlay blanks.
#pragma once

#include "core/application.h"

namespace ovl::panels {

void ApplyDisplay(core::Application& app);
void ComboDIP_Click(core::Application& app, int index);

// The clock and the title can take a line of the picture each: raises the number of display lines to what
// they need.
void ApplyLineRule(core::Application& app);

}  // namespace ovl::panels
