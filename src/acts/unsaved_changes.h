// When the copy of unsaved changes exists. The windows keep the copy in a file and ask here.
#pragma once

#include <string_view>

#include "core/gate.h"

namespace ovl::acts {

// The image differs from what the unit or a file is known to hold.
bool HasUnsavedChanges(const core::Application& app);

// Whether an event that has just ended the program drops the copy: the user has left, or has picked another
// firmware. Any other end, such as one by a broken file, leaves the last copy as it was, and so does a pick
// that the settings store has not kept: the next start serves the same firmware again.
bool DropsUnsavedChanges(const core::Application& app, const core::Event& event, bool settings_kept);

// Whether Open takes the file under the firmware of this name, such as "V1400R12", without a shift.
bool OpensUnder(std::string_view file_bytes, std::string_view firmware_name);

}  // namespace ovl::acts
