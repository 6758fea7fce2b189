// What the unit does with every exception: the report options that hold for all of them.
#pragma once

#include "core/application.h"

namespace ovl::panels {

void ApplyTimeStamp(core::Application& app);
void ApplyDuplicateLine(core::Application& app);
void ComboExcepRe_Click(core::Application& app, int index);

}  // namespace ovl::panels
