// The serial line between unit and register, and the network of several units.
#pragma once

#include "core/application.h"
#include "core/editor.h"

namespace ovl::panels {

void ApplyCommunication(core::Application& app);
void ComboCOMM_Click(core::Application& app, int index);

// Stores the code of the selected interface. An unknown family has no codes and stores nothing.
void GatherInterfaceType(core::Application& app);

// Enables the network lists that have a meaning for the selected type.
void ApplyNetworkRules(core::Application& app);
void ApplyProtocolBaud(core::Application& app);

std::span<const core::Editor> CommunicationEditors();

}  // namespace ovl::panels
