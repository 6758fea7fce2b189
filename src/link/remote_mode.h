// The conversation with the unit: it enters, holds and leaves remote mode, sends one character at a time,
// handles each received character and the four timers, and reports each failure.
#pragma once

#include "core/application.h"

namespace ovl::link {

// The event of the serial control: a character has arrived, or the transmitter is empty.
void MSComm1_OnComm(core::Application& app, int index);

void OnSendDrained(core::Application& app);
void OnCharReceived(core::Application& app);

// Sends the next character of PendingOutput. Throws Failure if the device is lost.
void SendNextChar(core::Application& app);

// Closes the link after a failure. The caller resets the silence watchdog, the progress display and the
// pending flags.
void CloseLink(core::Application& app);

void CmdUpDow_Click(core::Application& app, int index);
void CmdUpDow_Point(core::Application& app, int index);
void Frame11_Point(core::Application& app, int index);

void General_timer_Timer(core::Application& app, int index);
void Time_handcheck_Timer(core::Application& app, int index);
void Timer_Operating_Timer(core::Application& app, int index);

}  // namespace ovl::link
