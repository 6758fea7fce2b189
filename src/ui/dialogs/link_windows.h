// The windows of the link: port settings, progress of the baud scan, the end of a transfer.
#pragma once

#include "ui/dialogs/form_window.h"

namespace ovl::ui {

// Each is owned by its parent.
FormWindow* BuildPortSettingsWindow(Bindings& bindings, QWidget* parent);
FormWindow* BuildScanProgressWindow(Bindings& bindings, QWidget* parent);
FormWindow* BuildTransferEndWindow(Bindings& bindings, QWidget* parent);

}  // namespace ovl::ui
