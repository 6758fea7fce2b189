// Whether a match may run over several lines, and how long.
#pragma once

#include "core/application.h"

namespace ovl {

void ApplyScrollMatching(Application& app);
void ComboScroll_Click(Application& app, int index);

}  // namespace ovl
