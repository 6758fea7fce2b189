#include "ui/print/site_sheet.h"

#include <QAbstractTextDocumentLayout>
#include <QMarginsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextDocument>

#include "ui/print/document_file.h"

namespace ovl::ui {
namespace {

const QMarginsF kMargins(12, 12, 12, 12);  // in millimetres
constexpr int kPages = 2;                  // that the headings of the sheet name

bool Fits(QTextDocument& document, const sheet::SiteSheet& sheet, std::size_t findings) {
  document.setHtml(QString::fromStdString(sheet.Html(findings)));
  return document.pageCount() <= kPages;
}

// Only bytes that this program never stores make the texts so wide that the page must be larger than the
// paper.
void EnlargeToFit(QTextDocument& document, QSizeF paper) {
  constexpr double kStep = 1.03, kMost = 2;
  for (double factor = kStep; document.pageCount() > kPages && factor < kMost; factor *= kStep)
    document.setPageSize(paper * factor);
}

}  // namespace

sheet::SiteSheet SiteSheetOf(const core::Application& like, const image::ConfigImage& image,
                             sheet::Changes changes) {
  return {like, image, checks::FindingsOf(like, image), changes};
}

void LayOutSiteSheet(const sheet::SiteSheet& sheet, QSizeF paper, QTextDocument& document) {
  document.setPageSize(paper);
  std::size_t fitting = 0;
  auto most = sheet.Findings();
  if (!Fits(document, sheet, 0)) EnlargeToFit(document, paper);
  while (fitting < most) {
    const auto tried = most - (most - fitting) / 2;
    if (Fits(document, sheet, tried)) {
      fitting = tried;
    } else {
      most = tried - 1;
    }
  }
  Fits(document, sheet, fitting);
}

// The page is what the margins leave of the paper. A larger page is printed smaller.
void PrintSiteSheet(const sheet::SiteSheet& sheet, QPagedPaintDevice& device) {
  device.setPageMargins(kMargins, QPageLayout::Millimeter);
  QTextDocument document;
  document.setDocumentMargin(0);
  document.documentLayout()->setPaintDevice(&device);
  const QSizeF paper(device.width(), device.height());
  LayOutSiteSheet(sheet, paper, document);
  const auto page = document.pageSize();
  QPainter painter(&device);
  painter.scale(paper.width() / page.width(), paper.width() / page.width());
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

core::Result WriteSiteSheet(const sheet::SiteSheet& sheet, const QString& file, SheetFormat format,
                            QPageSize::PageSizeId paper) {
  if (format == SheetFormat::kHtml) return ReplaceFile(file, QByteArray::fromStdString(sheet.Html()));
  return WritePdf(file, kSiteSheetTitle, paper,
                  [&](QPagedPaintDevice& device) { PrintSiteSheet(sheet, device); });
}

}  // namespace ovl::ui
