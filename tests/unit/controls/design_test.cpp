// The forms before the program starts: their captions are those of the help, and controls that depend on a
// firmware or a state are hidden or disabled.
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>

#include "core/application.h"

namespace ovl::testing {
namespace {

std::string Bare(std::string caption) {
  const auto first = caption.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  caption = caption.substr(first, caption.find_last_not_of(' ') + 1 - first);
  if (caption.back() == ':') caption.pop_back();
  return caption;
}

// A help page is about one window, so its controls come before others of the same name.
const controls::NamedControl* Find(const core::Application& app, const std::string& page,
                                   const std::string& name) {
  static const std::map<std::string, std::string> kForms = {
      {"text_entry", "frmSetEXCPSTR."},  {"range", "frmSetRange."}, {"scan_progress", "frmScanBProgress."},
      {"transfer_end", "frmOK_buttom."}, {"about", "frmAbout."},    {"viewer", "frmView."}};
  return app.registry.Find((kForms.contains(page) ? kForms.at(page) : "") + name);
}

TEST(Design, CaptionsAreThoseOfTheHelp) {
  const core::Application app;
  int compared = 0;
  for (const auto& page : std::filesystem::directory_iterator(std::string(OVL_SOURCE_FOLDER) + "/help")) {
    const auto name_of_page = page.path().stem().string();
    if (name_of_page == "register_options" || name_of_page == "sub_menu") continue;  // rows of registers
    std::ifstream file(page.path());
    for (std::string line; std::getline(file, line);) {
      const auto last = line.rfind("| `");
      // A label in small letters is a description.
      if (line.rfind("| ", 0) != 0 || last == std::string::npos || std::islower(line[2])) continue;
      const auto label = line.substr(2, line.find(" |") - 2);
      const auto name = line.substr(last + 3, line.find('`', last + 3) - last - 3);
      const auto* control = Find(app, name_of_page, name);
      if (control == nullptr) continue;
      const auto caption = Bare(controls::StateOf(control->control).caption);
      if (caption.empty()) continue;
      EXPECT_NE(label.find(caption), std::string::npos) << label << " is not " << caption;
      ++compared;
    }
  }
  EXPECT_GE(compared, 105);
}

TEST(Design, ListsOfNumbersHaveAllTheirEntries) {
  struct Row {
    const char* list;
    std::size_t entries;
    const char *first, *last;
  };
  const Row rows[] = {
      {"ComboHR", 24, "00", "23"},         {"ComboMin", 60, "00", "59"},
      {"ComboSec", 60, "00", "59"},        {"ComboMonth", 12, "01", "12"},
      {"ComboYear", 100, "00", "99"},      {"ComboALM(5)", 121, "000", "240"},
      {"ComboALM(1)", 29, "NONE", "RTS"},  {"ComboDay(0)", 28, "01", "28"},
      {"ComboDay(1)", 29, "01", "29"},     {"ComboDay(2)", 30, "01", "30"},
      {"ComboDay(3)", 31, "01", "31"},     {"ComboCOMM(10)", 17, "N/A", "16"},
      {"ComboDIP(1)", 11, "1", "11"},      {"ComboDIP(8)", 31, "10", "40"},
      {"ComboKLM4011(0)", 32, "1", "32"},  {"ComboKLM4011(3)", 32, "1", "32"},
      {"ComboExcp(0)", 24, "1", "24"},     {"ComboALM(0)", 16, "1", "16"},
      {"ComboMICROSADD", 17, "ANY", "15"}, {"ComboISN(0)", 11, "ANY", "09"},
      {"ComboISN(1)", 34, "ANY", "32"},    {"ComboISN(2)", 34, "ANY", "32"},
      {"ComboISN(3)", 17, "ANY", "15"},    {"ComboISN(4)", 11, "ANY", "09"},
      {"ComboISN(5)", 34, "ANY", "32"},    {"ComboISN(6)", 34, "ANY", "32"},
      {"ComboISN(7)", 17, "ANY", "15"},    {"Combo2", 17, "ANY", "16"},
      {"ComboTCPIP(0)", 256, "0", "255"},  {"ComboTCPIP(7)", 256, "0", "255"},
  };
  const core::Application app;
  for (const auto& row : rows) {
    const auto& items = std::get<controls::List*>(app.registry.Find(row.list)->control)->items;
    ASSERT_EQ(items.size(), row.entries) << row.list;
    EXPECT_EQ(items.front(), row.first) << row.list;
    EXPECT_EQ(items.back(), row.last) << row.list;
  }
}

TEST(Design, ControlsThatDependOnAStateAreHiddenOrDisabled) {
  const core::Application app;
  std::string hidden, disabled;
  for (const auto& control : app.registry.All()) {
    const auto& face = controls::StateOf(control.control);
    const bool follows = std::holds_alternative<controls::Form*>(control.control) ||
                         std::holds_alternative<controls::Timer*>(control.control) ||
                         control.name.rfind("frmAddress", 0) == 0;
    if (!follows && !face.visible) hidden += " " + control.name;
    if (!follows && !face.enabled) disabled += " " + control.name;
  }
  EXPECT_EQ(
      hidden,
      " OpNCR(5) OpNCR(6) OpGilbraco(5) OpSharp(9) OpRI_QT2(9) OpRI_QT2(10) IBMOP(7) IBMOP(8) SharpOP(26) "
      "OpMicros(3) RDSCombo IBMCombo Combo4610TF6 ComboXML IBMFrame POS2000 POS5000 NCRFrame BEETLEFrm "
      "NIXDORFrm Label84 Label85 ComboExcp(4) ComboALM(7) lbAlmTrig CharacterList DemoType DemoSpeed "
      "Label1(23) Label1(49) CmdUpDow(5) cmdDisConnect Picture1(1) Picture1(2) Picture1(3) Label64(0) "
      "Label64(1) vbalProgressBar1 frmIDN frmISN frm3700 Frame1 Frame2 SharpSubMenuFrame UP3000Frm");
  EXPECT_EQ(disabled,
            " Command1 SharpCom Command2 Label1(12) Label1(13) Label1(14) Label1(15) ComboKLM4011(0) "
            "ComboKLM4011(1) ComboKLM4011(2) ComboKLM4011(3)");
}

}  // namespace
}  // namespace ovl::testing
