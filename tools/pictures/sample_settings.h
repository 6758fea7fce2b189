// Settings as an installer might have made them, so that pictures show panels in use.
#pragma once

#include "ui/kit/bindings.h"

namespace ovl::ui {
class Program;
}

namespace ovl::pictures {

// Everything is set by acts as of a person; a firmware that lacks a list refuses it.
void MakeSampleSettings(ui::Program& program);

// Opens a history in the viewer, in a file that is gone afterwards.
void ShowSampleHistory(ui::Program& program);

}  // namespace ovl::pictures
