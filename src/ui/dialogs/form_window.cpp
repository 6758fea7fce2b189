#include "ui/dialogs/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "host/text_codec.h"
#include "ui/kit/layout.h"
#include "ui/kit/mnemonics.h"
#include "ui/kit/theme.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

constexpr Em kGapToParent(0.67);
constexpr Em kFromTop(8);

// The title of a text that is looked at is the name of its file.
QString TitleOf(const core::Application& app, const controls::Form& form) {
  return &form == &app.frmView.form ? host::FromSystem(form.caption) : FormText(form.caption);
}

}  // namespace

FormWindow::FormWindow(Bindings& bindings, controls::Form& form, QWidget* parent)
    : QDialog(parent), bindings_(bindings), form_(form) {
  setObjectName(host::FromWindows1252(form.name));
  setModal(false);
  StayOnScreen(*this, [this] { ScrollIfTooLarge(); });
  bindings_.OnRefresh([this, caption = ChangeDetector<std::string>()]() mutable {
    if (caption.Update(form_.caption)) setWindowTitle(TitleOf(bindings_.Model(), form_));
    if (enabled_.Update(form_.enabled)) setEnabled(form_.enabled);
    return false;
  });
}

bool FormWindow::ShowAsModelSays() {
  if (OnScreen() == isVisible()) {
    // The frame of the widget with the focus may be hidden now.
    if (isVisible() && focusWidget() != nullptr && !focusWidget()->isVisible()) focusNextChild();
    return false;
  }
  if (OnScreen()) {
    Open();
  } else {
    hide();
  }
  return true;
}

void FormWindow::Open() {
  setWindowFlag(Qt::WindowStaysOnTopHint, form_.top_most);
  for (auto* button : findChildren<QPushButton*>()) button->installEventFilter(this);
  // Without this the layout would have the sizes from before a panel was shown or hidden.
  for (auto* part : findChildren<QWidget*>()) part->updateGeometry();
  ScrollIfTooLarge();
  resize(sizeHint().boundedTo(RoomOnScreen(*this)));
  if (opens_beside_) PlaceBeside();
  AssignPageMnemonics(*this, {});
  show();
  raise();
  activateWindow();
  if (focusWidget() == nullptr) focusNextChild();
}

// The window may take the whole of a small screen. If it needs more, its content scrolls.
void FormWindow::ScrollIfTooLarge() {
  if (scrolled_ != nullptr) return;
  const bool is_fixed = layout()->sizeConstraint() == QLayout::SetFixedSize;
  const auto least = is_fixed ? sizeHint() : minimumSizeHint();
  const auto room = RoomOnScreen(*this);
  if (least.boundedTo(room) == least) return;
  auto* focus = focusWidget();
  // For the model the control must not lose the focus.
  if (focus != nullptr) setFocus(Qt::PopupFocusReason);
  Scroll(is_fixed);
  resize(sizeHint().boundedTo(room));
  if (focus == nullptr) return;
  focus->setFocus(Qt::PopupFocusReason);
  layout()->activate();
  ScrollTo(*focus);
}

// A panel that is shown later can make the window larger. The layout cannot move during this event, so the
// check waits.
void FormWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  QMetaObject::invokeMethod(this, &FormWindow::ScrollIfTooLarge, Qt::QueuedConnection);
}

void FormWindow::Scroll(bool was_fixed) {
  scrolled_ = new QWidget;
  scrolled_->setLayout(layout());
  if (was_fixed) {
    scrolled_->layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  }
  auto* around = new QVBoxLayout(this);
  around->setContentsMargins(0, 0, 0, 0);
  auto* area = Scrolled(scrolled_);
  around->addWidget(area);
  // A layout shows a new widget later, and a hidden one cannot get the focus.
  area->show();
}

QSize FormWindow::sizeHint() const {
  if (scrolled_ == nullptr) return QDialog::sizeHint();
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return scrolled_->sizeHint() + QSize(bar, bar);
}

void FormWindow::PlaceBeside() {
  const auto parent = parentWidget()->window()->frameGeometry();
  const auto room = parentWidget()->screen()->availableGeometry();
  const int right = std::min(parent.right() + kGapToParent, room.right() - width());
  const int low = std::min(parent.top() + kFromTop, room.bottom() - height());
  move(std::max(right, room.left()), std::max(low, room.top()));
}

void FormWindow::reject() {
  bindings_.Act(core::CloseEvent{&form_});
}

bool FormWindow::TakesEnter(const QKeyEvent& event) const {
  return form_.enter != nullptr && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter);
}

// Otherwise the button with the focus would handle the key.
bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  auto* key = static_cast<QKeyEvent*>(event);
  if (!TakesEnter(*key)) return QDialog::eventFilter(watched, event);
  keyPressEvent(key);
  return true;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (TakesEnter(*event)) {
    bindings_.Act(core::KeyEvent{&form_, core::Key::kEnter});
  } else if (event->key() == Qt::Key_Escape && form_.escape != nullptr) {
    bindings_.Act(core::KeyEvent{&form_, core::Key::kEscape});
  } else {
    QDialog::keyPressEvent(event);
  }
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  bindings_.Act(core::CloseEvent{&form_});
}

void FocusMover::MoveFocusAsAsked(const Bindings& bindings, const controls::Form& form) {
  if (seen_ == form.focus_requests) return;
  seen_ = form.focus_requests;
  auto* widget = form.focus == nullptr ? nullptr : bindings.WidgetOf(*form.focus);
  if (widget != nullptr) widget->setFocus(Qt::OtherFocusReason);
}

}  // namespace ovl::ui
