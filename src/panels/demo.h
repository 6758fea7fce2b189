// The demonstration that the unit plays after power-up.
#pragma once

#include "core/application.h"

namespace ovl {

void ApplyDemo(Application& app);
void DemoMode_Click(Application& app, int index);
void CharacterList_Click(Application& app, int index);
void DemoType_Click(Application& app, int index);
void DemoSpeed_Click(Application& app, int index);

}  // namespace ovl
