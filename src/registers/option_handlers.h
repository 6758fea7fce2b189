// What a choice in an option frame writes, and which line settings it forces.
#pragma once

#include "core/application.h"

namespace ovl::registers {

// Gives every control of the option frames its handler.
void WireRegisterOptions(controls::MainForm& form);

// The showing and hiding that goes with the main option of a frame. They run at every apply, and after the
// write of the option's own handler.
void ShowIbm(core::Application& app, int element);
void ShowIcl(core::Application& app, int element);
void ShowNcr(core::Application& app, int element);
void ShowNixdorf(core::Application& app, int element);
void ApplyUniwellFrame(core::Application& app, int element);
void ShowGilbarco(core::Application& app, int element);

// The code of a model of the older lists; the last model kept its neighbours' codes.
int Select_Sharp_V13(int element);

}  // namespace ovl::registers
