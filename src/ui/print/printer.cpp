#include "ui/print/printer.h"

#include <QCoreApplication>
#include <QPrintDialog>
#include <QPrinter>

namespace ovl::ui {

bool HasPrinting() {
  return true;
}

Printed PrintWithDialog(QWidget* front, const QString& title,
                        const std::function<void(QPagedPaintDevice&)>& print) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(title);
  QPrintDialog dialog(&printer, front);
  dialog.setWindowTitle(QCoreApplication::translate("PrintItem", "Print %1").arg(title));
  if (dialog.exec() != QDialog::Accepted) return Printed::kCancelled;
  print(printer);
  return printer.printerState() == QPrinter::Error ? Printed::kFailed : Printed::kDone;
}

}  // namespace ovl::ui
