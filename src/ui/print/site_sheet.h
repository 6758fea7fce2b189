// The site sheet as a document: into a file, or on a printer.
#pragma once

#include <QPageSize>
#include <QSizeF>
#include <QString>
#include <optional>

#include "core/application.h"
#include "core/failure.h"
#include "sheet/site_sheet.h"

class QPagedPaintDevice;
class QTextDocument;

namespace ovl::ui {

inline const QString kSiteSheetTitle = QStringLiteral("Site Sheet");

// For an image of the firmware of `like`, with the findings of all checks.
sheet::SiteSheet SiteSheetOf(const core::Application& like, const image::ConfigImage& image,
                             sheet::Changes changes = sheet::Changes::kNone);

// On two pages, with as many findings as fit on the first one. The pages are as large as the paper, or larger
// if the settings need that.
void LayOutSiteSheet(const sheet::SiteSheet& sheet, QSizeF paper, QTextDocument& document);

void PrintSiteSheet(const sheet::SiteSheet& sheet, QPagedPaintDevice& device);

// How the name of a file says what it is to be: ".pdf", ".html".
enum class SheetFormat { kPdf, kHtml };
std::optional<SheetFormat> SheetFormatOf(const QString& file);

// HTML has no pages, and so has all findings.
core::Result WriteSiteSheet(const sheet::SiteSheet& sheet, const QString& file, SheetFormat format,
                            QPageSize::PageSizeId paper);

}  // namespace ovl::ui
