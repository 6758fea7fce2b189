// The windows show the model, and what a user does in them reaches it.
#include <QAction>
#include <QDeadlineTimer>
#include <QImage>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QWheelEvent>
#include <map>

#include "image/slot_records.h"
#include "link/transfer.h"
#include "pictures/pictures.h"
#include "screen.h"
#include "ui/pages/pages.h"
#include "ui/pages/transfer_progress.h"
#include "ui/window/view_menu.h"

namespace ovl::testing {
namespace {

// One of these tests ends the program, and no event loop runs afterwards. So they come after those of the
// other files.
using WindowsTest = ScreenTest;

TEST_F(WindowsTest, TheTabKeyVisitsEveryUsableControlInReadingOrder) {
  for (auto& button : App().frmMain.CmdUpDow) button.enabled = button.visible = true;
  EXPECT_TRUE(App().frmMain.CheckTD.checked);
  EXPECT_TRUE(App().frmMain.ComboHR.enabled && !Find("ComboHR").isEnabled())
      << "the clock would take a pick back";
  Click("CheckTD");
  FocusOn("cmdConnect", kRemoteTab);
  const auto names = NamesOfRound();
  EXPECT_TRUE(names.starts_with(
      "cmdConnect CmdUpDow(4) CmdUpDow(0) CmdUpDow(1) CmdUpDow(3) CmdUpDow(5) CheckTD ComboMonth "
      "ComboDay(0) ComboYear ComboHR ComboMin ComboSec "))
      << names;
}

TEST_F(WindowsTest, TheWheelNeverChangesAListAndTheSameEntryCanBePickedAgain) {
  const auto& hour = App().ClockHour;
  auto& hours = Find<QComboBox>("ComboHR");
  Click("CheckTD");
  Pick("ComboHR", 7);
  FocusOn("ComboHR", kRemoteTab);
  QWheelEvent wheel({5, 5}, hours.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, {}, false);
  QCoreApplication::sendEvent(&hours, &wheel);
  EXPECT_EQ(hour, "07");
  EXPECT_EQ(hours.currentIndex(), 7);
  App().ClockHour = "99";
  Pick("ComboHR", 7);
  EXPECT_EQ(hour, "07");
  Keys({Qt::Key_Down});
  EXPECT_EQ(hour, "08");
}

TEST_F(WindowsTest, AnActIsShownAsSoonAsTheProgramIsIdle) {
  const auto& changes = Find<QPushButton>("StatusChanges");
  emit Find<QComboBox>("ComboCOMM(3)").activated(App().frmMain.ComboCOMM[3].position == 0 ? 1 : 0);
  const QDeadlineTimer patience(10'000);
  while (!changes.isVisible() && !patience.hasExpired())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  EXPECT_TRUE(changes.isVisible());
}

TEST_F(WindowsTest, TheClockHasTheDaysOfItsMonth) {
  Main().Tabs().setCurrentIndex(kRemoteTab);
  Click("CheckTD");
  const std::tuple<const char*, int, int> rows[] = {
      {"January", 0, 31}, {"February of a leap year", 1, 29}, {"April", 3, 30}, {"February", 1, 28}};
  for (const auto& [what, month, days] : rows) {
    SCOPED_TRACE(what);
    Pick("ComboYear", days == 28 ? 23 : 24);
    Pick("ComboMonth", month);
    std::vector<int> shown;
    for (const auto* list : Main().findChildren<QComboBox*>(QRegularExpression("^ComboDay"))) {
      if (list->isVisible()) shown.push_back(list->count());
    }
    EXPECT_EQ(shown, std::vector<int>{days});
  }
}

TEST_F(WindowsTest, AnActionDuringAHandlerIsDroppedAndUndoneOnTheScreen) {
  auto& hours = Find<QComboBox>("ComboHR");
  App().frmMain.ComboHR.position = 3;
  Show();
  while_box = [&] {
    hours.setCurrentIndex(9);
    Pick("ComboHR", 9);
    Click("CheckTD");
  };
  Click("CmdUpDow(4)");
  ASSERT_EQ(boxes, std::vector<std::string>{"        Please Select Comport."});
  EXPECT_EQ(hours.currentIndex(), 3);
  EXPECT_TRUE(Find<QAbstractButton>("CheckTD").isChecked() && App().frmMain.CheckTD.checked);
}

TEST_F(WindowsTest, FormsFollowTheModelAndArrowsMoveThroughTheirOptions) {
  auto& app = App();
  auto& options = app.frmSettSR.OpBaud;
  auto& settings = Window(app.frmSettSR.form);
  auto& set = Find<QPushButton>("frmSettSR.cmdSET");
  FocusOn("cmdConnect", kRemoteTab);
  Keys({Qt::Key_Return});
  EXPECT_TRUE(settings.isVisible() && !Main().Tabs().isEnabled());
  EXPECT_TRUE(set.isEnabled() && set.isDefault() && settings.focusWidget() == &set);
  Keys({Qt::Key_Escape});
  EXPECT_FALSE(settings.isVisible() || app.frmMain.MSComm1.PortOpen);
  EXPECT_TRUE(Main().Tabs().isEnabled());

  Keys({Qt::Key_Return});
  auto& slow = Find<QRadioButton>("OpBaud(3)");
  auto& fast = Find<QRadioButton>("OpBaud(4)");
  slow.setFocus();
  Keys({Qt::Key_Down});
  EXPECT_TRUE(fast.isChecked() && !slow.isChecked());
  EXPECT_EQ(app.PortBaud, "14400");
  options.elements[5].enabled = false;
  fast.setFocus();
  Keys({Qt::Key_Down});
  EXPECT_EQ(options.chosen, 6);
  fast.click();
  Click("OpBaud(4)");
  EXPECT_TRUE(fast.isChecked());

  Keys({Qt::Key_Return});
  EXPECT_TRUE(app.frmMain.MSComm1.PortOpen);
  EXPECT_TRUE(IsShown("cmdDisConnect") && !IsShown("cmdConnect"));
  EXPECT_EQ(Focus(), "CmdUpDow(4)");
  Find("cmdDisConnect").setFocus();
  Keys({Qt::Key_Return});
  EXPECT_EQ(Focus(), "cmdConnect");
}

TEST_F(WindowsTest, ATransferShowsItsProgressAndItsEndStaysUntilItIsConfirmed) {
  auto& app = App();
  auto& end = Window(app.frmOK_buttom.form);
  const auto& bar = Find<QProgressBar>("vbalProgressBar1");
  app.frmMain.EnableActions(true);
  Show();
  FocusOn("CmdUpDow(0)", kRemoteTab);
  app.frmMain.MSComm1.PortOpen = true;
  link::BeginUpload(app);
  Show();
  EXPECT_TRUE(bar.isVisible());
  EXPECT_EQ(Focus(), "vbalProgressBar1") << "on Disconnect one more Enter would end the upload";
  EXPECT_EQ(ui::TransferProgressText(app), "waiting for the unit");
  app.FrameState = 1;
  app.StreamBuffer.assign(1530, '0');
  app.frmMain.vbalProgressBar1.value = 30;
  Show();
  EXPECT_TRUE(ui::TransferProgressText(app).startsWith("1,530 characters, "));
  EXPECT_EQ(bar.value(), 30);
  const core::Failure gone("/dev/ttyUSB0", std::make_error_code(std::errc::no_such_device));
  app.platform.serial.lost = [&gone] { return &gone; };
  Show();
  EXPECT_EQ(ui::TransferProgressText(app), "stopped after 1,530 characters");
  EXPECT_FALSE(Find<QLabel>("Label64(1)").isVisible()) << "nothing is uploading any more";
  EXPECT_EQ(Find<QLabel>("StatusState").text(), "Device lost");
  EXPECT_EQ(Find<QWidget>("LinkDrawing").accessibleName(), "Link to the unit: Device lost");
  app.platform.serial.lost = nullptr;
  link::FinishUpload(app);
  Show();
  EXPECT_TRUE(end.isVisible() && end.windowFlags().testFlag(Qt::WindowStaysOnTopHint) && !bar.isVisible());
  EXPECT_EQ(app.LinkMode, core::kLinkUpload);
  end.close();
  EXPECT_EQ(app.LinkMode, core::kLinkIdle);
  EXPECT_TRUE(!end.isVisible() && Main().Tabs().isEnabled());
  EXPECT_EQ(ui::TransferProgressText(app), "");
  EXPECT_EQ(Focus(), "CmdUpDow(4)");
}

TEST_F(WindowsTest, ATransferThatBeginsTakesTheFocusFromDisconnect) {
  auto& form = App().frmMain;
  form.MSComm1.PortOpen = true;
  form.cmdConnect.visible = false;
  form.cmdDisConnect.visible = true;
  Show();
  FocusOn("cmdDisConnect", kRemoteTab);
  link::BeginDownload(App());
  Show();
  EXPECT_EQ(Focus(), "vbalProgressBar1");
  form.Picture1[3].visible = true;
  Show();
  EXPECT_EQ(Find("LinkDrawing").accessibleName(), "Link to the unit: Downloading");
  FocusOn("cmdDisConnect", kRemoteTab);
  Show();
  EXPECT_EQ(Focus(), "cmdDisConnect") << "who goes there wants to press it";
}

TEST_F(WindowsTest, TheFileOfASavedHistoryIsNamed) {
  auto& app = App();
  Main().Tabs().setCurrentIndex(kRemoteTab);
  Show();
  const auto& line = Find<QLabel>("HistoryPlace");
  const auto file = folder.File("Monday.txt");
  const auto end = [&](bool open, const std::string& saved) {
    app.HistoryPending = true;
    Show();
    EXPECT_FALSE(line.isVisible());
    app.frmMain.MSComm1.PortOpen = open;
    app.history_path = saved;
    app.HistoryPending = false;
    Show();
    return line.isVisible();
  };
  EXPECT_TRUE(end(true, file));
  EXPECT_EQ(line.text().toStdString(), "The history is in " + file + ".");
  EXPECT_FALSE(end(true, "")) << "it could not be saved";
  EXPECT_FALSE(end(false, file)) << "disconnected before it came";
}

TEST_F(WindowsTest, TheAboutBoxShowsProgramFirmwareQtAndLicence) {
  Find<QAction>("menuAbout").trigger();
  Show();
  const auto& window = Window(App().frmAbout.form);
  EXPECT_TRUE(window.isVisible());
  QStringList texts;
  for (const auto* label : window.findChildren<QLabel*>()) texts.append(label->text());
  const auto all_texts = texts.join('|');
  for (const QString part : {"OVL Software", "Version 1.", "V1400R12", qVersion(), "MIT licence"})
    EXPECT_TRUE(all_texts.contains(part)) << part.toStdString() << " in " << all_texts.toStdString();
}

TEST_F(WindowsTest, ThePointerOverATransferButtonShowsItsPicture) {
  const auto& pictures = App().frmMain.Picture1;
  std::map<int, QImage> drawings;
  for (const auto& [button, type, picture] : {std::tuple(0, QEvent::Enter, 1),
                                              {1, QEvent::Enter, 2},
                                              {1, QEvent::Leave, 0},
                                              {0, QEvent::Enter, 1},
                                              {0, QEvent::Leave, 0}}) {
    App().frmMain.CmdUpDow.at(static_cast<std::size_t>(button)).enabled = true;
    QEvent event(type);
    QCoreApplication::sendEvent(&Find("CmdUpDow(" + std::to_string(button) + ")"), &event);
    EXPECT_EQ((pictures[1].visible ? 1 : 0) + (pictures[2].visible ? 2 : 0), picture) << button;
    Show();
    const auto drawn = Find("LinkDrawing").grab().toImage();
    EXPECT_EQ(drawings.emplace(picture, drawn).first->second, drawn) << button;
  }
  EXPECT_NE(drawings[0], drawings[1]);
  EXPECT_NE(drawings[0], drawings[2]);
  EXPECT_NE(drawings[1], drawings[2]);
}

TEST_F(WindowsTest, TheVersionMenuMarksTheFirmwareAndAnotherPickEndsTheProgram) {
  auto& own = *Main().findChild<QAction*>("V1400R12mnu");
  EXPECT_TRUE(own.isChecked());
  own.trigger();
  Show();
  EXPECT_TRUE(own.isChecked() && Main().isVisible());

  Main().findChild<QAction*>("V1300R14mnu")->trigger();
  EXPECT_NE(ReadFile(folder.File("ORB/OVL Software.conf")).find("Version=V1300"), std::string::npos);
  EXPECT_EQ(boxes.size(), 1U);
  EXPECT_FALSE(Main().isVisible());
  EXPECT_EQ(program->Act(core::ClickEvent{&App().frmMain.cmdConnect}), core::Outcome::kEnded);
}

TEST_F(WindowsTest, ARefreshWithoutAChangeChangesNoWidget) {
  auto& label = Find<QLabel>("lbConnectting");
  label.setText("as left by the test");
  Show();
  EXPECT_EQ(label.text(), "as left by the test");
}

TEST(Theme, TextHasEnoughContrastInBothThemes) {
  using P = QPalette;
  std::multimap<P::ColorRole, P::ColorRole> texts = {{P::Button, P::ButtonText},
                                                     {P::Highlight, P::HighlightedText}};
  for (const auto ground : {P::Window, P::Base, P::AlternateBase}) {
    for (const auto text : {P::WindowText, P::PlaceholderText, P::Link}) texts.emplace(ground, text);
  }
  for (const auto theme : {ui::Theme::kLight, ui::Theme::kDark}) {
    ui::ApplyTheme(theme);
    const auto palette = QApplication::palette();
    for (const auto& [ground, text] : texts)
      EXPECT_GE(Contrast(palette.color(text), palette.color(ground)), 4.5) << text << " on " << ground;
    EXPECT_GE(Contrast(ui::DangerColor(palette), palette.color(P::Button)), 4.5);
    EXPECT_NE(palette.color(P::Disabled, P::WindowText), ui::MutedColor(palette));
  }
}

TEST_F(WindowsTest, AThemeOfTheViewMenuShowsAtOnceAndIsKept) {
  const auto dark = [] { return QApplication::palette().color(QPalette::Window).lightness() < 128; };
  const auto path = QString::fromStdString(folder.Path().string());
  EXPECT_EQ(ui::ChosenTheme(path), ui::Theme::kDesktop);
  const std::tuple<const char*, ui::Theme, bool> rows[] = {{"menuDark", ui::Theme::kDark, true},
                                                           {"menuAsSystem", ui::Theme::kDesktop, false},
                                                           {"menuDark", ui::Theme::kDark, true},
                                                           {"menuLight", ui::Theme::kLight, false}};
  for (const auto& [item, theme, is_dark] : rows) {
    Find<QAction>(item).trigger();
    EXPECT_EQ(dark(), is_dark) << item;
    EXPECT_EQ(ui::ChosenTheme(path), theme) << item;
  }
  emit Find<QMenu>("ViewMenu").aboutToShow();
  EXPECT_TRUE(Find<QAction>("menuLight").isChecked());
  std::filesystem::remove(folder.Path() / "window.ini");
  std::filesystem::create_directory(folder.Path() / "window.ini");
  Find<QAction>("menuDark").trigger();
  EXPECT_TRUE(dark());
  EXPECT_NE(Note().find("window.ini: "), std::string::npos) << Note();
}

TEST_F(WindowsTest, TheOverviewKeepsItsFormWhileTheBoxOfAnotherFirmwareIsOpen) {
  auto& slot = App().image.at(image::FieldId::EXCPSTRS, 3);
  slot.replace(0, 22, "0D12345678900987654321");
  Show();
  const auto lines = ui::ExceptionLines(App());
  int checked = 0;
  while_box = [&] {
    EXPECT_EQ(App().firmware.version, "V1300");
    EXPECT_TRUE(ui::ExceptionLines(App()) == lines);
    ++checked;
  };
  Find<QAction>("V1300R14mnu").trigger();
  EXPECT_EQ(checked, 1);
}

TEST_F(WindowsTest, TheOverviewsNameTheAlarmsOfAnExceptionAndTheExceptionOfAnAlarm) {
  auto& image = App().image;
  for (int alarm = 1; alarm <= image::kAlarms; ++alarm)
    image::StoreAlarmTrigger(image.at(image::FieldId::ALMSTRUCT_BAK, alarm), alarm == 16 ? 25 : 0);
  for (const int alarm : {2, 3, 7})
    image::StoreAlarmTrigger(image.at(image::FieldId::ALMSTRUCT_BAK, alarm), 4);
  for (const int exception : {4, 12, 13})
    image::StoreExceptionText(image.at(image::FieldId::EXCPSTRS, exception), App().firmware, "REFUND");
  const auto lines = ui::ExceptionLines(App());
  EXPECT_TRUE(lines[3].cells.back().endsWith("A2-3, 7, 16"));
  EXPECT_TRUE(lines[11].cells.back().endsWith("A16"));
  for (const std::size_t other : {10, 12}) EXPECT_FALSE(lines[other].cells.back().contains('A'));
  Show();
  EXPECT_EQ(Find<QTreeWidget>("AlarmOverview").topLevelItem(6)->toolTip(1), "EX. 4: REFUND");
  EXPECT_EQ(Find<QLabel>("AlarmOverviewUse").text(), "4 of 16 in use");
}

// For each of these firmware there is no default image, no list of registers or no layout of its own.
TEST(Pictures, AreTakenForFirmwareThatTheProgramDoesNotKnow) {
  for (const auto& unknown : {firmware::FirmwareId{"V1500", "R1"}, firmware::FirmwareId{"V1400", "R3"}}) {
    SCOPED_TRACE(unknown.Joined());
    const TemporaryFolder site, shots;
    MakeSite(site, unknown);
    const auto folder = QString::fromStdString(site.Path().string());
    const auto saved = pictures::SavePictures(folder, folder, QString::fromStdString(shots.Path().string()),
                                              ui::MainWindow::StartSize());
    ASSERT_TRUE(saved.Ok()) << saved.Problem().Text();
    for (const char* picture : {"tab6_remote", "remote_uploading", "transfer_end", "focus_tabs"})
      EXPECT_TRUE(std::filesystem::exists(shots.File(std::string("dark/") + picture + ".png"))) << picture;
  }
}

TEST(Pictures, ThereIsOneOfEveryStateInBothThemes) {
  const TemporaryFolder site, shots;
  MakeSite(site, {"V1400", "R12"});
  const auto folder = QString::fromStdString(site.Path().string());
  WriteFile(shots.File("file"), "");
  const auto save = [&](const std::string& below) {
    return pictures::SavePictures(folder, folder, QString::fromStdString(below), ui::MainWindow::StartSize());
  };
  const auto blocked = shots.File("file");
  EXPECT_EQ(save(blocked).Problem().Text(), blocked + "/light: Not a directory");
  WriteFile(site.File("unsaved V1400R12 1.bin"), "of the user");
  ASSERT_TRUE(save(shots.Path().string()).Ok());
  EXPECT_EQ(ReadFile(site.File("unsaved V1400R12 1.bin")), "of the user");
  for (const std::string theme : {"light", "dark"}) {
    const auto load = [&](const char* name) {
      return QImage(QString::fromStdString(shots.File(theme + "/" + name + ".png")));
    };
    EXPECT_EQ(load("remote_access").size(), QSize(1040, 700));
    for (const char* other : {"remote_open", "remote_asked", "remote_uploading", "remote_hint"}) {
      EXPECT_NE(load(other), load("remote_access")) << other;
    }
    for (const char* name : {"scan_progress", "menu_1", "icon"}) EXPECT_FALSE(load(name).isNull()) << name;
  }
}

}  // namespace
}  // namespace ovl::testing

// The application object of Qt exists as long as the tests run.
int main(int count, char** words) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(count, words);
  ::testing::InitGoogleTest(&count, words);
  return RUN_ALL_TESTS();
}
