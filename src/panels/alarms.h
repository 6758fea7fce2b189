// The sixteen alarm outputs, one shown at a time, with the text that each can trigger.
#pragma once

#include "core/application.h"

namespace ovl {

void ApplyAlarmGlobals(Application& app);

// An alarm, 1 to 16, onto the panel; its triggered text with it.
void LoadAlarm(Application& app, int number);

void ComboALM_Click(Application& app, int index);
void save_Alarm_Type(Application& app);

void ComboTrigger_Click(Application& app, int index);
void save_RTS_TRGGERED(Application& app);
void TextTrigger_Change(Application& app, int index);
void cmdSetTrigger_Click(Application& app, int index);

}  // namespace ovl
