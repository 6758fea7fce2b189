#include "walk/owners.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace ovl::testing {
namespace {

constexpr Owner kOwners[] = {
    // register options
    {" BleepOP DIGIOP FUJIOP GELLEROP JCMOp OpA410 OpBEETLE OpDelta OpEDA OpNCR OpNUCP OpPoleDisplay OpSun "
     "OpVerifone OpVWEIGHBRIDGE OpWEIGHS SamOP OpSharp OpGilbraco IBMOP ICLOP NCROP NIXDORF14OP SharpOP "
     "CASIOOP TECOP ComboAddress ComboAddr ComboDisplay "
     "ComboDeviceADD ComboDIPMIXED ComboNE134 ComboUni ComboTCPINFO UNIWOP ",
     " REGTYPE_MINOR "},
    {" BEETLEOp JRNLRCPT_SLP_OP NIXDORF14OPSelect POS50OP TEAMOP TEAMPOSOP Combo1 Combo4610TF6 IBMCombo "
     "RDSCombo ST6105C ComboUniFor14R7up ComboXML FrmSubMenu.Combo1(1) FrmSubMenu.Combo2 FrmSubMenu.Option1 ",
     " REGTYPE_EXT2 "},
    {" FrmSubMenu.F1OP ", " REGTYPE_EXT1 "},
    {" OpNIXDORF OpRI_QT2 ", " REGTYPE_MINOR REGTYPE_EXT2 "},
    {" ComboSICOM ComboTk500(1) ComboTE2200(1) ComboTEC(1) OpDYWAYE OpSHARPUP600 ",
     " REGTYPE_MINOR RX_BAUDRATE TX_BAUDRATE "},
    {" ComboPana(1) ComboWoring ", " REGTYPE_MINOR RX_BAUDRATE TX_BAUDRATE COMMCFG_BAK TIMESTAMP_ENA "},
    {" OpMicrelec OpMicrelec9500 ", " REGTYPE_MINOR UNITADDR RX_BAUDRATE TX_BAUDRATE COMMCFG_BAK "},
    {" POSOP ", " REGTYPE_MINOR REGTYPE_EXT2 RX_BAUDRATE TX_BAUDRATE IOCFG_BAK "},
    {" TEROP PRNOP ", " REGTYPE_MINOR REGTYPE_EXT1 REGTYPE_EXT2 RX_BAUDRATE TX_BAUDRATE IOCFG_BAK "},
    {" SECUOP ", " REGTYPE_MINOR REGTYPE_EXT1 RX_BAUDRATE TX_BAUDRATE IOCFG_BAK "},
    {" ComboTCI_ID ", " TCIADDBAK_1 TCIADDBAK_2 TCIADDBAK_3 RX_BAUDRATE TX_BAUDRATE IOCFG_BAK COMMCFG_BAK "},
    {" ComboUNI_ID ", " TCIADDBAK_1 TCIADDBAK_2 TCIADDBAK_3 "},
    {" ComboCLARITYEPOS ", " UNITADDR "},
    {" ComboPana(0) ComboDeviceGas ", " GTITLE_NF_BAK "},
    {" ComboTITLEDIP ", " GTITLE_NF_BAK DSPCFG_BAK DSPLINES_BAK "},
    {" ComboCONSOLEID ", " DV_ADDRIND_BAK "},
    {" ComboTCPIP ", " IPADDRESS "},
    {" OpMicros ", " REGTYPE_MINOR MICROS_STATUS "},
    {" frmMicros.cmdSetMicros ", " DEVICE_INDEX_BAK DV_ADDRIND_BAK MICROS_STATUS "},
    {" frmMicros.cmdISNset ",
     " REGDV_TYPE_BAK REG_GNA_BAK REG_LNA_BAK REG_IDNA_BAK PCDV_TYPE_BAK PC_GNA_BAK PC_LNA_BAK PC_IDNA_BAK "},
    {" frmMicros.CMD3700Set ",
     " REGTYPE_EXT2 ECRDIGIT_1 ECRDIGIT_2 ECRDIGIT_3 ECRDIGIT_4 ECRDIGIT_5 ECRDIGIT_6 ECRDIGIT_7 "},
    // the register itself: its own defaults, and what its options force
    {" ComboReg ",
     " EXECENTRY COMMCFG_BAK IOCFG_BAK RX_BAUDRATE TX_BAUDRATE UNITADDR DV_ADDRIND_BAK TCIADDBAK_1 "
     "TCIADDBAK_2 TCIADDBAK_3 GTITLE_NF_BAK GPS_CONFIG_BAK DEVICE_INDEX_BAK REGDV_TYPE_BAK REG_GNA_BAK "
     "REG_LNA_BAK REG_IDNA_BAK PCDV_TYPE_BAK PC_GNA_BAK PC_LNA_BAK PC_IDNA_BAK MICROS_STATUS REGTYPE "
     "REGTYPE_MINOR REGTYPE_EXT1 REGTYPE_EXT2 IPADDRESS TIMESTAMP_ENA DSPCFG_BAK DSPLINES_BAK "},
    // line and network
    {" ComboCOMM(0) ", " IOCFG_BAK "},
    {" ComboCOMM(1) ", " RX_BAUDRATE "},
    {" ComboCOMM(2) ", " TX_BAUDRATE "},
    {" ComboCOMM(7) ", " TX_PROTOCOL "},
    {" ComboCOMM(8) ", " SW_HANDSHAKE "},
    {" ComboCOMM(9) ", " NET_TYPE NET_ADDRESS NET_BAUDRATE "},
    {" ComboCOMM(10) ", " NET_ADDRESS "},
    {" ComboCOMM(11) ", " NET_PROTOCOL NET_BAUDRATE "},
    {" ComboCOMM(12) ", " NET_BAUDRATE "},
    {" ComboCOMM ", " COMMCFG_BAK "},
    // display, clock, language
    {" ComboDIP(0) ", " DSPCFG_BAK BLNKVAL BLNKIND BLNKRTS_BAK "},
    {" ComboDIP(1) ", " DSPLINES_BAK "},
    {" ComboTD(0) ComboTD(5) ", " DSPCFG_BAK DSPLINES_BAK "},
    {" ComboDIP(7) ", " SPCOMPRES_BAK "},
    {" ComboDIP(8) ", " DSPCHARS_BAK "},
    {" ComboDIP ", " DSPCFG_BAK "},
    {" ComboTD(1) ", " TIME_FORMAT_BAK "},
    {" ComboTD(2) ", " DATE_FORMAT_BAK "},
    {" ComboTD(3) ", " DAYLIGHT_BAK "},
    {" ComboTD(4) ", " TD_LOCKING_BAK "},
    {" ComboLang ", " LANGUAGE_BAK "},
    // exceptions and alarms; a record that is shown is put in order
    {" ComboExcepRe(2) ", " TIMESTAMP_ENA DUPLINE_BAK "},
    {" ComboExcepRe ", " COMMCFG_BAK TIMESTAMP_ENA "},
    {" ComboScroll ", " SCROLLMATCH_BAK "},
    {" ComboExcp(0) ", " EXCPSTRS ", Part::kAllButRange},
    {" ComboExcp ", " EXCPSTRS ", Part::kFirstByte},
    {" ComboALM(0) ", " TRIGGER_TEXT ALMSTRUCT_BAK ALM_MODE "},
    {" ComboALM(1) ", " ALMSTRUCT_BAK ", Part::kFirstByte},
    {" ComboALM(3) ", " ALMSTRUCT_BAK ", Part::kDuration},
    {" ComboALM(6) ", " ALMSTRUCT_BAK ", Part::kLastByte},
    {" ComboALM(2) ", " ALMNORMAL_BAK "},
    {" ComboALM(4) ", " ALMCFG_BAK "},
    {" ComboALM(5) ", " FLAGDWLIND "},
    {" ComboALM(7) ", " ALM_MODE "},
    {" ComboTrigger(2) ", " TRIGGER_DELAY "},
    {" ComboTrigger ", " TRIGGER_TEXT ", Part::kFirstByte},
    {" frmSetEXCPSTR frmSetEXCPSTR.cmdSET ", " EXCPSTRS TRIGGER_TEXT ONSCRNTITL ", Part::kAllButRange},
    {" cmdSetRange frmSetRange.ComboDec frmSetRange.cmdClr ", " DECIMAL_POINT_BAK "},
    {" frmSetRange.cmdSetRange ", " EXCPSTRS ", Part::kRange},
    // demonstration and recorder
    {" CharacterList DemoType DemoSpeed DemoMode ", " DEMO_ENABLE "},
    {" OpDVR ", " HIST_REG "},
    {" ComboKLM4011(0) ComboKLM4011(2) ", " HIST_DEST_ID "},
    {" ComboKLM4011(1) ComboKLM4011(3) ", " HIST_SRC_ID "},
};

}  // namespace

const Owner& OwnerNamed(std::string_view control) {
  static constexpr Owner kNobody = {"", " "};
  for (const auto name : {control, control.substr(0, control.find('('))}) {
    const auto word = " " + std::string(name) + " ";
    for (const auto& owner : kOwners) {
      if (owner.controls.find(word) != std::string_view::npos) return owner;
    }
  }
  return kNobody;
}

bool MayWrite(const Owner& owner, std::string_view field) {
  return owner.fields.find(" " + std::string(field) + " ") != std::string_view::npos;
}

std::string Without(Part part, std::size_t range, std::string record) {
  constexpr std::size_t kByte = 2;
  if (part == Part::kAll) return {};
  if (record.size() < kByte) return record;
  if (part == Part::kAllButRange) return record.substr(kByte, range);
  if (part == Part::kFirstByte) return record.substr(kByte);
  if (part == Part::kDuration) return record.erase(kByte, 2 * kByte);
  return part == Part::kRange ? record.erase(kByte, range) : record.erase(record.size() - kByte);
}

}  // namespace ovl::testing
