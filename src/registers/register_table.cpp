#include "registers/register_table.h"

#include <array>

#include "registers/assignments.h"

namespace ovl::registers {
namespace {

using enum image::FieldId;
using firmware::FamilySet;
using Row = RegisterRow;
using Form = controls::RegisterOptions;

constexpr FamilySet k4 = firmware::kFamily1400;
constexpr FamilySet k3 = firmware::kFamily1300;
constexpr FamilySet k1 = firmware::kFamily1310;
constexpr FamilySet k2 = firmware::kFamily1324;
constexpr FamilySet k5 = firmware::kFamily1334;
constexpr FamilySet k431 = k4 | k3 | k1;
constexpr FamilySet k31 = k3 | k1;
constexpr FamilySet k425 = k4 | k2 | k5;
constexpr FamilySet k125 = k1 | k2 | k5;
constexpr FamilySet k25 = k2 | k5;

// The V1400 model lists begin with this release.
constexpr int kModels = 7;

// One option array, or one list, from one byte.
constexpr Row Options(std::string_view key, FamilySet families, int frame, std::string_view title,
                      controls::OptionArray Form::*array, image::FieldId from = REGTYPE_MINOR) {
  return {key, families, frame, title, AssignArray, array, nullptr, from};
}

constexpr Row Selection(std::string_view key, FamilySet families, int frame, std::string_view title,
                        controls::List Form::*list, image::FieldId from = REGTYPE_MINOR) {
  return {key, families, frame, title, AssignList, nullptr, list, from};
}

constexpr Row By(std::string_view key, FamilySet families, int frame, std::string_view title,
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
    Below(16, By("TCPIP", k3, 21, "SET IP ADDRESS", AssignOldTcpip)),
    From(16, By("TCPIP", k3, 30, "IP AND INFORMATION CONFIG", AssignTcpip)),
    By("TCPIP", k4 | k125, 30, "IP AND INFORMATION CONFIG", AssignTcpip),
    Selection("ADDRESSABLE OVL", k431 | k5, 0, "SET ADDRESS", &Form::ComboAddress),
    Selection("ADS", k431, 1, "ADS SET DISPLAY", &Form::ComboDisplay),
    Options("DELTA SONO 3.1", k431, 2, "DELTA SETTING", &Form::OpDelta),
    Below(kModels, Options("DRESSER WAYNE", k4, 3, "DRESSER WAYNE SETTING", &Form::OpDYWAYE)),
    From(kModels, By("DRESSER WAYNE", k4, 36, "DRESSER WAYNE SETTING", AssignDresserWayne)),
    Options("DRESSER WAYNE", k3 | k125, 3, "DRESSER WAYNE SETTING", &Form::OpDYWAYE),
    Options("EDACOM", k431, 4, "SET MODEL", &Form::OpEDA),
    Options("EDACOM", k25, 4, "EDACOM MODEL SETTING ", &Form::OpEDA),
    Below(kModels, Selection("FUJITSU", k4, 1, "FUJITSU 9920 SET DISPLAY", &Form::ComboDisplay)),
    From(kModels, By("FUJITSU", k4, 38, "FUJITSU SETTINGS", AssignFujitsu)),
    Selection("FUJITSU", k31, 1, "FUJITSU 9920 SET DISPLAY", &Form::ComboDisplay),
    By("GASBOY", k431, 5, "GASBOY SETTING", AssignGasboy),
    By("GILBARCO", k431, 6, "GILBRACO", AssignGilbarco),
    By("IBM3151 TERMINAL", k431, 7, "", AssignIbm3151),
    Selection("IBM RDS", k431, 1, "IBM RDS SET DISPLAY", &Form::ComboDisplay),
    By("MICRELEC", k431, 8, "MICRELEC MODE", AssignMicrelec),
    By("MICROS", k431, 9, "MICROS", AssignMicros),
    By("NCR", k431, 10, "NCR MODEL", AssignNcr),
    Options("BEETLE 50 PRINTERS", k431, 11, "NIXDORF BEETLE", &Form::OpBEETLE),
    Options("BEETLE 50 PRINTERS", k25, 11, "Beetle/50 Printers SETTING", &Form::OpBEETLE),
    By("NORAND 1200", k431, 12, "NORAND", AssignNorand),
    By("PANASONIC", k431, 13, "PANASONIC", AssignPanasonic),
    Below(kModels, Options("SHARP", k4, 14, "SHARP MODEL", &Form::OpSharp)),
    From(kModels, By("SHARP", k4, 46, "SHARP MODEL", AssignSharpModels)),
    Options("SHARP", k31, 14, "SHARP MODEL", &Form::OpSharp),
    Selection("SICOM", k431, 15, "SICOM", &Form::ComboSICOM),
    Options("SUNTRONIC", k431, 16, "SUNTRONIC", &Form::OpSun),
    By("TCI", k431, 17, "TCI ADDRESS", AssignTci),
    Below(kModels, By("UNIWELL MODEL", k4, 18, "UNIWELL", AssignUniwell)),
    From(kModels, By("UNIWELL MODEL", k4, 49, "UNIWELL", AssignUniwellModels)),
    By("UNIWELL MODEL", k31, 18, "UNIWELL", AssignUniwell),
    Options("VERIFONE", k431, 19, "VERIFONE", &Form::OpVerifone),
    Selection("UP3000 3300", k431, 20, "UP3000/UP3300", &Form::ComboAddr),
    By("CASIO TK-T500", k4 | k125, 22, "", AssignTk500),
    By("CASIO TE-2200", k4 | k125, 29, "", AssignTe2200),
    By("CLARITY EPOS", k4, 23, "CLARITY EPOS SETTING", AssignClarity),
    By("CLARITY EPOS", k25, 23, "", AssignClarity),
    By("EPSON GENERIC", k4 | k125, 24, "", AssignEpson),
    Options("NIXDORF BEETLE", k425, 25, "NIXDORF BEETLE SETTING", &Form::OpNIXDORF),
    By("NUCLEUS PRINTER", k425, 26, "NUCLEUS PRINTER SETTING", AssignNucleus),
    By("ODOMETER", k425, Row::kNoFrame, "", AssignOdometer),
    Below(kModels, Options("OMEGA 2000", k4, 25, "OMEGA 2000 SETTING", &Form::OpNIXDORF)),
    From(kModels, Options("OMEGA 2000", k4, 25, "OMEGA 2000 SETTING", &Form::OpNIXDORF, REGTYPE_EXT2)),
    Options("OMEGA 2000", k25, 25, "OMEGA 2000 SETTING", &Form::OpNIXDORF),
    By("SCHLUMBERGER", k425, 7, "", AssignSchlumberger),
    Selection("SHARP 750 ER-01PU", k425, 1, " SHARP 750 ER-01PU SET DISPLAY", &Form::ComboDisplay),
    Options("SHARP ER-A410 420", k425, 27, "", &Form::OpA410),
    Options("SHARP UP600", k425, 28, "", &Form::OpSHARPUP600),
    Selection("SPEDI CCTV", k425, 0, "SPEDI CCTV SET ADDRESS", &Form::ComboAddress),
    Options("TKMAXX", k425, 25, "TKMAXX SETTING", &Form::OpNIXDORF),
    By("WEIGH SCALE", k4, 32, "", AssignScaleModels),
    By("WEIGH SCALE", k125, 26, "WEIGH SCALE SETTING", AssignScale),
    Below(kModels, By("TEC", k4, 31, "", AssignTec)),
    From(kModels, By("TEC", k4, 48, "", AssignTecModels)),
    By("TEC", k125, 31, "", AssignTec),
    By("SENSORS", k431, 50, "", AssignSensors),
    Options("BLEEP", k4, 33, "", &Form::BleepOP),
    By("CASIO", k4, 34, "", AssignCasio),
    Options("DIGIPOS", k4, 35, "", &Form::DIGIOP),
    By("EASY2TOUCH", k4, 37, "EASY2TOUCH", AssignEasyTouch),
    By("EUROPAD", k4, 37, "EUROPAD", AssignEuropad),
    By("POSIFLEX", k4, 37, "POSIFLEX", AssignPosiflex),
    Options("GELLER", k4, 39, "", &Form::GELLEROP),
    By("IBM", k4, 40, "", AssignIbm),
    By("ICL", k4, 41, "", AssignIcl),
    By("I-CNTRL INT JAVELIN VIPER", k4, 18, "I-CNTRL INT JAVELIN VIPER", AssignSerialId),
    By("JCM", k4, 42, "JMC", AssignJcm),
    By("MERIT", k4, 18, "MERIT", AssignSerialId),
    By("NCR MODEL", k4, 43, "", AssignNcrModel),
    By("NIXDORF", k4, 44, "", AssignNixdorf),
    By("OMRON", k4, 42, "OMRON", AssignOmron),
    By("PAR", k4, 42, "PAR", AssignPar),
    By("PARAGON CLARITY SMARTPAD", k4, 23, "PARAGON CLARITY SMARTPAD", AssignClarity),
    By("PROSPER", k4, 42, "PROSPER", AssignProsper),
    Options("RIVA", k4, 19, "RIVA", &Form::OpVerifone),
    Options("SAMSUNG", k4, 45, "SAMSUNG", &Form::SamOP),
    Options("TEAM POS 2000", k4, 47, "TEAM POS 2000", &Form::TEAMPOSOP, REGTYPE_EXT2),
    By("VECTRON", k4, 42, "VECTRON", AssignVectron),
    Options("POLE DISPLAY", k1, 53, "", &Form::OpPoleDisplay),
    Selection("NE134 COUNTER", k1, 51, "SET ADDRESS", &Form::ComboNE134),
    Options("VISHAY WEIGHBRIDGE", k1, 52, "", &Form::OpVWEIGHBRIDGE),
};

}  // namespace

std::span<const RegisterRow> RegisterTable() {
  return kRegisters;
}

}  // namespace ovl::registers
