// What a register shows on the screen: option frames, panels, windows beside the main form, and the note
// about other settings that were stored.
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <set>

#include "screen.h"
#include "support/register_facts.h"
#include "ui/kit/widgets.h"

namespace ovl::testing {
namespace {

using enum image::FieldId;
using Names = std::set<std::string>;

// The controls that the model shows in the frames on the screen.
Names Wanted(Screen& screen) {
  const auto& form = screen.App().frmMain;
  Names wanted;
  const auto state = [&](const std::string& name) {
    const auto* found = screen.App().registry.Find(form.form, name);
    return found == nullptr ? nullptr : &controls::StateOf(found->control);
  };
  const auto want = [&](const std::string& name) {
    if (state(name) != nullptr && state(name)->visible) wanted.insert(name);
    return state(name) != nullptr;
  };
  for (const auto& row : OptionControls()) {
    if (row.frame == kNoFrame || !form.frmAddress.at(static_cast<std::size_t>(row.frame)).visible) continue;
    if (!row.inner_frame.empty() && !state(row.inner_frame)->visible) continue;
    int element = 0;
    while (want(row.name + "(" + std::to_string(element) + ")")) ++element;
    if (element == 0) want(row.name);
  }
  return wanted;
}

void ExpectFrameAsTheModelSays(Screen& screen, const std::string& when) {
  SCOPED_TRACE(when);
  const auto& page = *screen.Main().Tabs().currentWidget();
  Names shown;
  for (const auto* widget : VisibleIn<QAbstractButton, QComboBox, QLabel>(page)) {
    const auto name = widget->objectName().section('.', -1).toStdString();
    if (IsOne<QLabel>(widget) && !name.starts_with("Label")) continue;
    shown.insert(name);
    const bool described = !widget->accessibleName().isEmpty() && !widget->toolTip().isEmpty();
    EXPECT_TRUE(described || IsOne<QLabel>(widget)) << name;
  }
  EXPECT_EQ(shown, Wanted(screen));
  ExpectRoom(page);
}

TEST(RegisterFrames, ShowExactlyTheControlsOfTheModelAndStorePicks) {
  for (const auto& firmware :
       {firmware::FirmwareId{"V1400", "R12"}, {"V1300", "R14"}, {"V1310", "R1"}, {"V1324", "R26"}}) {
    Screen screen(firmware);
    const auto& main = screen.App().frmMain;
    std::size_t controls = 0;
    for (const auto& register_name : std::vector<std::string>(main.ComboReg.items)) {
      SCOPED_TRACE(firmware.Joined() + " " + register_name);
      screen.Select(register_name);
      ExpectFrameAsTheModelSays(screen, "selected");
      // Every option and the last entry of every list in the frame.
      for (const auto& name : Wanted(screen)) {
        const auto& control = screen.App().registry.Find(main.form, name)->control;
        if (const auto* element = std::get_if<controls::OptionElement>(&control)) {
          screen.Click(name);
          EXPECT_EQ(element->array->chosen, element->element) << name;
          EXPECT_TRUE(screen.Find<QRadioButton>(name).isChecked()) << name;
        } else if (auto* const* list = std::get_if<controls::List*>(&control)) {
          const int last = static_cast<int>((*list)->items.size()) - 1;
          screen.Pick(name, last);
          EXPECT_EQ((*list)->position, last) << name;
          EXPECT_EQ(screen.Find<QComboBox>(name).currentIndex(), last) << name;
        }
        ExpectFrameAsTheModelSays(screen, name + " picked");
        ++controls;
      }
    }
    EXPECT_GE(controls, 50U);
  }
}

// The list of registers is always open.
TEST_F(ScreenTest, ARenewedListKeepsThePositionOfTheModel) {
  auto& dropped = App().frmMain.ComboCOMM[0];
  dropped.position = 2;
  Show();
  dropped.items = {"A", "B", "C"};
  Show();
  const auto& box = Find<QComboBox>("ComboCOMM(0)");
  EXPECT_EQ(box.currentText(), "C");
  EXPECT_EQ(box.count(), 3);

  auto& open = App().frmMain.ComboReg;
  open.items = {"FIRST", "SECOND"};
  open.position = 1;
  Show();
  const auto& list = dynamic_cast<ui::ListBox&>(Find("ComboReg"));
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list.Marked(), 1);
}

TEST_F(ScreenTest, AnOverlayReplacesItsListAndLabelsFollowCaptions) {
  auto& form = App().frmMain;
  Main().Tabs().setCurrentIndex(kLineTab);
  const std::tuple<const char*, const char*, const char*> covers[] = {
      {"ComboNone(0)", "ComboCOMM(7)", "ASCII"},
      {"ComboNone(1)", "ComboCOMM(10)", "N/A"},
      {"ComboNone(2)", "ComboCOMM(11)", "N/A"}};
  for (const bool covered : {true, false}) {
    for (auto& overlay : form.ComboNone) overlay.visible = covered;
    Show();
    for (const auto& [cover, list, text] : covers) {
      EXPECT_EQ(IsShown(cover), covered);
      EXPECT_EQ(IsShown(list), !covered);
      EXPECT_FALSE(Find(cover).isEnabled());
      EXPECT_EQ(Find<QComboBox>(cover).currentText(), text);
    }
  }

  form.ComboCOMM[5].caption = "HANDSHAKE";
  form.ComboCOMM[8].visible = false;
  Show();
  EXPECT_EQ(Find("ComboCOMM(5)").accessibleName(), "HANDSHAKE");
  QStringList labels;
  for (const auto* widget : VisibleIn<QLabel>(*Main().Tabs().currentWidget())) {
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (label->buddy() != nullptr) labels.append(label->text().remove('&'));
  }
  EXPECT_TRUE(labels.contains("HANDSHAKE") && labels.filter("W HANDSHAKING").isEmpty());
  EXPECT_EQ(labels.size(), 12);
}

TEST_F(ScreenTest, TheMicrosWindowShowsOnePanelAndStoresOnlyWithSet) {
  auto& image = App().image;
  auto& window = Window(App().frmMicros.form);
  Select("MICROS");
  FocusOn("OpMicros(1)", kRegisterTab);
  Keys({Qt::Key_Down});
  EXPECT_TRUE(window.isVisible() && !window.isModal() && Main().Tabs().isEnabled());
  EXPECT_EQ(Focus(), "ComboISN(0)");
  EXPECT_GT(window.x(), Main().x()) << "it hides the register";
  Main().activateWindow();
  Show();
  EXPECT_EQ(OnScreen().Front(), &Main());
  window.activateWindow();
  Show();
  EXPECT_TRUE(Find<QPushButton>("cmdISNset").isDefault() && !IsShown("cmdSetMicros"));
  const int height_of_eight = window.height();
  const auto stored = image;
  Keys({Qt::Key_Home, Qt::Key_Down, Qt::Key_Escape});
  EXPECT_EQ(Focus(), "OpMicros(2)");
  EXPECT_TRUE(image == stored);
  FocusOn("cmdMicros", kRegisterTab);
  Keys({Qt::Key_Return, Qt::Key_Home, Qt::Key_Down, Qt::Key_Return});
  EXPECT_FALSE(window.isVisible() || image == stored);

  Click("OpMicros(3)");
  EXPECT_LT(window.height(), height_of_eight);
  EXPECT_FALSE(IsShown("ComboISN(0)"));
  EXPECT_TRUE(Find<QPushButton>("CMD3700Set").isDefault());
  auto& number = Find<QLineEdit>("ECRNumber");
  EXPECT_EQ(number.accessibleName(), "ECR NUMBER");
  emit number.textEdited("4");
  Click("CMD3700Set");
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(image[ECRDIGIT_7], "04");
}

TEST_F(ScreenTest, TheMicrosWindowStaysOnTheScreenWithEveryPanel) {
  auto& window = Window(App().frmMicros.form);
  const auto room = window.screen()->availableGeometry();
  Select("MICROS");
  for (const int option : {1, 3, 2, 3}) {
    Main().move(room.bottomRight() - QPoint(60, 60));
    Click("OpMicros(" + std::to_string(option) + ")");
    EXPECT_TRUE(window.isVisible() && room.contains(window.frameGeometry())) << option;
    Click("OpMicros(0)");
    program->Act(core::CloseEvent{&App().frmMicros.form});
    Show();
  }
}

TEST_F(ScreenTest, SmallWindowsMoveBackWhenTheScreenHasChanged) {
  Main().Tabs().setCurrentIndex(kAlarmTab);
  Pick("ComboALM(3)", 1);
  for (const auto& [button, name] : {std::pair("StatusChanges", "Changes"), {"CopyAlarmTo", "CopyAlarm"}}) {
    Click(button);
    auto& window = Find<QDialog>(name);
    const auto room = window.screen()->availableGeometry();
    window.move(room.bottomRight());
    emit window.screen()->availableGeometryChanged(room);
    EXPECT_TRUE(window.isVisible() && room.contains(window.frameGeometry())) << name;
  }
  Main().Tabs().setCurrentIndex(kRegisterTab);
  Select("MICROS");
  Click("OpMicros(2)");
  auto& micros = Window(App().frmMicros.form);
  const auto room = micros.screen()->availableGeometry();
  micros.move(room.bottomRight());
  emit micros.screen()->availableGeometryChanged(room);
  EXPECT_TRUE(room.contains(micros.frameGeometry()));
}

TEST(SmallScreen, AWindowThatIsLargerScrollsToTheFocus) {
  for (const bool grows_later : {false, true}) {
    SCOPED_TRACE(grows_later);
    Screen screen;
    screen.Select("MICROS");
    auto& window = screen.Window(screen.App().frmMicros.form);
    const auto room = window.screen()->availableGeometry();
    for (auto* list : window.findChildren<QComboBox*>(QRegularExpression("ComboISN.*")))
      list->setMinimumHeight(room.height() / 2);
    if (grows_later) screen.Click("OpMicros(1)");
    for (int opening = 0; opening < 2; ++opening) {
      screen.Click("OpMicros(2)");
      screen.Show();
      EXPECT_TRUE(window.isVisible() && room.contains(window.frameGeometry()));
      ASSERT_EQ(window.frameGeometry().height(), room.height());
      EXPECT_FALSE(window.findChild<QScrollArea*>()->horizontalScrollBar()->isVisible());
      std::set<const QWidget*> reached;
      for (int step = 0; step < 18; ++step) {
        const auto* widget = window.focusWidget();
        ASSERT_NE(widget, nullptr);
        EXPECT_EQ(widget->visibleRegion().boundingRect(), widget->rect())
            << widget->objectName().toStdString();
        reached.insert(widget);
        Screen::Press(*window.focusWidget(), Qt::Key_Tab);
      }
      EXPECT_EQ(reached.size(), 9U);
      screen.Click("OpMicros(0)");
      window.close();
      screen.Show();
    }
  }
}

TEST_F(ScreenTest, TheFilterShowsRegistersWithAllItsWordsAndAPickSendsTheTruePosition) {
  auto& list = dynamic_cast<ui::ListBox&>(Find("ComboReg"));
  auto& filter = Find<QLineEdit>("RegisterFilter");
  const auto& model = App().frmMain.ComboReg;
  const auto shown = [&] {
    QStringList names;
    for (int row = 0; row < list.count(); ++row) {
      if (!list.isRowHidden(row)) names.append(list.item(row)->text());
    }
    return names;
  };
  Main().Tabs().setCurrentIndex(kRegisterTab);
  emit filter.findChild<QShortcut*>()->activated();
  EXPECT_EQ(Focus(), "RegisterFilter");
  Type("Way dress");
  EXPECT_EQ(shown(), QStringList("DRESSER WAYNE"));
  EXPECT_EQ(model.position, 0);
  Keys({Qt::Key_Down});
  EXPECT_EQ(Focus(), "ComboReg");
  Type("i");
  Keys({Qt::Key_Return});
  EXPECT_EQ(model.Text(), "DRESSER WAYNE") << "a hidden register is not found by its letter";
  EXPECT_EQ(list.Marked(), model.position);

  const int picked = model.position;
  filter.setFocus();
  Keys({Qt::Key_Escape});
  EXPECT_EQ(shown().size(), list.count());
  EXPECT_EQ(list.currentRow(), picked);
  Type("tec");
  EXPECT_TRUE(shown().contains("TEC") && !shown().contains("IBM")) << shown().join(' ').toStdString();
  Keys({Qt::Key_Return, Qt::Key_Escape});
  EXPECT_EQ(list.Marked(), picked);
  filter.setText("no such register");
  Keys({Qt::Key_Return});
  EXPECT_EQ(model.position, picked);
  EXPECT_EQ(Find<QLabel>("RegisterCount").text(), "No register has these words.");
  Select("GENERIC");
  EXPECT_EQ(filter.text(), "") << "the register of an opened file was hidden";
  EXPECT_EQ(list.currentRow(), model.position);
}

TEST_F(ScreenTest, TheSubMenuFollowsTheChosenModel) {
  auto& window = Window(App().FrmSubMenu.form);
  Select("CASIO");
  EXPECT_FALSE(Find("Command1").isEnabled());
  FocusOn("CASIOOP(17)", kRegisterTab);
  Keys({Qt::Key_Down});
  EXPECT_TRUE(window.isVisible() && Find("Command1").isEnabled() && IsShown("Combo1(1)"));
  EXPECT_EQ(window.windowTitle(), "CASIO SUBMENU");
  const int height_of_both = window.height();
  Keys({Qt::Key_Down});
  EXPECT_EQ(App().FrmSubMenu.F1OP.chosen, 1);
  EXPECT_FALSE(IsShown("Combo1(1)"));
  EXPECT_LT(window.height(), height_of_both);
  Keys({Qt::Key_Escape});
  EXPECT_FALSE(window.isVisible());
  FocusOn("Command1", kRegisterTab);
  Keys({Qt::Key_Return});
  EXPECT_TRUE(window.isVisible());
  Click("CASIOOP(22)");
  EXPECT_FALSE(window.isVisible());

  Select("SHARP");
  Click("SharpOP(19)");
  EXPECT_EQ(window.windowTitle(), "SHARP SUBMENU");
  EXPECT_TRUE(IsShown("Option1(1)") && !IsShown("Option1(2)"));
}

TEST_F(ScreenTest, TheQuietLineNamesOtherStoredSettingsUntilTheNextAction) {
  auto& image = App().image;
  Select("DRESSER WAYNE");
  EXPECT_EQ(QuietLine(), "Also stored: COMMUNICATION: INTERFACE TYPE PASSIVE TAP, RX BAUDRATE AUTO.");
  image[IOCFG_BAK] = "0E";
  image[RX_BAUDRATE] = image[TX_BAUDRATE] = "00";
  Click("POSOP(1)");
  EXPECT_EQ(QuietLine(), "Also stored: INTERFACE TYPE PASSIVE TAP, RX BAUDRATE AUTO, TX BAUDRATE 9600.");
  Click("TEROP(0)");
  // The line is about the act of this tab, so it stays here.
  for (const int tab : {kRegisterTab, kLineTab, kRegisterTab}) {
    Main().Tabs().setCurrentIndex(tab);
    EXPECT_EQ(QuietLine(), tab == kLineTab ? "" : "Also stored: INTERFACE TYPE RS-232, RX BAUDRATE 9600.");
  }
  Pick("ComboCOMM(1)", 0);
  EXPECT_EQ(QuietLine(), "");

  // Bits are named by the list that shows them.
  App().PanelsReady = true;
  Main().Tabs().setCurrentIndex(kTextTab);
  image[DSPCFG_BAK] = "0E";
  Pick("ComboDIP(0)", 2);
  EXPECT_EQ(QuietLine(), "Also stored: DISPLAY FORMAT TOP, LINE COMPRESS OFF, SCROLL DELAY OFF.");
  image[DSPLINES_BAK] = "00";
  App().frmMain.ComboTD[5].position = 0;
  Pick("ComboDIP(1)", 0);
  Pick("ComboTD(0)", 1);
  EXPECT_EQ(QuietLine(), "Also stored: DISPLAY LINE 2.");
  Select("MICROS");
  image[MICROS_STATUS] = "01";
  Main().Tabs().setCurrentIndex(kRegisterTab);
  Click("OpMicros(2)");
  EXPECT_EQ(QuietLine(), "Also stored: MODE TAP.");
  Click("OpMicros(1)");
  image[MICROS_STATUS] = "01";
  Pick("ComboMODE", 0);
  Click("cmdSetMicros");
  EXPECT_EQ(QuietLine(), "");
}

}  // namespace
}  // namespace ovl::testing
