// The panels "Register Settings" and "Network Settings": the serial line between unit and register, and the
// network of several units. The caption of a list is its label.
#pragma once

#include <array>

#include "controls/controls.h"

namespace ovl::controls {

class Registry;

struct CommunicationPanel {
  std::array<List, 13> ComboCOMM;
  std::array<TextBox, 3> ComboNone;  // fixed texts in place of a list that has no meaning at present

  CommunicationPanel();
  void Register(Registry& registry, Form& form);
};

}  // namespace ovl::controls
