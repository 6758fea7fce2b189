#include "changes/option_controls.h"

#include <algorithm>
#include <array>

namespace ovl::changes {
namespace {

using enum image::FieldId;
using registers::kFields;
using registers::OptionRow;
using Frame = controls::OptionFrame;
using Fields = std::span<const image::FieldId>;

constexpr std::string_view kIdn = "frmMicros.frmIDN";
constexpr std::string_view kIsn = "frmMicros.frmISN";
constexpr std::string_view k3700 = "frmMicros.frm3700";

constexpr OptionRow Within(std::string_view inner, OptionRow row) {
  row.inner = inner;
  return row;
}

constexpr OptionRow Micros(std::string_view panel, std::string_view name, Fields fields) {
  return Within(panel, {Frame::kMicros, {}, name, {}, fields});
}

constexpr OptionRow SubMenu(std::string_view panel, std::string_view name, std::string_view label,
                            Fields fields) {
  return Within(panel, {Frame::kNone, label, name, {}, fields});
}

// The windows that a button of an option frame opens.
constexpr std::array kInWindows = {
    Micros(kIdn, "ComboMICROS", kFields<DEVICE_INDEX_BAK>),
    Micros(kIdn, "ComboMICROSADD", kFields<DV_ADDRIND_BAK>),
    Micros(kIdn, "ComboMODE", kFields<MICROS_STATUS>),
    Micros(kIsn, "ComboISN(0)", kFields<REGDV_TYPE_BAK>),
    Micros(kIsn, "ComboISN(1)", kFields<REG_GNA_BAK>),
    Micros(kIsn, "ComboISN(2)", kFields<REG_LNA_BAK>),
    Micros(kIsn, "ComboISN(3)", kFields<REG_IDNA_BAK>),
    Micros(kIsn, "ComboISN(4)", kFields<PCDV_TYPE_BAK>),
    Micros(kIsn, "ComboISN(5)", kFields<PC_GNA_BAK>),
    Micros(kIsn, "ComboISN(6)", kFields<PC_LNA_BAK>),
    Micros(kIsn, "ComboISN(7)", kFields<PC_IDNA_BAK>),
    Micros(k3700, "HandSHKCombo", kFields<REGTYPE_EXT2>),
    Micros(k3700, "ECRNumber", kFields<ECRDIGIT_7>),
    Micros(k3700, "ECRNumber", kFields<ECRDIGIT_6>),
    Micros(k3700, "ECRNumber", kFields<ECRDIGIT_5>),
    Micros(k3700, "ECRNumber", kFields<ECRDIGIT_4>),
    Micros(k3700, "ECRNumber", kFields<ECRDIGIT_3>),
    Micros(k3700, "ECRNumber", kFields<ECRDIGIT_2>),
    Micros(k3700, "ECRNumber", kFields<ECRDIGIT_1>),
    SubMenu("FrmSubMenu.Frame1", "FrmSubMenu.F1OP", "Port", kFields<REGTYPE_EXT1>),
    SubMenu("FrmSubMenu.Frame2", "FrmSubMenu.Combo1(1)", "Mode", kFields<REGTYPE_EXT2>),
    SubMenu("FrmSubMenu.SharpSubMenuFrame", "FrmSubMenu.Option1", "Mode", kFields<REGTYPE_EXT2>),
    SubMenu("FrmSubMenu.UP3000Frm", "FrmSubMenu.Combo2", "Terminal", kFields<REGTYPE_EXT2>),
};

}  // namespace

std::vector<const OptionRow*> AllOptions() {
  std::vector<const OptionRow*> options;
  for (const auto rows : {registers::OptionRows(), std::span<const OptionRow>(kInWindows)}) {
    for (const auto& row : rows) options.push_back(&row);
  }
  return options;
}

std::vector<const OptionRow*> OptionsThatShow(image::FieldId field, int entry) {
  auto options = AllOptions();
  options.erase(std::remove_if(options.begin(), options.end(),
                               [&](const OptionRow* row) { return !row->Shows(field, entry); }),
                options.end());
  return options;
}

bool IsOnScreen(const PreviewProgram& program, const OptionRow& option) {
  const auto visible = [&](std::string_view name) {
    return controls::StateOf(program.Named(name).control).visible;
  };
  if (option.frame != Frame::kNone && !program.Form().frmMain.FrameOf(option.frame).visible) return false;
  return (option.inner.empty() || visible(option.inner)) && visible(option.control);
}

std::optional<phrases::Words> OptionWords(const PreviewProgram& program, const OptionRow& option) {
  return IsOnScreen(program, option) ? program.WordsOf(option.control) : std::nullopt;
}

}  // namespace ovl::changes
