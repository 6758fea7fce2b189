// The video recorder that the unit feeds with its history data, and the two addresses of that link.
#pragma once

#include "core/application.h"

namespace ovl::panels {

void ApplyDvr(core::Application& app);
void OpDVR_Click(core::Application& app, int element);
void ComboKLM4011_Click(core::Application& app, int index);

}  // namespace ovl::panels
