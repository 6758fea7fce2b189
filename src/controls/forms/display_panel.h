// The lists of the panels that register options also change: text display, clock and language, exception
// report.
#pragma once

#include <array>

#include "controls/controls.h"

namespace ovl::controls {

class Registry;

// The members of the arrays of lists below, by what they set.
struct Dip {
  enum Member {
    kScreenBlank,
    kLines,
    kFormat,
    kLineCompress,
    kLineJustified,
    kScrollDelay,
    kDisplayed,
    kSpaceCompress,
    kCharacters,
    kCount
  };
};

struct Td {
  enum Member { kClockDisplay, kTimeFormat, kDateFormat, kDaylight, kLocking, kTitler, kCount };
};

struct ExcepRe {
  enum Member { kOutput, kTimeStamp, kDuplicateLine, kCount };
};

struct DisplayPanel {
  std::array<List, Dip::kCount> ComboDIP;
  std::array<List, Td::kCount> ComboTD;
  List ComboLang;
  std::array<List, ExcepRe::kCount> ComboExcepRe;

  DisplayPanel();
  void Register(Registry& registry, Form& form);
};

}  // namespace ovl::controls
