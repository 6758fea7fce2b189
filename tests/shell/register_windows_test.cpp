// What the registers bring to the screen: option frames, panels, windows beside the main form, and the line
// that tells what else was stored.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <map>
#include <set>
#include <sstream>

#include "screen.h"
#include "shell/tool_tips.h"

namespace ovl::testing {
namespace {

using enum FieldId;
using Names = std::set<std::string>;

// A list, an array of lists or of options, or a button; behind a colon the inner frame around it.
const std::map<std::size_t, const char*> kContent = {
    {0, "ComboAddress"},
    {1, "ComboDisplay"},
    {2, "OpDelta"},
    {3, "OpDYWAYE"},
    {4, "OpEDA"},
    {5, "ComboDeviceADD ComboDeviceGas"},
    {6, "OpGilbraco ComboXML"},
    {7, "ComboDIPMIXED"},
    {8, "OpMicrelec OpMicrelec9500"},
    {9, "OpMicros cmdMicros"},
    {10, "OpNCR"},
    {11, "OpBEETLE"},
    {12, "ComboWoring ComboTITLEDIP ComboCONSOLEID"},
    {13, "ComboPana(0) ComboPana(1)"},
    {14, "OpSharp"},
    {15, "ComboSICOM"},
    {16, "OpSun"},
    {17, "ComboTCI_ID(0) ComboTCI_ID(1) ComboTCI_ID(2)"},
    {18, "ComboUNI_ID(0) ComboUNI_ID(1) ComboUNI_ID(2) ComboUni ComboUniFor14R7up"},
    {19, "OpVerifone"},
    {20, "ComboAddr"},
    {21, "ComboTCPIP(0) ComboTCPIP(1) ComboTCPIP(2) ComboTCPIP(3)"},
    {22, "ComboTk500(0) ComboTk500(1)"},
    {23, "ComboCLARITYEPOS"},
    {24, "OpRI_QT2"},
    {25, "OpNIXDORF"},
    {26, "OpNUCP"},
    {27, "OpA410"},
    {28, "OpSHARPUP600"},
    {29, "ComboTE2200(0) ComboTE2200(1)"},
    {30,
     "ComboTCPIP(4) ComboTCPIP(5) ComboTCPIP(6) ComboTCPIP(7) ComboTCPINFO(0) ComboTCPINFO(1) "
     "ComboTCPINFO(2) ComboTCPINFO(3)"},
    {31, "ComboTEC(0) ComboTEC(1)"},
    {32, "OpWEIGHS"},
    {33, "BleepOP"},
    {34, "CASIOOP Command1"},
    {35, "DIGIOP"},
    {36, "POSOP TEROP PRNOP SECUOP"},
    {37, "EASYOP"},
    {38, "FUJIOP Combo1"},
    {39, "GELLEROP"},
    {40, "IBMOP IBMCombo:IBMFrame RDSCombo:IBMFrame Combo4610TF6:IBMFrame"},
    {41, "ICLOP TEAMOP:POS2000 POS50OP:POS5000"},
    {42, "JCMOp"},
    {43, "NCROP JRNLRCPT_SLP_OP:NCRFrame"},
    {44, "NIXDORF14OP BEETLEOp:BEETLEFrm NIXDORF14OPSelect:NIXDORFrm"},
    {45, "SamOP"},
    {46, "SharpOP SharpCom"},
    {47, "TEAMPOSOP"},
    {48, "TECOP Command2"},
    {49, "UNIWOP"},
    {50, "SenOP ST6105C"},
    {51, "ComboNE134"},
    {52, "OpVWEIGHBRIDGE"},
    {53, "OpPoleDisplay"},
};

// What the frames on the screen should show, and do.
class FrameScreen : public Screen {
 public:
  using Screen::Screen;

  // The controls of the visible frames that the model shows.
  Names Wanted() {
    Names wanted;
    const auto& frames = App().frmMain.frmAddress;
    for (std::size_t frame = 0; frame < frames.size(); ++frame) {
      if (!frames[frame].visible) continue;
      std::istringstream words(kContent.at(frame));
      for (std::string word; words >> word;) Want(word, wanted);
    }
    return wanted;
  }

  std::vector<QWidget*> Shown() {
    std::vector<QWidget*> shown;
    for (auto* widget : Main().Tabs().currentWidget()->findChildren<QWidget*>()) {
      const bool acts = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QComboBox*>(widget);
      const auto name = widget->objectName();
      if (acts && widget->isVisible() && !name.startsWith(QLatin1String("qt_"))) shown.push_back(widget);
    }
    return shown;
  }

  Names NamesShown() {
    Names names;
    for (const auto* widget : Shown()) {
      auto name = widget->objectName().toStdString();
      names.insert(name.substr(name.find('.') + 1));
    }
    return names;
  }

 private:
  void Want(const std::string& word, Names& wanted) {
    const auto& main = App().frmMain.form;
    const auto& registry = App().registry;
    const auto colon = word.find(':');
    const auto name = word.substr(0, colon);
    if (colon != std::string::npos && !FaceOf(registry.Find(main, word.substr(colon + 1))->control).visible) {
      return;
    }
    const auto& control = registry.Find(main, name)->control;
    if (const auto* array = std::get_if<OptionArray*>(&control)) {
      for (std::size_t element = 0; element < (*array)->elements.size(); ++element) {
        if ((*array)->elements[element].visible) wanted.insert(name + "(" + std::to_string(element) + ")");
      }
    } else if (FaceOf(control).visible) {
      wanted.insert(name);
    }
  }
};

std::string Missing(const Names& of, const Names& in) {
  std::string missing;
  for (const auto& name : of) {
    if (!in.contains(name)) missing += name + " ";
  }
  return missing;
}

class RegisterFrames : public ::testing::TestWithParam<FirmwareId> {};

void ExpectFrameAsTheModelSays(FrameScreen& screen, const std::string& when) {
  const auto wanted = screen.Wanted(), shown = screen.NamesShown();
  EXPECT_EQ(Missing(wanted, shown), "") << when;
  EXPECT_EQ(Missing(shown, wanted), "") << when;
  for (const auto* widget : screen.Shown()) {
    const auto name = widget->objectName().toStdString() + " " + when;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << name;
    EXPECT_FALSE(widget->toolTip().isEmpty()) << name;
    EXPECT_GE(widget->width(), widget->sizeHint().width()) << name;
    EXPECT_GE(widget->height(), widget->sizeHint().height()) << name;
  }
}

TEST_P(RegisterFrames, ShowExactlyWhatTheModelShowsAndTakePicks) {
  FrameScreen screen(GetParam());
  std::set<int> picked_frames;
  int with_frame = 0;
  const int registers = static_cast<int>(screen.App().frmMain.ComboReg.items.size());
  for (int code = 0; code < registers; ++code) {
    screen.Select(code);
    const auto name = screen.App().frmMain.ComboReg.Text();
    ExpectFrameAsTheModelSays(screen, name);
    const auto& frames = screen.App().frmMain.frmAddress;
    const auto frame = std::find_if(frames.begin(), frames.end(), [](const Frame& at) { return at.visible; });
    if (frame == frames.end()) continue;
    ++with_frame;
    if (!picked_frames.insert(frame->index).second) continue;
    for (const auto& control : screen.NamesShown()) {
      const auto& ref = screen.App().registry.Find(screen.App().frmMain.form, control)->control;
      if (const auto* element = std::get_if<OptionElement>(&ref)) {
        screen.Click(control);
        EXPECT_EQ(element->array->chosen, element->element) << control;
        EXPECT_TRUE(screen.Find<QRadioButton>(control).isChecked()) << control;
      } else if (auto* const* list = std::get_if<List*>(&ref)) {
        const int last = static_cast<int>((*list)->items.size()) - 1;
        screen.Pick(control, last);
        EXPECT_EQ((*list)->position, last) << control;
        EXPECT_EQ(screen.Find<QComboBox>(control).currentIndex(), last) << control;
      }
      ExpectFrameAsTheModelSays(screen, name + ", " + control + " picked");
    }
  }
  EXPECT_GE(with_frame, 12);
}

INSTANTIATE_TEST_SUITE_P(Firmware, RegisterFrames,
                         ::testing::Values(FirmwareId{"V1400", "R12"}, FirmwareId{"V1300", "R14"},
                                           FirmwareId{"V1310", "R1"}, FirmwareId{"V1324", "R26"}),
                         [](const auto& at) { return at.param.version + at.param.release; });

TEST(RegisterScreen, TheWarningAndTheXmlSwitchComeWithTheXmlFormat) {
  Screen screen({"V1310", "R1"});
  screen.Select("GILBARCO");
  EXPECT_FALSE(screen.Find<QLabel>("Label85").isVisible());
  screen.Click("OpGilbraco(5)");
  EXPECT_TRUE(screen.Find<QLabel>("Label85").isVisible());
  auto label = screen.Find<QLabel>("Label84").text();
  EXPECT_EQ(label.remove('&'), "DESCRIPTION/XML");
  EXPECT_EQ(screen.Find<QLabel>("Label84").buddy(), &screen.Find<QComboBox>("ComboXML"));
}

TEST(RegisterScreen, AnOverlayStandsInThePlaceOfItsListAndLabelsFollowCaptions) {
  Screen screen({"V1400", "R12"});
  auto& form = screen.App().frmMain;
  screen.Main().Tabs().setCurrentIndex(3);
  const std::map<int, std::pair<int, const char*>> covers = {
      {0, {7, "ASCII"}}, {1, {10, "N/A"}}, {2, {11, "N/A"}}};
  for (const bool covered : {true, false}) {
    for (auto& overlay : form.ComboNone) overlay.visible = covered;
    screen.Show();
    for (const auto& [overlay, list] : covers) {
      auto& cover = screen.Find<QComboBox>("ComboNone(" + std::to_string(overlay) + ")");
      EXPECT_EQ(cover.isVisible(), covered);
      EXPECT_FALSE(cover.isEnabled());
      EXPECT_EQ(cover.currentText(), list.second);
      EXPECT_EQ(screen.Find<QComboBox>("ComboCOMM(" + std::to_string(list.first) + ")").isVisible(),
                !covered);
    }
  }

  auto& handshake = screen.Find<QComboBox>("ComboCOMM(5)");
  form.ComboCOMM[5].caption = "HANDSHAKE";
  form.ComboCOMM[8].visible = false;
  screen.Show();
  EXPECT_EQ(handshake.accessibleName(), "HANDSHAKE");
  QStringList labels;
  for (const auto* label : screen.Main().Tabs().currentWidget()->findChildren<QLabel*>()) {
    if (label->isVisible() && label->buddy() != nullptr) labels.append(QString(label->text()).remove('&'));
  }
  EXPECT_TRUE(labels.contains("HANDSHAKE"));
  EXPECT_FALSE(labels.contains("HW HANDSHAKING"));
  EXPECT_FALSE(labels.contains("SW HANDSHAKING"));
  EXPECT_EQ(labels.size(), 12);
}

TEST(RegisterScreen, TheMicrosWindowShowsOnePanelAndStoresBySetAlone) {
  Screen screen({"V1400", "R12"});
  auto& model = screen.App().frmMicros;
  auto& window = screen.Window(model.form);
  screen.Select("MICROS");
  EXPECT_FALSE(window.isVisible());

  screen.Click("OpMicros(2)");
  ASSERT_TRUE(window.isVisible());
  EXPECT_FALSE(window.isModal());
  EXPECT_TRUE(screen.Main().Tabs().isEnabled());
  const int height_of_eight = window.height();
  EXPECT_TRUE(screen.Find<QPushButton>("cmdISNset").isDefault());
  EXPECT_FALSE(screen.Find<QPushButton>("cmdSetMicros").isVisible());

  screen.Click("OpMicros(3)");
  EXPECT_LT(window.height(), height_of_eight);
  EXPECT_FALSE(screen.Find<QComboBox>("ComboISN(0)").isVisible());
  EXPECT_TRUE(screen.Find<QPushButton>("CMD3700Set").isDefault());
  auto& number = screen.Find<QLineEdit>("ECRNumber");
  EXPECT_EQ(number.accessibleName(), "ECR NUMBER");

  const auto stored = screen.App().image[ECRDIGIT_7];
  number.setText("12");
  emit number.textEdited("12");
  window.close();
  screen.Show();
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(screen.App().image[ECRDIGIT_7], stored);

  screen.Click("cmdMicros");
  ASSERT_TRUE(window.isVisible());
  emit number.textEdited("4");
  screen.Click("CMD3700Set");
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(screen.App().image[ECRDIGIT_7], "04");
}

TEST(RegisterScreen, TheSubMenuFollowsTheModelThatWasChosen) {
  Screen screen({"V1400", "R12"});
  auto& window = screen.Window(screen.App().FrmSubMenu.form);
  screen.Select("CASIO");
  EXPECT_FALSE(screen.Find<QPushButton>("Command1").isEnabled());
  screen.Click("CASIOOP(18)");
  ASSERT_TRUE(window.isVisible());
  EXPECT_TRUE(screen.Find<QPushButton>("Command1").isEnabled());
  EXPECT_EQ(window.windowTitle(), "CASIO SUBMENU");
  auto& mode = screen.Find<QComboBox>("Combo1(1)");
  EXPECT_TRUE(mode.isVisible());
  const int height_of_both = window.height();
  screen.Click("F1OP(1)");
  EXPECT_FALSE(mode.isVisible());
  EXPECT_LT(window.height(), height_of_both);
  screen.Click("CASIOOP(22)");
  EXPECT_FALSE(window.isVisible());

  screen.Select("SHARP");
  screen.Click("SharpOP(19)");
  EXPECT_EQ(window.windowTitle(), "SHARP SUBMENU");
  EXPECT_TRUE(screen.Find<QRadioButton>("Option1(1)").isVisible());
  EXPECT_FALSE(screen.Find<QRadioButton>("Option1(2)").isVisible());
  window.close();
  screen.Show();
  EXPECT_FALSE(window.isVisible());
  screen.Click("SharpCom");
  EXPECT_TRUE(window.isVisible());
}

TEST(QuietLine, TellsWhatElseWasStoredUntilTheNextAct) {
  Screen screen({"V1400", "R12"});
  screen.Select("DRESSER WAYNE");
  screen.App().image[IOCFG_BAK] = "0E";
  screen.App().image[RX_BAUDRATE] = screen.App().image[TX_BAUDRATE] = "00";
  screen.Click("POSOP(1)");
  EXPECT_EQ(screen.QuietLine(),
            "Also stored: INTERFACE TYPE PASSIVE TAP, RX BAUDRATE AUTO, TX BAUDRATE 9600.");
  EXPECT_EQ(screen.App().image[REGTYPE_EXT2], "01");
  screen.Click("POSOP(0)");
  EXPECT_EQ(screen.QuietLine(), "");

  screen.Click("TEROP(0)");
  EXPECT_EQ(screen.QuietLine(), "Also stored: INTERFACE TYPE RS-232, RX BAUDRATE 9600.");
  screen.Main().Tabs().setCurrentIndex(3);
  EXPECT_EQ(screen.QuietLine(), "Also stored: INTERFACE TYPE RS-232, RX BAUDRATE 9600.");
  screen.Pick("ComboCOMM(1)", 0);
  EXPECT_EQ(screen.QuietLine(), "");
}

TEST(QuietLine, NamesBitsByTheListThatShowsThem) {
  Screen screen({"V1400", "R12"});
  screen.App().PanelsReady = true;
  screen.Main().Tabs().setCurrentIndex(1);
  screen.App().image[DSPCFG_BAK] = "0E";
  screen.Pick("ComboDIP(0)", 2);
  EXPECT_EQ(screen.QuietLine(), "Also stored: DISPLAY FORMAT TOP, LINE COMPRESS OFF, SCROLL DELAY OFF.");

  screen.App().image[DSPLINES_BAK] = "00";
  screen.App().frmMain.ComboTD[5].position = 0;
  screen.Pick("ComboDIP(1)", 0);
  screen.Pick("ComboTD(0)", 1);
  EXPECT_EQ(screen.QuietLine(), "Also stored: DISPLAY LINE 2.");

  screen.Select("MICROS");
  screen.App().image[MICROS_STATUS] = "01";
  screen.Main().Tabs().setCurrentIndex(0);
  screen.Click("OpMicros(2)");
  EXPECT_EQ(screen.QuietLine(), "Also stored: MODE TAP.");
  screen.Click("cmdISNset");
  EXPECT_EQ(screen.QuietLine(), "");
}

TEST(ToolTips, EveryListAndOptionArrayHasOne) {
  const auto app = std::make_unique<Application>();
  int lists = 0;
  for (const auto& control : app->registry.All()) {
    const bool picks = std::holds_alternative<List*>(control.control) ||
                       std::holds_alternative<OptionArray*>(control.control);
    if (!picks) continue;
    ++lists;
    const auto tip = ToolTipOf(control.form->name, control.name);
    EXPECT_TRUE(tip.endsWith('.')) << control.form->name << "." << control.name;
  }
  EXPECT_GE(lists, 150);
}

}  // namespace
}  // namespace ovl::testing
