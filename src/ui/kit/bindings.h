// Ties widgets to the controls of the model, one kind at a time: a widget shows the control's state, and a
// person's act on it becomes an event. What an act leads to is never decided here.
//
// Every binding remembers what its widget was last given, so that a refresh in which nothing changed touches
// no widget. Widgets bear the control's system name as objectName and their label as accessible name.
#pragma once

#include <QString>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

#include "core/gate.h"

class QAbstractButton;
class QAction;
class QBoxLayout;
class QLabel;
class QMenu;
class QWidget;

namespace ovl::ui {

class PickList;
class TallList;

using ActFunction = std::function<core::Outcome(const core::Event&)>;
using HintFunction = std::function<void(const QString&)>;

// Remembers what was last shown.
template <class Value>
class ChangeDetector {
 public:
  // True when the value is another one than last time.
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
  // `hint` shows a passing word to the person who types. The application object must outlive the bindings.
  Bindings(core::Application& app, ActFunction act, HintFunction hint);
  Bindings(const Bindings&) = delete;
  Bindings& operator=(const Bindings&) = delete;

  core::Application& Model() const { return app_; }
  core::Outcome Act(const core::Event& event) const { return act_(event); }

  // Throws std::logic_error for a name that the form lacks.
  const controls::NamedControl& Named(const controls::Form& form, std::string_view name) const;

  // The widget of a control; whoever places it owns it. The label is what a person calls it; where it is
  // empty the caption serves. Option arrays come as a column of buttons; `Options` arranges them otherwise.
  QWidget* Make(const controls::NamedControl& control, const QString& label = {});

  // An option array in so many columns, filled downwards; hidden elements leave no hole.
  QWidget* Options(const controls::NamedControl& array, int columns, const QString& label = {});

  // A fixed text in the look of a list that cannot be picked from.
  PickList* Fixed(const controls::NamedControl& text_box, const QString& label);

  // A list that is always open.
  TallList* Tall(const controls::NamedControl& list, const QString& label);

  // An item without a handler and without items below it is not shown.
  QAction* Item(QMenu& menu, controls::MenuItem& item);
  QMenu* SubMenu(QWidget& bar_or_menu, controls::MenuItem& item);

  // Reports the pointer over a widget; when it leaves, it is over what stands around.
  void WatchPointer(QWidget& widget, const controls::ControlRef& control, const controls::ControlRef& around);

  // Runs at every refresh; true when something was shown, hidden or renamed. What is added during a refresh
  // runs in it as well.
  void Follow(std::function<bool()> refresh) { refreshes_.push_back(std::move(refresh)); }

  // Brings all widgets up to the model. True when something was shown, hidden or renamed.
  bool Refresh();

  // One line for the page in front, shown from the next refresh on.
  void SetQuietLine(const QString& words) { quiet_line_ = words; }
  const QString& QuietLine() const { return quiet_line_; }

  // The widget that takes the focus for a control of the model; none for one that is not on the screen.
  QWidget* WidgetOf(const controls::ControlState& control) const;

 private:
  struct Maker;

  void Introduce(QWidget& widget, const controls::NamedControl& control, const QString& label);
  void FollowFace(QWidget& widget, const controls::ControlState& face,
                  const controls::ControlState* group = nullptr);
  void FollowCaption(QAbstractButton& button, const controls::ControlState& face);
  void WatchFocus(QWidget& widget, const controls::ControlRef& control);

  QWidget* MakeList(controls::List& list);
  QWidget* MakeOption(const controls::OptionElement& element);
  QWidget* MakeText(controls::TextBox& box);
  QWidget* MakeLines(controls::TextBox& box);
  QWidget* MakeLabel(controls::Label& label);
  QWidget* MakeButton(controls::Button& button);
  QWidget* MakeCheck(controls::CheckBox& box);
  QWidget* MakeBar(controls::ProgressBar& bar);
  void StepOption(const controls::OptionElement& from, int step);

  core::Application& app_;
  ActFunction act_;
  HintFunction hint_;
  QString quiet_line_;
  std::deque<std::function<bool()>> refreshes_;
  std::map<const controls::ControlState*, QWidget*> widgets_;
};

// Text of the model on the screen, with "&" as a plain letter.
QString CaptionText(const std::string& caption);

}  // namespace ovl::ui
