// The unit's line to the register, and the chaining of units.
#pragma once

#include "core/application.h"

namespace ovl::panels {

void ApplyCommunication(core::Application& app);
void ComboCOMM_Click(core::Application& app, int index);

// Writes the firmware's code of the selected interface; a family without codes writes nothing.
void GatherInterfaceType(core::Application& app);

// What the type of the network leaves to choose.
void ApplyNetworkRules(core::Application& app);
void ApplyProtocolBaud(core::Application& app);

}  // namespace ovl::panels
