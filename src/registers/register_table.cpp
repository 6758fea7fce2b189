#include "registers/register_table.h"

#include <array>

#include "registers/options/assignments.h"

namespace ovl::registers {
namespace {

using enum image::FieldId;
using core::Place;
using firmware::FamilySet;
using Row = RegisterRow;
using Frame = controls::OptionFrame;
using Form = controls::RegisterOptions;

constexpr FamilySet kV1400 = firmware::kFamily1400;
constexpr FamilySet kV1300 = firmware::kFamily1300;
constexpr FamilySet kV1310 = firmware::kFamily1310;
constexpr FamilySet kV1324 = firmware::kFamily1324;
constexpr FamilySet kV1334 = firmware::kFamily1334;
// Two lines of lists: V1300 with V1310, and V1324 with V1334. V1400 has the registers of both.
constexpr FamilySet kLine1300 = kV1300 | kV1310;
constexpr FamilySet kLine1324 = kV1324 | kV1334;
constexpr FamilySet kWith1300 = kV1400 | kLine1300;
constexpr FamilySet kWith1324 = kV1400 | kLine1324;

// The V1400 model lists begin with this release.
constexpr int kModels = 7;

// Rows in which one option array or one list shows one byte.
constexpr Row Options(std::string_view key, FamilySet families, Frame frame, std::string_view title,
                      controls::OptionArray Form::*array, image::FieldId from = REGTYPE_MINOR) {
  return {key, families, frame, title, AssignArray, array, nullptr, from};
}

constexpr Row Selection(std::string_view key, FamilySet families, Frame frame, std::string_view title,
                        controls::List Form::*list, image::FieldId from = REGTYPE_MINOR) {
  return {key, families, frame, title, AssignList, nullptr, list, from};
}

constexpr Row By(std::string_view key, FamilySet families, Frame frame, std::string_view title,
                 bool (*assign)(core::Application&, const Row&)) {
  return {key, families, frame, title, assign};
}

constexpr Row Below(int release, Row row) {
  row.last_release = release - 1;
  return row;
}

constexpr Row From(int release, Row row) {
  row.first_release = release;
  return row;
}

constexpr std::array kRegisters = {
    Below(16, By("TCPIP", kV1300, Frame::kOldTcpip, "SET IP ADDRESS", AssignOldTcpip)),
    From(16, By("TCPIP", kV1300, Frame::kTcpip, "IP AND INFORMATION CONFIG", AssignTcpip)),
    By("TCPIP", kV1400 | kLine1324 | kV1310, Frame::kTcpip, "IP AND INFORMATION CONFIG", AssignTcpip),
    Selection("ADDRESSABLE OVL", kWith1300 | kV1334, Frame::kAddress, "SET ADDRESS", &Form::ComboAddress),
    Selection("ADS", kWith1300, Frame::kDisplay, "ADS SET DISPLAY", &Form::ComboDisplay),
    Options("DELTA SONO 3.1", kWith1300, Frame::kDelta, "DELTA SETTING", &Form::OpDelta),
    Below(kModels,
          Options("DRESSER WAYNE", kV1400, Frame::kDresserWayne, "DRESSER WAYNE SETTING", &Form::OpDYWAYE)),
    From(kModels, By("DRESSER WAYNE", kV1400, Frame::kDresserWayneModels, "DRESSER WAYNE SETTING",
                     AssignDresserWayne)),
    Options("DRESSER WAYNE", kV1300 | kLine1324 | kV1310, Frame::kDresserWayne, "DRESSER WAYNE SETTING",
            &Form::OpDYWAYE),
    Options("EDACOM", kWith1300, Frame::kEdacom, "SET MODEL", &Form::OpEDA),
    Options("EDACOM", kLine1324, Frame::kEdacom, "EDACOM MODEL SETTING ", &Form::OpEDA),
    Below(kModels,
          Selection("FUJITSU", kV1400, Frame::kDisplay, "FUJITSU 9920 SET DISPLAY", &Form::ComboDisplay)),
    From(kModels, By("FUJITSU", kV1400, Frame::kFujitsu, "FUJITSU SETTINGS", AssignFujitsu)),
    Selection("FUJITSU", kLine1300, Frame::kDisplay, "FUJITSU 9920 SET DISPLAY", &Form::ComboDisplay),
    By("GASBOY", kWith1300, Frame::kGasboy, "GASBOY SETTING", AssignGasboy),
    By("GILBARCO", kWith1300, Frame::kGilbarco, "GILBRACO", AssignGilbarco),
    By("IBM3151 TERMINAL", kWith1300, Frame::kPrintout, "", AssignIbm3151),
    Selection("IBM RDS", kWith1300, Frame::kDisplay, "IBM RDS SET DISPLAY", &Form::ComboDisplay),
    By("MICRELEC", kWith1300, Frame::kMicrelec, "MICRELEC MODE", AssignMicrelec),
    By("MICROS", kWith1300, Frame::kMicros, "MICROS", AssignMicros),
    By("NCR", kWith1300, Frame::kNcr, "NCR MODEL", AssignNcr),
    Options("BEETLE 50 PRINTERS", kWith1300, Frame::kBeetlePrinters, "NIXDORF BEETLE", &Form::OpBEETLE),
    Options("BEETLE 50 PRINTERS", kLine1324, Frame::kBeetlePrinters, "Beetle/50 Printers SETTING",
            &Form::OpBEETLE),
    By("NORAND 1200", kWith1300, Frame::kNorand, "NORAND", AssignNorand),
    By("PANASONIC", kWith1300, Frame::kPanasonic, "PANASONIC", AssignPanasonic),
    Below(kModels, Options("SHARP", kV1400, Frame::kSharp, "SHARP MODEL", &Form::OpSharp)),
    From(kModels, By("SHARP", kV1400, Frame::kSharpModels, "SHARP MODEL", AssignSharpModels)),
    Options("SHARP", kLine1300, Frame::kSharp, "SHARP MODEL", &Form::OpSharp),
    Selection("SICOM", kWith1300, Frame::kSicom, "SICOM", &Form::ComboSICOM),
    Options("SUNTRONIC", kWith1300, Frame::kSuntronic, "SUNTRONIC", &Form::OpSun),
    By("TCI", kWith1300, Frame::kTci, "TCI ADDRESS", AssignTci),
    Below(kModels, By("UNIWELL MODEL", kV1400, Frame::kUniwellId, "UNIWELL", AssignUniwell)),
    From(kModels, By("UNIWELL MODEL", kV1400, Frame::kUniwellModels, "UNIWELL", AssignUniwellModels)),
    By("UNIWELL MODEL", kLine1300, Frame::kUniwellId, "UNIWELL", AssignUniwell),
    Options("VERIFONE", kWith1300, Frame::kVerifone, "VERIFONE", &Form::OpVerifone),
    Selection("UP3000 3300", kWith1300, Frame::kUp3000, "UP3000/UP3300", &Form::ComboAddr),
    By("CASIO TK-T500", kV1400 | kLine1324 | kV1310, Frame::kCasioTk500, "", AssignTk500),
    By("CASIO TE-2200", kV1400 | kLine1324 | kV1310, Frame::kCasioTe2200, "", AssignTe2200),
    By("CLARITY EPOS", kV1400, Frame::kClarity, "CLARITY EPOS SETTING", AssignClarity),
    By("CLARITY EPOS", kLine1324, Frame::kClarity, "", AssignClarity),
    By("EPSON GENERIC", kV1400 | kLine1324 | kV1310, Frame::kEpson, "", AssignEpson),
    Options("NIXDORF BEETLE", kWith1324, Frame::kNixdorfBeetle, "NIXDORF BEETLE SETTING", &Form::OpNIXDORF),
    By("NUCLEUS PRINTER", kWith1324, Frame::kPrinterOrScale, "NUCLEUS PRINTER SETTING", AssignNucleus),
    By("ODOMETER", kWith1324, Frame::kNone, "", AssignOdometer),
    Below(kModels,
          Options("OMEGA 2000", kV1400, Frame::kNixdorfBeetle, "OMEGA 2000 SETTING", &Form::OpNIXDORF)),
    From(kModels, Options("OMEGA 2000", kV1400, Frame::kNixdorfBeetle, "OMEGA 2000 SETTING", &Form::OpNIXDORF,
                          REGTYPE_EXT2)),
    Options("OMEGA 2000", kLine1324, Frame::kNixdorfBeetle, "OMEGA 2000 SETTING", &Form::OpNIXDORF),
    By("SCHLUMBERGER", kWith1324, Frame::kPrintout, "", AssignSchlumberger),
    Selection("SHARP 750 ER-01PU", kWith1324, Frame::kDisplay, " SHARP 750 ER-01PU SET DISPLAY",
              &Form::ComboDisplay),
    Options("SHARP ER-A410 420", kWith1324, Frame::kSharpA410, "", &Form::OpA410),
    Options("SHARP UP600", kWith1324, Frame::kSharpUp600, "", &Form::OpSHARPUP600),
    Selection("SPEDI CCTV", kWith1324, Frame::kAddress, "SPEDI CCTV SET ADDRESS", &Form::ComboAddress),
    Options("TKMAXX", kWith1324, Frame::kNixdorfBeetle, "TKMAXX SETTING", &Form::OpNIXDORF),
    By("WEIGH SCALE", kV1400, Frame::kWeighScale, "", AssignScaleModels),
    By("WEIGH SCALE", kLine1324 | kV1310, Frame::kPrinterOrScale, "WEIGH SCALE SETTING", AssignScale),
    Below(kModels, By("TEC", kV1400, Frame::kTec, "", AssignTec)),
    From(kModels, By("TEC", kV1400, Frame::kTecModels, "", AssignTecModels)),
    By("TEC", kLine1324 | kV1310, Frame::kTec, "", AssignTec),
    By("SENSORS", kWith1300, Frame::kSensors, "", AssignSensors),
    Options("BLEEP", kV1400, Frame::kBleep, "", &Form::BleepOP),
    By("CASIO", kV1400, Frame::kCasioModels, "", AssignCasio),
    Options("DIGIPOS", kV1400, Frame::kDigipos, "", &Form::DIGIOP),
    By("EASY2TOUCH", kV1400, Frame::kEasyTouch, "EASY2TOUCH", AssignEasyTouch),
    By("EUROPAD", kV1400, Frame::kEasyTouch, "EUROPAD", AssignEuropad),
    By("POSIFLEX", kV1400, Frame::kEasyTouch, "POSIFLEX", AssignPosiflex),
    Options("GELLER", kV1400, Frame::kGeller, "", &Form::GELLEROP),
    By("IBM", kV1400, Frame::kIbm, "", AssignIbm),
    By("ICL", kV1400, Frame::kIcl, "", AssignIcl),
    By("I-CNTRL INT JAVELIN VIPER", kV1400, Frame::kUniwellId, "I-CNTRL INT JAVELIN VIPER", AssignSerialId),
    By("JCM", kV1400, Frame::kJcm, "JMC", AssignJcm),
    By("MERIT", kV1400, Frame::kUniwellId, "MERIT", AssignSerialId),
    By("NCR MODEL", kV1400, Frame::kNcrModels, "", AssignNcrModel),
    By("NIXDORF", kV1400, Frame::kNixdorfModels, "", AssignNixdorf),
    By("OMRON", kV1400, Frame::kJcm, "OMRON", AssignOmron),
    By("PAR", kV1400, Frame::kJcm, "PAR", AssignPar),
    By("PARAGON CLARITY SMARTPAD", kV1400, Frame::kClarity, "PARAGON CLARITY SMARTPAD", AssignClarity),
    By("PROSPER", kV1400, Frame::kJcm, "PROSPER", AssignProsper),
    Options("RIVA", kV1400, Frame::kVerifone, "RIVA", &Form::OpVerifone),
    Options("SAMSUNG", kV1400, Frame::kSamsung, "SAMSUNG", &Form::SamOP),
    Options("TEAM POS 2000", kV1400, Frame::kTeamPos, "TEAM POS 2000", &Form::TEAMPOSOP, REGTYPE_EXT2),
    By("VECTRON", kV1400, Frame::kJcm, "VECTRON", AssignVectron),
    Options("POLE DISPLAY", kV1310, Frame::kPoleDisplay, "", &Form::OpPoleDisplay),
    Selection("NE134 COUNTER", kV1310, Frame::kNe134, "SET ADDRESS", &Form::ComboNE134),
    Options("VISHAY WEIGHBRIDGE", kV1310, Frame::kWeighbridge, "", &Form::OpVWEIGHBRIDGE),
};

constexpr std::array kEditors = {
    core::Editor{UNITADDR, Place::kRegister, ""},        core::Editor{DV_ADDRIND_BAK, Place::kRegister, ""},
    core::Editor{TCIADDBAK_1, Place::kRegister, ""},     core::Editor{TCIADDBAK_2, Place::kRegister, ""},
    core::Editor{TCIADDBAK_3, Place::kRegister, ""},     core::Editor{GTITLE_NF_BAK, Place::kRegister, ""},
    core::Editor{REGTYPE, Place::kRegister, "ComboReg"}, core::Editor{REGTYPE_MINOR, Place::kRegister, ""},
    core::Editor{REGTYPE_EXT1, Place::kRegister, ""},    core::Editor{REGTYPE_EXT2, Place::kRegister, ""},
    core::Editor{IPADDRESS, Place::kRegister, ""},
};

}  // namespace

std::span<const RegisterRow> RegisterTable() {
  return kRegisters;
}

std::span<const core::Editor> RegisterEditors() {
  return kEditors;
}

}  // namespace ovl::registers
