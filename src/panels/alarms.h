// The 16 alarm outputs and the text that each can trigger. The panel shows one alarm at a time.
#pragma once

#include "core/application.h"
#include "core/editor.h"

namespace ovl::panels {

void ApplyAlarmGlobals(core::Application& app);

// Shows an alarm, 1 to 16, and its triggered text on the panel.
void LoadAlarm(core::Application& app, int number);

// The normal state of an alarm, 1 to 16. That of alarm 9 stays as it is.
void StoreNormalState(image::ConfigImage& image, int number, bool closed);

void ComboALM_Click(core::Application& app, int index);
void save_Alarm_Type(core::Application& app);

void ComboTrigger_Click(core::Application& app, int index);
void save_RTS_TRGGERED(core::Application& app);
void TextTrigger_Change(core::Application& app, int index);
void cmdSetTrigger_Click(core::Application& app, int index);

std::span<const core::Editor> AlarmEditors();

}  // namespace ovl::panels
