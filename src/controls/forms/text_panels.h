// The panels for exceptions, alarms and their texts, scroll matching, the title and the demonstration. The
// caption of a list is its label.
#pragma once

#include <array>
#include <map>

#include "controls/controls.h"

namespace ovl::controls {

class Registry;

// The members of the arrays of lists below, by what they set.
struct Excp {
  enum Member { kNumber, kDisplay, kOutput, kHistory, kScroll, kOperator, kCount };
};

struct Scroll {
  enum Member { kMatching, kTimeout, kCount };
};

struct Alm {
  enum Member {
    kNumber,
    kTrigger,
    kNormalState,
    kDuration,
    kFlagType,
    kFlagDuration,
    kVideoLoss,
    kType,
    kCount
  };
};

struct TriggerList {
  enum Member { kDisplay, kOutput, kDelay, kCount };
};

struct TextPanels {
  std::array<List, Excp::kCount> ComboExcp;
  TextBox TextException;
  std::array<Label, 2> TextRANGE;
  Button cmdSetExcpstr, cmdSetRange;
  std::array<List, Scroll::kCount> ComboScroll;

  std::array<List, Alm::kCount> ComboALM;
  Label lbAlmTrig;
  std::array<List, TriggerList::kCount> ComboTrigger;
  TextBox TextTrigger;
  Button cmdSetTrigger;

  TextBox Title_Text;
  Button cmdTitle;

  CheckBox DemoMode;
  List CharacterList, DemoType, DemoSpeed;

  TextPanels();
  void Register(Registry& registry, Form& form);
};

// One dialog for three kinds of text. The caption names the kind.
struct TextEntryForm {
  Form form;
  TextBox Text1;
  Button cmdSET, cmdClr;

  TextEntryForm();
  void Register(Registry& registry);
};

// The range test of an exception.
struct RangeForm {
  Form form;
  TextBox Range_Hi, SubRange_Hi, Range_Low, SubRange_Low;
  List ComboDec;
  Label lbDec;
  Button cmdSetRange, cmdClr;

  RangeForm();
  void Register(Registry& registry);
};

}  // namespace ovl::controls
