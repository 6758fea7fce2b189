// What a choice in an option frame stores.
#pragma once

#include "core/application.h"

namespace ovl::registers {

// Gives every control of the option frames its handler.
void WireRegisterOptions(controls::MainForm& form);

// Show and hide what depends on the main option of a frame. They run at every apply, and after the option's
// own handler has stored it.
void ShowIbm(core::Application& app, int element);
void ShowIcl(core::Application& app, int element);
void ShowNcr(core::Application& app, int element);
void ShowNixdorf(core::Application& app, int element);
void ApplyUniwellFrame(core::Application& app, int element);
void ShowGilbarco(core::Application& app, int element);

// The code of a model. The last model was added with a code between those of its neighbours.
int Select_Sharp_V13(int element);

}  // namespace ovl::registers
