// The windows offscreen: they show the model, and a person's acts reach it.
#include <QAction>
#include <QImage>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QWheelEvent>
#include <cmath>

#include "screen.h"
#include "shell/pictures.h"
#include "shell/transfer_progress.h"

namespace ovl::testing {
namespace {

// The toolkit's application object stands as long as the tests run.
class Toolkit : public ::testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count_, words_);
  }
  void TearDown() override { application_.reset(); }

 private:
  std::string name_ = "windows_test";
  int count_ = 1;
  char* words_[2] = {name_.data(), nullptr};
  std::unique_ptr<QApplication> application_;
};

const auto* const kToolkit = ::testing::AddGlobalTestEnvironment(new Toolkit);

using WindowsTest = ScreenTest;

TEST_F(WindowsTest, TheTabKeyVisitsWhatCanActInReadingOrder) {
  OpenAndHold();
  Stand("cmdDisConnect", kRemoteTab);
  const auto round = Round();
  EXPECT_TRUE(round.starts_with(
      "cmdDisConnect CmdUpDow(4) CmdUpDow(0) CmdUpDow(1) CmdUpDow(3) CmdUpDow(5) CheckTD ComboMonth "
      "ComboDay(0) ComboYear ComboHR ComboMin ComboSec "))
      << round;
}

TEST_F(WindowsTest, TheWheelNeverChangesAListAndTheSameEntryCanBePickedAgain) {
  auto& app = App();
  auto& hours = Find<QComboBox>("ComboHR");
  Click("CheckTD");
  Pick("ComboHR", 7);
  Stand("ComboHR", kRemoteTab);
  const QPointF place(5, 5);
  QWheelEvent wheel(place, hours.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&hours, &wheel);
  EXPECT_EQ(app.frmMain.ComboHR.position, 7);
  EXPECT_EQ(hours.currentIndex(), 7);

  app.ClockHour = "99";
  Pick("ComboHR", 7);
  EXPECT_EQ(app.ClockHour, "07");
  Keys({Qt::Key_Down});
  EXPECT_EQ(app.ClockHour, "08");
}

TEST_F(WindowsTest, AnActDuringAHandlerIsLostAndTakenBackOnTheScreen) {
  auto& form = App().frmMain;
  auto& hours = Find<QComboBox>("ComboHR");
  form.ComboHR.position = 3;
  Show();
  while_box = [&] {
    hours.setCurrentIndex(9);
    Pick("ComboHR", 9);
    Click("CheckTD");
  };
  Click("CmdUpDow(4)");
  ASSERT_EQ(boxes, std::vector<std::string>{"        Please Select Comport."});
  EXPECT_EQ(hours.currentIndex(), 3);
  EXPECT_TRUE(Find<QAbstractButton>("CheckTD").isChecked() && form.CheckTD.checked);
}

TEST_F(WindowsTest, FormsComeAndGoAsTheModelSaysAndTheirOptionsMoveByArrows) {
  auto& app = App();
  auto& options = app.frmSettSR.OpBaud;
  auto& settings = Window(app.frmSettSR.form);
  auto& set = Find<QPushButton>("frmSettSR.cmdSET");
  EXPECT_FALSE(settings.isVisible());
  Stand("cmdConnect", kRemoteTab);
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
}

TEST_F(WindowsTest, ATransferShowsHowFarItIsAndItsEndStaysUntilAnswered) {
  auto& app = App();
  auto& end = Window(app.frmOK_buttom.form);
  const auto& bar = Find<QProgressBar>("vbalProgressBar1");
  Main().Tabs().setCurrentIndex(kRemoteTab);
  OpenAndHold();
  EXPECT_EQ(Find<QLabel>("lbRemoteAccess").text(), "ACCESS");
  Click("CmdUpDow(0)");
  EXPECT_TRUE(bar.isVisible());
  EXPECT_EQ(TransferProgressText(app), "waiting for the unit");

  const auto stream = PatternStream({"V1400", "R12"}, 9, 0);
  Unit(std::string_view(stream).substr(0, 1530));
  EXPECT_TRUE(TransferProgressText(app).startsWith("1,530 characters, "));
  EXPECT_EQ(bar.value(), app.frmMain.vbalProgressBar1.value);
  Unit(std::string_view(stream).substr(1530));
  EXPECT_TRUE(end.isVisible() && end.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_FALSE(bar.isVisible());
  EXPECT_EQ(app.LinkMode, kLinkUpload);

  end.close();
  EXPECT_EQ(app.LinkMode, kLinkIdle);
  EXPECT_FALSE(end.isVisible());
  EXPECT_TRUE(Find("CmdUpDow(4)").isEnabled());
}

TEST_F(WindowsTest, ThePointerOverUploadAndDownloadShowsTheHint) {
  auto& form = App().frmMain;
  for (auto& button : form.CmdUpDow) button.enabled = true;
  for (const int hint : {1, 2}) {
    for (const auto type : {QEvent::Enter, QEvent::Leave}) {
      QEvent event(type);
      QCoreApplication::sendEvent(&Find(hint == 1 ? "CmdUpDow(0)" : "CmdUpDow(1)"), &event);
      EXPECT_EQ(form.Picture1.at(static_cast<std::size_t>(hint)).visible, type == QEvent::Enter);
    }
  }
}

TEST_F(WindowsTest, TheVersionMenuMarksTheFirmwareAndAnotherPickEndsTheProgram) {
  auto& own = *Main().findChild<QAction*>("V1400R12mnu");
  EXPECT_TRUE(own.isChecked());
  own.trigger();
  Show();
  EXPECT_TRUE(own.isChecked() && Main().isVisible());

  Main().findChild<QAction*>("V1300R14mnu")->trigger();
  EXPECT_NE(ReadWhole(folder.File("ORB/OVL Software.conf")).find("Version=V1300"), std::string::npos);
  EXPECT_EQ(boxes.size(), 1U);
  EXPECT_FALSE(Main().isVisible());
  EXPECT_EQ(program->Act(ClickEvent{&App().frmMain.cmdConnect}), Outcome::kEnded);
}

TEST_F(WindowsTest, ARefreshWithoutAChangeTouchesNoWidget) {
  auto& label = Find<QLabel>("lbConnectting");
  label.setText("as left by the test");
  Show();
  EXPECT_EQ(label.text(), "as left by the test");
  App().frmMain.lbConnectting.caption = "Changed";
  Show();
  EXPECT_EQ(label.text(), "Changed");
}

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

TEST(Theme, TextStandsOutInBothThemes) {
  using P = QPalette;
  std::vector<std::pair<P::ColorRole, P::ColorRole>> pairs = {{P::ButtonText, P::Button},
                                                              {P::HighlightedText, P::Highlight}};
  for (const auto ground : {P::Window, P::Base, P::AlternateBase}) {
    for (const auto text : {P::WindowText, P::PlaceholderText, P::Link}) pairs.emplace_back(text, ground);
  }
  for (const auto theme : {Theme::kLight, Theme::kDark}) {
    ApplyTheme(theme);
    const auto palette = QApplication::palette();
    for (const auto& [text, ground] : pairs) {
      const auto [less, more] =
          std::minmax({Luminance(palette.color(text)), Luminance(palette.color(ground))});
      EXPECT_GE((more + 0.05) / (less + 0.05), 4.5) << text << " on " << ground;
    }
    EXPECT_NE(palette.color(P::Disabled, P::WindowText), MutedColor(palette));
  }
}

TEST(Pictures, EveryStateIsTakenInBothThemes) {
  const TemporaryFolder site, shots;
  MakeSite(site, {"V1400", "R12"});
  const auto folder = QString::fromStdString(site.Path().string());
  ASSERT_TRUE(SavePictures(folder, folder, QString::fromStdString(shots.Path().string())));
  for (const std::string theme : {"light", "dark"}) {
    const auto load = [&](const char* name) {
      return QImage(QString::fromStdString(shots.File(theme + "/" + name + ".png")));
    };
    EXPECT_EQ(load("remote_access").size(), QSize(1040, 700));
    for (const char* other : {"remote_open", "remote_asked", "remote_uploading", "remote_hint"}) {
      EXPECT_NE(load(other), load("remote_access")) << other;
    }
    EXPECT_FALSE(load("transfer_end").isNull() || load("scan_progress").isNull());
  }
}

}  // namespace
}  // namespace ovl::testing
