// The windows that some registers open beside the main form: the MICROS network and the sub-menu of a model.
#pragma once

#include "ui/dialogs/form_window.h"

namespace ovl::ui {

// The parent owns each window. A window is as large as its content.
FormWindow* BuildMicrosWindow(Bindings& bindings, QWidget* parent);
FormWindow* BuildSubMenuWindow(Bindings& bindings, QWidget* parent);

}  // namespace ovl::ui
