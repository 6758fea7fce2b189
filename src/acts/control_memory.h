// The state of the controls that undo and redo put back.
#pragma once

#include <string>
#include <vector>

#include "core/application.h"

namespace ovl::acts {

// The part of a control's state that a handler can change. Members that a kind of control does not have keep
// their defaults.
struct ControlMemory {
  std::string caption;
  bool visible = true;
  bool enabled = true;
  int chosen = -1;                 // the position of a list, the element of an option array
  std::vector<std::string> items;  // of a list
  std::string text;                // of a text box
  std::size_t max_length = 0;
  bool is_on = false;  // a check box that is checked, a form that is loaded
};

// The controls of the settings: all panels, the register options and their two windows. Not among them are
// the controls of port, link, clock and history, the menus, and the windows that hold the main form.
std::vector<controls::ControlRef> SettingsControls(const core::Application& app);

// Whether the control is in the remembered state. It copies nothing.
bool IsAsRemembered(const controls::ControlRef& control, const ControlMemory& memory);

ControlMemory Remember(const controls::ControlRef& control);

// Sets the state. No handler runs.
void PutBack(const controls::ControlRef& control, const ControlMemory& memory);

}  // namespace ovl::acts
