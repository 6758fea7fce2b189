// The lists of the panels that register options also change: text display, clock and language, exception
// report.
#pragma once

#include <array>

#include "controls/controls.h"

namespace ovl::controls {

class Registry;

struct DisplayPanel {
  std::array<List, 9> ComboDIP;
  std::array<List, 6> ComboTD;
  List ComboLang;
  std::array<List, 3> ComboExcepRe;

  DisplayPanel();
  void Register(Registry& registry, Form& form);
};

}  // namespace ovl::controls
