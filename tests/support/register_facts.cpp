#include "support/register_facts.h"

namespace ovl::testing {
namespace {

using enum image::FieldId;
constexpr auto kMinor = REGTYPE_MINOR, kExt1 = REGTYPE_EXT1, kExt2 = REGTYPE_EXT2;

// The register lists. V1400 has two of them: the models have their own names from R7 on.
enum List : unsigned { kBase = 1, kModels = 2, kV1300 = 4, kV1310 = 8, kV1324 = 16, kV1334 = 32 };

unsigned ListOf(const firmware::FirmwareId& firmware) {
  if (firmware.IsV1400()) return firmware.Number() < 7 ? kBase : kModels;
  return firmware.version == "V1300"   ? kV1300
         : firmware.version == "V1310" ? kV1310
         : firmware.version == "V1324" ? kV1324
                                       : kV1334;
}

struct RegisterFrame {
  int frame;
  std::string_view name;        // of the register
  unsigned lists;               // the register lists that have it
  std::string_view title = {};  // of the frame; empty: the name of the register
};

constexpr RegisterFrame kFrames[] = {
    {0, "ADDRESSABLE OVL", kBase | kModels | kV1300 | kV1310 | kV1334, "SET ADDRESS"},
    {0, "SPEDI CCTV", kBase | kModels | kV1324 | kV1334, "SPEDI CCTV SET ADDRESS"},
    {1, "ADS", kBase | kModels | kV1300, "ADS SET DISPLAY"},
    {1, "FUJITSU 9920", kBase | kV1300, "FUJITSU 9920 SET DISPLAY"},
    {1, "IBM RDS", kBase | kV1300 | kV1310, "IBM RDS SET DISPLAY"},
    {1, "SHARP 750 ER-01PU", kBase | kV1324 | kV1334, " SHARP 750 ER-01PU SET DISPLAY"},
    {2, "DELTA SONO 3.1", kBase | kModels | kV1300, "DELTA SETTING"},
    {3, "DRESSER WAYNE", kBase | kV1300 | kV1310 | kV1324, "DRESSER WAYNE SETTING"},
    {4, "EDACOM", kBase | kModels | kV1300, "SET MODEL"},
    {4, "EDACOM", kV1324 | kV1334, "EDACOM MODEL SETTING "},
    {5, "GASBOY", kBase | kModels | kV1300, "GASBOY SETTING"},
    {6, "GILBARCO", kBase | kModels | kV1300 | kV1310, "GILBRACO"},
    {7, "IBM3151 TERMINAL", kBase | kV1300 | kV1310},
    {7, "SCHLUMBERGER", kBase | kModels | kV1324},
    {8, "MICRELEC", kBase | kModels | kV1300, "MICRELEC MODE"},
    {9, "MICROS", kBase | kModels | kV1300 | kV1310},
    {10, "NCR", kBase | kV1300 | kV1310, "NCR MODEL"},
    {11, "BEETLE 50 PRINTERS", kV1324 | kV1334, "Beetle/50 Printers SETTING"},
    {11, "BEETLE 50 PRINTERS", kBase, "NIXDORF BEETLE"},
    {11, "NIXDORF BEETLE", kV1300 | kV1310},
    {12, "NORAND 1200", kBase | kModels | kV1300, "NORAND"},
    {13, "PANASONIC", kBase | kModels | kV1300 | kV1310},
    {14, "SHARP", kBase | kV1300 | kV1310, "SHARP MODEL"},
    {15, "SICOM", kBase | kModels | kV1300},
    {16, "SUNTRONIC", kBase | kModels | kV1300 | kV1310},
    {17, "TCI", kBase | kModels | kV1300, "TCI ADDRESS"},
    {18, "I-CNTRL INT JAVELIN VIPER", kModels},
    {18, "UNIWELL UN4025", kBase | kV1300, "UNIWELL"},
    {19, "VERIFONE", kBase | kModels | kV1300 | kV1310},
    {20, "UP3000 3300", kV1300 | kV1310, "UP3000/UP3300"},
    {20, "UP3000/3300", kBase, "UP3000/UP3300"},
    {22, "CASIO TK-T500", kBase | kV1310 | kV1324 | kV1334},
    {23, "CLARITY EPOS", kV1324 | kV1334},
    {23, "CLARITY EPOS", kBase | kModels, "CLARITY EPOS SETTING"},
    {23, "PARAGON CLARITY SMARTPAD", kModels},
    {24, "EPSON GENERIC", kBase | kModels | kV1310 | kV1324 | kV1334},
    {25, "NIXDORF BEETLE", kBase | kV1324 | kV1334, "NIXDORF BEETLE SETTING"},
    {25, "OMEGA 2000", kBase | kModels | kV1324, "OMEGA 2000 SETTING"},
    {25, "TKMAXX", kBase | kModels | kV1324 | kV1334, "TKMAXX SETTING"},
    {26, "NUCLEUS PRINTER", kBase | kV1324, "NUCLEUS PRINTER SETTING"},
    {26, "WEIGH SCALE", kV1310 | kV1324 | kV1334, "WEIGH SCALE SETTING"},
    {27, "SHARP ER-A410 420", kBase | kV1324 | kV1334},
    {28, "SHARP UP600 700", kV1324 | kV1334},
    {28, "SHARP UP600/700", kBase},
    {29, "CASIO TE-2200", kBase | kV1310 | kV1324 | kV1334},
    {30, "TCPIP", kBase | kModels | kV1300 | kV1310 | kV1324 | kV1334, "IP AND INFORMATION CONFIG"},
    {31, "TEC SLIP PRINTER EMULATE", kBase | kV1310 | kV1324 | kV1334},
    {32, "WEIGH SCALE", kBase | kModels},
    {36, "DRESSER WAYNE", kModels, "DRESSER WAYNE SETTING"},
    {38, "FUJITSU", kModels, "FUJITSU SETTINGS"},
    {42, "JCM", kModels, "JMC"},
    {46, "SHARP", kModels, "SHARP MODEL"},
    {50, "SENSORS", kModels | kV1300},
    {51, "NE134 COUNTER", kV1310, "SET ADDRESS"},
    {52, "VISHAY WEIGHBRIDGE", kV1310},
    {53, "POLE DISPLAY", kV1310},
};

// The same for registers that only the list of models has, and whose frame has their name.
struct ModelFrame {
  int frame;
  std::string_view name;
};

constexpr ModelFrame kModelFrames[] = {
    {18, "MERIT"},      {19, "RIVA"},    {33, "BLEEP"},    {34, "CASIO"},         {35, "DIGIPOS"},
    {37, "EASY2TOUCH"}, {37, "EUROPAD"}, {37, "POSIFLEX"}, {39, "GELLER"},        {40, "IBM"},
    {41, "ICL"},        {42, "OMRON"},   {42, "PAR"},      {42, "PROSPER"},       {42, "VECTRON"},
    {43, "NCR"},        {44, "NIXDORF"}, {45, "SAMSUNG"},  {47, "TEAM POS 2000"}, {48, "TEC"},
    {49, "UNIWELL"},
};

// The length of a register list from a release on.
struct ListLength {
  std::string_view version;
  int first_release;
  std::size_t registers;
};

constexpr ListLength kListLengths[] = {
    {"V1400", 1, 78},  {"V1400", 7, 110}, {"V1400", 11, 111}, {"V1300", 14, 41}, {"V1300", 15, 42},
    {"V1300", 20, 43}, {"V1300", 21, 44}, {"V1300", 26, 46},  {"V1324", 17, 38}, {"V1324", 18, 40},
    {"V1324", 19, 41}, {"V1324", 21, 42}, {"V1324", 25, 44},  {"V1310", 1, 33},  {"V1334", 1, 27},
};

}  // namespace

std::size_t NumberOfRegisters(const firmware::FirmwareId& firmware) {
  std::size_t registers = 0;
  for (const auto& row : kListLengths) {
    if (row.version == firmware.version && row.first_release <= firmware.Number()) registers = row.registers;
  }
  return registers;
}

std::string FrameOf(const firmware::FirmwareId& firmware, std::string_view register_name) {
  const auto text = [](int frame, std::string_view title) {
    return std::to_string(frame) + " " + std::string(title);
  };
  // The first releases of V1300 have a frame for the address alone.
  if (firmware.version == "V1300" && firmware.Number() < 16 && register_name == "TCPIP")
    return text(21, "SET IP ADDRESS");
  const auto list = ListOf(firmware);
  for (const auto& row : kFrames) {
    if (row.name == register_name && (row.lists & list) != 0)
      return text(row.frame, row.title.empty() ? row.name : row.title);
  }
  for (const auto& row : kModelFrames) {
    if (row.name == register_name && list == kModels) return text(row.frame, row.name);
  }
  return {};
}

const std::vector<OptionControl>& OptionControls() {
  static const firmware::FirmwareId kR12{"V1400", "R12"}, kR4{"V1400", "R4"}, kV1310R1{"V1310", "R1"},
      kV1324R26{"V1324", "R26"};
  static const std::vector wiring = {kMinor, RX_BAUDRATE, TX_BAUDRATE, COMMCFG_BAK, TIMESTAMP_ENA};
  static const std::vector<OptionControl> rows = {
      {0, "ComboAddress", {kMinor}, {kR12, "ADDRESSABLE OVL", 256}},
      {1, "ComboDisplay", {kMinor}, {kR12, "ADS", 2}},
      {2, "OpDelta", {kMinor}, {kR12, "DELTA SONO 3.1", 4}},
      {3, "OpDYWAYE", {kMinor, RX_BAUDRATE, TX_BAUDRATE}, {kR4, "DRESSER WAYNE"}},
      {4, "OpEDA", {kMinor}, {kR12, "EDACOM", 2}},
      {5, "ComboDeviceADD", {kMinor}, {kR12, "GASBOY", 18}},
      {5, "ComboDeviceGas", {GTITLE_NF_BAK}, {kR12, "GASBOY", 3}},
      {6, "OpGilbraco", {kMinor}, {kR12, "GILBARCO"}},
      {6, "ComboXML", {kExt2}, {kR12, "", 2}},
      {6, "Label84"},
      {6, "Label85"},
      {7, "ComboDIPMIXED", {kMinor}, {kR12, "SCHLUMBERGER", 3}},
      {8, "OpMicrelec", {UNITADDR, kMinor, RX_BAUDRATE, TX_BAUDRATE, COMMCFG_BAK}, {kR12, "MICRELEC"}},
      {8, "OpMicrelec9500", {kMinor, UNITADDR, RX_BAUDRATE, TX_BAUDRATE, COMMCFG_BAK}},
      {9, "OpMicros", {kMinor, MICROS_STATUS}, {kR12, "MICROS"}},
      {9, "cmdMicros"},
      {10, "OpNCR", {kMinor}, {kR4, "NCR", 7}},
      {11, "OpBEETLE", {kMinor}, {kV1310R1, "NIXDORF BEETLE", 2}},
      {11, "OpBEETLE", {kMinor}, {kV1324R26, "BEETLE 50 PRINTERS", 2}},
      {12, "ComboWoring", wiring, {kR12, "NORAND 1200"}},
      {12, "ComboTITLEDIP", {GTITLE_NF_BAK, DSPCFG_BAK, DSPLINES_BAK}, {kR12, "NORAND 1200"}},
      {12, "ComboCONSOLEID", {DV_ADDRIND_BAK}, {kR12, "NORAND 1200", 9}},
      {13, "ComboPana(0)", {GTITLE_NF_BAK}, {kR12, "PANASONIC", 2}},
      {13, "ComboPana(1)", wiring, {kR12, "PANASONIC"}},
      {14, "OpSharp", {kMinor}, {kR4, "SHARP"}},
      {15, "ComboSICOM", {kMinor, RX_BAUDRATE, TX_BAUDRATE}, {kR12, "SICOM"}},
      {16, "OpSun", {kMinor}, {kR12, "SUNTRONIC", 2}},
      {17, "ComboTCI_ID(0)", {TCIADDBAK_3, RX_BAUDRATE, TX_BAUDRATE, IOCFG_BAK, COMMCFG_BAK}, {kR12, "TCI"}},
      {17, "ComboTCI_ID(1)", {TCIADDBAK_2, RX_BAUDRATE, TX_BAUDRATE, IOCFG_BAK, COMMCFG_BAK}, {kR12, "TCI"}},
      {17, "ComboTCI_ID(2)", {TCIADDBAK_1, RX_BAUDRATE, TX_BAUDRATE, IOCFG_BAK, COMMCFG_BAK}, {kR12, "TCI"}},
      {18, "ComboUNI_ID(0)", {TCIADDBAK_1, TCIADDBAK_2, TCIADDBAK_3}},
      {18, "ComboUNI_ID(1)", {TCIADDBAK_2}, {kR12, "UNIWELL"}},
      {18, "ComboUNI_ID(2)", {TCIADDBAK_1}, {kR12, "MERIT"}},
      {18, "ComboUni", {kMinor}, {kR4, "UNIWELL UN4025", 2}},
      {18, "ComboUniFor14R7up", {kExt2}, {kR12, "MERIT", 2}},
      {18, "ComboUniFor14R7up", {kExt2}, {kR12, "UNIWELL", 2}},
      {19, "OpVerifone", {kMinor}, {kR12, "RIVA", 4}},
      {20, "ComboAddr", {kMinor}, {kR4, "UP3000/3300", 17}},
      {21, "ComboTCPIP(0)", {IPADDRESS}},
      {21, "ComboTCPIP(1)", {IPADDRESS}},
      {21, "ComboTCPIP(2)", {IPADDRESS}},
      {21, "ComboTCPIP(3)", {IPADDRESS}},
      {22, "ComboTk500(0)"},
      {22, "ComboTk500(1)", {kMinor, RX_BAUDRATE, TX_BAUDRATE}, {kV1310R1, "CASIO TK-T500"}},
      {23, "ComboCLARITYEPOS", {UNITADDR}, {kR12, "CLARITY EPOS", 256}},
      {24, "OpRI_QT2", {kExt2, kMinor}, {kR12, "EPSON GENERIC"}},
      {24, "OpRI_QT2", {kMinor, kExt2}, {kR4, "EPSON GENERIC"}},
      {25, "OpNIXDORF", {kExt2, kMinor}, {kR12, "OMEGA 2000"}},
      {25, "OpNIXDORF", {kMinor, kExt2}, {kR4, "OMEGA 2000"}},
      {26, "OpNUCP", {kMinor}, {kV1310R1, "WEIGH SCALE", 3}},
      {26, "OpNUCP", {kMinor}, {kV1324R26, "NUCLEUS PRINTER", 3}},
      {27, "OpA410", {kMinor}, {kV1324R26, "SHARP ER-A410 420", 4}},
      {28, "OpSHARPUP600", {kMinor, RX_BAUDRATE, TX_BAUDRATE}, {kR4, "SHARP UP600/700"}},
      {29, "ComboTE2200(0)"},
      {29, "ComboTE2200(1)", {kMinor, RX_BAUDRATE, TX_BAUDRATE}, {kV1310R1, "CASIO TE-2200"}},
      {30, "ComboTCPIP(4)", {IPADDRESS}},
      {30, "ComboTCPIP(5)", {IPADDRESS}},
      {30, "ComboTCPIP(6)", {IPADDRESS}},
      {30, "ComboTCPIP(7)", {IPADDRESS}},
      {30, "ComboTCPINFO", {kMinor}},
      {31, "ComboTEC(0)"},
      {31, "ComboTEC(1)", {kMinor, RX_BAUDRATE, TX_BAUDRATE}, {kV1310R1, "TEC SLIP PRINTER EMULATE"}},
      {32, "OpWEIGHS", {kMinor}, {kR12, "WEIGH SCALE", 9}},
      {33, "BleepOP", {kMinor}, {kR12, "BLEEP", 2}},
      {34, "CASIOOP", {kMinor}, {kR12, "CASIO"}},
      {34, "Command1"},
      {35, "DIGIOP", {kMinor}, {kR12, "DIGIPOS", 4}},
      {36, "POSOP", {kMinor, kExt2, RX_BAUDRATE, TX_BAUDRATE, IOCFG_BAK}},
      {36, "TEROP", {kMinor, kExt1, kExt2, RX_BAUDRATE, TX_BAUDRATE, IOCFG_BAK}},
      {36, "PRNOP", {kMinor, kExt1, kExt2, RX_BAUDRATE, TX_BAUDRATE, IOCFG_BAK}},
      {36, "SECUOP", {kMinor, kExt1, RX_BAUDRATE, TX_BAUDRATE, IOCFG_BAK}},
      {37, "EASYOP"},
      {38, "FUJIOP", {kMinor}, {kR12, "FUJITSU", 2}},
      {38, "Combo1", {kExt2}, {kR12, "FUJITSU", 2}},
      {39, "GELLEROP", {kMinor}, {kR12, "GELLER", 17}},
      {40, "IBMOP", {kMinor}, {kR12, "IBM"}},
      {40, "IBMCombo", {kExt2}, {kR12, "IBM", 3}, "IBMFrame"},
      {40, "RDSCombo", {kExt2}, {kR12, "", 2}, "IBMFrame"},
      {40, "Combo4610TF6", {kExt2}, {kR12, "", 2}, "IBMFrame"},
      {41, "ICLOP", {kMinor}, {kR12, "ICL"}},
      {41, "TEAMOP", {kExt2}, {kR12, "ICL", 2}, "POS2000"},
      {41, "POS50OP", {kExt2}, {kR12, "", 2}, "POS5000"},
      {42, "JCMOp", {kMinor}, {kR12, "JCM", 4}},
      {43, "NCROP", {kMinor}, {kR12, "NCR"}},
      {43, "JRNLRCPT_SLP_OP", {kExt2}, {kR12, "NCR", 3}, "NCRFrame"},
      {44, "NIXDORF14OP", {kMinor}, {kR12, "NIXDORF"}},
      {44, "BEETLEOp", {kExt2}, {kR12, "NIXDORF", 2}, "BEETLEFrm"},
      {44, "NIXDORF14OPSelect", {kExt2}, {kR12, "", 2}, "NIXDORFrm"},
      {45, "SamOP", {kMinor}, {kR12, "SAMSUNG", 14}},
      {46, "SharpOP", {kMinor}, {kR12, "SHARP"}},
      {46, "SharpCom"},
      {47, "TEAMPOSOP", {kExt2}, {kR12, "TEAM POS 2000", 2}},
      {48, "TECOP", {kMinor}, {kR12, "TEC"}},
      {48, "Command2"},
      {49, "UNIWOP", {kMinor}, {kR12, "UNIWELL"}},
      {50, "SenOP"},
      {50, "ST6105C", {kExt2}, {kR12, "SENSORS", 2}},
      {51, "ComboNE134", {kMinor}, {kV1310R1, "NE134 COUNTER", 256}},
      {52, "OpVWEIGHBRIDGE", {kMinor}, {kV1310R1, "VISHAY WEIGHBRIDGE", 2}},
      {53, "OpPoleDisplay", {kMinor}, {kV1310R1, "POLE DISPLAY", 2}},
      {kNoFrame, "FrmSubMenu.Combo1(1)", {kExt2}},
      {kNoFrame, "FrmSubMenu.Combo2", {kExt2}},
      {kNoFrame, "FrmSubMenu.Option1", {kExt2}},
      {kNoFrame, "FrmSubMenu.F1OP", {kExt1}},
      {kNoFrame, "frmMicros.cmdSetMicros", {DEVICE_INDEX_BAK, DV_ADDRIND_BAK, MICROS_STATUS}},
      {kNoFrame,
       "frmMicros.cmdISNset",
       {REGDV_TYPE_BAK, REG_GNA_BAK, REG_LNA_BAK, REG_IDNA_BAK, PCDV_TYPE_BAK, PC_GNA_BAK, PC_LNA_BAK,
        PC_IDNA_BAK}},
      {kNoFrame,
       "frmMicros.CMD3700Set",
       {kExt2, ECRDIGIT_1, ECRDIGIT_2, ECRDIGIT_3, ECRDIGIT_4, ECRDIGIT_5, ECRDIGIT_6, ECRDIGIT_7}},
      // The default image of the register, and what its options force.
      {kNoFrame, "ComboReg", {EXECENTRY,     COMMCFG_BAK,    IOCFG_BAK,        RX_BAUDRATE,    TX_BAUDRATE,
                              UNITADDR,      DV_ADDRIND_BAK, TCIADDBAK_1,      TCIADDBAK_2,    TCIADDBAK_3,
                              GTITLE_NF_BAK, GPS_CONFIG_BAK, DEVICE_INDEX_BAK, REGDV_TYPE_BAK, REG_GNA_BAK,
                              REG_LNA_BAK,   REG_IDNA_BAK,   PCDV_TYPE_BAK,    PC_GNA_BAK,     PC_LNA_BAK,
                              PC_IDNA_BAK,   MICROS_STATUS,  REGTYPE,          REGTYPE_MINOR,  REGTYPE_EXT1,
                              REGTYPE_EXT2,  IPADDRESS,      TIMESTAMP_ENA,    DSPCFG_BAK,     DSPLINES_BAK}},
  };
  return rows;
}

}  // namespace ovl::testing
