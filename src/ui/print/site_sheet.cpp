#include "ui/print/site_sheet.h"

#include <QAbstractTextDocumentLayout>
#include <QMarginsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QTextDocument>

#include "sheet/site_sheet.h"
#include "ui/print/document_file.h"

namespace ovl::ui {
namespace {

const QMarginsF kMargins(12, 12, 12, 12);  // in millimetres

}  // namespace

QString SiteSheetOf(const core::Application& like, const image::ConfigImage& image) {
  return QString::fromStdString(sheet::SiteSheet(like, image, checks::FindingsOf(like, image)));
}

// The document has the size of what the margins leave of the paper. Without a size it would print with
// margins of its own.
void PrintSiteSheet(const QString& sheet, QPagedPaintDevice& device) {
  device.setPageMargins(kMargins, QPageLayout::Millimeter);
  QTextDocument document;
  document.setDocumentMargin(0);
  document.documentLayout()->setPaintDevice(&device);
  document.setHtml(sheet);
  document.setPageSize(QSizeF(device.width(), device.height()));
  document.print(&device);
}

std::optional<SheetFormat> SheetFormatOf(const QString& file) {
  if (file.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) return SheetFormat::kPdf;
  if (file.endsWith(QLatin1String(".html"), Qt::CaseInsensitive)) return SheetFormat::kHtml;
  return std::nullopt;
}

core::Result WriteSiteSheet(const QString& sheet, const QString& file, SheetFormat format,
                            QPageSize::PageSizeId paper) {
  if (format == SheetFormat::kHtml) return ReplaceFile(file, sheet.toUtf8());
  return WritePdf(file, kSiteSheetTitle, paper,
                  [&](QPagedPaintDevice& device) { PrintSiteSheet(sheet, device); });
}

}  // namespace ovl::ui
