// One main form serves all firmware. At start, the program hides the controls that the running firmware lacks
// and shows those that it has in addition.
#pragma once

#include "controls/forms/main_form.h"
#include "firmware/firmware_id.h"

namespace ovl::firmware {

// Hides, shows and renames controls for the firmware. Call it once at start; there is no way back.
void ApplyFirmwareVariants(controls::MainForm& form, const FirmwareId& firmware);

// The same for the compact firmware. Fields of hidden controls stay in the image.
void ApplyCompactForm(controls::MainForm& form);

}  // namespace ovl::firmware
