#include "ui/kit/widgets.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QValidator>
#include <QWheelEvent>
#include <algorithm>

#include "host/text_codec.h"
#include "ui/kit/theme.h"

namespace ovl::ui {
namespace {

constexpr int kPopupLines = 10;
constexpr int kDetailGap = 24;
constexpr int kMarkWidth = 3;
constexpr int kEntryIndent = 6;
constexpr int kEntryHeight = 20;
constexpr int kTextIndent = 2;

int DetailStart(const QAbstractItemModel& model, const QFontMetrics& metrics) {
  int widest = 0;
  for (int row = 0; row < model.rowCount(); ++row) {
    widest = std::max(widest, metrics.horizontalAdvance(model.index(row, 0).data().toString()));
  }
  return widest + kDetailGap;
}

// Draws the text of an entry, and its detail muted in a second column.
class DetailDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    auto size = QStyledItemDelegate::sizeHint(option, index);
    const QFontMetrics metrics(option.font);
    size.setWidth(DetailStart(*index.model(), metrics) + kDetailGap +
                  metrics.horizontalAdvance(index.data(PickList::kDetailRole).toString()));
    return size;
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setPen(selected ? option.palette.color(QPalette::HighlightedText) : MutedColor(option.palette));
    const int start = DetailStart(*index.model(), QFontMetrics(option.font));
    painter->drawText(option.rect.adjusted(start, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                      index.data(PickList::kDetailRole).toString());
    painter->restore();
  }
};

// Marks the entry that the model has chosen by a bold text and a bar at the edge. The cursor is strong only
// while the list has the focus, so that the focus is visible.
class MarkDelegate : public QStyledItemDelegate {
 public:
  explicit MarkDelegate(ListBox* list) : QStyledItemDelegate(list), list_(list) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    auto size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(std::max(size.height(), kEntryHeight));
    return size;
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool marked = index.row() == list_->Marked();
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    auto entry = option;
    entry.rect.adjust(kEntryIndent, 0, 0, 0);
    if (marked) entry.font.setWeight(QFont::DemiBold);
    const auto highlight = option.palette.color(QPalette::Highlight);
    if (selected && list_->hasFocus()) {
      painter->fillRect(option.rect, highlight);
    } else if (selected) {
      entry.state.setFlag(QStyle::State_Selected, false);
      painter->fillRect(option.rect, HairlineColor(option.palette));
    }
    if (marked) {
      painter->fillRect(QRect(option.rect.topLeft(), QSize(kMarkWidth, option.rect.height())), highlight);
    }
    QStyledItemDelegate::paint(painter, entry, index);
  }

 private:
  ListBox* list_;
};

qsizetype SizeWithoutPadding(const QString& text) {
  auto size = text.size();
  while (size > 0 && text[size - 1] == QLatin1Char(' ')) --size;
  return size;
}

}  // namespace

bool LosesFocusToWidget(const QFocusEvent& event) {
  return event.type() == QEvent::FocusOut && event.reason() != Qt::ActiveWindowFocusReason &&
         event.reason() != Qt::PopupFocusReason;
}

// Decides which characters a text line accepts, and keeps the reason of the last refusal.
class TextValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& caret) const override {
    if (!host::ToWindows1252(text))
      return Refuse(QStringLiteral("The unit has no such character: only Windows-1252 can be typed."));
    if (limit == 0 || text.size() <= limit) return Acceptable;
    text.truncate(std::max<qsizetype>({limit, caret, SizeWithoutPadding(text)}));
    if (text.size() <= limit) return Acceptable;
    return Refuse(QStringLiteral("No more than %1 characters fit here.").arg(limit));
  }

  int limit = 0;
  mutable QString reason;

 private:
  State Refuse(const QString& why) const {
    reason = why;
    return Invalid;
  }
};

PickList::PickList(QWidget* parent) : QComboBox(parent) {
  setMaxVisibleItems(kPopupLines);
  setSizeAdjustPolicy(QComboBox::AdjustToContents);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setFocusPolicy(Qt::StrongFocus);
}

void PickList::ShowDetails() {
  setItemDelegate(new DetailDelegate(this));
}

void PickList::showPopup() {
  view()->setMinimumWidth(view()->sizeHintForColumn(0) + style()->pixelMetric(QStyle::PM_ScrollBarExtent));
  QComboBox::showPopup();
}

void PickList::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

ListBox::ListBox(QWidget* parent) : QListWidget(parent) {
  setItemDelegate(new MarkDelegate(this));
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    if (picked) picked(row(item));
  });
}

void ListBox::SetMarked(int row) {
  marked_ = row;
  setCurrentRow(row);
  viewport()->update();
}

void ListBox::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (picked && currentRow() >= 0) picked(currentRow());
      return;
    case Qt::Key_Escape:
      setCurrentRow(marked_);
      return;
    default:
      QListWidget::keyPressEvent(event);
  }
}

void ListBox::focusOutEvent(QFocusEvent* event) {
  QListWidget::focusOutEvent(event);
  if (LosesFocusToWidget(*event)) setCurrentRow(marked_);
}

OptionButton::OptionButton(QWidget* parent) : QRadioButton(parent) {
  setAutoExclusive(false);
}

void OptionButton::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
      if (step) step(-1);
      return;
    case Qt::Key_Down:
    case Qt::Key_Right:
      if (step) step(1);
      return;
    default:
      QRadioButton::keyPressEvent(event);
  }
}

TextLine::TextLine(QWidget* parent) : QLineEdit(parent), validator_(new TextValidator(this)) {
  setValidator(validator_);
  setTextMargins(kTextIndent, 0, kTextIndent, 0);
  connect(this, &QLineEdit::inputRejected, this, [this] {
    if (refused) refused(validator_->reason);
  });
}

void TextLine::SetLimit(int characters) {
  validator_->limit = characters;
}

void TextLine::keyPressEvent(QKeyEvent* event) {
  QLineEdit::keyPressEvent(event);
  MoveCaretOutOfPadding(text().size());
}

void TextLine::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  MoveCaretOutOfPadding(0);
}

// A full text has no room behind its padding. A caret behind or within the padding goes to the end of the
// text that the user sees.
void TextLine::MoveCaretOutOfPadding(qsizetype from) {
  const bool full = text().size() == validator_->limit;
  if (!full || hasSelectedText() || cursorPosition() < from) return;
  setCursorPosition(std::min(cursorPosition(), static_cast<int>(SizeWithoutPadding(text()))));
}

}  // namespace ovl::ui
