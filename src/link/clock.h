// The date and time lists of the main form, whose job is to compose the text that sets the unit's clock.
#pragma once

#include "core/application.h"

namespace ovl {

// The computer's time and date into the six texts.
void ReadSystemClock(Application& app);

// The lists from the texts.
void ShowClock(Application& app);

void ComboHR_Click(Application& app, int index);
void ComboMin_Click(Application& app, int index);
void ComboSec_Click(Application& app, int index);
void ComboDay_Click(Application& app, int index);
void ComboMonth_Click(Application& app, int index);
void ComboYear_Click(Application& app, int index);
void CheckTD_Click(Application& app, int index);
void Timer_Timer(Application& app, int index);

}  // namespace ovl
