// How the text of the register appears in the picture, and when it disappears.
#pragma once

#include "core/application.h"
#include "core/editor.h"

namespace ovl::panels {

void ApplyDisplay(core::Application& app);
void ComboDIP_Click(core::Application& app, int index);

// The clock and the title each need a line of the picture. Raises the number of display lines if necessary.
void ApplyLineRule(core::Application& app);

std::span<const core::Editor> DisplayEditors();

}  // namespace ovl::panels
