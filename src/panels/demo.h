// The demonstration that the unit shows after power-up.
#pragma once

#include "core/application.h"
#include "core/editor.h"

namespace ovl::panels {

void ApplyDemo(core::Application& app);
void DemoMode_Click(core::Application& app, int index);
void CharacterList_Click(core::Application& app, int index);
void DemoType_Click(core::Application& app, int index);
void DemoSpeed_Click(core::Application& app, int index);

std::span<const core::Editor> DemoEditors();

}  // namespace ovl::panels
