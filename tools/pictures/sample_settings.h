// Sample settings of an installer, so that the pictures show panels in use.
#pragma once

#include "ui/kit/bindings.h"

namespace ovl::ui {
class Program;
}

namespace ovl::pictures {

// Makes the settings by the same events as a user; a firmware without a list refuses its events.
void MakeSampleSettings(ui::Program& program);

// Opens a history in the viewer, from a file that is deleted afterwards.
void ShowSampleHistory(ui::Program& program);

}  // namespace ovl::pictures
