#include "ui/frames/register_frames.h"

#include <algorithm>
#include <array>

namespace ovl::ui {
namespace {

constexpr auto kBeside = Place::kBeside;

// Tips of more than one row.
constexpr std::string_view kReceiptOrJournal =
    "Which of the register's texts the unit shows: that of the receipt or that of the "
    "journal.";
constexpr std::string_view kModel = "The register's model, whose print stream the unit then reads.";
constexpr std::string_view kModelTapOrEmulate =
    "The register or printer whose print stream the unit reads; TAP listens, EMULATE "
    "answers as the printer.";
constexpr std::string_view kDevice = "The device of the register whose text the unit takes.";
constexpr std::string_view kTapOrAcknowledge =
    "Whether the unit only listens (TAP) or acknowledges what the register sends (ACK); "
    "also sets the register line.";
constexpr std::string_view kAddressDigit =
    "A digit of the register's address to which the unit listens; also sets the whole "
    "register line.";
constexpr std::string_view kGoesById = "Whether the unit goes by the register ID below.";
constexpr std::string_view kIdDigit = "A digit of the ID of the register to which the unit listens.";
constexpr std::string_view kShownIpNumber =
    "One of the four numbers of the IP address; this firmware shows it but keeps no "
    "change.";
constexpr std::string_view kFixedModel = "The model, which is fixed.";
constexpr std::string_view kTapOrEmulate =
    "Whether the unit listens to the printer line or answers as the printer; also sets "
    "the register line's speed.";
constexpr std::string_view kPrinter = "The printer whose text the unit takes.";
constexpr std::string_view kIpNumber =
    "One of the four numbers of the IP address from which the unit takes its text.";
constexpr std::string_view kOverlaidInformation =
    "Whether the unit lays this kind of information over the picture.";
constexpr std::string_view kModelWithSettings =
    "The register's model, whose print stream the unit then reads; a few open settings "
    "of their own.";
constexpr std::string_view kOpensSettings = "Opens the further settings of the chosen model, if it has any.";
constexpr std::string_view kSoftware =
    "The software that the register runs, which decides the form of its messages.";

constexpr std::array kRows = {
    FrameRow{0, "Address", "ComboAddress",
             "The address under which the register calls the unit; ANY takes the text of every "
             "address."},
    FrameRow{1, "Display", "ComboDisplay", kReceiptOrJournal},
    FrameRow{2, "Printer", "OpDelta", "The printer line to which the unit is wired, and the printer's make."},
    FrameRow{3, "Text source", "OpDYWAYE",
             "The printer or terminal whose text the unit takes; the choice also sets the "
             "register line's speed."},
    FrameRow{4, "Model", "OpEDA", kModel},
    FrameRow{5, "Device address", "ComboDeviceADD",
             "The address of the device whose text the unit takes; ANY takes them all."},
    FrameRow{5, "Device", "ComboDeviceGas", "The kind of device to whose line the unit listens."},
    FrameRow{6, "Model", "OpGilbraco", "The register system whose messages the unit reads."},
    FrameRow{6, "Label84", "ComboXML",
             "Whether the unit takes the descriptions out of the register's XML messages."},
    FrameRow{6, "", "Label85", {}},
    FrameRow{7, "Display", "ComboDIPMIXED", "Which of the register's texts the unit shows."},
    FrameRow{8, "Display", "OpMicrelec",
             "Whose display the unit follows; the choice also sets speed, parity and data bits of "
             "the register line."},
    FrameRow{8, "Printer, 9500", "OpMicrelec9500",
             "Which printer of the 9500 the unit follows; the choice also sets speed, parity and "
             "data bits of the register line.",
             1, kBeside},
    FrameRow{9, "Network", "OpMicros",
             "The network on which the unit hears the register; each but the first has settings "
             "of its own."},
    FrameRow{9, "Network settings", "cmdMicros", "Opens the settings of the chosen network."},
    FrameRow{10, "Model", "OpNCR", kModelTapOrEmulate},
    FrameRow{11, "Device", "OpBEETLE", kDevice},
    FrameRow{12, "Wiring", "ComboWoring", kTapOrAcknowledge},
    FrameRow{12, "Title display", "ComboTITLEDIP",
             "Whether the unit shows the title above the register's text; also switches TITLER."},
    FrameRow{12, "Console ID", "ComboCONSOLEID",
             "The console whose text the unit takes; ANY takes them all."},
    FrameRow{13, "Title display", "ComboPana(0)",
             "Whether the unit shows the title above the register's text."},
    FrameRow{13, "Wiring", "ComboPana(1)", kTapOrAcknowledge},
    FrameRow{14, "Model", "OpSharp", kModel, 2},
    FrameRow{15, "Address", "ComboSICOM",
             "The address of the register that the unit follows, ANY for all; also sets the "
             "register line's speed."},
    FrameRow{16, "Model", "OpSun", kModel},
    FrameRow{17, "Address", "ComboTCI_ID(2)", kAddressDigit},
    FrameRow{17, "", "ComboTCI_ID(1)", kAddressDigit, 1, kBeside},
    FrameRow{17, "", "ComboTCI_ID(0)", kAddressDigit, 1, kBeside},
    FrameRow{18, "Addressing", "ComboUni", kGoesById},
    FrameRow{18, "Addressing", "ComboUniFor14R7up", kGoesById},
    FrameRow{18, "Register ID", "ComboUNI_ID(2)", kIdDigit},
    FrameRow{18, "", "ComboUNI_ID(1)", kIdDigit, 1, kBeside},
    FrameRow{18, "", "ComboUNI_ID(0)", kIdDigit, 1, kBeside},
    FrameRow{19, "Printer", "OpVerifone",
             "The printer whose text the unit takes: by listening (TAPPING) or in the printer's "
             "place (EMULATING)."},
    FrameRow{20, "Terminal", "ComboAddr", "The terminal whose text the unit takes; ANY takes them all."},
    FrameRow{21, "IP  ADDRESS  1  :", "ComboTCPIP(0)", kShownIpNumber},
    FrameRow{21, "IP  ADDRESS  2  :", "ComboTCPIP(1)", kShownIpNumber},
    FrameRow{21, "IP  ADDRESS  3  :", "ComboTCPIP(2)", kShownIpNumber},
    FrameRow{21, "IP  ADDRESS  4  :", "ComboTCPIP(3)", kShownIpNumber},
    FrameRow{22, "Model", "ComboTk500(0)", kFixedModel},
    FrameRow{22, "Mode", "ComboTk500(1)", kTapOrEmulate},
    FrameRow{23, "Address", "ComboCLARITYEPOS",
             "The address of the register that the unit follows; ALL takes every one."},
    FrameRow{24, "Printer or display", "OpRI_QT2", "What hangs on the line to which the unit is wired.", 2},
    FrameRow{25, "Printer", "OpNIXDORF", kPrinter},
    FrameRow{26, "Device", "OpNUCP", "The device whose text the unit takes."},
    FrameRow{27, "Mode", "OpA410",
             "Whether the unit listens to the printer line (TAP) or answers as the printer "
             "(EMULATE); US for registers of the United States."},
    FrameRow{28, "Mode", "OpSHARPUP600",
             "Whether the unit listens (TAP) or answers as the printer (EMULATE); also sets the "
             "register line's speed."},
    FrameRow{29, "Model", "ComboTE2200(0)", kFixedModel},
    FrameRow{29, "Mode", "ComboTE2200(1)", kTapOrEmulate},
    FrameRow{30, "IP  ADDRESS  1   :", "ComboTCPIP(4)", kIpNumber},
    FrameRow{30, "IP  ADDRESS  2   :", "ComboTCPIP(5)", kIpNumber},
    FrameRow{30, "IP  ADDRESS  3   :", "ComboTCPIP(6)", kIpNumber},
    FrameRow{30, "IP  ADDRESS  4   :", "ComboTCPIP(7)", kIpNumber},
    FrameRow{30, "INFORMATION 0  :", "ComboTCPINFO(0)", kOverlaidInformation},
    FrameRow{30, "INFORMATION 1  :", "ComboTCPINFO(1)", kOverlaidInformation},
    FrameRow{30, "INFORMATION 2  :", "ComboTCPINFO(2)", kOverlaidInformation},
    FrameRow{30, "INFORMATION 3  :", "ComboTCPINFO(3)", kOverlaidInformation},
    FrameRow{31, "Model", "ComboTEC(0)", kFixedModel},
    FrameRow{31, "Mode", "ComboTEC(1)", kTapOrEmulate},
    FrameRow{32, "Scale", "OpWEIGHS", "The scale whose output the unit reads."},
    FrameRow{33, "Model", "BleepOP", kModel},
    FrameRow{34, "Model", "CASIOOP", kModelWithSettings, 3},
    FrameRow{34, "", "Command1", kOpensSettings},
    FrameRow{35, "Model", "DIGIOP", "The register's model or device, whose text the unit then reads."},
    FrameRow{36, "Point of sale", "POSOP",
             "The printer of the point of sale that the unit taps; also sets the register line."},
    FrameRow{36, "Terminal", "TEROP", "The terminal whose text the unit takes; also sets the register line.",
             1, kBeside},
    FrameRow{36, "Printer", "PRNOP", "The printer that the unit answers for; also sets the register line.", 1,
             kBeside},
    FrameRow{36, "Security", "SECUOP",
             "The unit takes the security messages of the register; also sets the register line.", 1,
             kBeside},
    FrameRow{37, "Model", "EASYOP", kModel},
    FrameRow{38, "Model", "FUJIOP", kModel},
    FrameRow{38, "Display", "Combo1", kReceiptOrJournal},
    FrameRow{39, "Model", "GELLEROP", kModel, 3},
    FrameRow{40, "Model", "IBMOP",
             "The register or printer whose text the unit reads; a few have a further choice "
             "below."},
    FrameRow{40, "Printer", "IBMCombo",
             "Which printer's text the unit takes from the terminal; MIXED takes both.", 1, Place::kBelow,
             "IBMFrame"},
    FrameRow{40, "Printer", "RDSCombo", "Which printer's text the unit takes from the register.", 1,
             Place::kBelow, "IBMFrame"},
    FrameRow{40, "Mode", "Combo4610TF6",
             "Whether the unit listens to the printer line (TAP) or answers as the printer "
             "(EMULATE).",
             1, Place::kBelow, "IBMFrame"},
    FrameRow{41, "Model", "ICLOP", kModel},
    FrameRow{41, "Software", "TEAMOP", kSoftware, 1, kBeside, "POS2000"},
    FrameRow{41, "Printer", "POS50OP", kPrinter, 1, kBeside, "POS5000"},
    FrameRow{42, "Model", "JCMOp", kModel},
    FrameRow{43, "Model", "NCROP", kModelTapOrEmulate, 2},
    FrameRow{43, "Printer of the 7059", "JRNLRCPT_SLP_OP",
             "The printer of the 7059 whose text the unit takes.", 1, kBeside, "NCRFrame"},
    FrameRow{44, "Model", "NIXDORF14OP", kModel},
    FrameRow{44, "Device", "BEETLEOp", kDevice, 1, kBeside, "BEETLEFrm"},
    FrameRow{44, "Printer", "NIXDORF14OPSelect", kPrinter, 1, kBeside, "NIXDORFrm"},
    FrameRow{45, "Model", "SamOP", kModel, 2},
    FrameRow{46, "Model", "SharpOP", kModelWithSettings, 3},
    FrameRow{46, "", "SharpCom", kOpensSettings},
    FrameRow{47, "Software", "TEAMPOSOP", kSoftware},
    FrameRow{48, "Model", "TECOP",
             "The register's model, whose print stream the unit then reads; the slip printer "
             "opens settings of its own.",
             2},
    FrameRow{48, "", "Command2", kOpensSettings},
    FrameRow{49, "Model", "UNIWOP",
             "The register's model, whose print stream the unit then reads; a few are told apart "
             "by an ID.",
             2},
    FrameRow{50, "Sensor", "SenOP", "The sensor whose readings the unit shows."},
    FrameRow{50, "Temperature", "ST6105C", "The scale in which the unit shows the temperature."},
    FrameRow{51, "Address", "ComboNE134", "The address of the counter that the unit reads."},
    FrameRow{52, "Output", "OpVWEIGHBRIDGE", "The output format of the weighbridge that the unit reads."},
    FrameRow{53, "Model", "OpPoleDisplay", "The make of the pole display whose line the unit reads."},
};

std::string_view ArrayOf(std::string_view control) {
  return control.substr(0, control.find('('));
}

}  // namespace

std::span<const FrameRow> RowsOfFrame(int frame) {
  const auto rows = std::equal_range(kRows.begin(), kRows.end(), FrameRow{frame, {}, {}, {}},
                                     [](const FrameRow& a, const FrameRow& b) { return a.frame < b.frame; });
  return {rows.first, rows.second};
}

std::string_view FrameTipOf(std::string_view control) {
  const auto found = std::find_if(kRows.begin(), kRows.end(), [control](const FrameRow& row) {
    return row.control == control || row.control == ArrayOf(control);
  });
  return found == kRows.end() ? std::string_view() : found->tip;
}

}  // namespace ovl::ui
