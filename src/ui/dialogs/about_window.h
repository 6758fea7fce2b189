#pragma once

#include "ui/dialogs/form_window.h"

namespace ovl::ui {

FormWindow* BuildAboutWindow(Bindings& bindings, QWidget* parent);

}  // namespace ovl::ui
