#include "registers/options/option_rows.h"

#include <algorithm>
#include <array>

namespace ovl::registers {
namespace {

using enum image::FieldId;
using Frame = controls::OptionFrame;

// Tips of more than one row.
constexpr std::string_view kReceiptOrJournal =
    "Which text of the register the unit shows: the receipt or the journal.";
constexpr std::string_view kModel = "The model of the register.";
constexpr std::string_view kModelTapOrEmulate =
    "The register or printer whose text the unit reads. With TAP the unit listens. With EMULATE it answers "
    "as the printer.";
constexpr std::string_view kDevice = "The device of the register whose text the unit reads.";
constexpr std::string_view kTapOrAcknowledge =
    "Whether the unit only listens (TAP) or acknowledges what the register sends (ACK). A pick also sets the "
    "line settings.";
constexpr std::string_view kAddressDigit =
    "A digit of the address of the register that the unit listens to. A pick also sets the line settings.";
constexpr std::string_view kGoesById = "Whether the unit uses the register ID below.";
constexpr std::string_view kIdDigit = "A digit of the ID of the register that the unit listens to.";
constexpr std::string_view kShownIpNumber =
    "One of the four numbers of the IP address. With this firmware the program does not store a change.";
constexpr std::string_view kFixedModel = "The model. You cannot change it.";
constexpr std::string_view kTapOrEmulate =
    "Whether the unit listens to the printer line or answers as the printer. A pick also sets the baud rate "
    "of the register line.";
constexpr std::string_view kPrinter = "The printer whose text the unit reads.";
constexpr std::string_view kIpNumber =
    "One of the four numbers of the IP address from which the unit receives its text.";
constexpr std::string_view kOverlaidInformation =
    "Whether the unit writes this kind of information over the picture.";
constexpr std::string_view kModelWithSettings =
    "The model of the register. A few models have further settings.";
constexpr std::string_view kOpensSettings = "Opens further settings of the model, if it has any.";
constexpr std::string_view kSoftware =
    "The software of the register. The form of its messages depends on it.";

constexpr OptionRow Beside(OptionRow row) {
  row.beside = true;
  return row;
}

constexpr OptionRow Inside(std::string_view frame, OptionRow row) {
  row.inner = frame;
  return row;
}

constexpr OptionRow Columns(int columns, OptionRow row) {
  row.columns = columns;
  return row;
}

constexpr OptionRow NamedAlone(std::string_view label, OptionRow row) {
  row.label_alone = label;
  return row;
}

constexpr OptionRow Entry(int entry, OptionRow row) {
  row.entry = entry;
  return row;
}

constexpr OptionRow Bit(int bit, OptionRow row) {
  row.bits = 1 << bit;
  return row;
}

constexpr OptionRow kRows[] = {
    {Frame::kAddress, "Address", "ComboAddress",
     "The address to which the register sends the text for the unit. ANY means every address."},
    {Frame::kDisplay, "Display", "ComboDisplay", kReceiptOrJournal},
    {Frame::kDelta, "Printer", "OpDelta", "The printer and the line to which the unit is connected."},
    {Frame::kDresserWayne, "Text source", "OpDYWAYE",
     "The printer or terminal whose text the unit reads. A pick also sets the baud rate of the register "
     "line."},
    {Frame::kEdacom, "Model", "OpEDA", kModel},
    {Frame::kGasboy, "Device address", "ComboDeviceADD",
     "The address of the device whose text the unit reads. ANY means every device."},
    {Frame::kGasboy, "Device", "ComboDeviceGas", "The kind of device that the unit listens to.",
     kFields<GTITLE_NF_BAK>},
    {Frame::kGilbarco, "Model", "OpGilbraco", "The register system whose text the unit reads."},
    NamedAlone("DESCRIPTION/XML",
               {Frame::kGilbarco, "Label84", "ComboXML",
                "Whether the unit uses the descriptions in the XML messages of the register.",
                kFields<REGTYPE_EXT2>}),
    {Frame::kGilbarco, "", "Label85", {}, kNoField},
    {Frame::kPrintout, "Display", "ComboDIPMIXED", "Which text of the register the unit shows."},
    {Frame::kMicrelec, "Display", "OpMicrelec",
     "Which display the unit listens to. A pick also sets the baud rate, parity and data bits of the "
     "register line.",
     kFields<REGTYPE_MINOR, UNITADDR>},
    Beside({Frame::kMicrelec, "Printer, 9500", "OpMicrelec9500",
            "Which printer of the 9500 the unit listens to. A pick also sets the baud rate, parity and data "
            "bits of the register line.",
            kFields<REGTYPE_MINOR, UNITADDR>}),
    {Frame::kMicros, "Network", "OpMicros",
     "The network in which the unit listens to the register. All but the first have further settings."},
    {Frame::kMicros, "Network settings", "cmdMicros", "Opens the settings of the network that you picked.",
     kNoField},
    {Frame::kNcr, "Model", "OpNCR", kModelTapOrEmulate},
    {Frame::kBeetlePrinters, "Device", "OpBEETLE", kDevice},
    {Frame::kNorand, "Wiring", "ComboWoring", kTapOrAcknowledge},
    {Frame::kNorand, "Title display", "ComboTITLEDIP",
     "Whether the unit shows the title above the text of the register. A pick also sets TITLER.",
     kFields<GTITLE_NF_BAK>},
    {Frame::kNorand, "Console ID", "ComboCONSOLEID",
     "The console whose text the unit reads. ANY means every console.", kFields<DV_ADDRIND_BAK>},
    {Frame::kPanasonic, "Title display", "ComboPana(0)",
     "Whether the unit shows the title above the text of the register.", kFields<GTITLE_NF_BAK>},
    {Frame::kPanasonic, "Wiring", "ComboPana(1)", kTapOrAcknowledge},
    Columns(2, {Frame::kSharp, "Model", "OpSharp", kModel}),
    {Frame::kSicom, "Address", "ComboSICOM",
     "The address of the register that the unit listens to. ANY means every register. A pick also sets the "
     "baud rate of the register line."},
    {Frame::kSuntronic, "Model", "OpSun", kModel},
    NamedAlone("Address, first digit",
               {Frame::kTci, "Address", "ComboTCI_ID(2)", kAddressDigit, kFields<TCIADDBAK_1>}),
    Beside(NamedAlone("Address, second digit",
                      {Frame::kTci, "", "ComboTCI_ID(1)", kAddressDigit, kFields<TCIADDBAK_2>})),
    Beside(NamedAlone("Address, third digit",
                      {Frame::kTci, "", "ComboTCI_ID(0)", kAddressDigit, kFields<TCIADDBAK_3>})),
    {Frame::kUniwellId, "Addressing", "ComboUni", kGoesById},
    {Frame::kUniwellId, "Addressing", "ComboUniFor14R7up", kGoesById, kFields<REGTYPE_EXT2>},
    NamedAlone("Register ID, first digit",
               {Frame::kUniwellId, "Register ID", "ComboUNI_ID(2)", kIdDigit, kFields<TCIADDBAK_1>}),
    Beside(NamedAlone("Register ID, second digit",
                      {Frame::kUniwellId, "", "ComboUNI_ID(1)", kIdDigit, kFields<TCIADDBAK_2>})),
    Beside(NamedAlone("Register ID, third digit",
                      {Frame::kUniwellId, "", "ComboUNI_ID(0)", kIdDigit, kFields<TCIADDBAK_3>})),
    {Frame::kVerifone, "Printer", "OpVerifone",
     "The printer whose text the unit reads. The unit listens to it (TAPPING) or answers in its place "
     "(EMULATING)."},
    {Frame::kUp3000, "Terminal", "ComboAddr",
     "The terminal whose text the unit reads. ANY means every terminal."},
    {Frame::kOldTcpip, "IP  ADDRESS  1  :", "ComboTCPIP(0)", kShownIpNumber, kFields<IPADDRESS>},
    Entry(2, {Frame::kOldTcpip, "IP  ADDRESS  2  :", "ComboTCPIP(1)", kShownIpNumber, kFields<IPADDRESS>}),
    Entry(3, {Frame::kOldTcpip, "IP  ADDRESS  3  :", "ComboTCPIP(2)", kShownIpNumber, kFields<IPADDRESS>}),
    Entry(4, {Frame::kOldTcpip, "IP  ADDRESS  4  :", "ComboTCPIP(3)", kShownIpNumber, kFields<IPADDRESS>}),
    {Frame::kCasioTk500, "Model", "ComboTk500(0)", kFixedModel, kNoField},
    {Frame::kCasioTk500, "Mode", "ComboTk500(1)", kTapOrEmulate},
    {Frame::kClarity, "Address", "ComboCLARITYEPOS",
     "The address of the register that the unit listens to. ALL means every register.", kFields<UNITADDR>},
    Columns(2, {Frame::kEpson, "Printer or display", "OpRI_QT2",
                "The device whose line the unit is connected to.", kFields<REGTYPE_MINOR, REGTYPE_EXT2>}),
    {Frame::kNixdorfBeetle, "Printer", "OpNIXDORF", kPrinter, kFields<REGTYPE_MINOR, REGTYPE_EXT2>},
    {Frame::kPrinterOrScale, "Device", "OpNUCP", "The device whose text the unit reads."},
    {Frame::kSharpA410, "Mode", "OpA410",
     "Whether the unit listens to the printer line (TAP) or answers as the printer (EMULATE). US is for "
     "registers of the United States."},
    {Frame::kSharpUp600, "Mode", "OpSHARPUP600",
     "Whether the unit listens (TAP) or answers as the printer (EMULATE). A pick also sets the baud rate of "
     "the register line."},
    {Frame::kCasioTe2200, "Model", "ComboTE2200(0)", kFixedModel, kNoField},
    {Frame::kCasioTe2200, "Mode", "ComboTE2200(1)", kTapOrEmulate},
    {Frame::kTcpip, "IP  ADDRESS  1   :", "ComboTCPIP(4)", kIpNumber, kFields<IPADDRESS>},
    Entry(2, {Frame::kTcpip, "IP  ADDRESS  2   :", "ComboTCPIP(5)", kIpNumber, kFields<IPADDRESS>}),
    Entry(3, {Frame::kTcpip, "IP  ADDRESS  3   :", "ComboTCPIP(6)", kIpNumber, kFields<IPADDRESS>}),
    Entry(4, {Frame::kTcpip, "IP  ADDRESS  4   :", "ComboTCPIP(7)", kIpNumber, kFields<IPADDRESS>}),
    Bit(0, {Frame::kTcpip, "INFORMATION 0  :", "ComboTCPINFO(0)", kOverlaidInformation}),
    Bit(1, {Frame::kTcpip, "INFORMATION 1  :", "ComboTCPINFO(1)", kOverlaidInformation}),
    Bit(2, {Frame::kTcpip, "INFORMATION 2  :", "ComboTCPINFO(2)", kOverlaidInformation}),
    Bit(3, {Frame::kTcpip, "INFORMATION 3  :", "ComboTCPINFO(3)", kOverlaidInformation}),
    {Frame::kTec, "Model", "ComboTEC(0)", kFixedModel, kNoField},
    {Frame::kTec, "Mode", "ComboTEC(1)", kTapOrEmulate},
    {Frame::kWeighScale, "Scale", "OpWEIGHS", "The scale whose output the unit reads."},
    {Frame::kBleep, "Model", "BleepOP", kModel},
    Columns(3, {Frame::kCasioModels, "Model", "CASIOOP", kModelWithSettings}),
    {Frame::kCasioModels, "", "Command1", kOpensSettings, kNoField},
    {Frame::kDigipos, "Model", "DIGIOP", "The model or device whose text the unit reads."},
    {Frame::kDresserWayneModels, "Point of sale", "POSOP",
     "The printer of the point of sale that the unit listens to. A pick also sets the line settings.",
     kFields<REGTYPE_MINOR, REGTYPE_EXT1, REGTYPE_EXT2>},
    Beside({Frame::kDresserWayneModels, "Terminal", "TEROP",
            "The terminal whose text the unit reads. A pick also sets the line settings.",
            kFields<REGTYPE_MINOR, REGTYPE_EXT1, REGTYPE_EXT2>}),
    Beside({Frame::kDresserWayneModels, "Printer", "PRNOP",
            "The unit answers in place of this printer. A pick also sets the line settings.",
            kFields<REGTYPE_MINOR, REGTYPE_EXT1, REGTYPE_EXT2>}),
    Beside({Frame::kDresserWayneModels, "Security", "SECUOP",
            "The unit reads the security messages of the register. A pick also sets the line settings.",
            kFields<REGTYPE_MINOR, REGTYPE_EXT1>}),
    {Frame::kEasyTouch, "Model", "EASYOP", kModel, kNoField},
    {Frame::kFujitsu, "Model", "FUJIOP", kModel},
    {Frame::kFujitsu, "Display", "Combo1", kReceiptOrJournal, kFields<REGTYPE_EXT2>},
    Columns(3, {Frame::kGeller, "Model", "GELLEROP", kModel}),
    {Frame::kIbm, "Model", "IBMOP",
     "The register or printer whose text the unit reads. A few have a further list below."},
    Inside("IBMFrame", {Frame::kIbm, "Printer", "IBMCombo",
                        "The printer of the terminal whose text the unit reads. MIXED means both printers.",
                        kFields<REGTYPE_EXT2>}),
    Inside("IBMFrame", {Frame::kIbm, "Printer", "RDSCombo",
                        "The printer of the register whose text the unit reads.", kFields<REGTYPE_EXT2>}),
    Inside("IBMFrame", {Frame::kIbm, "Mode", "Combo4610TF6",
                        "Whether the unit listens to the printer line (TAP) or answers as the printer "
                        "(EMULATE).",
                        kFields<REGTYPE_EXT2>}),
    {Frame::kIcl, "Model", "ICLOP", kModel},
    Inside("POS2000", Beside({Frame::kIcl, "Software", "TEAMOP", kSoftware, kFields<REGTYPE_EXT2>})),
    Inside("POS5000", Beside({Frame::kIcl, "Printer", "POS50OP", kPrinter, kFields<REGTYPE_EXT2>})),
    {Frame::kJcm, "Model", "JCMOp", kModel},
    Columns(2, {Frame::kNcrModels, "Model", "NCROP", kModelTapOrEmulate}),
    Inside("NCRFrame", Beside({Frame::kNcrModels, "Printer of the 7059", "JRNLRCPT_SLP_OP",
                               "The printer of the 7059 whose text the unit reads.", kFields<REGTYPE_EXT2>})),
    {Frame::kNixdorfModels, "Model", "NIXDORF14OP", kModel},
    Inside("BEETLEFrm",
           Beside({Frame::kNixdorfModels, "Device", "BEETLEOp", kDevice, kFields<REGTYPE_EXT2>})),
    Inside("NIXDORFrm",
           Beside({Frame::kNixdorfModels, "Printer", "NIXDORF14OPSelect", kPrinter, kFields<REGTYPE_EXT2>})),
    Columns(2, {Frame::kSamsung, "Model", "SamOP", kModel}),
    Columns(3, {Frame::kSharpModels, "Model", "SharpOP", kModelWithSettings}),
    {Frame::kSharpModels, "", "SharpCom", kOpensSettings, kNoField},
    {Frame::kTeamPos, "Software", "TEAMPOSOP", kSoftware, kFields<REGTYPE_EXT2>},
    Columns(2, {Frame::kTecModels, "Model", "TECOP",
                "The model of the register. The slip printer has further settings."}),
    {Frame::kTecModels, "", "Command2", kOpensSettings, kNoField},
    Columns(
        2, {Frame::kUniwellModels, "Model", "UNIWOP", "The model of the register. A few models have an ID."}),
    {Frame::kSensors, "Sensor", "SenOP", "The sensor whose readings the unit shows.", kNoField},
    {Frame::kSensors, "Temperature", "ST6105C", "The scale in which the unit shows the temperature.",
     kFields<REGTYPE_EXT2>},
    {Frame::kNe134, "Address", "ComboNE134", "The address of the counter that the unit listens to."},
    {Frame::kWeighbridge, "Output", "OpVWEIGHBRIDGE", "The output format of the weighbridge."},
    {Frame::kPoleDisplay, "Model", "OpPoleDisplay", "The make of the pole display that the unit listens to."},
};

}  // namespace

bool OptionRow::Shows(image::FieldId field, int of_entry) const {
  return entry == of_entry && std::find(fields.begin(), fields.end(), field) != fields.end();
}

std::span<const OptionRow> OptionRows() {
  return kRows;
}

std::span<const OptionRow> RowsOfFrame(controls::OptionFrame frame) {
  const auto is_of_frame = [frame](const OptionRow& row) { return row.frame == frame; };
  const auto* first = std::find_if(std::begin(kRows), std::end(kRows), is_of_frame);
  return {first, std::find_if_not(first, std::end(kRows), is_of_frame)};
}

const OptionRow* FindOptionRow(std::string_view control) {
  const auto array = control.substr(0, control.find('('));
  const auto* found = std::find_if(std::begin(kRows), std::end(kRows), [&](const OptionRow& row) {
    return row.control == control || row.control == array;
  });
  return found == std::end(kRows) ? nullptr : found;
}

}  // namespace ovl::registers
