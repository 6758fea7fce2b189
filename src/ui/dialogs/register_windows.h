// The windows that a few registers open beside the main form: the MICROS network and the model sub-menu.
#pragma once

#include "ui/dialogs/form_window.h"

namespace ovl::ui {

// Each is owned by its parent and as large as what it shows.
FormWindow* BuildMicrosWindow(Bindings& bindings, QWidget* parent);
FormWindow* BuildSubMenuWindow(Bindings& bindings, QWidget* parent);

}  // namespace ovl::ui
