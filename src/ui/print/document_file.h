// Documents as files. A failure leaves the old file as it was; a file that was written survives a power
// failure.
#pragma once

#include <QByteArray>
#include <QPageSize>
#include <QString>
#include <functional>

#include "core/failure.h"

class QPagedPaintDevice;

namespace ovl::ui {

core::Result ReplaceFile(const QString& file, const QByteArray& bytes);

// A PDF. `print` draws the pages.
core::Result WritePdf(const QString& file, const QString& title, QPageSize::PageSizeId paper,
                      const std::function<void(QPagedPaintDevice&)>& print);

}  // namespace ovl::ui
