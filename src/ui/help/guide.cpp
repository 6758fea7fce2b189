#include "ui/help/guide.h"

#include <QDir>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QUrl>
#include <algorithm>

#include "host/text_codec.h"
#include "ui/help/help_style.h"
#include "ui/kit/theme.h"
#include "ui/print/document_file.h"

namespace ovl::ui {
namespace {

constexpr qreal kPictureWidth = 560;
constexpr qreal kPictureScale = 0.75;
constexpr qreal kFontSize = 9;
const QColor kRule(0xb0, 0xb0, 0xb0);
const QString kNoPages = QStringLiteral("there are no help pages");
const QString kTitle = QStringLiteral("OVL Software: installer's guide");

// Adds the pictures of a page to the guide under their names. A picture is at most as wide as the column and
// keeps its proportions.
void AddPictures(QTextDocument& guide, QTextDocument& page, const QString& pictures) {
  for (auto block = page.begin(); block.isValid(); block = block.next()) {
    const auto first = block.begin();
    if (first.atEnd()) continue;
    const auto fragment = first.fragment();
    if (!fragment.charFormat().isImageFormat()) continue;
    auto format = fragment.charFormat().toImageFormat();
    const QImage picture(QDir(pictures).filePath(format.name()));
    guide.addResource(QTextDocument::ImageResource, QUrl(format.name()), picture);
    format.setWidth(std::min<qreal>(picture.width() * kPictureScale, kPictureWidth));
    QTextCursor cursor(block);
    cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
    cursor.setCharFormat(format);
  }
}

void AddPage(QTextDocument& guide, const QString& text, const QString& pictures) {
  QTextDocument page;
  page.setDefaultFont(guide.defaultFont());
  page.setMarkdown(text);
  AddPictures(guide, page, pictures);
  StyleHelp(page, kRule);
  QTextCursor end(&guide);
  end.movePosition(QTextCursor::End);
  QTextBlockFormat begin;
  begin.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  end.insertBlock(begin);
  const auto head = end.position();
  end.insertFragment(QTextDocumentFragment(&page));
  // The first inserted block has a format of its own, so the page break is set again.
  QTextCursor first(&guide);
  first.setPosition(head);
  first.mergeBlockFormat(begin);
}

void AddFront(QTextDocument& guide, const HelpPages& pages) {
  auto text = QStringLiteral("# ") + kTitle + QStringLiteral("\n\n");
  for (const auto& entry : pages.Contents()) {
    text += entry.file.isEmpty() ? QStringLiteral("\n**%1**\n\n").arg(entry.title)
                                 : QStringLiteral("- %1\n").arg(entry.title);
  }
  guide.setMarkdown(text);
  StyleHelp(guide, kRule);
}

}  // namespace

core::Result WriteGuide(const HelpPages& pages, const QString& pictures, const QString& file) {
  if (pages.Contents().empty()) return host::FailureOf(pages.Folder(), kNoPages);
  ApplyTheme(Theme::kLight);  // the guide is printed on white paper
  QTextDocument guide;
  auto font = guide.defaultFont();
  font.setPointSizeF(kFontSize);
  guide.setDefaultFont(font);
  AddFront(guide, pages);
  for (const auto& entry : pages.Contents()) {
    if (!entry.file.isEmpty()) AddPage(guide, pages.Text(entry.file, pictures), pictures);
  }
  return WritePdf(file, kTitle, QPageSize::A4, [&](QPagedPaintDevice& device) { guide.print(&device); });
}

}  // namespace ovl::ui
