// What the form shows in each state of the link, and the counters that timers and transfers share.
#pragma once

#include <cstdint>
#include <limits>

#include "core/application.h"
#include "core/failure.h"

namespace ovl::link {

inline constexpr const char* kAck = "\x06";
inline constexpr const char* kNak = "\x15";
inline constexpr const char* kEnq = "\x05";
inline constexpr const char* kCan = "\x18";
inline constexpr const char* kFormFeed = "\x0C";
inline constexpr const char* kBadParity = "?";  // how a character with a parity error is handed over

// Shows that remote mode is not held: "No Access", and the five actions disabled.
void ShowNoAccess(core::Application& app);
void ShowAccess(core::Application& app);

// Shows the texts of a closed port. The caller sets the buttons.
void ShowPortClosed(core::Application& app);

void StopHandcheck(core::Application& app);
void StopOperating(core::Application& app);
void StartOperating(core::Application& app);

// ShowBarFull puts the progress bar at its end. ResetProgress puts the bar and the counters back to zero.
void ShowBarFull(core::Application& app);
void ResetProgress(core::Application& app);

// Hides the progress bar and the label of the transfer.
void HideTransfer(core::Application& app, controls::Label& label);

// Counts one character of a transfer. Every 51st character moves the progress bar by one step.
void CountProgress(core::Application& app);

// Writes the text in one piece and leaves it in PendingOutput as well. If the device is lost, the status bar
// shows it and the caller goes on.
void SendWhole(core::Application& app, const std::string& text);

// Ends the download after a failed send and shows the system's reason in a message box.
void ReportSendFailure(core::Application& app, const core::Failure& failure);

void ClearDownload(core::Application& app);

// Adds one, and stays at the largest value of the type.
inline void Increment(std::int16_t& counter) {
  if (counter < std::numeric_limits<std::int16_t>::max()) ++counter;
}

}  // namespace ovl::link
