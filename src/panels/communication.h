// The unit's line to the register, and the chaining of units.
#pragma once

#include "core/application.h"

namespace ovl {

void ApplyCommunication(Application& app);
void ComboCOMM_Click(Application& app, int index);

// Writes the firmware's code of the selected interface; a family without codes writes nothing.
void GatherInterfaceType(Application& app);

// What the type of the network leaves to choose.
void ApplyNetworkRules(Application& app);
void ApplyProtocolBaud(Application& app);

}  // namespace ovl
