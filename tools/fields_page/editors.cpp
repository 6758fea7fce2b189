#include "editors.h"

#include <array>

namespace ovl {
namespace {

using enum FieldId;
using At = Place;

constexpr std::array kEditors = {
    Editor{COMMCFG_BAK, At::kCommunication, "ComboCOMM(3) ComboCOMM(4) ComboCOMM(5) ComboCOMM(6)"},
    Editor{COMMCFG_BAK, At::kExceptionReport, "ComboExcepRe(0)"},
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
    Editor{DSPCFG_BAK, At::kText, "ComboDIP(0) ComboDIP(2) ComboDIP(3) ComboDIP(4) ComboDIP(5) ComboDIP(6)"},
    Editor{DSPCFG_BAK, At::kTime, "ComboTD(0) ComboTD(5)"},
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

}  // namespace

std::span<const Editor> Editors() {
  return kEditors;
}

std::span<const FieldId> CarriedThrough() {
  return kCarried;
}

}  // namespace ovl
