#include "ui/kit/bindings.h"

#include <QAbstractButton>
#include <QAction>
#include <QEvent>
#include <QFocusEvent>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>
#include <algorithm>
#include <memory>
#include <stdexcept>

#include "host/text_codec.h"
#include "ui/access/spoken_controls.h"
#include "ui/kit/mnemonics.h"
#include "ui/kit/widgets.h"
#include "ui/tips/tool_tips.h"

namespace ovl::ui {
namespace {

// Passes on the events of a widget that has no signal for them.
class EventListener : public QObject {
 public:
  EventListener(QWidget& widget, std::function<void(const QEvent&)> seen)
      : QObject(&widget), seen_(std::move(seen)) {
    widget.installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    seen_(*event);
    return false;
  }

 private:
  std::function<void(const QEvent&)> seen_;
};

bool LosesFocusForGood(const QEvent& event) {
  if (event.type() != QEvent::FocusOut) return false;
  const auto& focus = static_cast<const QFocusEvent&>(event);
  return LosesFocusToWidget(focus) && focus.reason() != Qt::MenuBarFocusReason;
}

}  // namespace

Bindings::Bindings(core::Application& app, ActFunction act, HintFunction hint)
    : app_(app), act_(std::move(act)), hint_(std::move(hint)) {
  UseSpokenControls();
}

const controls::NamedControl& Bindings::Named(const controls::Form& form, std::string_view name) const {
  const auto* found = app_.registry.Find(form, name);
  if (found == nullptr) throw std::logic_error("no control " + form.name + "." + std::string(name));
  return *found;
}

// Makes the widget that fits the kind of a control.
struct Bindings::Maker {
  Bindings& bindings;

  QWidget* operator()(controls::List* list) const { return bindings.MakePickList(*list); }
  QWidget* operator()(const controls::OptionElement& element) const { return bindings.MakeOption(element); }
  QWidget* operator()(controls::TextBox* box) const {
    return box->multi_line ? bindings.MakeTextEdit(*box) : bindings.MakeTextLine(*box);
  }
  QWidget* operator()(controls::Label* label) const { return bindings.MakeLabel(*label); }
  QWidget* operator()(controls::Button* button) const { return bindings.MakeButton(*button); }
  QWidget* operator()(controls::CheckBox* box) const { return bindings.MakeCheckBox(*box); }
  QWidget* operator()(controls::ProgressBar* bar) const { return bindings.MakeProgressBar(*bar); }
  template <class Other>
  QWidget* operator()(const Other&) const {
    throw std::logic_error("this kind of control has no widget of its own");
  }
};

QWidget* Bindings::Make(const controls::NamedControl& control, const QString& label) {
  if (std::holds_alternative<controls::OptionArray*>(control.control)) return MakeOptions(control, 1, label);
  auto* widget = std::visit(Maker{*this}, control.control);
  SetUp(*widget, control, label);
  return widget;
}

void Bindings::SetUp(QWidget& widget, const controls::NamedControl& control, const QString& label) {
  const auto& state = controls::StateOf(control.control);
  const auto* by_name = app_.registry.Find(control.name);
  const bool shared = by_name == nullptr || by_name->form != control.form;
  const auto name = host::FromWindows1252(control.name);
  widget.setObjectName(shared ? host::FromWindows1252(control.form->name) + QLatin1Char('.') + name : name);
  widget.setAccessibleName(label.isEmpty() ? FormText(state.caption) : label);
  const auto tip = ToolTipOf(control.form->name, control.name);
  widget.setToolTip(tip);
  widget.setAccessibleDescription(tip);
  widgets_[&state] = &widget;
  WatchFocus(widget, control.control);
}

void Bindings::BindState(QWidget& widget, const controls::ControlState& state,
                         const controls::ControlState* group) {
  OnRefresh(
      [&widget, &state, group, visible = ChangeDetector<bool>(), enabled = ChangeDetector<bool>()]() mutable {
        const bool can = state.enabled && (group == nullptr || group->enabled);
        const bool shows = state.visible && (group == nullptr || group->visible);
        if (enabled.Update(can)) widget.setEnabled(can);
        if (!visible.Update(shows)) return false;
        widget.setVisible(shows);
        return true;
      });
}

void Bindings::BindCaption(QAbstractButton& button, const controls::ControlState& state) {
  OnRefresh([&button, &state, caption = ChangeDetector<std::string>()]() mutable {
    if (!caption.Update(state.caption)) return false;
    button.setText(CaptionText(state.caption).trimmed());
    button.setAccessibleName(FormText(state.caption));
    return true;
  });
}

void Bindings::WatchFocus(QWidget& widget, const controls::ControlRef& control) {
  new EventListener(widget, [this, control](const QEvent& event) {
    if (LosesFocusForGood(event) && controls::StateOf(control).leave != nullptr)
      act_(core::LeaveEvent{control});
  });
}

void Bindings::WatchPointer(QWidget& widget, const controls::ControlRef& control,
                            const controls::ControlRef& around) {
  new EventListener(widget, [this, control, around](const QEvent& event) {
    const auto& over = event.type() == QEvent::Enter && controls::StateOf(control).enabled ? control : around;
    const bool moved = event.type() == QEvent::Enter || event.type() == QEvent::Leave;
    if (moved && controls::StateOf(over).point != nullptr) act_(core::PointEvent{over});
  });
}

bool Bindings::Refresh() {
  bool reshaped = false;
  for (std::size_t at = 0; at < refreshes_.size(); ++at) reshaped |= refreshes_[at]();
  return reshaped;
}

QWidget* Bindings::WidgetOf(const controls::ControlState& control) const {
  const auto found = widgets_.find(&control);
  return found == widgets_.end() ? nullptr : found->second;
}

QAction* Bindings::Item(QMenu& menu, controls::MenuItem& item) {
  auto* action = menu.addAction(CaptionText(item.caption));
  action->setObjectName(host::FromWindows1252(app_.registry.NameOf(&item)));
  auto checked = std::make_shared<ChangeDetector<bool>>();
  QObject::connect(action, &QAction::triggered, action, [this, &item, action, checked] {
    if (act_(core::ClickEvent{&item}) == core::Outcome::kEnded) return;
    checked->Forget();
    if (action->isCheckable()) action->setChecked(item.checked);
  });
  OnRefresh(
      [&item, action, checked, shown = ChangeDetector<bool>(), enabled = ChangeDetector<bool>()]() mutable {
        if (enabled.Update(item.enabled)) action->setEnabled(item.enabled);
        if (checked->Update(item.checked)) {
          action->setCheckable(action->isCheckable() || item.checked);
          action->setChecked(item.checked);
        }
        const bool show = item.visible && item.handler != nullptr;
        if (!shown.Update(show)) return false;
        action->setVisible(show);
        return true;
      });
  return action;
}

QMenu* Bindings::SubMenu(QWidget& bar_or_menu, controls::MenuItem& item) {
  auto* menu = new QMenu(CaptionText(item.caption), &bar_or_menu);
  menu->setObjectName(host::FromWindows1252(app_.registry.NameOf(&item)));
  if (auto* bar = qobject_cast<QMenuBar*>(&bar_or_menu)) {
    bar->addMenu(menu);
  } else if (auto* parent = qobject_cast<QMenu*>(&bar_or_menu)) {
    parent->addMenu(menu);
  }
  OnRefresh([&item, menu, shown = ChangeDetector<bool>()]() mutable {
    const auto actions = menu->actions();
    const bool filled = std::any_of(actions.begin(), actions.end(), [](const QAction* action) {
      return action->isVisible() && !action->isSeparator();
    });
    if (!shown.Update(item.visible && filled)) return false;
    menu->menuAction()->setVisible(item.visible && filled);
    return true;
  });
  return menu;
}

}  // namespace ovl::ui
