// The sixteen alarm outputs, one shown at a time, with the text that each can trigger.
#pragma once

#include "core/application.h"

namespace ovl::panels {

void ApplyAlarmGlobals(core::Application& app);

// An alarm, 1 to 16, onto the panel; its triggered text with it.
void LoadAlarm(core::Application& app, int number);

void ComboALM_Click(core::Application& app, int index);
void save_Alarm_Type(core::Application& app);

void ComboTrigger_Click(core::Application& app, int index);
void save_RTS_TRGGERED(core::Application& app);
void TextTrigger_Change(core::Application& app, int index);
void cmdSetTrigger_Click(core::Application& app, int index);

}  // namespace ovl::panels
