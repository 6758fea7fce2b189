// The site sheet as a document: into a file, or on a printer.
#pragma once

#include <QPageSize>
#include <QString>
#include <optional>

#include "core/application.h"
#include "core/failure.h"

class QPagedPaintDevice;

namespace ovl::ui {

inline const QString kSiteSheetTitle = QStringLiteral("Site Sheet");

// As HTML, for an image of the firmware of `like`.
QString SiteSheetOf(const core::Application& like, const image::ConfigImage& image);

void PrintSiteSheet(const QString& sheet, QPagedPaintDevice& device);

// How the name of a file says what it is to be: ".pdf", ".html".
enum class SheetFormat { kPdf, kHtml };
std::optional<SheetFormat> SheetFormatOf(const QString& file);

core::Result WriteSiteSheet(const QString& sheet, const QString& file, SheetFormat format,
                            QPageSize::PageSizeId paper);

}  // namespace ovl::ui
