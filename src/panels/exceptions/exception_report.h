// What the unit does with every exception: the report options that hold for all of them.
#pragma once

#include "core/application.h"

namespace ovl {

void ApplyTimeStamp(Application& app);
void ApplyDuplicateLine(Application& app);
void ComboExcepRe_Click(Application& app, int index);

}  // namespace ovl
