#include "changes/editors.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "codecs/codecs.h"
#include "image/slot_records.h"

namespace ovl::changes {
namespace {

using enum image::FieldId;
using enum ValueDisplay;
using At = Place;

constexpr std::array kEditors = {
    Editor{COMMCFG_BAK, At::kCommunication, "ComboCOMM(3)", 0x03, kParity},
    Editor{COMMCFG_BAK, At::kCommunication, "ComboCOMM(4)", 0x04, kSetIsOn},
    Editor{COMMCFG_BAK, At::kCommunication, "ComboCOMM(5)", 0x20, kSetIsOff},
    Editor{COMMCFG_BAK, At::kCommunication, "ComboCOMM(6)", 0x08, kSetIsOff},
    Editor{COMMCFG_BAK, At::kExceptionReport, "ComboExcepRe(0)", 0x10, kSetIsOn},
    Editor{IOCFG_BAK, At::kCommunication, "ComboCOMM(0)", kWholeByte, kPicked},
    Editor{RX_BAUDRATE, At::kCommunication, "ComboCOMM(1)", kWholeByte, kPicked},
    Editor{TX_BAUDRATE, At::kCommunication, "ComboCOMM(2)", kWholeByte, kPicked},
    Editor{UNITADDR, At::kRegister, ""},
    Editor{DV_ADDRIND_BAK, At::kRegister, ""},
    Editor{DV_ADDRIND_BAK, At::kMicros, "ComboMICROSADD"},
    Editor{TCIADDBAK_1, At::kRegister, ""},
    Editor{TCIADDBAK_2, At::kRegister, ""},
    Editor{TCIADDBAK_3, At::kRegister, ""},
    Editor{GTITLE_NF_BAK, At::kRegister, ""},
    Editor{DEVICE_INDEX_BAK, At::kMicros, "ComboMICROS"},
    Editor{REGDV_TYPE_BAK, At::kMicros, "ComboISN(0)"},
    Editor{REG_GNA_BAK, At::kMicros, "ComboISN(1)"},
    Editor{REG_LNA_BAK, At::kMicros, "ComboISN(2)"},
    Editor{REG_IDNA_BAK, At::kMicros, "ComboISN(3)"},
    Editor{PCDV_TYPE_BAK, At::kMicros, "ComboISN(4)"},
    Editor{PC_GNA_BAK, At::kMicros, "ComboISN(5)"},
    Editor{PC_LNA_BAK, At::kMicros, "ComboISN(6)"},
    Editor{PC_IDNA_BAK, At::kMicros, "ComboISN(7)"},
    Editor{MICROS_STATUS, At::kMicros, "ComboMODE", 0x01, kSetIsOn},
    Editor{HIST_REG, At::kExceptionReport, "OpDVR"},
    Editor{HIST_DEST_ID, At::kExceptionReport, "ComboKLM4011(0)"},
    Editor{HIST_SRC_ID, At::kExceptionReport, "ComboKLM4011(1)"},
    Editor{REGTYPE, At::kRegister, "ComboReg"},
    Editor{REGTYPE_MINOR, At::kRegister, ""},
    Editor{REGTYPE_EXT1, At::kRegister, ""},
    Editor{REGTYPE_EXT2, At::kRegister, ""},
    Editor{REGTYPE_EXT2, At::kMicros, "HandSHKCombo"},
    Editor{DSPLINES_BAK, At::kText, "ComboDIP(1)", kWholeByte, kPicked},
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(0)", 0x01},
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(2)", 0x02, kSetIsOn},
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(3)", 0x04, kSetIsOn},
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(4)", 0x40, kSetIsOn},
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(5)", 0x08, kSetIsOn},
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(6)", 0x20, kSetIsOn},
    Editor{DSPCFG_BAK, At::kTime, "ComboTD(0)", 0x80, kSetIsOn},
    Editor{DSPCFG_BAK, At::kTime, "ComboTD(5)", 0x10, kSetIsOn},
    Editor{ALMCFG_BAK, At::kAlarmOutputs, "ComboALM(4)"},
    Editor{ALMNORMAL_BAK, At::kAlarmOutputs, "ComboALM(2)"},
    Editor{BLNKVAL, At::kText, "ComboDIP(0)", kWholeByte, kPicked},
    Editor{BLNKIND, At::kText, "ComboDIP(0)", kWholeByte, kPicked},
    Editor{FLAGDWLIND, At::kAlarmOutputs, "ComboALM(5)"},
    Editor{ALMSTRUCT_BAK, At::kAlarmOutputs, "ComboALM(1)", kWholeByte, kNothing, Part::kFirstByte},
    Editor{ALMSTRUCT_BAK, At::kAlarmOutputs, "ComboALM(3)", kWholeByte, kNothing, Part::kDuration},
    Editor{ALMSTRUCT_BAK, At::kAlarmOutputs, "ComboALM(6)", kWholeByte, kNothing, Part::kVideoLoss},
    Editor{IPADDRESS, At::kRegister, ""},
    Editor{DECIMAL_POINT_BAK, At::kRange, "frmSetRange.ComboDec"},
    Editor{TIME_FORMAT_BAK, At::kTime, "ComboTD(1)"},
    Editor{DATE_FORMAT_BAK, At::kTime, "ComboTD(2)"},
    Editor{TD_LOCKING_BAK, At::kTime, "ComboTD(4)"},
    Editor{TIMESTAMP_ENA, At::kExceptionReport, "ComboExcepRe(1)", kWholeByte, kPicked},
    Editor{DAYLIGHT_BAK, At::kTime, "ComboTD(3)"},
    Editor{DEMO_ENABLE, At::kRemote, "DemoMode CharacterList DemoType DemoSpeed"},
    Editor{SPCOMPRES_BAK, At::kText, "ComboDIP(7)", kWholeByte, kPicked},
    Editor{DSPCHARS_BAK, At::kText, "ComboDIP(8)", kWholeByte, kPicked},
    Editor{NET_ADDRESS, At::kCommunication, "ComboCOMM(10)", kWholeByte, kPicked},
    Editor{NET_TYPE, At::kCommunication, "ComboCOMM(9)", kWholeByte, kPicked},
    Editor{NET_PROTOCOL, At::kCommunication, "ComboCOMM(11)", kWholeByte, kPicked},
    Editor{TX_PROTOCOL, At::kCommunication, "ComboCOMM(7)", kWholeByte, kPicked},
    Editor{DUPLINE_BAK, At::kExceptionReport, "ComboExcepRe(2)", kWholeByte, kPicked},
    Editor{SCROLLMATCH_BAK, At::kExceptionReport, "ComboScroll(0) ComboScroll(1)"},
    Editor{LANGUAGE_BAK, At::kTime, "ComboLang"},
    Editor{NET_BAUDRATE, At::kCommunication, "ComboCOMM(12)", kWholeByte, kPicked},
    Editor{SW_HANDSHAKE, At::kCommunication, "ComboCOMM(8)", kWholeByte, kPicked},
    Editor{ECRDIGIT_7, At::kMicros, "ECRNumber"},
    Editor{ECRDIGIT_6, At::kMicros, "ECRNumber"},
    Editor{ECRDIGIT_5, At::kMicros, "ECRNumber"},
    Editor{ECRDIGIT_4, At::kMicros, "ECRNumber"},
    Editor{ECRDIGIT_3, At::kMicros, "ECRNumber"},
    Editor{ECRDIGIT_2, At::kMicros, "ECRNumber"},
    Editor{ECRDIGIT_1, At::kMicros, "ECRNumber"},
    Editor{BLNKRTS_BAK, At::kText, "ComboDIP(0)", kWholeByte, kPicked},
    Editor{ONSCRNTITL, At::kTime, "Title_Text"},
    Editor{EXCPSTRS, At::kExceptionReport, "TextException", kWholeByte, kNothing, Part::kText},
    Editor{EXCPSTRS, At::kExceptionReport, "cmdSetRange", kWholeByte, kNothing, Part::kRange},
    Editor{EXCPSTRS, At::kExceptionReport, "ComboExcp(1)", 0x01, kNothing, Part::kFirstByte},
    Editor{EXCPSTRS, At::kExceptionReport, "ComboExcp(2)", 0x02, kNothing, Part::kFirstByte},
    Editor{EXCPSTRS, At::kExceptionReport, "ComboExcp(3)", 0x20, kNothing, Part::kFirstByte},
    Editor{EXCPSTRS, At::kExceptionReport, "ComboExcp(4)", 0x40, kNothing, Part::kFirstByte},
    Editor{EXCPSTRS, At::kExceptionReport, "ComboExcp(5)", 0x0C, kNothing, Part::kFirstByte},
    Editor{TRIGGER_TEXT, At::kAlarmOutputs, "TextTrigger", kWholeByte, kNothing, Part::kText},
    Editor{TRIGGER_TEXT, At::kAlarmOutputs, "ComboTrigger(0)", 0x01, kNothing, Part::kFirstByte},
    Editor{TRIGGER_TEXT, At::kAlarmOutputs, "ComboTrigger(1)", 0x02, kNothing, Part::kFirstByte},
    Editor{TRIGGER_DELAY, At::kAlarmOutputs, "ComboTrigger(2)"},
    Editor{ALM_MODE, At::kAlarmOutputs, "ComboALM(7)"},
};

constexpr std::array kCarried = {EXECENTRY,  MPDCFG_BAK, MPDCOMMCFG_BAK, MPDRXBAUDRATE,   MPDTXBAUDRATE,
                                 XATMNOTX,   XATMNORX,   SITE_NO_BAK,    GPS_CONFIG_BAK,  HPADDR_BAK,
                                 VPADDR_BAK, HSADDR_BAK, GOADDR_BAK,     DISP_POS_BAK,    FLAGDWLVAL,
                                 IGSCFG_BAK, DSPROW,     DSPCOL,         HARDWARE_CFG_BAK};

constexpr std::size_t kTabs = 7;

std::string Trimmed(const std::string& text) {
  const auto begin = text.find_first_not_of(' ');
  return begin == std::string::npos ? std::string()
                                    : text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

std::string PlaceOf(const core::Application& app, Place place) {
  const auto at = static_cast<std::size_t>(place);
  if (at >= kTabs) return place == Place::kRange ? "range window" : app.frmMicros.form.caption;
  return Trimmed(app.frmMain.SSTab1.captions.at(at));
}

std::string CaptionOf(const core::Application& app, std::string_view name) {
  const auto* control = app.registry.Find(name);
  if (control == nullptr) throw std::logic_error("there is no control " + std::string(name));
  auto caption = Trimmed(controls::StateOf(control->control).caption);
  if (caption.empty()) throw std::logic_error(control->name + " has no caption");
  if (caption.back() == ':') caption.pop_back();
  return caption;
}

std::string Captions(const core::Application& app, std::string_view controls, std::string_view options,
                     bool hidden_too) {
  if (controls.empty()) return std::string(options);
  std::string words;
  while (!controls.empty()) {
    const auto name = controls.substr(0, controls.find(' '));
    controls.remove_prefix(std::min(controls.size(), name.size() + 1));
    const auto caption = CaptionOf(app, name);
    if (hidden_too || controls::StateOf(app.registry.Find(name)->control).visible)
      words += (words.empty() ? "" : ", ") + caption;
  }
  return words;
}

// The digits of a record that a control stores.
std::string_view Cut(Part part, image::FieldId field, std::string_view record) {
  constexpr std::size_t kByte = 2;
  switch (part) {
    case Part::kFirstByte:
      return record.substr(0, kByte);
    case Part::kDuration:
      return image::AlarmDurationDigits(record);
    case Part::kVideoLoss:
      return image::AlarmVideoLossDigits(record);
    case Part::kRange:
      return image::RangeAndLengthOf(record);
    case Part::kText:
      return field == EXCPSTRS ? image::CharactersOf(record) : image::TriggeredDigits(record);
    default:
      return record;
  }
}

// Whether the control stores a part that differs.
bool Stores(const Editor& editor, std::string_view before, std::string_view after) {
  const auto was = Cut(editor.part, editor.field, before), is = Cut(editor.part, editor.field, after);
  if (was.size() != 2 || is.size() != 2) return was != is;
  return ((codecs::HexToInt(was) ^ codecs::HexToInt(is)) & editor.bits) != 0;
}

template <class Wanted>
std::string Words(const core::Application& app, std::string_view options, bool hidden_too,
                  const Wanted& wanted) {
  std::string words;
  const Editor* last = nullptr;
  for (const auto& editor : kEditors) {
    if (!wanted(editor)) continue;
    const auto captions = Captions(app, editor.controls, options, hidden_too);
    if (captions.empty()) continue;
    if (last != nullptr) words += last->place == editor.place ? ", " : "; ";
    if (last == nullptr || last->place != editor.place) words += PlaceOf(app, editor.place) + ": ";
    words += captions;
    last = &editor;
  }
  return words;
}

}  // namespace

std::span<const Editor> Editors() {
  return kEditors;
}

std::string EditedBy(const core::Application& app, image::FieldId field, std::string_view options) {
  return Words(app, options, true, [&](const Editor& editor) { return editor.field == field; });
}

std::string EditedBy(const core::Application& app, image::FieldId field, std::string_view options,
                     std::string_view before, std::string_view after) {
  const auto stores = [&](const Editor& editor) {
    return editor.field == field && Stores(editor, before, after);
  };
  auto words = Words(app, options, false, stores);
  if (words.empty()) words = Words(app, options, true, stores);
  return words.empty() ? EditedBy(app, field, options) : words;
}

std::span<const image::FieldId> CarriedThrough() {
  return kCarried;
}

}  // namespace ovl::changes
