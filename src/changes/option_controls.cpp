#include "changes/option_controls.h"

#include <algorithm>

namespace ovl::changes {
namespace {

using enum image::FieldId;
using Frame = controls::OptionFrame;
using Field = image::FieldId;

constexpr std::string_view kIdn = "frmMicros.frmIDN";
constexpr std::string_view kIsn = "frmMicros.frmISN";
constexpr std::string_view k3700 = "frmMicros.frm3700";

constexpr OptionControl Row(Frame frame, std::string_view name, std::string_view label, Field field,
                            Field second, Field third) {
  return {frame, name, label, {}, {field, second, third}};
}

constexpr OptionControl Row(Frame frame, std::string_view name, std::string_view label,
                            Field field = REGTYPE_MINOR) {
  return Row(frame, name, label, field, field, field);
}

constexpr OptionControl Inner(std::string_view inner, OptionControl row) {
  row.inner = inner;
  return row;
}

constexpr OptionControl Micros(std::string_view panel, std::string_view name, Field field) {
  return Inner(panel, Row(Frame::kMicros, name, {}, field));
}

constexpr OptionControl IpNumber(Frame frame, std::string_view name, int entry) {
  auto row = Row(frame, name, {}, IPADDRESS);
  row.entry = entry;
  return row;
}

constexpr OptionControl Information(std::string_view name, int bit) {
  auto row = Row(Frame::kTcpip, name, {});
  row.bits = 1 << bit;
  return row;
}

constexpr std::array kOptions = {
    Row(Frame::kAddress, "ComboAddress", "Address"),
    Row(Frame::kDisplay, "ComboDisplay", "Display"),
    Row(Frame::kDelta, "OpDelta", "Printer"),
    Row(Frame::kDresserWayne, "OpDYWAYE", "Text source"),
    Row(Frame::kEdacom, "OpEDA", "Model"),
    Row(Frame::kGasboy, "ComboDeviceADD", "Device address"),
    Row(Frame::kGasboy, "ComboDeviceGas", "Device", GTITLE_NF_BAK),
    Row(Frame::kGilbarco, "OpGilbraco", "Model"),
    Row(Frame::kGilbarco, "ComboXML", "DESCRIPTION/XML", REGTYPE_EXT2),
    Row(Frame::kPrintout, "ComboDIPMIXED", "Display"),
    Row(Frame::kMicrelec, "OpMicrelec", "Display", REGTYPE_MINOR, UNITADDR, UNITADDR),
    Row(Frame::kMicrelec, "OpMicrelec9500", "Printer, 9500", REGTYPE_MINOR, UNITADDR, UNITADDR),
    Row(Frame::kMicros, "OpMicros", "Network"),
    Micros(kIdn, "ComboMICROS", DEVICE_INDEX_BAK),
    Micros(kIdn, "ComboMICROSADD", DV_ADDRIND_BAK),
    Micros(kIdn, "ComboMODE", MICROS_STATUS),
    Micros(kIsn, "ComboISN(0)", REGDV_TYPE_BAK),
    Micros(kIsn, "ComboISN(1)", REG_GNA_BAK),
    Micros(kIsn, "ComboISN(2)", REG_LNA_BAK),
    Micros(kIsn, "ComboISN(3)", REG_IDNA_BAK),
    Micros(kIsn, "ComboISN(4)", PCDV_TYPE_BAK),
    Micros(kIsn, "ComboISN(5)", PC_GNA_BAK),
    Micros(kIsn, "ComboISN(6)", PC_LNA_BAK),
    Micros(kIsn, "ComboISN(7)", PC_IDNA_BAK),
    Micros(k3700, "HandSHKCombo", REGTYPE_EXT2),
    Micros(k3700, "ECRNumber", ECRDIGIT_7),
    Micros(k3700, "ECRNumber", ECRDIGIT_6),
    Micros(k3700, "ECRNumber", ECRDIGIT_5),
    Micros(k3700, "ECRNumber", ECRDIGIT_4),
    Micros(k3700, "ECRNumber", ECRDIGIT_3),
    Micros(k3700, "ECRNumber", ECRDIGIT_2),
    Micros(k3700, "ECRNumber", ECRDIGIT_1),
    Row(Frame::kNcr, "OpNCR", "Model"),
    Row(Frame::kBeetlePrinters, "OpBEETLE", "Device"),
    Row(Frame::kNorand, "ComboWoring", "Wiring"),
    Row(Frame::kNorand, "ComboTITLEDIP", "Title display", GTITLE_NF_BAK),
    Row(Frame::kNorand, "ComboCONSOLEID", "Console ID", DV_ADDRIND_BAK),
    Row(Frame::kPanasonic, "ComboPana(0)", "Title display", GTITLE_NF_BAK),
    Row(Frame::kPanasonic, "ComboPana(1)", "Wiring"),
    Row(Frame::kSharp, "OpSharp", "Model"),
    Row(Frame::kSicom, "ComboSICOM", "Address"),
    Row(Frame::kSuntronic, "OpSun", "Model"),
    Row(Frame::kTci, "ComboTCI_ID(2)", "Address, first digit", TCIADDBAK_1),
    Row(Frame::kTci, "ComboTCI_ID(1)", "Address, second digit", TCIADDBAK_2),
    Row(Frame::kTci, "ComboTCI_ID(0)", "Address, third digit", TCIADDBAK_3),
    Row(Frame::kUniwellId, "ComboUni", "Addressing"),
    Row(Frame::kUniwellId, "ComboUniFor14R7up", "Addressing", REGTYPE_EXT2),
    Row(Frame::kUniwellId, "ComboUNI_ID(2)", "Register ID, first digit", TCIADDBAK_1),
    Row(Frame::kUniwellId, "ComboUNI_ID(1)", "Register ID, second digit", TCIADDBAK_2),
    Row(Frame::kUniwellId, "ComboUNI_ID(0)", "Register ID, third digit", TCIADDBAK_3),
    Row(Frame::kVerifone, "OpVerifone", "Printer"),
    Row(Frame::kUp3000, "ComboAddr", "Terminal"),
    IpNumber(Frame::kOldTcpip, "ComboTCPIP(0)", 1),
    IpNumber(Frame::kOldTcpip, "ComboTCPIP(1)", 2),
    IpNumber(Frame::kOldTcpip, "ComboTCPIP(2)", 3),
    IpNumber(Frame::kOldTcpip, "ComboTCPIP(3)", 4),
    Row(Frame::kCasioTk500, "ComboTk500(1)", "Mode"),
    Row(Frame::kClarity, "ComboCLARITYEPOS", "Address", UNITADDR),
    Row(Frame::kEpson, "OpRI_QT2", "Printer or display", REGTYPE_MINOR, REGTYPE_EXT2, REGTYPE_EXT2),
    Row(Frame::kNixdorfBeetle, "OpNIXDORF", "Printer", REGTYPE_MINOR, REGTYPE_EXT2, REGTYPE_EXT2),
    Row(Frame::kPrinterOrScale, "OpNUCP", "Device"),
    Row(Frame::kSharpA410, "OpA410", "Mode"),
    Row(Frame::kSharpUp600, "OpSHARPUP600", "Mode"),
    Row(Frame::kCasioTe2200, "ComboTE2200(1)", "Mode"),
    IpNumber(Frame::kTcpip, "ComboTCPIP(4)", 1),
    IpNumber(Frame::kTcpip, "ComboTCPIP(5)", 2),
    IpNumber(Frame::kTcpip, "ComboTCPIP(6)", 3),
    IpNumber(Frame::kTcpip, "ComboTCPIP(7)", 4),
    Information("ComboTCPINFO(0)", 0),
    Information("ComboTCPINFO(1)", 1),
    Information("ComboTCPINFO(2)", 2),
    Information("ComboTCPINFO(3)", 3),
    Row(Frame::kTec, "ComboTEC(1)", "Mode"),
    Row(Frame::kWeighScale, "OpWEIGHS", "Scale"),
    Row(Frame::kBleep, "BleepOP", "Model"),
    Row(Frame::kCasioModels, "CASIOOP", "Model"),
    Row(Frame::kDigipos, "DIGIOP", "Model"),
    Row(Frame::kDresserWayneModels, "POSOP", "Point of sale", REGTYPE_MINOR, REGTYPE_EXT1, REGTYPE_EXT2),
    Row(Frame::kDresserWayneModels, "TEROP", "Terminal", REGTYPE_MINOR, REGTYPE_EXT1, REGTYPE_EXT2),
    Row(Frame::kDresserWayneModels, "PRNOP", "Printer", REGTYPE_MINOR, REGTYPE_EXT1, REGTYPE_EXT2),
    Row(Frame::kDresserWayneModels, "SECUOP", "Security", REGTYPE_MINOR, REGTYPE_EXT1, REGTYPE_EXT1),
    Row(Frame::kFujitsu, "FUJIOP", "Model"),
    Row(Frame::kFujitsu, "Combo1", "Display", REGTYPE_EXT2),
    Row(Frame::kGeller, "GELLEROP", "Model"),
    Row(Frame::kIbm, "IBMOP", "Model"),
    Inner("IBMFrame", Row(Frame::kIbm, "IBMCombo", "Printer", REGTYPE_EXT2)),
    Inner("IBMFrame", Row(Frame::kIbm, "RDSCombo", "Printer", REGTYPE_EXT2)),
    Inner("IBMFrame", Row(Frame::kIbm, "Combo4610TF6", "Mode", REGTYPE_EXT2)),
    Row(Frame::kIcl, "ICLOP", "Model"),
    Inner("POS2000", Row(Frame::kIcl, "TEAMOP", "Software", REGTYPE_EXT2)),
    Inner("POS5000", Row(Frame::kIcl, "POS50OP", "Printer", REGTYPE_EXT2)),
    Row(Frame::kJcm, "JCMOp", "Model"),
    Row(Frame::kNcrModels, "NCROP", "Model"),
    Inner("NCRFrame", Row(Frame::kNcrModels, "JRNLRCPT_SLP_OP", "Printer of the 7059", REGTYPE_EXT2)),
    Row(Frame::kNixdorfModels, "NIXDORF14OP", "Model"),
    Inner("BEETLEFrm", Row(Frame::kNixdorfModels, "BEETLEOp", "Device", REGTYPE_EXT2)),
    Inner("NIXDORFrm", Row(Frame::kNixdorfModels, "NIXDORF14OPSelect", "Printer", REGTYPE_EXT2)),
    Row(Frame::kSamsung, "SamOP", "Model"),
    Row(Frame::kSharpModels, "SharpOP", "Model"),
    Row(Frame::kTeamPos, "TEAMPOSOP", "Software", REGTYPE_EXT2),
    Row(Frame::kTecModels, "TECOP", "Model"),
    Row(Frame::kUniwellModels, "UNIWOP", "Model"),
    Row(Frame::kSensors, "ST6105C", "Temperature", REGTYPE_EXT2),
    Row(Frame::kNe134, "ComboNE134", "Address"),
    Row(Frame::kWeighbridge, "OpVWEIGHBRIDGE", "Output"),
    Row(Frame::kPoleDisplay, "OpPoleDisplay", "Model"),
    Inner("FrmSubMenu.Frame1", Row(Frame::kNone, "FrmSubMenu.F1OP", "Port", REGTYPE_EXT1)),
    Inner("FrmSubMenu.Frame2", Row(Frame::kNone, "FrmSubMenu.Combo1(1)", "Mode", REGTYPE_EXT2)),
    Inner("FrmSubMenu.SharpSubMenuFrame", Row(Frame::kNone, "FrmSubMenu.Option1", "Mode", REGTYPE_EXT2)),
    Inner("FrmSubMenu.UP3000Frm", Row(Frame::kNone, "FrmSubMenu.Combo2", "Terminal", REGTYPE_EXT2)),
};

}  // namespace

bool OptionControl::Shows(image::FieldId field, int of_entry) const {
  return entry == of_entry && std::find(fields.begin(), fields.end(), field) != fields.end();
}

std::span<const OptionControl> OptionControls() {
  return kOptions;
}

std::optional<std::string> OptionWords(const ShadowProgram& program, const OptionControl& option) {
  const auto& form = program.Form().frmMain;
  const auto visible = [&](std::string_view name) {
    return controls::StateOf(program.Named(name).control).visible;
  };
  if (option.frame != controls::OptionFrame::kNone && !form.FrameOf(option.frame).visible)
    return std::nullopt;
  if ((!option.inner.empty() && !visible(option.inner)) || !visible(option.name)) return std::nullopt;
  return program.WordsOf(option.name);
}

}  // namespace ovl::changes
