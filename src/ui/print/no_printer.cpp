#include "ui/print/printer.h"

namespace ovl::ui {

bool HasPrinting() {
  return false;
}

Printed PrintWithDialog(QWidget*, const QString&, const std::function<void(QPagedPaintDevice&)>&) {
  return Printed::kFailed;
}

}  // namespace ovl::ui
