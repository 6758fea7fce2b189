// What the main window asks of the program beside the events of the controls.
#pragma once

#include <functional>

#include "acts/act_history.h"
#include "acts/advice.h"

namespace ovl::ui {

struct OwnActs {
  // Both live as long as the window.
  acts::ActHistory* history = nullptr;
  acts::Advisor* advisor = nullptr;

  // These update the screen.
  std::function<void()> undo, redo;
  std::function<void(const acts::Advice&)> follow;  // carries out the action of a line
};

}  // namespace ovl::ui
