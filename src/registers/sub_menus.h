// The window in which a few CASIO, SHARP and TEC models ask for a further choice. Its writes take effect at
// once.
#pragma once

#include "core/application.h"

namespace ovl {

// Enable the family's "Show Detail" button, arrange the window for the model and open it; for a model without
// a sub-menu disable the button and close the window.
void ApplyCasioSubmenu(Application& app, int element);
void ApplySharpSubmenu(Application& app, int element);
void ApplyTecSubmenu(Application& app, int element);

// The same without opening or closing the window, as an apply needs it. False: the model has no sub-menu.
bool ArrangeCasioSubmenu(Application& app, int element);
bool ArrangeSharpSubmenu(Application& app, int element);
bool ArrangeTecSubmenu(Application& app, int element);

void WireSubMenu(SubMenuForm& form);

}  // namespace ovl
