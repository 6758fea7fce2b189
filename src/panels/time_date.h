// The unit's clock on the picture, daylight saving, and the language of the unit's own texts.
#pragma once

#include "core/application.h"

namespace ovl::panels {

void ApplyTimeDate(core::Application& app);
void ComboTD_Click(core::Application& app, int index);
void ComboLang_Click(core::Application& app, int index);

}  // namespace ovl::panels
