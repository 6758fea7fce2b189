// Writes a file as PDF.
#pragma once

#include <QPageSize>
#include <QString>
#include <functional>

#include "core/failure.h"

class QPagedPaintDevice;

namespace ovl::ui {

// `print` draws the pages. A failure leaves the old file as it was.
core::Result WritePdf(const QString& file, const QString& title, QPageSize::PageSizeId paper,
                      const std::function<void(QPagedPaintDevice&)>& print);

}  // namespace ovl::ui
