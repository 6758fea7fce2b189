#include "ui/acts/changes_list.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTreeWidgetItemIterator>
#include <algorithm>

#include "host/text_codec.h"
#include "ui/kit/theme.h"

namespace ovl::ui {
namespace {

enum Column { kSetting, kBefore, kNow, kBytes, kBytesBefore, kBytesNow, kColumns };
constexpr int kRowRole = Qt::UserRole;
constexpr Em kCellRoom(1.33);

// Control characters of a stored text become visible signs.
QString Printable(const std::string& words) {
  constexpr char16_t kFirstSign = 0x2400;
  constexpr char16_t kDelete = 0x7F, kDeleteSign = 0x2421;
  auto text = host::FromWindows1252(words);
  for (auto& letter : text) {
    if (letter.unicode() < u' ') letter = QChar(kFirstSign + letter.unicode());
    if (letter.unicode() == kDelete) letter = QChar(kDeleteSign);
  }
  return text;
}

QString Joined(const std::vector<changes::ByteChange>& bytes,
               const std::function<std::string(const changes::ByteChange&)>& part) {
  QStringList parts;
  for (const auto& change : bytes) parts.append(QString::fromStdString(part(change)));
  return parts.join(QStringLiteral("; "));
}

QStringList CellsOf(const changes::SettingChange& row) {
  return {Printable(row.caption),
          Printable(row.before),
          Printable(row.after),
          Joined(row.bytes,
                 [](const changes::ByteChange& bytes) {
                   return bytes.field + ", " + bytes.section + " " + std::to_string(bytes.byte);
                 }),
          Joined(row.bytes, [](const changes::ByteChange& bytes) { return bytes.before; }),
          Joined(row.bytes, [](const changes::ByteChange& bytes) { return bytes.after; })};
}

QFont SemiBold(QFont font) {
  font.setWeight(QFont::DemiBold);
  return font;
}

}  // namespace

ChangesList::ChangesList(QWidget* parent) : QTreeWidget(parent) {
  setColumnCount(kColumns);
  setHeaderLabels({QStringLiteral("Setting"), QStringLiteral("Before"), QStringLiteral("Now"),
                   QStringLiteral("Bytes"), QStringLiteral("Bytes before"), QStringLiteral("Bytes now")});
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
  header()->setMinimumSectionSize(fontMetrics().horizontalAdvance(QStringLiteral("Bytes before")) +
                                  kCellRoom);
  ShowBytes(false);
  connect(this, &QTreeWidget::itemDoubleClicked, this, &ChangesList::OpenRow);
}

// The values share the room of the window. Beside the bytes they take what they need, and the list scrolls.
void ChangesList::ShowBytes(bool shown) {
  const auto mode = shown ? QHeaderView::ResizeToContents : QHeaderView::Stretch;
  for (const int column : {kBefore, kNow}) header()->setSectionResizeMode(column, mode);
  for (const int column : {kBytes, kBytesBefore, kBytesNow}) setColumnHidden(column, !shown);
  FitColumns();
}

void ChangesList::SetSides(const QString& before, const QString& now) {
  headerItem()->setText(kBefore, before);
  headerItem()->setText(kNow, now);
}

// A hidden column has no width, so it is fitted again when it is shown.
void ChangesList::FitColumns() {
  for (const int column : {kSetting, kBytes, kBytesBefore, kBytesNow}) {
    if (!isColumnHidden(column)) resizeColumnToContents(column);
  }
}

QTreeWidgetItem* ChangesList::AddGroup(const changes::SettingChange& first) {
  auto* group = new QTreeWidgetItem(this, {Printable(first.place)});
  group->setFont(kSetting, SemiBold(font()));
  group->setFlags(Qt::ItemIsEnabled);
  group->setFirstColumnSpanned(true);
  group->setExpanded(true);
  return group;
}

void ChangesList::AddRow(QTreeWidgetItem& group, int at) {
  const auto cells = CellsOf(rows_[static_cast<std::size_t>(at)]);
  auto* item = new QTreeWidgetItem(&group, cells);
  item->setData(kSetting, kRowRole, at);
  // The tool tip shows the text that the column cuts.
  for (int cell = 0; cell < cells.size(); ++cell) item->setToolTip(cell, cells[cell]);
}

void ChangesList::Show(std::vector<changes::SettingChange> rows) {
  const auto* current = RowOf(currentItem());
  const auto cursor = current == nullptr ? std::string() : current->place + current->caption;
  rows_ = std::move(rows);
  clear();
  QTreeWidgetItem* group = nullptr;
  const auto same_group = [&](std::size_t at) { return at > 0 && rows_[at].tab == rows_[at - 1].tab; };
  for (std::size_t at = 0; at < rows_.size(); ++at) {
    if (!same_group(at)) group = AddGroup(rows_[at]);
    AddRow(*group, static_cast<int>(at));
  }
  FitColumns();
  for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item) {
    const auto* row = RowOf(*item);
    if (row == nullptr) continue;
    if (currentItem() == nullptr || row->place + row->caption == cursor) setCurrentItem(*item);
  }
}

const changes::SettingChange* ChangesList::RowOf(const QTreeWidgetItem* item) const {
  if (item == nullptr || item->parent() == nullptr) return nullptr;
  return &rows_.at(static_cast<std::size_t>(item->data(kSetting, kRowRole).toInt()));
}

void ChangesList::OpenRow(const QTreeWidgetItem* item) {
  const auto* row = RowOf(item);
  if (row != nullptr && opened) opened(changes::SettingChange(*row));
}

QString ChangesList::SelectedText() const {
  QString text;
  for (QTreeWidgetItemIterator item(const_cast<ChangesList*>(this), QTreeWidgetItemIterator::Selected);
       *item != nullptr; ++item) {
    const auto* row = RowOf(*item);
    if (row == nullptr) continue;
    QStringList cells = {Printable(row->place)};
    for (int column = 0; column < kColumns; ++column) {
      if (!isColumnHidden(column)) cells.append((*item)->text(column));
    }
    text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
  }
  return text;
}

void ChangesList::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    QApplication::clipboard()->setText(SelectedText());
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return OpenRow(currentItem());
  QTreeWidget::keyPressEvent(event);
}

}  // namespace ovl::ui
