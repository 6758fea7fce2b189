// "Print Site Sheet..." of the File menu.
#pragma once

#include <QString>
#include <functional>

#include "core/application.h"

class QMainWindow;
class QWidget;

namespace ovl::ui {

struct PrintHooks {
  std::function<QWidget*()> front;                              // the window that the dialog belongs to
  std::function<void(const QString&)> show_done, show_failure;  // in the status bar
};

// Adds the item in front of "Open History", if there is printing. The program must outlive the window.
void AddPrintItem(const core::Application& app, QMainWindow& main, PrintHooks hooks);

}  // namespace ovl::ui
