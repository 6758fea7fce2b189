#include "controls/forms/register_forms.h"

#include "controls/design.h"
#include "controls/registry.h"

namespace ovl::controls {

MicrosForm::MicrosForm() {
  form.name = "frmMicros";
  form.caption = "MICROS";
  frmIDN.caption = "MICROS IDN NETWORK";
  frmISN.caption = "MICROS ISN NETWORK";
  frm3700.caption = "MICROSS 3700 V4.X";
  for (auto* panel : {&frmIDN, &frmISN, &frm3700}) panel->visible = false;

  ComboMICROS.caption = "DEVICE:";
  ComboMICROS.items = {"PRINTER", "VIDEO"};
  ComboMICROSADD.caption = "DEVICE ADDRESS:";
  ComboMICROSADD.items = HeadAndNumbers("ANY", 0, 15, 2);
  ComboMODE.caption = "MODE:";
  ComboMODE.items = {"TAP", "EMULATE"};

  SetCaptions(ComboISN, {"SOURCE TYPE:", "SRC ISN GNA:", "SRC ISN LNA:", "SRC IDN ID:", "DESTIN TYPE:",
                         "DST ISN GNA:", "DST ISN LNA:", "DST IDN ID:"});
  constexpr std::array<int, 8> kEntries = {11, 34, 34, 17, 11, 34, 34, 17};
  for (std::size_t list = 0; list < ComboISN.size(); ++list) {
    ComboISN[list].items = HeadAndNumbers("ANY", 0, kEntries[list] - 2, 2);
  }

  HandSHKCombo.caption = "HANDSHAKING";
  HandSHKCombo.items = {"OFF", "ON"};
  ECRNumber.caption = "ECR NUMBER";
  ecr_hint.caption = "( 0-9999999 )";
  for (auto* button : {&cmdSetMicros, &cmdISNset, &CMD3700Set}) button->caption = "SET";
}

void MicrosForm::Register(Registry& registry) {
  registry.AddForm(form);
  const auto add = [&](const char* name, auto& control) { registry.Add(form, name, control); };
  add("frmIDN", frmIDN), add("frmISN", frmISN), add("frm3700", frm3700);
  add("ComboMICROS", ComboMICROS), add("ComboMICROSADD", ComboMICROSADD), add("ComboMODE", ComboMODE);
  registry.AddArray(form, "ComboISN", ComboISN);
  add("HandSHKCombo", HandSHKCombo), add("ECRNumber", ECRNumber);
  add("cmdSetMicros", cmdSetMicros), add("cmdISNset", cmdISNset), add("CMD3700Set", CMD3700Set);
}

SubMenuForm::SubMenuForm() {
  form.name = "FrmSubMenu";
  SetElements(F1OP, {"RS-232 PORT", "TPIF PRINTER ADAPTER"});
  SetElements(Option1, {"TAP", "EMULATE", "TAP US", "EMULATE US"});
  SetCaptions(Label1, {"Model :", "Mode :"});
  Combo1[1].items = {"TAPPING", "EMULATING"};
  Label2.caption = "TERMINAL";
  Combo2.caption = "TERMINAL";
  Combo2.items = HeadAndNumbers("ANY", 1, 16);
  for (auto* frame : {&Frame1, &Frame2, &SharpSubMenuFrame, &UP3000Frm}) frame->visible = false;
}

void SubMenuForm::Register(Registry& registry) {
  registry.AddForm(form);
  const auto add = [&](const char* name, auto& control) { registry.Add(form, name, control); };
  add("Frame1", Frame1), add("Frame2", Frame2);
  add("SharpSubMenuFrame", SharpSubMenuFrame), add("UP3000Frm", UP3000Frm);
  registry.AddOptions(form, "F1OP", F1OP);
  registry.AddOptions(form, "Option1", Option1);
  registry.AddArray(form, "Label1", Label1);
  registry.AddArray(form, "Combo1", Combo1);
  add("Label2", Label2), add("Combo2", Combo2);
}

}  // namespace ovl::controls
