#include "ui/pages/overview_list.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

#include "ui/kit/theme.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

constexpr Em kLeastTextWidth(8);  // a narrower column would cut most of its texts
constexpr Em kLineHeight(1.58);
constexpr Em kCellPadding(0.5);
constexpr Em kMarkWidth(0.25);
constexpr int kUsedRole = Qt::UserRole + 1;

// The same marks as in ListBox: a bold text and a bar for the marked line, a strong colour for the cursor
// while the list has the focus.
class LineDelegate : public QStyledItemDelegate {
 public:
  explicit LineDelegate(OverviewList* list) : QStyledItemDelegate(list), list_(list) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    auto size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(std::max<int>(option.fontMetrics.height() + 2, kLineHeight));
    return size;
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool marked = index.row() == list_->Marked();
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool strong = selected && list_->hasFocus();
    const auto& palette = option.palette;
    if (strong) {
      painter->fillRect(option.rect, palette.color(QPalette::Highlight));
    } else if (selected || marked) {
      painter->fillRect(option.rect, HairlineColor(palette));
    }
    if (marked && index.column() == 0) {
      painter->fillRect(QRect(option.rect.topLeft(), QSize(kMarkWidth, option.rect.height())),
                        palette.color(QPalette::Highlight));
    }
    auto font = option.font;
    if (marked) font.setWeight(QFont::DemiBold);
    painter->setFont(font);
    painter->setPen(strong                                     ? palette.color(QPalette::HighlightedText)
                    : marked || index.data(kUsedRole).toBool() ? palette.color(QPalette::Text)
                                                               : MutedColor(palette));
    const auto place = option.rect.adjusted(kCellPadding, 0, -kCellPadding, 0);
    const auto text = QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, place.width());
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
  }

 private:
  OverviewList* list_;
};

QFont Strong(QFont font) {
  font.setWeight(QFont::DemiBold);
  return font;
}

void FillItem(QTreeWidgetItem& item, const OverviewLine& line) {
  for (int cell = 0; cell < line.cells.size(); ++cell) {
    item.setText(cell, line.cells[cell]);
    item.setData(cell, kUsedRole, line.used);
    // The tool tip shows the text that the column cuts.
    const auto tip = line.tips.value(cell);
    item.setToolTip(cell, tip.isEmpty() ? line.cells[cell] : tip);
  }
}

QString UseText(const std::vector<OverviewLine>& lines) {
  const auto used = std::count_if(lines.begin(), lines.end(), [](const auto& line) { return line.used; });
  return QCoreApplication::translate("OverviewList", "%1 of %2 in use").arg(used).arg(lines.size());
}

// Fills the table and marks the entry that is picked in the list.
// Only the three blanks between two entries of a legend may break the line.
QString KeptTogether(QString legend) {
  return legend.replace(QLatin1Char(' '), QChar(QChar::Nbsp))
      .replace(QString(3, QChar(QChar::Nbsp)), QStringLiteral("   "));
}

void BindTable(Bindings& bindings, controls::List& list, OverviewList& table, QLabel& use,
               std::function<std::vector<OverviewLine>()> lines) {
  auto marked = std::make_shared<ChangeDetector<int>>();
  table.picked = [&bindings, &list, marked](int line) {
    marked->Forget();
    bindings.Act(core::PickEvent{&list, line});
  };
  bindings.OnRefresh([&table, &use, &list, marked, lines = std::move(lines),
                      shown = ChangeDetector<std::vector<OverviewLine>>()]() mutable {
    const auto now = lines();
    if (shown.Update(now)) {
      table.Show(now);
      use.setText(UseText(now));
      marked->Forget();
    }
    if (marked->Update(list.position)) table.SetMarked(list.position);
    return false;
  });
}

}  // namespace

OverviewList::OverviewList(const std::vector<OverviewColumn>& columns, QWidget* parent)
    : QTreeWidget(parent), columns_(columns) {
  setItemDelegate(new LineDelegate(this));
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAlternatingRowColors(true);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setTabKeyNavigation(false);
  setColumnCount(static_cast<int>(columns.size()));
  header()->setStretchLastSection(false);
  header()->setSectionsMovable(false);
  header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  QStringList heads;
  int column = 0, least = 0;
  for (const auto& about : columns) {
    heads.append(about.head);
    const bool stretches = about.widest.isEmpty();
    header()->setSectionResizeMode(column, stretches ? QHeaderView::Stretch : QHeaderView::Fixed);
    if (!stretches) SetColumnWidth(column, about.widest);
    least += stretches ? int(kLeastTextWidth) : header()->sectionSize(column);
    ++column;
  }
  setMinimumWidth(least);
  setHeaderLabels(heads);
  connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
    if (picked) picked(indexOfTopLevelItem(item));
  });
}

// As wide as the text and the head need.
void OverviewList::SetColumnWidth(int column, const QString& widest) {
  const QFontMetrics metrics(Strong(font()));
  const auto& head = columns_[static_cast<std::size_t>(column)].head;
  const int width = std::max(metrics.horizontalAdvance(widest), metrics.horizontalAdvance(head));
  header()->resizeSection(column, width + 2 * kCellPadding + 2);
}

void OverviewList::Show(const std::vector<OverviewLine>& lines) {
  const int count = static_cast<int>(lines.size());
  while (topLevelItemCount() < count) addTopLevelItem(new QTreeWidgetItem);
  while (topLevelItemCount() > count) delete takeTopLevelItem(count);
  for (int line = 0; line < count; ++line) {
    FillItem(*topLevelItem(line), lines[static_cast<std::size_t>(line)]);
  }
  for (int column = 0; column < columnCount(); ++column) {
    const auto& about = columns_[static_cast<std::size_t>(column)];
    if (!about.fits) continue;
    auto widest = about.widest;
    for (const auto& line : lines) {
      if (line.cells[column].size() > widest.size()) widest = line.cells[column];
    }
    SetColumnWidth(column, widest);
  }
}

void OverviewList::SetCursor(int line) {
  const QSignalBlocker blocker(this);
  setCurrentItem(topLevelItem(line));
}

void OverviewList::SetMarked(int line) {
  marked_ = line;
  SetCursor(line);
  viewport()->update();
}

void OverviewList::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (picked && CurrentLine() >= 0) picked(CurrentLine());
      return;
    case Qt::Key_Escape:
      if (marked_ < 0) return QTreeWidget::keyPressEvent(event);
      SetCursor(marked_);
      return;
    default:
      QTreeWidget::keyPressEvent(event);
  }
}

void OverviewList::focusOutEvent(QFocusEvent* event) {
  QTreeWidget::focusOutEvent(event);
  if (LosesFocusToWidget(*event) && marked_ >= 0) SetCursor(marked_);
}

QWidget* BuildOverview(Bindings& bindings, controls::List& list, Overview overview) {
  auto* side = new QWidget;
  auto* down = new QVBoxLayout(side);
  down->setContentsMargins(kMargin, kMargin, 0, kMargin);
  down->setSpacing(kRowGap);
  auto* table = new OverviewList(overview.columns);
  table->setObjectName(overview.object_name);
  table->setAccessibleName(overview.accessible_name);
  table->setAccessibleDescription(
      QCoreApplication::translate("OverviewList", "Move with the arrow keys, and pick with Enter."));
  auto* below = new QHBoxLayout;
  auto* legend = MutedLabel({});
  auto* use = MutedLabel({});
  use->setObjectName(overview.object_name + QStringLiteral("Use"));
  legend->setWordWrap(true);
  below->addWidget(legend, 1);
  below->addWidget(use);
  if (overview.button != nullptr) below->addWidget(overview.button);
  down->addWidget(table, 1);
  down->addLayout(below);
  BindTable(bindings, list, *table, *use, std::move(overview.lines));
  bindings.OnRefresh(
      [legend, text = std::move(overview.legend), shown = ChangeDetector<QString>()]() mutable {
        const auto now = text();
        if (shown.Update(now)) legend->setText(KeptTogether(now));
        return false;
      });
  return side;
}

}  // namespace ovl::ui
