// One form serves all firmware: at start a firmware's variant takes away what it lacks and adds what it
// brought.
#pragma once

#include "controls/forms/main_form.h"
#include "firmware/firmware_id.h"

namespace ovl::firmware {

// Hides, shows and renames by the firmware's steps. Once for each start; nothing is undone.
void ApplyFirmwareVariants(controls::MainForm& form, const FirmwareId& firmware);

// The form of the compact firmware. What it hides stays in the image.
void ApplyCompactForm(controls::MainForm& form);

}  // namespace ovl::firmware
