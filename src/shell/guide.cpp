#include "shell/guide.h"

#include <QDir>
#include <QImage>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include "shell/help_style.h"

namespace ovl {
namespace {

constexpr qreal kPictureWidth = 460;
constexpr qreal kFontSize = 9;
const QColor kRule(0xb0, 0xb0, 0xb0);
const QString kTitle = QStringLiteral("OVL Software: installer's guide");

// A picture is never wider than the column, and keeps its shape.
void FitPictures(QTextDocument& page, const QString& pictures) {
  for (auto block = page.begin(); block.isValid(); block = block.next()) {
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      if (!at.fragment().charFormat().isImageFormat()) continue;
      auto format = at.fragment().charFormat().toImageFormat();
      const auto path = QDir(pictures).filePath(format.name());
      const QImage picture(path);
      format.setName(path);
      if (picture.width() > kPictureWidth) format.setWidth(kPictureWidth);
      QTextCursor cursor(block);
      cursor.setPosition(at.fragment().position());
      cursor.setPosition(at.fragment().position() + at.fragment().length(), QTextCursor::KeepAnchor);
      cursor.setCharFormat(format);
      break;
    }
  }
}

void AddPage(QTextDocument& guide, const QString& text, const QString& pictures) {
  QTextDocument page;
  page.setDefaultFont(guide.defaultFont());
  page.setMarkdown(text);
  FitPictures(page, pictures);
  StyleHelp(page, kRule);
  QTextCursor end(&guide);
  end.movePosition(QTextCursor::End);
  QTextBlockFormat begin;
  begin.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  end.insertBlock(begin);
  const auto head = end.position();
  end.insertFragment(QTextDocumentFragment(&page));
  // The first block of what is inserted brings a format of its own.
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

QString WriteGuide(const HelpPages& pages, const QString& pictures, const QString& file) {
  if (pages.Contents().empty()) return QStringLiteral("there are no help pages in %1").arg(pages.Folder());
  QTextDocument guide;
  auto font = guide.defaultFont();
  font.setPointSizeF(kFontSize);
  guide.setDefaultFont(font);
  AddFront(guide, pages);
  for (const auto& entry : pages.Contents()) {
    if (!entry.file.isEmpty()) AddPage(guide, pages.Text(entry.file, pictures), pictures);
  }
  QSaveFile target(file);
  if (!target.open(QIODevice::WriteOnly)) return file + QStringLiteral(": ") + target.errorString();
  {
    QPdfWriter writer(&target);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setTitle(kTitle);
    guide.print(&writer);
  }
  return target.commit() ? QString() : file + QStringLiteral(": ") + target.errorString();
}

}  // namespace ovl
