// The commands that consume remote mode at one go: set the clock, read the history, reset the unit.
#pragma once

#include "core/application.h"

namespace ovl {

// Each fills PendingOutput; the button's common tail sends it.
void BeginSetTime(Application& app);
void BeginLoadHistory(Application& app);
void BeginMasterReset(Application& app);

// What a received character means while the command's answer is awaited.
void SetTimeStep(Application& app);
void HistoryStep(Application& app);
void MasterResetStep(Application& app);

}  // namespace ovl
