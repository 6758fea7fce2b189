// Connects widgets to the controls of the model, one kind at a time. A widget shows the state of its control,
// and an act of the user becomes an event. The bindings never decide what an act leads to.
//
// Every binding remembers the last value it gave to its widget, so a refresh touches only the widgets whose
// control has changed. A widget has the system name of its control as objectName and its label as accessible
// name.
#pragma once

#include <QString>
#include <deque>
#include <functional>
#include <map>
#include <string_view>

#include "core/gate.h"
#include "ui/language/model_texts.h"

class QAbstractButton;
class QAction;
class QBoxLayout;
class QLabel;
class QMenu;
class QWidget;

namespace ovl::ui {

class PickList;
class ListBox;

using ActFunction = std::function<core::Outcome(const core::Event&)>;
using OwnActFunction =
    std::function<core::Outcome(const phrases::Words& name, const std::function<void()>& act)>;
using HintFunction = std::function<void(const QString&)>;

// Remembers the value that was last shown.
template <class Value>
class ChangeDetector {
 public:
  // True when the value differs from the last one.
  bool Update(const Value& value) {
    if (known_ && value_ == value) return false;
    value_ = value;
    known_ = true;
    return true;
  }
  void Forget() { known_ = false; }

 private:
  Value value_{};
  bool known_ = false;
};

class Bindings {
 public:
  // `hint` shows a message to the user for a few seconds. The application object must outlive the bindings.
  Bindings(core::Application& app, ActFunction act, HintFunction hint);
  Bindings(const Bindings&) = delete;
  Bindings& operator=(const Bindings&) = delete;

  core::Application& Model() const { return app_; }
  core::Outcome Act(const core::Event& event) const { return act_(event); }

  // Runs an act of our own inside the gate. It can be undone under its name.
  core::Outcome RunOwn(const phrases::Words& name, const std::function<void()>& act) const {
    return own_act_(name, act);
  }
  void SetOwnActs(OwnActFunction own_act) { own_act_ = std::move(own_act); }

  // Throws std::logic_error when the form has no control of this name.
  const controls::NamedControl& Named(const controls::Form& form, std::string_view name) const;

  // Makes the widget of a control; the caller puts it into a layout, which then owns it. The label becomes
  // the accessible name; without a label the caption is used. An option array becomes one column of buttons;
  // `MakeOptions` makes more columns.
  QWidget* Make(const controls::NamedControl& control, const QString& label = {});

  // Makes the buttons of an option array in the given number of columns, filled from top to bottom. Hidden
  // elements leave no gap.
  QWidget* MakeOptions(const controls::NamedControl& array, int columns, const QString& label = {});

  // Makes a disabled list that shows the text of a text box as its only entry.
  PickList* MakeReadOnlyList(const controls::NamedControl& text_box, const QString& label);

  // Makes a list that is always open.
  ListBox* MakeListBox(const controls::NamedControl& list, const QString& label);

  // Adds an item to a menu. An item without a handler and a menu without visible items are hidden.
  QAction* Item(QMenu& menu, controls::MenuItem& item);
  QMenu* SubMenu(QWidget& bar_or_menu, controls::MenuItem& item);

  // Reports when the pointer moves onto a widget and when it leaves. After it has left, it is over the
  // control `around`.
  void WatchPointer(QWidget& widget, const controls::ControlRef& control, const controls::ControlRef& around);

  // Adds a function that every refresh calls. It returns true when it has shown, hidden or renamed something.
  // A function that is added during a refresh already runs in this refresh.
  void OnRefresh(std::function<bool()> refresh) { refreshes_.push_back(std::move(refresh)); }

  // Updates all widgets from the model. True when something was shown, hidden or renamed.
  bool Refresh();

  // The line below a tab that says what else the last act there has stored. The next refresh shows it.
  void SetAlsoStored(const QString& words, int tab) {
    also_stored_ = words;
    also_stored_tab_ = tab;
  }
  QString AlsoStored(int tab) const { return tab == also_stored_tab_ ? also_stored_ : QString(); }

  // The widget that gets the focus for a control of the model; null when the control has no widget.
  QWidget* WidgetOf(const controls::ControlState& control) const;

 private:
  struct Maker;

  void SetUp(QWidget& widget, const controls::NamedControl& control, const QString& label);
  void BindState(QWidget& widget, const controls::ControlState& state,
                 const controls::ControlState* group = nullptr);
  void BindCaption(QAbstractButton& button, const controls::ControlState& state);
  void WatchFocus(QWidget& widget, const controls::ControlRef& control);

  QWidget* MakePickList(controls::List& list);
  QWidget* MakeOption(const controls::OptionElement& element);
  QWidget* MakeTextLine(controls::TextBox& box);
  QWidget* MakeTextEdit(controls::TextBox& box);
  QWidget* MakeLabel(controls::Label& label);
  QWidget* MakeButton(controls::Button& button);
  QWidget* MakeCheckBox(controls::CheckBox& box);
  QWidget* MakeProgressBar(controls::ProgressBar& bar);
  void StepOption(const controls::OptionElement& from, int step);

  core::Application& app_;
  ActFunction act_;
  OwnActFunction own_act_;
  HintFunction hint_;
  QString also_stored_;
  int also_stored_tab_ = 0;
  std::deque<std::function<bool()>> refreshes_;
  std::map<const controls::ControlState*, QWidget*> widgets_;
};

}  // namespace ovl::ui
