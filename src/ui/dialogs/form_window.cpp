#include "ui/dialogs/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
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
  StayOnScreen(*this);
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
  // The window may take the whole of a small screen; if it needs more, its content scrolls.
  const auto room = RoomOnScreen(*this);
  if (!scrolled_ && minimumSizeHint().boundedTo(room) != minimumSizeHint()) Scroll();
  resize(sizeHint().boundedTo(room));
  if (opens_beside_) PlaceBeside();
  AssignPageMnemonics(*this, {});
  show();
  raise();
  activateWindow();
  if (focusWidget() == nullptr) focusNextChild();
}

void FormWindow::Scroll() {
  scrolled_ = true;
  const auto size = sizeHint();
  auto* content = new QWidget;
  content->setLayout(layout());
  auto* around = new QVBoxLayout(this);
  around->setContentsMargins(0, 0, 0, 0);
  auto* area = Scrolled(content);
  const int bar = area->verticalScrollBar()->sizeHint().width();
  area->setMinimumWidth(std::min(size.width() + bar, RoomOnScreen(*this).width()));
  around->addWidget(area);
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
