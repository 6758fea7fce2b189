#include "ui/tips/tool_tips.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

#include "registers/options/option_rows.h"
#include "ui/tips/tip_texts.h"

namespace ovl::ui {
namespace {

constexpr std::array kTips{
    Tip{"frmMain", "ComboReg",
        QT_TRANSLATE_NOOP(
            "Tip",
            "The register that the unit listens to. A pick loads the default settings of this register.")},
    Tip{"frmMain", "OpDVR",
        QT_TRANSLATE_NOOP("Tip", "The video recorder to which the unit sends its history data.")},
    Tip{"frmMain", "ComboKLM4011(0)",
        QT_TRANSLATE_NOOP("Tip", "The address of the recorder that receives the history data.")},
    Tip{"frmMain", "ComboKLM4011(1)",
        QT_TRANSLATE_NOOP("Tip", "The address of the unit when it sends the history data.")},
    Tip{"frmMain", "ComboKLM4011(2)",
        QT_TRANSLATE_NOOP("Tip", "The address of the recorder that receives the history data.")},
    Tip{"frmMain", "ComboKLM4011(3)",
        QT_TRANSLATE_NOOP("Tip", "The address of the unit when it sends the history data.")},
    Tip{"frmMain", "CmdUpDow(0)",
        QT_TRANSLATE_NOOP("Tip",
                          "Reads the unit's whole configuration into this program. Press Remote first. The "
                          "unit then leaves remote mode.")},
    Tip{"frmMain", "CmdUpDow(1)",
        QT_TRANSLATE_NOOP("Tip",
                          "Writes the configuration shown here into the unit. Press Remote first. The unit "
                          "then leaves remote mode.")},
    Tip{"frmMain", "CmdUpDow(2)",
        QT_TRANSLATE_NOOP("Tip",
                          "Sets the unit's clock to the date and time shown. Press Remote first. The unit "
                          "then leaves remote mode.")},
    Tip{"frmMain", "CmdUpDow(3)",
        QT_TRANSLATE_NOOP("Tip",
                          "Reads the unit's history into a text file. Press Remote first. The unit then "
                          "leaves remote mode.")},
    Tip{"frmMain", "CmdUpDow(4)",
        QT_TRANSLATE_NOOP("Tip",
                          "Starts remote mode, in which the unit obeys this program. Press the button again "
                          "to end remote mode.")},
    Tip{"frmMain", "CmdUpDow(5)",
        QT_TRANSLATE_NOOP(
            "Tip",
            "Resets the unit to its factory settings at once, without a question. Press Remote first.")},
    Tip{"frmMain", "cmdConnect",
        QT_TRANSLATE_NOOP("Tip",
                          "Opens the window in which you choose and open the serial port of the unit.")},
    Tip{"frmMain", "cmdDisConnect", QT_TRANSLATE_NOOP("Tip", "Ends remote mode and closes the serial port.")},
    Tip{"frmMain", "CheckTD",
        QT_TRANSLATE_NOOP(
            "Tip", "SET TIME uses the clock of this computer. The lists below show its date and time.")},
    Tip{"frmMain", "ComboMonth",
        QT_TRANSLATE_NOOP("Tip", "The month to which SET TIME sets the clock of the unit.")},
    Tip{"frmMain", "ComboDay",
        QT_TRANSLATE_NOOP("Tip", "The day to which SET TIME sets the clock of the unit.")},
    Tip{"frmMain", "ComboYear",
        QT_TRANSLATE_NOOP("Tip", "The year to which SET TIME sets the clock of the unit.")},
    Tip{"frmMain", "ComboHR",
        QT_TRANSLATE_NOOP("Tip", "The hour to which SET TIME sets the clock of the unit.")},
    Tip{"frmMain", "ComboMin",
        QT_TRANSLATE_NOOP("Tip", "The minute to which SET TIME sets the clock of the unit.")},
    Tip{"frmMain", "ComboSec",
        QT_TRANSLATE_NOOP("Tip", "The second to which SET TIME sets the clock of the unit.")},
    Tip{"frmMain", "vbalProgressBar1", QT_TRANSLATE_NOOP("Tip", "The progress of the transfer.")},
    Tip{"frmSettSR", "Comport_Select",
        QT_TRANSLATE_NOOP("Tip", "The serial port to which the unit is connected.")},
    Tip{"frmSettSR", "OpBaud", QT_TRANSLATE_NOOP("Tip", "The baud rate. The unit must have the same.")},
    Tip{"frmSettSR", "OpDataBits",
        QT_TRANSLATE_NOOP("Tip", "The data bits of a character. The unit must have the same.")},
    Tip{"frmSettSR", "OpParity",
        QT_TRANSLATE_NOOP("Tip", "The parity of a character. The unit must have the same.")},
    Tip{"frmSettSR", "cmdSET", QT_TRANSLATE_NOOP("Tip", "Opens the port with these settings.")},
    Tip{"frmSettSR", "BaudrateCMD",
        QT_TRANSLATE_NOOP("Tip", "Tries one baud rate after the other until the unit answers.")},
    Tip{"frmScanBProgress", "Command1", QT_TRANSLATE_NOOP("Tip", "Ends the scan and closes the port.")},
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
    return QCoreApplication::translate("Tip", std::string(option->tip).c_str());
  const auto* tip = FindTip(form, control);
  if (tip == nullptr) tip = FindTip(form, control.substr(0, control.find('(')));
  return tip == nullptr ? QString() : QCoreApplication::translate("Tip", tip->text);
}

}  // namespace ovl::ui
