// Whether a match may run over several lines, and how long.
#pragma once

#include "core/application.h"

namespace ovl::panels {

void ApplyScrollMatching(core::Application& app);
void ComboScroll_Click(core::Application& app, int index);

}  // namespace ovl::panels
