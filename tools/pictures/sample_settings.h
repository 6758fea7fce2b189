// Sample settings of an installer, so that the pictures show panels in use.
#pragma once

#include <string_view>

#include "ui/kit/bindings.h"

namespace ovl::ui {
class Program;
}

namespace ovl::pictures {

// Makes the settings by the same events as a user; a firmware without a list refuses its events.
void MakeSampleSettings(ui::Program& program);

// False for a register that this firmware or the program folder does not have. Picking one without a default
// image would end the program.
bool PickRegister(ui::Program& program, std::string_view name);

// Opens a history in the viewer, from a file that is deleted afterwards.
void ShowSampleHistory(ui::Program& program);

}  // namespace ovl::pictures
