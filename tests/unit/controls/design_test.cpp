// The forms before anything runs: captions are what the help calls them, and what waits for its firmware or
// its turn is hidden or held back.
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

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

// A help page is about one window; its controls are meant ahead of others of the same name.
const controls::NamedControl* Find(const core::Application& app, const std::string& page,
                                   const std::string& name) {
  static const std::map<std::string, std::string> kForms = {
      {"text_entry", "frmSetEXCPSTR."},  {"range", "frmSetRange."}, {"scan_progress", "frmScanBProgress."},
      {"transfer_end", "frmOK_buttom."}, {"about", "frmAbout."},    {"viewer", "frmView."}};
  return app.registry.Find((kForms.contains(page) ? kForms.at(page) : "") + name);
}

TEST(Design, CaptionsFieldsButtonsAndMenusAreThoseOfTheHelp) {
  const core::Application app;
  int compared = 0;
  for (const auto& page : std::filesystem::directory_iterator(std::string(OVL_SOURCE_FOLDER) + "/help")) {
    const auto name_of_page = page.path().stem().string();
    if (name_of_page == "register_options" || name_of_page == "sub_menu") continue;  // rows of registers
    std::ifstream file(page.path());
    for (std::string line; std::getline(file, line);) {
      const auto last = line.rfind("| `");
      // A label in small letters describes.
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

TEST(Design, CaptionsGroupsWindowsAndWordsBesideThem) {
  // Each control's or form's name, and its caption.
  std::istringstream captions(
      "Frame3=Text Display Settings;Frame8=Alarm Outputs;Frame15=TRIGGERED TEXT;Frame4=Register Settings;"
      "Frame13=Network Settings;Frame6=Set Exception;Frame7=Exception Report;Frame14=Scroll Matching;"
      "Frame5=DVR Selection;Frame2=Time / Date Settings;Frame12=Language Settings;Frame11=Remote Function;"
      "FrameDemo=Register Demo;FileMenu=File;VersionMenu=Version;HelpMenu=Help;menuAbout=About;"
      "lbConnectting=Not Connected;lbRemoteAccess=No Access;Label64(0)=Downloading . . .;"
      "Label64(1)=Uploading . . .;lbAlmTrig=EX.;Label84=DESCRIPTION/XML;"
      "Label85=*** MAKE SURE HAVE UART DAUGHTER BOARD INSTALLED ***;cmdMicros=SHOW;"
      "frmSettSR.Label1=Make sure you are select correct the comport.;"
      "frmScanBProgress.Label1=Baudrate Scaning..;frmIDN=MICROS IDN NETWORK;frmISN=MICROS ISN NETWORK;"
      "frm3700=MICROSS 3700 V4.X;Label2=TERMINAL;ComboKLM4011(2)=DEST ID;ComboKLM4011(3)=SRC ID;"
      "ScanProgressBar1=;frmMain=OVL Software;frmSettSR=Communication Setting;"
      "frmScanBProgress=Scan Baudrate;frmOK_buttom=Program Download;frmMicros=MICROS;frmSetRange=RANGE;"
      "frmAbout=About OVL Software;Range_Hi=First value;Range_Low=Second value;"
      "SubRange_Hi=First value, decimals;SubRange_Low=Second value, decimals;ComboDec=Decimal separator;"
      "lbLicence=MIT licence;ComboNone(0)=TX PROTOCOL;ComboNone(1)=ADDRESS;ComboNone(2)=PROTOCOL;"
      "Label1(0)=T/D DISPLAY;Label1(8)=TITLER;Label1(12)=DEST ID;Label1(15)=SRC ID;Label1(20)=DISPLAY;"
      "Label1(23)=SCROLL MATCHING;Label1(24)=OUTPUT;Label1(26)=DUPLICATE LINE;Label1(32)=TX PROTOCOL;"
      "Label1(33)=PARITY;Label1(34)=DATA BITS;Label1(35)=HW HANDSHAKING;Label1(36)=SW HANDSHAKING;"
      "Label1(37)=AUTO LINEFEED;Label1(46)=FLAG TYPE;Label1(49)=ALARM TYPE;Label1(50)=DISPLAY TEXT;"
      "Label1(52)=RTS TRIGGERED TEXT DELAY;Label1(54)=SCREEN BLANK;Label1(62)=DISPLAY CHARACTER / LINE");
  const core::Application app;
  for (std::string row; std::getline(captions, row, ';');) {
    const auto end = row.find('=');
    const auto* control = app.registry.Find(row.substr(0, end));
    ASSERT_NE(control, nullptr) << row;
    EXPECT_EQ(controls::StateOf(control->control).caption, row.substr(end + 1)) << row;
  }
  for (const auto& list : app.frmMain.ComboTCPIP) {
    const auto number = std::to_string(list.index % 4 + 1);
    EXPECT_EQ(list.caption, "IP  ADDRESS  " + number + (list.index < 4 ? "  :" : "   :"));
  }
  for (const auto& list : app.frmMain.ComboTCPINFO)
    EXPECT_EQ(list.caption, "INFORMATION " + std::to_string(list.index) + "  :");
  EXPECT_EQ(app.frmMicros.ecr_hint.caption, "( 0-9999999 )");
  const auto& port = app.frmSettSR;
  EXPECT_EQ(port.comport_frame.caption + "," + port.baudrate_frame.caption, "Comport,Baudrate");
  EXPECT_EQ(port.data_bits_frame.caption + "," + port.parity_frame.caption, "Data Bits,Parity");
}

TEST(Design, NumbersRunFromTheFirstToTheLast) {
  // A list, how many entries it has, the first and the last.
  std::istringstream lists(
      "ComboHR 24 00 23 ComboMin 60 00 59 ComboSec 60 00 59 ComboMonth 12 01 12 ComboYear 100 00 99 "
      "ComboALM(5) 121 000 240 ComboALM(1) 29 NONE RTS ComboDay(0) 28 01 28 ComboDay(1) 29 01 29 "
      "ComboDay(2) 30 01 30 ComboDay(3) 31 01 31 ComboCOMM(10) 17 N/A 16 ComboDIP(1) 11 1 11 "
      "ComboDIP(8) 31 10 40 ComboKLM4011(0) 32 1 32 ComboKLM4011(3) 32 1 32 ComboExcp(0) 24 1 24 "
      "ComboALM(0) 16 1 16 ComboMICROSADD 17 ANY 15 ComboISN(0) 11 ANY 09 ComboISN(1) 34 ANY 32 "
      "ComboISN(2) 34 ANY 32 ComboISN(3) 17 ANY 15 ComboISN(4) 11 ANY 09 ComboISN(5) 34 ANY 32 "
      "ComboISN(6) 34 ANY 32 ComboISN(7) 17 ANY 15 Combo2 17 ANY 16 ComboTCPIP(0) 256 0 255 "
      "ComboTCPIP(7) 256 0 255");
  const core::Application app;
  std::string name, first, last;
  for (std::size_t count = 0; lists >> name >> count >> first >> last;) {
    const auto& items = std::get<controls::List*>(app.registry.Find(name)->control)->items;
    ASSERT_EQ(items.size(), count) << name;
    EXPECT_EQ(items.front() + " " + items.back(), first + " " + last) << name;
  }
}

TEST(Design, HidesAndHoldsBackWhatWaits) {
  const core::Application app;
  std::string hidden, held;
  for (const auto& control : app.registry.All()) {
    const auto& face = controls::StateOf(control.control);
    const bool follows = std::holds_alternative<controls::Form*>(control.control) ||
                         std::holds_alternative<controls::Timer*>(control.control) ||
                         control.name.rfind("frmAddress", 0) == 0;
    if (!follows && !face.visible) hidden += " " + control.name;
    if (!follows && !face.enabled) held += " " + control.name;
  }
  EXPECT_EQ(
      hidden,
      " OpNCR(5) OpNCR(6) OpGilbraco(5) OpSharp(9) OpRI_QT2(9) OpRI_QT2(10) IBMOP(7) IBMOP(8) SharpOP(26) "
      "OpMicros(3) RDSCombo IBMCombo Combo4610TF6 ComboXML IBMFrame POS2000 POS5000 NCRFrame BEETLEFrm "
      "NIXDORFrm Label84 Label85 ComboExcp(4) ComboALM(7) lbAlmTrig CharacterList DemoType DemoSpeed "
      "Label1(23) Label1(49) CmdUpDow(5) cmdDisConnect Picture1(1) Picture1(2) Picture1(3) Label64(0) "
      "Label64(1) vbalProgressBar1 frmIDN frmISN frm3700 Frame1 Frame2 SharpSubMenuFrame UP3000Frm");
  EXPECT_EQ(held,
            " Command1 SharpCom Command2 Label1(12) Label1(13) Label1(14) Label1(15) ComboKLM4011(0) "
            "ComboKLM4011(1) ComboKLM4011(2) ComboKLM4011(3)");
}

}  // namespace
}  // namespace ovl::testing
