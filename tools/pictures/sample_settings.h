// Settings as an installer might have made them, so that pictures show panels in use.
#pragma once

#include "ui/kit/bindings.h"

namespace ovl {

class Program;

// Everything is set by acts as of a person; a firmware that lacks a list refuses it.
void MakeSampleSettings(Program& program);

// Opens a history in the viewer, in a file that is gone afterwards.
void ShowSampleHistory(Program& program);

}  // namespace ovl
