#pragma once

#include "shell/form_window.h"

namespace ovl {

FormWindow* BuildAboutWindow(Bindings& bindings, QWidget* parent);

}  // namespace ovl
