#include "ui/help/help_style.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextOption>
#include <QTextTable>
#include <algorithm>
#include <array>

#include "ui/kit/theme.h"

namespace ovl::ui {
namespace {

constexpr Em kCellPadding(0.42);
constexpr qreal kHairline = 1;
constexpr std::array<qreal, 4> kHeadSizes = {1.0, 1.7, 1.3, 1.1};
constexpr Em kAboveHead(1.33);
constexpr Em kBelow(0.58);

void StyleTable(QTextTable& table, const QColor& hairline) {
  auto format = table.format();
  format.setBorderCollapse(true);
  format.setBorder(kHairline);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBorderBrush(hairline);
  format.setCellPadding(kCellPadding);
  format.setCellSpacing(0);
  format.setTopMargin(kBelow);
  format.setBottomMargin(kBelow);
  table.setFormat(format);
}

void StyleHead(const QTextBlock& block, const QFont& font) {
  const auto level = static_cast<std::size_t>(block.blockFormat().headingLevel());
  auto letters = block.begin().fragment().charFormat();
  letters.setFontWeight(QFont::DemiBold);
  letters.clearProperty(QTextFormat::FontSizeAdjustment);
  letters.setFontPointSize(font.pointSizeF() * kHeadSizes.at(std::min(level, kHeadSizes.size() - 1)));
  QTextCursor cursor(block);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  cursor.setCharFormat(letters);
}

}  // namespace

void StyleHelp(QTextDocument& document, const QColor& hairline) {
  // No line break within a name: a column is at least as wide as its longest word.
  QTextOption option = document.defaultTextOption();
  option.setWrapMode(QTextOption::WordWrap);
  document.setDefaultTextOption(option);
  for (auto* frame : document.rootFrame()->childFrames()) {
    if (auto* table = qobject_cast<QTextTable*>(frame)) StyleTable(*table, hairline);
  }
  for (auto block = document.begin(); block.isValid(); block = block.next()) {
    QTextCursor cursor(block);
    if (cursor.currentTable() != nullptr) continue;
    const bool head = block.blockFormat().headingLevel() > 0 && !block.begin().atEnd();
    QTextBlockFormat distances;
    distances.setBottomMargin(kBelow);
    distances.setTopMargin(head && block.previous().isValid() ? int(kAboveHead) : 0);
    cursor.mergeBlockFormat(distances);
    if (head) StyleHead(block, document.defaultFont());
  }
}

}  // namespace ovl::ui
