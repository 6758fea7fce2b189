// The commands that consume remote mode at one go: set the clock, read the history, reset the unit.
#pragma once

#include "core/application.h"

namespace ovl::link {

// Each fills PendingOutput; the button's common tail sends it.
void BeginSetTime(core::Application& app);
void BeginLoadHistory(core::Application& app);
void BeginMasterReset(core::Application& app);

// What a received character means while the command's answer is awaited.
void SetTimeStep(core::Application& app);
void HistoryStep(core::Application& app);
void MasterResetStep(core::Application& app);

}  // namespace ovl::link
