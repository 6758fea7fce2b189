// The windows for texts: one that takes a line of text, one for the two values of an exception, and the
// viewer.
#pragma once

#include "ui/dialogs/form_window.h"

namespace ovl::ui {

FormWindow* BuildTextEntryWindow(Bindings& bindings, QWidget* parent);
FormWindow* BuildRangeWindow(Bindings& bindings, QWidget* parent);
FormWindow* BuildViewerWindow(Bindings& bindings, QWidget* parent);

}  // namespace ovl::ui
