// The additional windows of a few registers: the MICROS network and the sub-menu of a model.
#pragma once

#include <array>

#include "controls/controls.h"

namespace ovl::controls {

class Registry;

struct MicrosForm {
  Form form;
  Frame frmIDN, frmISN, frm3700;
  List ComboMICROS, ComboMICROSADD, ComboMODE;
  std::array<List, 8> ComboISN;
  List HandSHKCombo;
  TextBox ECRNumber;
  Label ecr_hint;
  Button cmdSetMicros, cmdISNset, CMD3700Set;

  MicrosForm();
  void Register(Registry& registry);
};

struct SubMenuForm {
  Form form;
  Frame Frame1, Frame2, SharpSubMenuFrame, UP3000Frm;
  OptionArray F1OP, Option1;
  std::array<Label, 2> Label1;
  std::array<List, 2> Combo1;  // the model and its mode
  Label Label2;
  List Combo2;

  SubMenuForm();
  void Register(Registry& registry);
};

}  // namespace ovl::controls
