// The date and time lists of the main form. Their only purpose is the text that sets the unit's clock.
#pragma once

#include "core/application.h"

namespace ovl::link {

// Copies the computer's time and date into the six clock texts.
void ReadSystemClock(core::Application& app);

// Moves the lists to what the clock texts say.
void ShowClock(core::Application& app);

void ComboHR_Click(core::Application& app, int index);
void ComboMin_Click(core::Application& app, int index);
void ComboSec_Click(core::Application& app, int index);
void ComboDay_Click(core::Application& app, int index);
void ComboMonth_Click(core::Application& app, int index);
void ComboYear_Click(core::Application& app, int index);
void CheckTD_Click(core::Application& app, int index);
void Timer_Timer(core::Application& app, int index);

}  // namespace ovl::link
