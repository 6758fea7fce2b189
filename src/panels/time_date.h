// The unit's clock on the picture, daylight saving, and the language of the unit's own texts.
#pragma once

#include "core/application.h"

namespace ovl {

void ApplyTimeDate(Application& app);
void ComboTD_Click(Application& app, int index);
void ComboLang_Click(Application& app, int index);

}  // namespace ovl
