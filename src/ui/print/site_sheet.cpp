#include "ui/print/site_sheet.h"

#include <QAbstractTextDocumentLayout>
#include <QMarginsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextDocument>

#include "sheet/site_sheet.h"
#include "ui/print/document_file.h"

namespace ovl::ui {
namespace {

const QMarginsF kMargins(12, 12, 12, 12);  // in millimetres
constexpr int kPages = 2;                  // that the headings of the sheet name

// How many times as large as the paper the page must be for the sheet to have two of them.
double EnlargeToFit(QTextDocument& document, QSizeF paper) {
  constexpr double kStep = 1.03, kMost = 2;
  double factor = 1;
  document.setPageSize(paper);
  while (document.pageCount() > kPages && factor < kMost) {
    factor *= kStep;
    document.setPageSize(paper * factor);
  }
  return factor;
}

}  // namespace

QString SiteSheetOf(const core::Application& like, const image::ConfigImage& image) {
  return QString::fromStdString(sheet::SiteSheet(like, image, checks::FindingsOf(like, image)));
}

// The page is what the margins leave of the paper. Only bytes that this program never stores make the texts
// so wide that the page must be larger, and is then printed smaller.
void PrintSiteSheet(const QString& sheet, QPagedPaintDevice& device) {
  device.setPageMargins(kMargins, QPageLayout::Millimeter);
  QTextDocument document;
  document.setDocumentMargin(0);
  document.documentLayout()->setPaintDevice(&device);
  document.setHtml(sheet);
  const double factor = EnlargeToFit(document, QSizeF(device.width(), device.height()));
  const auto page = document.pageSize();
  QPainter painter(&device);
  painter.scale(1 / factor, 1 / factor);
  for (int number = 0; number < document.pageCount(); ++number) {
    if (number > 0) {
      device.newPage();
      painter.translate(0, -page.height());
    }
    document.drawContents(&painter, QRectF(QPointF(0, number * page.height()), page));
  }
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
