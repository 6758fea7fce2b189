// One form serves all firmware: at start a firmware's variant takes away what it lacks and adds what it
// brought.
#pragma once

#include "core/application.h"

namespace ovl {

// Hides, shows and renames by the firmware's steps. Once for each start; nothing is undone.
void ApplyFirmwareVariants(Application& app);

// The form of the compact firmware. What it hides stays in the image.
void ApplyCompactForm(Application& app);

}  // namespace ovl
