// The video recorder that receives the history data of the unit, and the two addresses for it.
#pragma once

#include "core/application.h"

namespace ovl::panels {

void ApplyDvr(core::Application& app);
void OpDVR_Click(core::Application& app, int element);
void ComboKLM4011_Click(core::Application& app, int index);

}  // namespace ovl::panels
