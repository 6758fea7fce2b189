#include "ui/kit/widgets.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QStyledItemDelegate>
#include <QValidator>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "host/text_codec.h"
#include "ui/kit/theme.h"

namespace ovl::ui {
namespace {

constexpr int kPopupLines = 10;
constexpr Em kDetailGap(2);
constexpr Em kMarkWidth(0.25);
constexpr Em kEntryIndent(0.5);
constexpr Em kEntryHeight(1.67);
constexpr Em kTextIndent(0.17);

int DetailStart(const QAbstractItemModel& model, const QFontMetrics& metrics) {
  int widest = 0;
  for (int row = 0; row < model.rowCount(); ++row) {
    widest = std::max(widest, metrics.horizontalAdvance(model.index(row, 0).data().toString()));
  }
  return widest + kDetailGap;
}

// The entries of an open list are as high as the field.
class EntryDelegate : public QStyledItemDelegate {
 public:
  explicit EntryDelegate(PickList* field) : QStyledItemDelegate(field), field_(field) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const auto size = QStyledItemDelegate::sizeHint(option, index);
    return size.expandedTo({0, field_->height()});
  }

 private:
  PickList* field_;
};

// Draws the text of an entry, and its detail muted in a second column.
class DetailDelegate : public EntryDelegate {
 public:
  using EntryDelegate::EntryDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    auto size = EntryDelegate::sizeHint(option, index);
    const QFontMetrics metrics(option.font);
    size.setWidth(DetailStart(*index.model(), metrics) + kDetailGap +
                  metrics.horizontalAdvance(index.data(PickList::kDetailRole).toString()));
    return size;
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    EntryDelegate::paint(painter, option, index);
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
    const auto size = QStyledItemDelegate::sizeHint(option, index) + QSize(kEntryIndent, 0);
    return size.expandedTo({0, kEntryHeight});
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
      return Refuse(QCoreApplication::translate("TextLine", "You can type only characters of Windows-1252."));
    const auto is_digit = [](QChar sign) { return sign >= QLatin1Char('0') && sign <= QLatin1Char('9'); };
    if (digits_only && !std::all_of(text.begin(), text.end(), is_digit))
      return Refuse(QCoreApplication::translate("TextLine", "You can type only digits here."));
    if (limit == 0 || text.size() <= limit) return Acceptable;
    text.truncate(std::max<qsizetype>({limit, caret, SizeWithoutPadding(text)}));
    if (text.size() <= limit) return Acceptable;
    return Refuse((digits_only
                       ? QCoreApplication::translate("TextLine", "No more than %1 digits fit here.")
                       : QCoreApplication::translate("TextLine", "No more than %1 characters fit here."))
                      .arg(limit));
  }

  int limit = 0;
  bool digits_only = false;
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

// The open list is made here and not in the constructor, because most lists of a page are never opened.
void PickList::showPopup() {
  if (!std::exchange(has_delegate_, true)) {
    setItemDelegate(shows_details_ ? new DetailDelegate(this) : new EntryDelegate(this));
  }
  view()->setMinimumWidth(view()->sizeHintForColumn(0) + style()->pixelMetric(QStyle::PM_ScrollBarExtent));
  // A key also opens a list that was scrolled away. Its entries would then be outside of the window.
  if (visibleRegion().isEmpty()) ScrollTo(*this);
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
  connect(model(), &QAbstractItemModel::rowsInserted, this, [this] {
    if (!filter_.isEmpty()) ApplyFilter();
  });
}

void ListBox::SetFilter(const QString& words) {
  filter_ = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  ApplyFilter();
  MoveCursorToMark();
}

// A hidden entry is disabled too, so that a typed letter does not find it.
void ListBox::ApplyFilter() {
  for (int row = 0; row < count(); ++row) {
    const auto text = item(row)->text();
    const bool fits = std::all_of(filter_.begin(), filter_.end(), [&text](const QString& word) {
      return text.contains(word, Qt::CaseInsensitive);
    });
    setRowHidden(row, !fits);
    item(row)->setFlags(fits ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
  }
}

void ListBox::MoveCursorToMark() {
  setCurrentRow(IsShown(marked_) ? marked_ : -1);
}

int ListBox::ShownEntries() const {
  int shown = 0;
  for (int row = 0; row < count(); ++row) shown += isRowHidden(row) ? 0 : 1;
  return shown;
}

void ListBox::TakeFocus() {
  setFocus(Qt::TabFocusReason);
  if (filter_.isEmpty()) return;
  int first = 0;
  while (first < count() && isRowHidden(first)) ++first;
  if (first < count()) setCurrentRow(first);
}

void ListBox::SetMarked(int row) {
  marked_ = row;
  MoveCursorToMark();
  viewport()->update();
}

void ListBox::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (picked && IsShown(currentRow())) picked(currentRow());
      return;
    case Qt::Key_Escape:
      MoveCursorToMark();
      return;
    default:
      QListWidget::keyPressEvent(event);
  }
}

void ListBox::focusOutEvent(QFocusEvent* event) {
  QListWidget::focusOutEvent(event);
  if (LosesFocusToWidget(*event)) MoveCursorToMark();
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

void TextLine::AcceptOnlyDigits() {
  validator_->digits_only = true;
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

namespace {

class ScreenKeeper : public QObject {
 public:
  ScreenKeeper(QWidget& window, std::function<void()> room_changed)
      : QObject(&window), window_(window), room_changed_(std::move(room_changed)) {
    window.installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Resize) Keep();
    if (event->type() != QEvent::Show) return false;
    Keep();
    for (auto* screen : QGuiApplication::screens())
      connect(screen, &QScreen::availableGeometryChanged, this, &ScreenKeeper::OnRoomChanged,
              Qt::UniqueConnection);
    return false;
  }

 private:
  void OnRoomChanged() {
    if (!window_.isVisible()) return;
    if (room_changed_) room_changed_();
    Keep();
  }

  void Keep() {
    if (!window_.isVisible()) return;
    window_.resize(window_.size().boundedTo(RoomOnScreen(window_)));
    const auto room = window_.screen()->availableGeometry();
    const auto frame = window_.frameGeometry();
    const int left = std::max(std::min(frame.left(), room.right() + 1 - frame.width()), room.left());
    const int top = std::max(std::min(frame.top(), room.bottom() + 1 - frame.height()), room.top());
    if (QPoint(left, top) != frame.topLeft()) window_.move(left, top);
  }

  QWidget& window_;
  std::function<void()> room_changed_;
};

}  // namespace

QSize RoomOnScreen(const QWidget& window) {
  return window.screen()->availableSize() - (window.frameGeometry().size() - window.size());
}

void StayOnScreen(QWidget& window, std::function<void()> room_changed) {
  new ScreenKeeper(window, std::move(room_changed));
}

void MoveAside(QWidget& window, const QRect& shown) {
  const auto frame = window.frameGeometry();
  if (!frame.intersects(shown)) return;
  const auto room = window.screen()->availableGeometry();
  for (const auto place :
       {QPoint(frame.left(), shown.bottom() + 1), QPoint(frame.left(), shown.top() - frame.height()),
        QPoint(shown.right() + 1, frame.top()), QPoint(shown.left() - frame.width(), frame.top())}) {
    if (room.contains(QRect(place, frame.size()))) return window.move(place);
  }
}

void ScrollTo(QWidget& widget) {
  for (auto* around = widget.parentWidget(); around != nullptr; around = around->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(around)) area->ensureWidgetVisible(&widget);
  }
}

}  // namespace ovl::ui
