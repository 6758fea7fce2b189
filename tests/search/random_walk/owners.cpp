#include "search/random_walk/owners.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <vector>

namespace ovl::testing {
namespace {

// Rows of controls and, behind a colon, the fields that they may write; behind a slash, of the fields that
// are records, the digits. First the options of registers; then the register itself, with its own defaults
// and what its options force; line and network; display, clock, language; exceptions and alarms, where a
// record that is shown is put in order; demonstration and recorder.
constexpr const char* kOwners = R"(
BleepOP DIGIOP FUJIOP GELLEROP JCMOp OpA410 OpBEETLE OpDelta OpEDA OpNCR OpNUCP OpPoleDisplay OpSun
OpVerifone OpVWEIGHBRIDGE OpWEIGHS SamOP OpSharp OpGilbraco IBMOP ICLOP NCROP NIXDORF14OP SharpOP CASIOOP
TECOP ComboAddress ComboAddr ComboDisplay ComboDeviceADD ComboDIPMIXED ComboNE134 ComboUni ComboTCPINFO
UNIWOP: REGTYPE_MINOR;
BEETLEOp JRNLRCPT_SLP_OP NIXDORF14OPSelect POS50OP TEAMOP TEAMPOSOP Combo1 Combo4610TF6 IBMCombo RDSCombo
ST6105C ComboUniFor14R7up ComboXML FrmSubMenu.Combo1(1) FrmSubMenu.Combo2 FrmSubMenu.Option1: REGTYPE_EXT2;
FrmSubMenu.F1OP: REGTYPE_EXT1;  OpNIXDORF OpRI_QT2: REGTYPE_MINOR REGTYPE_EXT2;
ComboSICOM ComboTk500(1) ComboTE2200(1) ComboTEC(1) OpDYWAYE OpSHARPUP600: REGTYPE_MINOR RX_BAUDRATE
TX_BAUDRATE;  ComboPana(1) ComboWoring: REGTYPE_MINOR RX_BAUDRATE TX_BAUDRATE COMMCFG_BAK TIMESTAMP_ENA;
OpMicrelec OpMicrelec9500: REGTYPE_MINOR UNITADDR RX_BAUDRATE TX_BAUDRATE COMMCFG_BAK;
POSOP: REGTYPE_MINOR REGTYPE_EXT2 RX_BAUDRATE TX_BAUDRATE IOCFG_BAK;
TEROP PRNOP: REGTYPE_MINOR REGTYPE_EXT1 REGTYPE_EXT2 RX_BAUDRATE TX_BAUDRATE IOCFG_BAK;
SECUOP: REGTYPE_MINOR REGTYPE_EXT1 RX_BAUDRATE TX_BAUDRATE IOCFG_BAK;
ComboTCI_ID: TCIADDBAK_1 TCIADDBAK_2 TCIADDBAK_3 RX_BAUDRATE TX_BAUDRATE IOCFG_BAK COMMCFG_BAK;
ComboUNI_ID: TCIADDBAK_1 TCIADDBAK_2 TCIADDBAK_3;  ComboCLARITYEPOS: UNITADDR;
ComboPana(0) ComboDeviceGas: GTITLE_NF_BAK;  ComboTITLEDIP: GTITLE_NF_BAK DSPCFG_BAK DSPLINES_BAK;
ComboCONSOLEID: DV_ADDRIND_BAK;  ComboTCPIP: IPADDRESS;  OpMicros: REGTYPE_MINOR MICROS_STATUS;
frmMicros.cmdSetMicros: DEVICE_INDEX_BAK DV_ADDRIND_BAK MICROS_STATUS;
frmMicros.cmdISNset: REGDV_TYPE_BAK REG_GNA_BAK REG_LNA_BAK REG_IDNA_BAK PCDV_TYPE_BAK PC_GNA_BAK PC_LNA_BAK
PC_IDNA_BAK;
frmMicros.CMD3700Set: REGTYPE_EXT2 ECRDIGIT_1 ECRDIGIT_2 ECRDIGIT_3 ECRDIGIT_4 ECRDIGIT_5 ECRDIGIT_6
ECRDIGIT_7;
ComboReg: EXECENTRY COMMCFG_BAK IOCFG_BAK RX_BAUDRATE TX_BAUDRATE UNITADDR DV_ADDRIND_BAK TCIADDBAK_1
TCIADDBAK_2 TCIADDBAK_3 GTITLE_NF_BAK GPS_CONFIG_BAK DEVICE_INDEX_BAK REGDV_TYPE_BAK REG_GNA_BAK REG_LNA_BAK
REG_IDNA_BAK PCDV_TYPE_BAK PC_GNA_BAK PC_LNA_BAK PC_IDNA_BAK MICROS_STATUS REGTYPE REGTYPE_MINOR
REGTYPE_EXT1 REGTYPE_EXT2 IPADDRESS TIMESTAMP_ENA DSPCFG_BAK DSPLINES_BAK;
ComboCOMM(0): IOCFG_BAK;  ComboCOMM(1): RX_BAUDRATE;  ComboCOMM(2): TX_BAUDRATE;  ComboCOMM(7): TX_PROTOCOL;
ComboCOMM(8): SW_HANDSHAKE;  ComboCOMM(9): NET_TYPE NET_ADDRESS NET_BAUDRATE;  ComboCOMM(10): NET_ADDRESS;
ComboCOMM(11): NET_PROTOCOL NET_BAUDRATE;  ComboCOMM(12): NET_BAUDRATE;  ComboCOMM: COMMCFG_BAK;
ComboDIP(0): DSPCFG_BAK BLNKVAL BLNKIND BLNKRTS_BAK;  ComboDIP(1): DSPLINES_BAK;
ComboTD(0) ComboTD(5): DSPCFG_BAK DSPLINES_BAK;  ComboDIP(7): SPCOMPRES_BAK;  ComboDIP(8): DSPCHARS_BAK;
ComboDIP: DSPCFG_BAK;  ComboTD(1): TIME_FORMAT_BAK;  ComboTD(2): DATE_FORMAT_BAK;  ComboTD(3): DAYLIGHT_BAK;
ComboTD(4): TD_LOCKING_BAK;  ComboLang: LANGUAGE_BAK;
ComboExcepRe(2): TIMESTAMP_ENA DUPLINE_BAK;  ComboExcepRe: COMMCFG_BAK TIMESTAMP_ENA;
ComboScroll: SCROLLMATCH_BAK;  ComboExcp(0): EXCPSTRS / all-but-range;  ComboExcp: EXCPSTRS / first-byte;
ComboALM(0): TRIGGER_TEXT ALMSTRUCT_BAK ALM_MODE;  ComboALM(1): ALMSTRUCT_BAK / first-byte;
ComboALM(3): ALMSTRUCT_BAK / duration;  ComboALM(6): ALMSTRUCT_BAK / last-byte;  ComboALM(2): ALMNORMAL_BAK;
ComboALM(4): ALMCFG_BAK;  ComboALM(5): FLAGDWLIND;  ComboALM(7): ALM_MODE;  ComboTrigger(2): TRIGGER_DELAY;
ComboTrigger: TRIGGER_TEXT / first-byte;
frmSetEXCPSTR frmSetEXCPSTR.cmdSET: EXCPSTRS TRIGGER_TEXT ONSCRNTITL / all-but-range;
cmdSetRange frmSetRange.ComboDec frmSetRange.cmdClr: DECIMAL_POINT_BAK;
frmSetRange.cmdSetRange: EXCPSTRS / range;
CharacterList DemoType DemoSpeed DemoMode: DEMO_ENABLE;  OpDVR: HIST_REG;
ComboKLM4011(0) ComboKLM4011(2): HIST_DEST_ID;  ComboKLM4011(1) ComboKLM4011(3): HIST_SRC_ID)";

std::vector<Owner> ReadOwners() {
  const std::map<std::string, Part> parts = {{"all-but-range", Part::kAllButRange},
                                             {"range", Part::kRange},
                                             {"first-byte", Part::kFirstByte},
                                             {"last-byte", Part::kLastByte},
                                             {"duration", Part::kDuration}};
  std::vector<Owner> owners;
  std::istringstream rows(kOwners);
  for (std::string row; std::getline(rows, row, ';');) {
    std::replace(row.begin(), row.end(), '\n', ' ');
    const auto colon = row.find(':'), slash = row.find(" / ");
    auto& owner = owners.emplace_back(
        Owner{" " + row.substr(0, colon) + " ", row.substr(colon + 1, slash - colon - 1) + " "});
    if (slash != std::string::npos) owner.of_records = parts.at(row.substr(slash + 3));
  }
  return owners;
}

}  // namespace

const Owner& OwnerNamed(std::string_view control) {
  static const auto owners = ReadOwners();
  static const Owner nobody;
  for (const auto name : {control, control.substr(0, control.find('('))}) {
    const auto word = " " + std::string(name) + " ";
    for (const auto& owner : owners) {
      if (owner.controls.find(word) != std::string::npos) return owner;
    }
  }
  return nobody;
}

bool MayWrite(const Owner& owner, std::string_view field) {
  return owner.fields.find(" " + std::string(field) + " ") != std::string::npos;
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
