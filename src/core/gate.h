// The only way into the model. It takes one event at a time. While a handler runs, also while its message box
// or file dialog is open, every other event is refused: received bytes wait in the platform, ticks are lost.
#pragma once

#include <functional>
#include <string>
#include <variant>

#include "core/application.h"

namespace ovl::core {

// What the installer does.
struct PickEvent {
  controls::ControlRef control;  // a list, or an option array
  int position = 0;
};
struct ClickEvent {
  controls::ControlRef
      control;  // a button, a menu item, an element of an option array, a check box (turned over)
};
struct TypeEvent {
  controls::TextBox* box = nullptr;
  std::string text;  // what the box then holds
};
struct LeaveEvent {
  controls::ControlRef control;
};
struct PointEvent {
  controls::ControlRef control;
};
enum class Key { kEnter, kEscape };
struct KeyEvent {
  controls::Form* form = nullptr;
  Key key = Key::kEnter;
};
struct CloseEvent {
  controls::Form* form = nullptr;
};

// What the timers and the serial line do.
struct TickEvent {
  controls::Timer* timer = nullptr;
};
struct ReceivedEvent {};
struct DrainedEvent {};

using Event = std::variant<PickEvent, ClickEvent, TypeEvent, LeaveEvent, PointEvent, KeyEvent, CloseEvent,
                           TickEvent, ReceivedEvent, DrainedEvent>;

enum class Outcome {
  kDone,
  kRefused,  // the control is hidden or disabled, or its window is: a person could not have done it
  kBusy,     // a handler is running; nothing was done
  kEnded,    // the program has ended, before this event or by it
};

Outcome Dispatch(Application& app, const Event& event);

// Runs something else that changes the model under the same rules: the start of the program, an act that is
// not an event of a control.
Outcome DispatchStart(Application& app, void (*start)(Application&));
Outcome DispatchAct(Application& app, const std::function<void()>& act);

}  // namespace ovl::core
