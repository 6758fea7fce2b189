#include "check.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScreen>
#include <QSet>

#include "host/text_codec.h"
#include "ui/kit/widgets.h"
#include "ui/pages/transfer_progress.h"

namespace ovl::testing {
namespace {

QString Plain(QString text) {
  return text.remove(QLatin1Char('&')).trimmed();
}

std::string Unlike(const char* what, const QString& shown, const QString& expected) {
  if (shown == expected) return {};
  return std::string(what) + " \"" + shown.toStdString() + "\", the model has \"" + expected.toStdString() +
         "\"";
}

std::string Unlike(const char* what, int shown, int expected) {
  return Unlike(what, QString::number(shown), QString::number(expected));
}

// Compares a widget with its control. An answer is empty if they agree. A parameter of another type than that
// of the variant would leave the control to the last function, which compares nothing.
struct Compared {
  const QWidget& widget;

  std::string operator()(controls::List* list) const {
    const int items = static_cast<int>(list->items.size());
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
      if (box->count() != items) return Unlike("entries", box->count(), items);
      if (box->currentIndex() != list->position)
        return Unlike("position", box->currentIndex(), list->position);
      return list->position < 0 ? std::string()
                                : Unlike("entry", box->currentText(), host::FromWindows1252(list->Text()));
    }
    const auto* open = dynamic_cast<const ui::ListBox*>(&widget);
    if (open == nullptr) return "a list without a list";
    if (open->count() != items) return Unlike("entries", open->count(), items);
    return Unlike("mark", open->Marked(), list->position);
  }
  std::string operator()(const controls::OptionElement& element) const {
    const auto* button = qobject_cast<const QRadioButton*>(&widget);
    if (button == nullptr) return "an option without a button";
    return Unlike("choice", button->isChecked() ? 1 : 0, element.array->chosen == element.element ? 1 : 0);
  }
  std::string operator()(controls::TextBox* box) const {
    const auto expected = host::FromWindows1252(box->text);
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
      return Unlike("text", line->text(), expected);
    if (const auto* list = qobject_cast<const QComboBox*>(&widget))
      return Unlike("text", list->itemText(0), expected);
    const auto* lines = qobject_cast<const QPlainTextEdit*>(&widget);
    if (lines == nullptr) return "a text without a field";
    return Unlike("text", lines->toPlainText().remove(QLatin1Char('\r')).trimmed(),
                  QString(expected).remove(QLatin1Char('\r')).trimmed());
  }
  std::string operator()(controls::Label* label) const {
    const auto* text = qobject_cast<const QLabel*>(&widget);
    return text == nullptr
               ? std::string()
               : Unlike("label", Plain(text->text()), Plain(host::FromWindows1252(label->caption)));
  }
  std::string operator()(controls::Button* button) const { return Caption(*button); }
  std::string operator()(controls::CheckBox* box) const {
    const auto* check = qobject_cast<const QCheckBox*>(&widget);
    if (check == nullptr) return "a check box without a box";
    return Unlike("check", check->isChecked() ? 1 : 0, box->checked ? 1 : 0) + Caption(*box);
  }
  std::string operator()(controls::ProgressBar* bar) const {
    const auto* progress = qobject_cast<const QProgressBar*>(&widget);
    return progress == nullptr ? std::string()
                               : Unlike("progress", progress->value(), std::min(bar->value, bar->maximum));
  }
  template <class Other>
  std::string operator()(const Other&) const {
    return {};
  }

 private:
  std::string Caption(const controls::ControlState& state) const {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return button == nullptr
               ? std::string()
               : Unlike("caption", Plain(button->text()), Plain(host::FromWindows1252(state.caption)));
  }
};

std::string StateOf(const QWidget& widget, const controls::NamedControl& control, bool transfer_stopped) {
  const auto& state = controls::StateOf(control.control);
  const auto* element = std::get_if<controls::OptionElement>(&control.control);
  const bool enabled = state.enabled && (element == nullptr || element->array->enabled);
  const bool visible = state.visible && (element == nullptr || element->array->visible);
  if (widget.isVisible() && !visible) return "is on the screen, the model hides it";
  const bool hides_direction = transfer_stopped && control.name.starts_with("Label64(");
  if (visible && !hides_direction && widget.parentWidget() != nullptr && widget.parentWidget()->isVisible() &&
      widget.isHidden())
    return "is hidden, the model shows it";
  const bool is_picture_of_list =
      std::holds_alternative<controls::TextBox*>(control.control) && IsOne<QComboBox>(&widget);
  if (is_picture_of_list) return {};
  const auto* parent = widget.parentWidget();
  if (widget.isEnabledTo(parent) != enabled)
    return enabled ? "is disabled, the model enables it" : "is enabled, the model disables it";
  return {};
}

// The captions beside these controls are no part of the model.
bool UserChanges(const controls::ControlRef& control) {
  return std::holds_alternative<controls::List*>(control) ||
         std::holds_alternative<controls::Button*>(control) ||
         std::holds_alternative<controls::TextBox*>(control) ||
         std::holds_alternative<controls::CheckBox*>(control) ||
         std::holds_alternative<controls::OptionElement>(control);
}

QSet<QString> NamesOnScreen() {
  QSet<QString> names;
  for (const auto* widget : QApplication::allWidgets()) {
    if (widget->isVisible()) names.insert(widget->objectName());
  }
  return names;
}

std::string WrongControl(Screen& screen) {
  const auto names = NamesOnScreen();
  for (const auto& control : screen.App().registry.All()) {
    const auto* widget = screen.OnScreen().Controls().WidgetOf(controls::StateOf(control.control));
    if (widget == nullptr && UserChanges(control.control) &&
        names.contains(QString::fromStdString(control.name)))
      return control.name + ": does not follow the model";
    if (widget == nullptr) continue;
    auto wrong = StateOf(*widget, control, ui::TransferStopped(screen.App()));
    if (wrong.empty() && widget->isVisible()) wrong = std::visit(Compared{*widget}, control.control);
    if (!wrong.empty()) return control.form->name + "." + control.name + ": " + wrong;
  }
  return {};
}

std::string WrongWindow() {
  const auto room = QApplication::primaryScreen()->availableGeometry();
  for (const auto* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || !window->isWindow() || window->windowType() == Qt::ToolTip) continue;
    const auto frame = window->frameGeometry();
    const bool fits = frame.width() <= room.width() && frame.height() <= room.height();
    if (fits && !room.contains(frame))
      return "the window \"" + window->windowTitle().toStdString() + "\" is not on the screen";
  }
  return {};
}

std::string WrongFocus() {
  const auto* window = QApplication::activeWindow();
  const bool is_menu = window != nullptr && window->windowType() == Qt::Popup;
  if (window == nullptr || is_menu || QApplication::activePopupWidget() != nullptr) return {};
  const auto* focus = QApplication::focusWidget();
  if (focus == nullptr)
    return "nothing has the keyboard focus in \"" + window->windowTitle().toStdString() + "\"";
  if (!focus->isVisible() || !focus->isEnabled())
    return "the keyboard focus is on " + focus->objectName().toStdString() + ", which is hidden or disabled";
  return {};
}

}  // namespace

std::string WhatIsWrong(Screen& screen) {
  auto wrong = WrongControl(screen);
  if (wrong.empty()) wrong = WrongWindow();
  return wrong.empty() ? WrongFocus() : wrong;
}

}  // namespace ovl::testing
