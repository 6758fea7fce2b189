// The windows of the link: port settings, progress of the baud rate scan, end of a transfer.
#pragma once

#include "ui/dialogs/form_window.h"

namespace ovl::ui {

// The parent owns each window.
FormWindow* BuildPortSettingsWindow(Bindings& bindings, QWidget* parent);
FormWindow* BuildScanProgressWindow(Bindings& bindings, QWidget* parent);
FormWindow* BuildTransferEndWindow(Bindings& bindings, QWidget* parent);

}  // namespace ovl::ui
