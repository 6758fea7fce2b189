// The windows for texts: entry of a text, the two values of an exception, and the viewer.
#pragma once

#include "ui/dialogs/form_window.h"

namespace ovl::ui {

FormWindow* BuildTextEntryWindow(Bindings& bindings, QWidget* parent);
FormWindow* BuildRangeWindow(Bindings& bindings, QWidget* parent);
FormWindow* BuildViewerWindow(Bindings& bindings, QWidget* parent);

}  // namespace ovl::ui
