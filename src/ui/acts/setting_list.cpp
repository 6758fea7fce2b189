#include "ui/acts/setting_list.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTreeWidgetItemIterator>
#include <algorithm>
#include <utility>

#include "host/text_codec.h"
#include "ui/kit/theme.h"

namespace ovl::ui {
namespace {

constexpr int kRowRole = Qt::UserRole;
constexpr Em kCellRoom(1.33);

QFont SemiBold(QFont font) {
  font.setWeight(QFont::DemiBold);
  return font;
}

QString KeyOf(const SettingRow& row) {
  return row.place + row.cells.value(0);
}

}  // namespace

QString PrintableText(const phrases::Words& words) {
  constexpr char16_t kFirstSign = 0x2400;
  constexpr char16_t kDelete = 0x7F, kDeleteSign = 0x2421;
  auto text = Shown(words);
  for (auto& letter : text) {
    if (letter.unicode() < u' ') letter = QChar(kFirstSign + letter.unicode());
    if (letter.unicode() == kDelete) letter = QChar(kDeleteSign);
  }
  return text;
}

SettingList::SettingList(const QStringList& headings, QWidget* parent) : QTreeWidget(parent) {
  setColumnCount(static_cast<int>(headings.size()));
  setHeaderLabels(headings);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setTabKeyNavigation(false);
  setExpandsOnDoubleClick(false);
  setIndentation(fontMetrics().averageCharWidth() * 2);
  header()->setSectionsMovable(false);
  header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  header()->setStretchLastSection(false);
  int widest = 0;
  for (const auto& heading : headings) widest = std::max(widest, fontMetrics().horizontalAdvance(heading));
  header()->setMinimumSectionSize(widest + kCellRoom);
  connect(this, &QTreeWidget::itemDoubleClicked, this, &SettingList::OpenRow);
}

// A hidden column has no width, so it is fitted again when it is shown.
void SettingList::FitColumns() {
  for (int column = 0; column < columnCount(); ++column) {
    if (!isColumnHidden(column) && header()->sectionResizeMode(column) == QHeaderView::Interactive)
      resizeColumnToContents(column);
  }
}

QTreeWidgetItem* SettingList::AddGroup(const QString& caption) {
  auto* group = new QTreeWidgetItem(this, {caption});
  group->setFont(0, SemiBold(font()));
  group->setFlags(Qt::ItemIsEnabled);
  group->setFirstColumnSpanned(true);
  group->setExpanded(true);
  return group;
}

void SettingList::AddRow(QTreeWidgetItem& group, int at) {
  const auto& cells = rows_[static_cast<std::size_t>(at)].cells;
  auto* item = new QTreeWidgetItem(&group, cells);
  item->setData(0, kRowRole, at);
  // The tool tip shows the text that the column cuts.
  for (int cell = 0; cell < cells.size(); ++cell) item->setToolTip(cell, cells[cell]);
}

void SettingList::ShowRows(std::vector<SettingRow> rows) {
  const auto* current = RowOf(currentItem());
  const auto cursor = current == nullptr ? QString() : KeyOf(*current);
  // A setting can have several findings.
  auto alike_before = current == nullptr
                          ? 0
                          : std::count_if(std::as_const(rows_).data(), current,
                                          [&](const SettingRow& row) { return KeyOf(row) == cursor; });
  rows_ = std::move(rows);
  clear();
  QTreeWidgetItem* group = nullptr;
  for (std::size_t at = 0; at < rows_.size(); ++at) {
    if (at == 0 || rows_[at].group != rows_[at - 1].group) group = AddGroup(rows_[at].group);
    AddRow(*group, static_cast<int>(at));
  }
  FitColumns();
  for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item) {
    const auto* row = RowOf(*item);
    if (row == nullptr) continue;
    const bool is_alike = KeyOf(*row) == cursor;
    if (currentItem() == nullptr || is_alike) setCurrentItem(*item);
    if (is_alike && alike_before-- == 0) return;
  }
}

const SettingRow* SettingList::RowOf(const QTreeWidgetItem* item) const {
  if (item == nullptr || item->parent() == nullptr) return nullptr;
  return &rows_.at(static_cast<std::size_t>(item->data(0, kRowRole).toInt()));
}

// A copy, because the way to the control can fill the list anew.
void SettingList::OpenRow(const QTreeWidgetItem* item) {
  const auto* row = RowOf(item);
  if (row != nullptr && opened) opened(SettingGoal(row->goal));
}

QString SettingList::SelectedText() const {
  QString text;
  for (QTreeWidgetItemIterator item(const_cast<SettingList*>(this), QTreeWidgetItemIterator::Selected);
       *item != nullptr; ++item) {
    const auto* row = RowOf(*item);
    if (row == nullptr) continue;
    QStringList cells = {row->place};
    for (int column = 0; column < columnCount(); ++column) {
      if (!isColumnHidden(column)) cells.append((*item)->text(column));
    }
    text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
  }
  return text;
}

void SettingList::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    QApplication::clipboard()->setText(SelectedText());
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return OpenRow(currentItem());
  QTreeWidget::keyPressEvent(event);
}

}  // namespace ovl::ui
