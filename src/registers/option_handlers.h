// What a choice in an option frame writes, and which line settings it forces.
#pragma once

#include "core/application.h"

namespace ovl {

// Gives every control of the option frames its handler.
void WireRegisterOptions(MainForm& form);

// The showing and hiding that goes with the main option of a frame. They run at every apply, and after the
// write of the option's own handler.
void ShowIbm(Application& app, int element);
void ShowIcl(Application& app, int element);
void ShowNcr(Application& app, int element);
void ShowNixdorf(Application& app, int element);
void ApplyUniwellFrame(Application& app, int element);
void ShowGilbarco(Application& app, int element);

// The code of a model of the older lists; the last model kept its neighbours' codes.
int Select_Sharp_V13(int element);

}  // namespace ovl
