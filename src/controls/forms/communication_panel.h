// The panels "Register Settings" and "Network Settings": how the unit's line to the register is wired and
// framed, and how units are chained. A list's caption is its label.
#pragma once

#include <array>

#include "controls/controls.h"

namespace ovl::controls {

class Registry;

struct CommunicationPanel {
  std::array<List, 13> ComboCOMM;
  std::array<TextBox, 3> ComboNone;  // fixed texts that cover a list while it has no meaning

  CommunicationPanel();
  void Register(Registry& registry, Form& form);
};

}  // namespace ovl::controls
