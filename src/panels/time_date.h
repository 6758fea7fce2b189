// The clock of the unit in the picture, daylight saving time, the title, and the language of the unit.
#pragma once

#include "core/application.h"

namespace ovl::panels {

void ApplyTimeDate(core::Application& app);
void ComboTD_Click(core::Application& app, int index);
void ComboLang_Click(core::Application& app, int index);

}  // namespace ovl::panels
