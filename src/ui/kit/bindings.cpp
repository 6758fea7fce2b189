#include "ui/kit/bindings.h"

#include <QAbstractButton>
#include <QAction>
#include <QEvent>
#include <QFocusEvent>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QWidget>
#include <stdexcept>

#include "host/text_codec.h"
#include "ui/kit/mnemonics.h"
#include "ui/tips/tool_tips.h"

namespace ovl {
namespace {

// Tells of events of a widget that has no signal for them.
class EventWatch : public QObject {
 public:
  EventWatch(QWidget& widget, std::function<void(const QEvent&)> seen)
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

bool LeavesForGood(const QEvent& event) {
  if (event.type() != QEvent::FocusOut) return false;
  const auto reason = static_cast<const QFocusEvent&>(event).reason();
  return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
         reason != Qt::MenuBarFocusReason;
}

}  // namespace

QString CaptionText(const std::string& caption) {
  return FromWindows1252(caption).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

Bindings::Bindings(Application& app, ActFunction act, HintFunction hint)
    : app_(app), act_(std::move(act)), hint_(std::move(hint)) {}

const NamedControl& Bindings::Named(const Form& form, std::string_view name) const {
  const auto* found = app_.registry.Find(form, name);
  if (found == nullptr) throw std::logic_error("no control " + form.name + "." + std::string(name));
  return *found;
}

// Chooses the widget for a kind of control.
struct Bindings::Maker {
  Bindings& bindings;

  QWidget* operator()(List* list) const { return bindings.MakeList(*list); }
  QWidget* operator()(const OptionElement& element) const { return bindings.MakeOption(element); }
  QWidget* operator()(TextBox* box) const {
    return box->multi_line ? bindings.MakeLines(*box) : bindings.MakeText(*box);
  }
  QWidget* operator()(Label* label) const { return bindings.MakeLabel(*label); }
  QWidget* operator()(Button* button) const { return bindings.MakeButton(*button); }
  QWidget* operator()(CheckBox* box) const { return bindings.MakeCheck(*box); }
  QWidget* operator()(ProgressBar* bar) const { return bindings.MakeBar(*bar); }
  template <class Other>
  QWidget* operator()(const Other&) const {
    throw std::logic_error("this kind of control has no widget of its own");
  }
};

QWidget* Bindings::Make(const NamedControl& control, const QString& label) {
  if (std::holds_alternative<OptionArray*>(control.control)) return Options(control, 1, label);
  auto* widget = std::visit(Maker{*this}, control.control);
  Introduce(*widget, control, label);
  return widget;
}

void Bindings::Introduce(QWidget& widget, const NamedControl& control, const QString& label) {
  const auto& face = FaceOf(control.control);
  const auto* by_name = app_.registry.Find(control.name);
  const bool shared = by_name == nullptr || by_name->form != control.form;
  const auto name = FromWindows1252(control.name);
  widget.setObjectName(shared ? FromWindows1252(control.form->name) + QLatin1Char('.') + name : name);
  widget.setAccessibleName(label.isEmpty() ? FromWindows1252(face.caption) : label);
  const auto tip = ToolTipOf(control.form->name, control.name);
  widget.setToolTip(tip);
  widget.setAccessibleDescription(tip);
  widgets_[&face] = &widget;
  WatchFocus(widget, control.control);
}

void Bindings::FollowFace(QWidget& widget, const Face& face, const Face* group) {
  Follow([&widget, &face, group, visible = Shadow<bool>(), enabled = Shadow<bool>()]() mutable {
    const bool can = face.enabled && (group == nullptr || group->enabled);
    const bool shows = face.visible && (group == nullptr || group->visible);
    if (enabled.Update(can)) widget.setEnabled(can);
    if (!visible.Update(shows)) return false;
    widget.setVisible(shows);
    return true;
  });
}

void Bindings::FollowCaption(QAbstractButton& button, const Face& face) {
  Follow([&button, &face, caption = Shadow<std::string>()]() mutable {
    if (!caption.Update(face.caption)) return false;
    button.setText(CaptionText(face.caption).trimmed());
    button.setAccessibleName(FromWindows1252(face.caption));
    return true;
  });
}

void Bindings::WatchFocus(QWidget& widget, const ControlRef& control) {
  new EventWatch(widget, [this, control](const QEvent& event) {
    if (LeavesForGood(event) && FaceOf(control).leave != nullptr) act_(LeaveEvent{control});
  });
}

void Bindings::WatchPointer(QWidget& widget, const ControlRef& control, const ControlRef& around) {
  new EventWatch(widget, [this, control, around](const QEvent& event) {
    const auto& over = event.type() == QEvent::Enter && FaceOf(control).enabled ? control : around;
    const bool moved = event.type() == QEvent::Enter || event.type() == QEvent::Leave;
    if (moved && FaceOf(over).point != nullptr) act_(PointEvent{over});
  });
}

bool Bindings::Refresh() {
  bool reshaped = false;
  for (std::size_t at = 0; at < refreshes_.size(); ++at) reshaped |= refreshes_[at]();
  return reshaped;
}

QWidget* Bindings::WidgetOf(const Face& control) const {
  const auto found = widgets_.find(&control);
  return found == widgets_.end() ? nullptr : found->second;
}

QAction* Bindings::Item(QMenu& menu, MenuItem& item) {
  auto* action = menu.addAction(CaptionText(item.caption));
  action->setObjectName(FromWindows1252(app_.registry.NameOf(&item)));
  auto checked = std::make_shared<Shadow<bool>>();
  QObject::connect(action, &QAction::triggered, action, [this, &item, action, checked] {
    if (act_(ClickEvent{&item}) == Outcome::kEnded) return;
    checked->Forget();
    if (action->isCheckable()) action->setChecked(item.checked);
  });
  Follow([&item, action, checked, shown = Shadow<bool>(), enabled = Shadow<bool>()]() mutable {
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

QMenu* Bindings::SubMenu(QWidget& bar_or_menu, MenuItem& item) {
  auto* menu = new QMenu(CaptionText(item.caption), &bar_or_menu);
  menu->setObjectName(FromWindows1252(app_.registry.NameOf(&item)));
  if (auto* bar = qobject_cast<QMenuBar*>(&bar_or_menu)) {
    bar->addMenu(menu);
  } else if (auto* parent = qobject_cast<QMenu*>(&bar_or_menu)) {
    parent->addMenu(menu);
  }
  Follow([&item, menu, shown = Shadow<bool>()]() mutable {
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

}  // namespace ovl
