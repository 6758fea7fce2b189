// How far a transfer has come, worked out from what has passed through the line.
#pragma once

#include <QString>

namespace ovl::core {
struct Application;
}

namespace ovl::ui {

// "2,870 characters, 2 s left"; empty when no transfer shows. The time is that of the remaining characters at
// the port's speed, so it is the least that the unit needs.
QString TransferProgressText(const core::Application& app);

}  // namespace ovl::ui
