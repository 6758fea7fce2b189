// The only way into the model. It takes one event at a time. While a handler runs, also while its message box
// or file dialog is open, every other event is refused: received bytes wait in the platform, ticks are lost.
#pragma once

#include <functional>

#include "core/application.h"
#include "core/event.h"

namespace ovl::core {

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
