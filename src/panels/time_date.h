// The clock of the unit in the picture, daylight saving time, the title, and the language of the unit.
#pragma once

#include "core/application.h"
#include "core/editor.h"

namespace ovl::panels {

void ApplyTimeDate(core::Application& app);
void ComboTD_Click(core::Application& app, int index);
void ComboLang_Click(core::Application& app, int index);

std::span<const core::Editor> TimeDateEditors();

}  // namespace ovl::panels
