// The conversation with the unit: entering, holding and leaving remote mode, sending one character at a time,
// dispatching every received one, the four timers, and each failure with its words.
#pragma once

#include "core/application.h"

namespace ovl::link {

// The serial control's event.
void MSComm1_OnComm(core::Application& app, int index);

void OnSendDrained(core::Application& app);
void OnCharReceived(core::Application& app);

// Sends the next character of PendingOutput. Throws Failure if the device is lost.
void SendNextChar(core::Application& app);

// Drops the link after a failure. The silence watchdog, the progress display and the pending flags are the
// caller's.
void CloseLink(core::Application& app);

void CmdUpDow_Click(core::Application& app, int index);
void CmdUpDow_Point(core::Application& app, int index);
void Frame11_Point(core::Application& app, int index);

void General_timer_Timer(core::Application& app, int index);
void Time_handcheck_Timer(core::Application& app, int index);
void Timer_Operating_Timer(core::Application& app, int index);

}  // namespace ovl::link
