#include "image/editors.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace ovl {
namespace {

using enum FieldId;
using At = Place;

constexpr std::array kEditors = {
    Editor{COMMCFG_BAK, At::kCommunication, "ComboCOMM(3)", 0x03},
    Editor{COMMCFG_BAK, At::kCommunication, "ComboCOMM(4)", 0x04},
    Editor{COMMCFG_BAK, At::kCommunication, "ComboCOMM(5)", 0x20},
    Editor{COMMCFG_BAK, At::kCommunication, "ComboCOMM(6)", 0x08},
    Editor{COMMCFG_BAK, At::kExceptionReport, "ComboExcepRe(0)", 0x10},
    Editor{IOCFG_BAK, At::kCommunication, "ComboCOMM(0)"},
    Editor{RX_BAUDRATE, At::kCommunication, "ComboCOMM(1)"},
    Editor{TX_BAUDRATE, At::kCommunication, "ComboCOMM(2)"},
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
    Editor{MICROS_STATUS, At::kMicros, "ComboMODE"},
    Editor{HIST_REG, At::kExceptionReport, "OpDVR"},
    Editor{HIST_DEST_ID, At::kExceptionReport, "ComboKLM4011(0)"},
    Editor{HIST_SRC_ID, At::kExceptionReport, "ComboKLM4011(1)"},
    Editor{REGTYPE, At::kRegister, "ComboReg"},
    Editor{REGTYPE_MINOR, At::kRegister, ""},
    Editor{REGTYPE_EXT1, At::kRegister, ""},
    Editor{REGTYPE_EXT2, At::kRegister, ""},
    Editor{REGTYPE_EXT2, At::kMicros, "HandSHKCombo"},
    Editor{DSPLINES_BAK, At::kText, "ComboDIP(1)"},
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(0)", 0x01},
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(2)", 0x02},
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(3)", 0x04},
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(4)", 0x40},
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(5)", 0x08},
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(6)", 0x20},
    Editor{DSPCFG_BAK, At::kTime, "ComboTD(0)", 0x80},
    Editor{DSPCFG_BAK, At::kTime, "ComboTD(5)", 0x10},
    Editor{ALMCFG_BAK, At::kAlarmOutputs, "ComboALM(4)"},
    Editor{ALMNORMAL_BAK, At::kAlarmOutputs, "ComboALM(2)"},
    Editor{BLNKVAL, At::kText, "ComboDIP(0)"},
    Editor{BLNKIND, At::kText, "ComboDIP(0)"},
    Editor{FLAGDWLIND, At::kAlarmOutputs, "ComboALM(5)"},
    Editor{ALMSTRUCT_BAK, At::kAlarmOutputs, "ComboALM(1) ComboALM(3) ComboALM(6)"},
    Editor{IPADDRESS, At::kRegister, ""},
    Editor{DECIMAL_POINT_BAK, At::kRange, "frmSetRange.ComboDec"},
    Editor{TIME_FORMAT_BAK, At::kTime, "ComboTD(1)"},
    Editor{DATE_FORMAT_BAK, At::kTime, "ComboTD(2)"},
    Editor{TD_LOCKING_BAK, At::kTime, "ComboTD(4)"},
    Editor{TIMESTAMP_ENA, At::kExceptionReport, "ComboExcepRe(1)"},
    Editor{DAYLIGHT_BAK, At::kTime, "ComboTD(3)"},
    Editor{DEMO_ENABLE, At::kRemote, "DemoMode CharacterList DemoType DemoSpeed"},
    Editor{SPCOMPRES_BAK, At::kText, "ComboDIP(7)"},
    Editor{DSPCHARS_BAK, At::kText, "ComboDIP(8)"},
    Editor{NET_ADDRESS, At::kCommunication, "ComboCOMM(10)"},
    Editor{NET_TYPE, At::kCommunication, "ComboCOMM(9)"},
    Editor{NET_PROTOCOL, At::kCommunication, "ComboCOMM(11)"},
    Editor{TX_PROTOCOL, At::kCommunication, "ComboCOMM(7)"},
    Editor{DUPLINE_BAK, At::kExceptionReport, "ComboExcepRe(2)"},
    Editor{SCROLLMATCH_BAK, At::kExceptionReport, "ComboScroll(0) ComboScroll(1)"},
    Editor{LANGUAGE_BAK, At::kTime, "ComboLang"},
    Editor{NET_BAUDRATE, At::kCommunication, "ComboCOMM(12)"},
    Editor{SW_HANDSHAKE, At::kCommunication, "ComboCOMM(8)"},
    Editor{ECRDIGIT_7, At::kMicros, "ECRNumber"},
    Editor{ECRDIGIT_6, At::kMicros, "ECRNumber"},
    Editor{ECRDIGIT_5, At::kMicros, "ECRNumber"},
    Editor{ECRDIGIT_4, At::kMicros, "ECRNumber"},
    Editor{ECRDIGIT_3, At::kMicros, "ECRNumber"},
    Editor{ECRDIGIT_2, At::kMicros, "ECRNumber"},
    Editor{ECRDIGIT_1, At::kMicros, "ECRNumber"},
    Editor{BLNKRTS_BAK, At::kText, "ComboDIP(0)"},
    Editor{ONSCRNTITL, At::kTime, "Title_Text"},
    Editor{EXCPSTRS, At::kExceptionReport,
           "TextException cmdSetRange ComboExcp(1) ComboExcp(2) ComboExcp(3) ComboExcp(4) ComboExcp(5)"},
    Editor{TRIGGER_TEXT, At::kAlarmOutputs, "TextTrigger ComboTrigger(0) ComboTrigger(1)"},
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

std::string PlaceOf(const Application& app, Place place) {
  const auto at = static_cast<std::size_t>(place);
  if (at >= kTabs) return place == Place::kRange ? "range window" : app.frmMicros.form.caption;
  return Trimmed(app.frmMain.SSTab1.captions.at(at));
}

std::string CaptionOf(const Application& app, std::string_view name) {
  const auto* control = app.registry.Find(name);
  if (control == nullptr) throw std::logic_error("there is no control " + std::string(name));
  auto caption = Trimmed(FaceOf(control->control).caption);
  if (caption.empty()) caption = control->name;
  if (caption.back() == ':') caption.pop_back();
  return caption;
}

std::string Captions(const Application& app, std::string_view controls, std::string_view options) {
  if (controls.empty()) return std::string(options);
  std::string words;
  while (!controls.empty()) {
    const auto name = controls.substr(0, controls.find(' '));
    controls.remove_prefix(std::min(controls.size(), name.size() + 1));
    words += (words.empty() ? "" : ", ") + CaptionOf(app, name);
  }
  return words;
}

}  // namespace

std::string EditedBy(const Application& app, FieldId field, std::string_view options, int bits) {
  std::string words;
  const Editor* last = nullptr;
  for (const auto& editor : kEditors) {
    if (editor.field != field || (editor.bits & bits) == 0) continue;
    if (last != nullptr) words += last->place == editor.place ? ", " : "; ";
    if (last == nullptr || last->place != editor.place) words += PlaceOf(app, editor.place) + ": ";
    words += Captions(app, editor.controls, options);
    last = &editor;
  }
  return words;
}

std::span<const FieldId> CarriedThrough() {
  return kCarried;
}

}  // namespace ovl
