// The printers of the system. Where Qt has no support for them, there are none.
#pragma once

#include <QString>
#include <functional>

class QPagedPaintDevice;
class QWidget;

namespace ovl::ui {

bool HasPrinting();

enum class Printed { kDone, kCancelled, kFailed };

// Asks for the printer; PDF files are among them. The title is that of the document. `print` draws the pages.
Printed PrintWithDialog(QWidget* front, const QString& title,
                        const std::function<void(QPagedPaintDevice&)>& print);

}  // namespace ovl::ui
