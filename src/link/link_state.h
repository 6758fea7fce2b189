// The displays that go with the states of the link, and the counters that its timers and transfers share.
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

// Remote mode is over, or not there: the five actions off, "No Access".
void ShowNoAccess(core::Application& app);
void ShowAccess(core::Application& app);

// The words of a closed port; its buttons are the caller's.
void ShowPortClosed(core::Application& app);

void StopHandcheck(core::Application& app);
void StopOperating(core::Application& app);
void StartOperating(core::Application& app);

// The bar at its end, and the bar and counters as they are between transfers.
void ShowBarFull(core::Application& app);
void ResetProgress(core::Application& app);

// Takes the bar and the transfer's label off the screen.
void HideTransfer(core::Application& app, controls::Label& label);

// Counts one character of a transfer; every 51st is a step of the bar.
void CountProgress(core::Application& app);

// Writes the text and leaves it in PendingOutput, as the requests that go out in one piece do. A lost device
// is noted and skipped.
void SendWhole(core::Application& app, const std::string& text);

// A send that failed: the download is over, and a box tells the system's reason.
void TellSendFailure(core::Application& app, const core::Failure& failure);

void ClearDownload(core::Application& app);

// Counters stop at their type's end.
inline void Increment(std::int16_t& counter) {
  if (counter < std::numeric_limits<std::int16_t>::max()) ++counter;
}

}  // namespace ovl::link
