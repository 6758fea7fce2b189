// The commands that end remote mode when they are done: set the clock, read the history, reset the unit.
#pragma once

#include "core/application.h"

namespace ovl::link {

// Each fills PendingOutput. CmdUpDow_Click then sends the first character.
void BeginSetTime(core::Application& app);
void BeginLoadHistory(core::Application& app);
void BeginMasterReset(core::Application& app);

// Take a received character while the program waits for the unit's answer to the command.
void SetTimeStep(core::Application& app);
void HistoryStep(core::Application& app);
void MasterResetStep(core::Application& app);

}  // namespace ovl::link
