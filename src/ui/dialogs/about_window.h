#pragma once

#include "ui/dialogs/form_window.h"

namespace ovl {

FormWindow* BuildAboutWindow(Bindings& bindings, QWidget* parent);

}  // namespace ovl
