#include "registers/options/micros.h"

#include <algorithm>
#include <array>

#include "core/actions.h"

namespace ovl::registers {
namespace {

using enum image::FieldId;
using core::Place;
using enum core::ValueDisplay;

constexpr std::size_t kEcrDigits = 7;
constexpr std::array kEcrFields = {ECRDIGIT_1, ECRDIGIT_2, ECRDIGIT_3, ECRDIGIT_4,
                                   ECRDIGIT_5, ECRDIGIT_6, ECRDIGIT_7};
constexpr std::array kIsnFields = {REGDV_TYPE_BAK, REG_GNA_BAK, REG_LNA_BAK, REG_IDNA_BAK,
                                   PCDV_TYPE_BAK,  PC_GNA_BAK,  PC_LNA_BAK,  PC_IDNA_BAK};

void Show(core::Application& app, controls::List& list, image::FieldId field) {
  AssignPosition(app, list, codecs::HexToInt(app.image[field]), core::Raise::kAlways);
}

// A list without a selection stores nothing.
void Store(core::Application& app, const controls::List& list, image::FieldId field) {
  if (list.position >= 0) app.image[field] = codecs::ByteToHex(list.position);
}

// The leading number of a text with leading zeros; a longer one keeps its digits.
std::string SevenDigits(std::string_view text) {
  text = text.substr(0, text.find_first_not_of("0123456789"));
  text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
  std::string digits(text);
  if (digits.size() < kEcrDigits) digits.insert(0, kEcrDigits - digits.size(), '0');
  return digits;
}

void ShowEcrNumber(core::Application& app) {
  std::string number;
  for (const auto field : kEcrFields)
    number += app.image[field].substr(std::min<std::size_t>(app.image[field].size(), 1), 1);
  AssignText(app, app.frmMicros.ECRNumber, number);
}

// The next opening must not show selections of an earlier one, or of a load while the window was closed.
void ForgetSelections(core::Application& app) {
  auto& form = app.frmMicros;
  for (auto* list : {&form.ComboMICROS, &form.ComboMICROSADD, &form.ComboMODE, &form.HandSHKCombo})
    list->position = -1;
  for (auto& list : form.ComboISN) list.position = -1;
}

void HidePanels(core::Application& app) {
  auto& form = app.frmMicros;
  for (auto* panel : {&form.frmIDN, &form.frmISN, &form.frm3700}) panel->visible = false;
}

// False for the mode that has no panel.
bool ArrangePanel(core::Application& app) {
  auto& form = app.frmMicros;
  if (!form.form.visible) ForgetSelections(app);
  HidePanels(app);
  switch (app.frmMain.OpMicros.chosen) {
    case 1:
      form.frmIDN.visible = true;
      Show(app, form.ComboMICROS, DEVICE_INDEX_BAK);
      Show(app, form.ComboMICROSADD, DV_ADDRIND_BAK);
      Show(app, form.ComboMODE, MICROS_STATUS);
      return true;
    case 2:
      form.frmISN.visible = true;
      for (std::size_t list = 0; list < kIsnFields.size(); ++list)
        Show(app, form.ComboISN[list], kIsnFields[list]);
      return true;
    case 3:
      form.frm3700.visible = true;
      Show(app, form.HandSHKCombo, REGTYPE_EXT2);
      ShowEcrNumber(app);
      return true;
    default:
      UnloadForm(app, form.form);
      return false;
  }
}

constexpr std::array kEditors = {
    core::Editor{DV_ADDRIND_BAK, Place::kMicros, "ComboMICROSADD"},
    core::Editor{DEVICE_INDEX_BAK, Place::kMicros, "ComboMICROS"},
    core::Editor{REGDV_TYPE_BAK, Place::kMicros, "ComboISN(0)"},
    core::Editor{REG_GNA_BAK, Place::kMicros, "ComboISN(1)"},
    core::Editor{REG_LNA_BAK, Place::kMicros, "ComboISN(2)"},
    core::Editor{REG_IDNA_BAK, Place::kMicros, "ComboISN(3)"},
    core::Editor{PCDV_TYPE_BAK, Place::kMicros, "ComboISN(4)"},
    core::Editor{PC_GNA_BAK, Place::kMicros, "ComboISN(5)"},
    core::Editor{PC_LNA_BAK, Place::kMicros, "ComboISN(6)"},
    core::Editor{PC_IDNA_BAK, Place::kMicros, "ComboISN(7)"},
    core::Editor{MICROS_STATUS, Place::kMicros, "ComboMODE", 0x01, kSetIsOn},
    core::Editor{REGTYPE_EXT2, Place::kMicros, "HandSHKCombo"},
    core::Editor{ECRDIGIT_7, Place::kMicros, "ECRNumber"},
    core::Editor{ECRDIGIT_6, Place::kMicros, "ECRNumber"},
    core::Editor{ECRDIGIT_5, Place::kMicros, "ECRNumber"},
    core::Editor{ECRDIGIT_4, Place::kMicros, "ECRNumber"},
    core::Editor{ECRDIGIT_3, Place::kMicros, "ECRNumber"},
    core::Editor{ECRDIGIT_2, Place::kMicros, "ECRNumber"},
    core::Editor{ECRDIGIT_1, Place::kMicros, "ECRNumber"},
};

}  // namespace

void ShowMicrosPanel(core::Application& app) {
  const int mode = app.frmMain.OpMicros.chosen;
  if (mode < 0) return;
  app.image[REGTYPE_MINOR] = codecs::ByteToHex(mode);
  if (mode == 2) app.image[MICROS_STATUS] = "00";
  if (ArrangePanel(app) && app.LinkMode != core::kLinkUpload) ShowForm(app, app.frmMicros.form);
}

void OpMicros_Click(core::Application& app, int) {
  ShowMicrosPanel(app);
}

void cmdMicros_Click(core::Application& app, int) {
  if (ArrangePanel(app)) ShowForm(app, app.frmMicros.form);
}

void cmdSetMicros_Click(core::Application& app, int) {
  const auto& form = app.frmMicros;
  Store(app, form.ComboMICROS, DEVICE_INDEX_BAK);
  Store(app, form.ComboMICROSADD, DV_ADDRIND_BAK);
  Store(app, form.ComboMODE, MICROS_STATUS);
  UnloadForm(app, app.frmMicros.form);
}

void cmdISNset_Click(core::Application& app, int) {
  for (std::size_t list = 0; list < kIsnFields.size(); ++list) {
    Store(app, app.frmMicros.ComboISN[list], kIsnFields[list]);
  }
  UnloadForm(app, app.frmMicros.form);
}

void CMD3700Set_Click(core::Application& app, int) {
  Store(app, app.frmMicros.HandSHKCombo, REGTYPE_EXT2);
  const auto number = SevenDigits(app.frmMicros.ECRNumber.text);
  for (std::size_t digit = kEcrFields.size(); digit-- > 0;) {
    app.image[kEcrFields[digit]] = std::string("0") + number[digit];
  }
  UnloadForm(app, app.frmMicros.form);
}

void ECRNumber_Leave(core::Application& app, int) {
  AssignText(app, app.frmMicros.ECRNumber, SevenDigits(app.frmMicros.ECRNumber.text));
}

void frmMicros_Unload(core::Application& app, int) {
  ForgetSelections(app);
}

std::span<const core::Editor> MicrosEditors() {
  return kEditors;
}

}  // namespace ovl::registers
