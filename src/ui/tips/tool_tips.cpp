#include "ui/tips/tool_tips.h"

#include <algorithm>
#include <array>

#include "registers/options/option_rows.h"
#include "ui/tips/tip_texts.h"

namespace ovl::ui {
namespace {

constexpr std::array kTips{
    Tip{"frmMain", "ComboReg",
        "The register whose print stream the unit listens to. A pick takes in that register's "
        "default settings."},
    Tip{"frmMain", "OpDVR", "The video recorder that the unit feeds with its history data."},
    Tip{"frmMain", "ComboKLM4011(0)",
        "The address under which the recorder listens to the unit's history data."},
    Tip{"frmMain", "ComboKLM4011(1)",
        "The address under which the unit sends its history data to the recorder."},
    Tip{"frmMain", "ComboKLM4011(2)",
        "The address under which the recorder listens to the unit's history data."},
    Tip{"frmMain", "ComboKLM4011(3)",
        "The address under which the unit sends its history data to the recorder."},
    Tip{"frmMain", "CmdUpDow(0)",
        "Reads the unit's whole configuration into this program. The unit leaves remote mode."},
    Tip{"frmMain", "CmdUpDow(1)",
        "Writes the configuration shown here into the unit. The unit leaves remote mode."},
    Tip{"frmMain", "CmdUpDow(2)",
        "Sets the unit's clock to the date and time shown. The unit leaves remote mode."},
    Tip{"frmMain", "CmdUpDow(3)", "Reads the unit's history into a text file. The unit leaves remote mode."},
    Tip{"frmMain", "CmdUpDow(4)",
        "Asks the unit for remote mode, in which it obeys this program; pressed again, ends remote mode."},
    Tip{"frmMain", "CmdUpDow(5)", "Puts the unit back to its factory settings at once, without a question."},
    Tip{"frmMain", "cmdConnect", "Chooses and opens the serial port to which the unit is wired."},
    Tip{"frmMain", "cmdDisConnect", "Ends remote mode and closes the serial port."},
    Tip{"frmMain", "CheckTD", "The date and time below follow this computer's clock."},
    Tip{"frmMain", "ComboMonth", "The month that SET TIME gives to the unit's clock."},
    Tip{"frmMain", "ComboDay", "The day that SET TIME gives to the unit's clock."},
    Tip{"frmMain", "ComboYear", "The year that SET TIME gives to the unit's clock."},
    Tip{"frmMain", "ComboHR", "The hour that SET TIME gives to the unit's clock."},
    Tip{"frmMain", "ComboMin", "The minute that SET TIME gives to the unit's clock."},
    Tip{"frmMain", "ComboSec", "The second that SET TIME gives to the unit's clock."},
    Tip{"frmMain", "vbalProgressBar1", "The progress of the transfer."},
    Tip{"frmSettSR", "Comport_Select", "The serial port to which the unit is wired."},
    Tip{"frmSettSR", "OpBaud", "The baud rate of the unit; both ends must agree."},
    Tip{"frmSettSR", "OpDataBits", "Data bits of a character; both ends must agree."},
    Tip{"frmSettSR", "OpParity", "Parity of a character; both ends must agree."},
    Tip{"frmSettSR", "cmdSET", "Opens the port with these settings."},
    Tip{"frmSettSR", "BaudrateCMD", "Asks the unit at one rate after the other until it answers."},
    Tip{"frmScanBProgress", "Command1", "Ends the scan and closes the port."},
};

const Tip* FindTip(std::string_view form, std::string_view control) {
  for (const auto tips : {std::span<const Tip>(kTips), RegisterWindowTips(), SettingTips(), TextTips()}) {
    const auto found = std::find_if(
        tips.begin(), tips.end(), [&](const Tip& tip) { return tip.form == form && tip.control == control; });
    if (found != tips.end()) return &*found;
  }
  return nullptr;
}

}  // namespace

QString ToolTipOf(std::string_view form, std::string_view control) {
  const auto* option = form == "frmMain" ? registers::FindOptionRow(control) : nullptr;
  if (option != nullptr && !option->tip.empty())
    return QString::fromLatin1(option->tip.data(), static_cast<qsizetype>(option->tip.size()));
  const auto* tip = FindTip(form, control);
  if (tip == nullptr) tip = FindTip(form, control.substr(0, control.find('(')));
  return tip == nullptr ? QString() : QString::fromLatin1(tip->text);
}

}  // namespace ovl::ui
