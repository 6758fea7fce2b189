// The window in which a few CASIO, SHARP and TEC models ask for a further choice. Its writes take effect at
// once.
#pragma once

#include "core/application.h"

namespace ovl::registers {

// Enable the family's "Show Detail" button, arrange the window for the model and open it; for a model without
// a sub-menu disable the button and close the window.
void ApplyCasioSubmenu(core::Application& app, int element);
void ApplySharpSubmenu(core::Application& app, int element);
void ApplyTecSubmenu(core::Application& app, int element);

// The same, but the window neither opens nor closes; an apply needs this. False: the model has no sub-menu.
bool ArrangeCasioSubmenu(core::Application& app, int element);
bool ArrangeSharpSubmenu(core::Application& app, int element);
bool ArrangeTecSubmenu(core::Application& app, int element);

void WireSubMenu(controls::SubMenuForm& form);

}  // namespace ovl::registers
