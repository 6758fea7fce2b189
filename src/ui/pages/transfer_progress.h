// The progress of a transfer, computed from the characters that were sent or received.
#pragma once

#include <QString>

namespace ovl::core {
struct Application;
}

namespace ovl::ui {

// "2,870 characters, 2 s left"; empty when no transfer shows. The time is that of the remaining characters at
// the baud rate of the port, so the unit never needs less.
QString TransferProgressText(const core::Application& app);

// Whether nothing is sent or received any more, although the model still shows the transfer. The window then
// hides its direction.
bool TransferStopped(const core::Application& app);

}  // namespace ovl::ui
