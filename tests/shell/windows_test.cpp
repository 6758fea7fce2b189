// The windows offscreen: they show the model, and a person's acts reach it.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSet>
#include <QTabWidget>
#include <QWheelEvent>
#include <filesystem>
#include <memory>

#include "image/files.h"
#include "shell/pictures.h"
#include "shell/program.h"
#include "shell/status_strip.h"
#include "shell/theme.h"
#include "shell/transfer_progress.h"
#include "shell/widgets.h"
#include "support/harness.h"

namespace ovl::testing {
namespace {

constexpr int kExceptionTab = 4;
constexpr int kRemoteTab = 6;

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

// A program with its windows, over a line and a store in memory.
class WindowsTest : public ::testing::Test {
 protected:
  WindowsTest() {
    ApplyTheme(Theme::kLight);
    const auto images = folder_.Path() / "V1400" / "R12";
    std::filesystem::create_directories(images);
    int code = 0;
    for (const char* name : {"GENERIC", "TCPIP", "ALOHA"}) {
      WriteWhole((images / (std::string(name) + ".bin")).string(),
                 PatternStream({"V1400", "R12"}, code + 1, code) + "\r\n");
      ++code;
    }
    program_ = std::make_unique<Program>(QString::fromStdString(folder_.Path().string()), QString());
    auto& platform = App().platform;
    platform.read_setting = [](std::string_view, std::string_view value) {
      return std::optional<SettingValue>(std::string(value == "Version" ? "V1400" : "R12"));
    };
    platform.write_setting = [this](std::string_view, std::string_view, std::string_view text) {
      stored_ += text;
      return true;
    };
    platform.show_message = [this](const MessageBox& box) {
      boxes_.push_back(box.text);
      if (while_box_) while_box_();
    };
    platform.clock = [] { return ClockTime{2026, 3, 5, 14, 7, 9}; };
    auto& serial = platform.serial;
    serial.open = [this](const LineSettings&) { return open_error_; };
    serial.write = [](std::string_view) { return SerialLine::Error(); };
    serial.read = [this] { return std::string(1, character_); };
    serial.close = [] {};
    serial.clear_input = [] {};
    serial.clear_output = [] {};
  }

  void SetUp() override {
    ASSERT_EQ(program_->Start(), Outcome::kDone);
    program_->OnScreen().BuildAll();
  }

  Application& App() { return program_->Model(); }
  MainWindow& Main() { return program_->OnScreen().Main(); }

  template <class Kind>
  Kind& Find(const char* name) {
    auto* found = Main().findChild<Kind*>(QString::fromLatin1(name));
    if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *found;
  }

  void ClickOn(const char* name) {
    Find<QAbstractButton>(name).click();
    program_->RefreshNow();
  }

  void Unit(std::string_view text) {
    for (const char character : text) {
      character_ = character;
      program_->Act(ReceivedEvent{});
    }
    program_->RefreshNow();
  }

  void OpenAndHold() {
    ClickOn("cmdConnect");
    ClickOn("frmSettSR.cmdSET");
    ClickOn("CmdUpDow(4)");
    Unit("\x06");
    program_->Act(TickEvent{&App().frmMain.General_timer});
    program_->RefreshNow();
  }

  static void Press(QWidget& widget, int key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &press);
  }

  static void Turn(QWidget& widget) {
    const QPointF place(5, 5);
    QWheelEvent wheel(place, widget.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &wheel);
  }

  TemporaryFolder folder_;
  std::string stored_;
  std::vector<std::string> boxes_;
  std::function<void()> while_box_;
  SerialLine::Error open_error_;
  char character_ = '\0';
  std::unique_ptr<Program> program_;
};

// The whole of a widget lies on the page, which scrolls.
bool Reachable(const QWidget& widget, const QWidget& page) {
  const QRect place(widget.mapTo(&page, QPoint()), widget.size());
  return !place.isEmpty() && page.rect().contains(place);
}

// What is scrolled with the widget, or the whole page.
QWidget* Scrolled(QWidget& widget, QWidget& page) {
  for (auto* at = &widget; at != &page; at = at->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(at)) return area->widget();
  }
  auto* area = qobject_cast<QScrollArea*>(&page);
  return area == nullptr ? &page : area->widget();
}

bool TakesActs(const QWidget& widget) {
  return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
         qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QListWidget*>(&widget);
}

TEST_F(WindowsTest, EveryControlOfATabHasANameAPlaceAndRoomForItsText) {
  App().frmMain.CmdUpDow[kMasterReset].visible = true;
  program_->RefreshNow();
  for (const QSize size : {QSize(1040, 700), QSize(960, 600)}) {
    Main().resize(size);
    auto& tabs = Main().Tabs();
    int checked = 0;
    for (int tab = 0; tab < tabs.count(); ++tab) {
      tabs.setCurrentIndex(tab);
      QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
      auto* page = tabs.currentWidget();
      for (auto* widget : page->findChildren<QWidget*>()) {
        const auto name = widget->objectName();
        if (!TakesActs(*widget) || !widget->isVisible() || name.startsWith(QLatin1String("qt_"))) continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << name.toStdString();
        EXPECT_TRUE(Reachable(*widget, *Scrolled(*widget, *page))) << name.toStdString();
        EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << name.toStdString();
        EXPECT_NE(App().registry.Find(name.toStdString()), nullptr) << name.toStdString();
        ++checked;
      }
    }
    EXPECT_GE(checked, 20);
    EXPECT_EQ(Main().size(), size);
  }
}

TEST_F(WindowsTest, LettersStandOnceOnATabAndInAMenu) {
  auto& tabs = Main().Tabs();
  for (int tab = 0; tab < tabs.count(); ++tab) {
    tabs.setCurrentIndex(tab);
    QSet<QString> letters;
    const auto see = [&](const QString& text) {
      const auto letter = QKeySequence::mnemonic(text).toString();
      if (letter.isEmpty()) return;
      EXPECT_FALSE(letters.contains(letter)) << text.toStdString() << " on tab " << tab;
      letters.insert(letter);
    };
    for (auto* action : Main().menuBar()->actions()) {
      if (action->isVisible()) see(action->text());
    }
    for (auto* button : tabs.currentWidget()->findChildren<QAbstractButton*>()) {
      if (button->isVisible()) see(button->text());
    }
    for (auto* label : tabs.currentWidget()->findChildren<QLabel*>()) {
      if (label->isVisible() && label->buddy() != nullptr) see(label->text());
    }
    EXPECT_GE(letters.size(), 2);
  }
}

TEST_F(WindowsTest, TheTabKeyVisitsWhatCanActInReadingOrder) {
  Main().Tabs().setCurrentIndex(kRemoteTab);
  OpenAndHold();
  Find<QPushButton>("cmdDisConnect").setFocus();
  QStringList visited;
  for (int stop = 0; stop < 13; ++stop) {
    visited.append(Main().focusWidget()->objectName());
    Press(*Main().focusWidget(), Qt::Key_Tab);
  }
  const QStringList expected{"cmdDisConnect", "CmdUpDow(4)", "CmdUpDow(0)", "CmdUpDow(1)", "CmdUpDow(3)",
                             "CmdUpDow(5)",   "CheckTD",     "ComboMonth",  "ComboDay(0)", "ComboYear",
                             "ComboHR",       "ComboMin",    "ComboSec"};
  EXPECT_EQ(visited, expected) << visited.join(' ').toStdString();
}

TEST_F(WindowsTest, TheWheelNeverChangesAListAndTheSameEntryCanBePickedAgain) {
  Main().Tabs().setCurrentIndex(kRemoteTab);
  ClickOn("CheckTD");
  auto& hours = Find<PickList>("ComboHR");
  emit hours.activated(7);
  program_->RefreshNow();
  hours.setFocus();
  Turn(hours);
  EXPECT_EQ(App().frmMain.ComboHR.position, 7);
  EXPECT_EQ(hours.currentIndex(), 7);

  App().ClockHour = "99";
  emit hours.activated(7);
  EXPECT_EQ(App().ClockHour, "07");

  Press(hours, Qt::Key_Down);
  EXPECT_EQ(App().ClockHour, "08");
}

TEST_F(WindowsTest, AnActDuringAHandlerIsLostAndTakenBackOnTheScreen) {
  Main().Tabs().setCurrentIndex(kRemoteTab);
  auto& hours = Find<PickList>("ComboHR");
  App().frmMain.ComboHR.position = 3;
  program_->RefreshNow();
  while_box_ = [&] {
    hours.setCurrentIndex(9);
    emit hours.activated(9);
    Find<QCheckBox>("CheckTD").click();
    program_->RefreshNow();
  };
  ClickOn("CmdUpDow(4)");
  ASSERT_EQ(boxes_, std::vector<std::string>{"        Please Select Comport."});
  EXPECT_EQ(hours.currentIndex(), 3);
  EXPECT_TRUE(Find<QCheckBox>("CheckTD").isChecked());
  EXPECT_TRUE(App().frmMain.CheckTD.checked);
}

TEST_F(WindowsTest, TheRegisterListMovesByLettersAndPicksByEnter) {
  auto& list = Find<TallList>("ComboReg");
  list.setFocus();
  Press(list, Qt::Key_A, QStringLiteral("a"));
  Press(list, Qt::Key_L, QStringLiteral("l"));
  EXPECT_EQ(list.currentItem()->text(), "ALOHA");
  EXPECT_EQ(App().frmMain.ComboReg.position, 0);
  EXPECT_EQ(list.Marked(), 0);

  Press(list, Qt::Key_Return);
  program_->RefreshNow();
  EXPECT_EQ(App().frmMain.ComboReg.position, 2);
  EXPECT_EQ(list.Marked(), 2);

  Press(list, Qt::Key_Up);
  Press(list, Qt::Key_Escape);
  EXPECT_EQ(list.currentRow(), 2);
}

TEST_F(WindowsTest, OptionsFollowTheModelAndArrowsPick) {
  ClickOn("cmdConnect");
  auto& dialog = App().frmSettSR;
  auto& fast = Find<QRadioButton>("OpBaud(4)");
  Press(Find<QRadioButton>("OpBaud(3)"), Qt::Key_Down);
  program_->RefreshNow();
  EXPECT_TRUE(fast.isChecked());
  EXPECT_FALSE(Find<QRadioButton>("OpBaud(3)").isChecked());
  EXPECT_EQ(App().PortBaud, "14400");

  dialog.OpBaud.elements[5].enabled = false;
  Press(fast, Qt::Key_Down);
  EXPECT_EQ(dialog.OpBaud.chosen, 6);
  fast.click();
  fast.click();
  program_->RefreshNow();
  EXPECT_TRUE(fast.isChecked());

  Main().Tabs().setCurrentIndex(kExceptionTab);
  App().frmMain.OpDVR.elements[1].visible = false;
  program_->RefreshNow();
  EXPECT_TRUE(Find<QRadioButton>("OpDVR(1)").isHidden());
}

TEST_F(WindowsTest, FormsComeAndGoAsTheModelSays) {
  auto* settings = program_->OnScreen().WindowOf(App().frmSettSR.form);
  ASSERT_NE(settings, nullptr);
  EXPECT_FALSE(settings->isVisible());
  ClickOn("cmdConnect");
  EXPECT_TRUE(settings->isVisible());
  EXPECT_FALSE(Main().Tabs().isEnabled());
  EXPECT_TRUE(Find<QPushButton>("frmSettSR.cmdSET").isEnabled());
  EXPECT_TRUE(Find<QPushButton>("frmSettSR.cmdSET").isDefault());
  EXPECT_EQ(settings->focusWidget(), &Find<QPushButton>("frmSettSR.cmdSET"));

  Press(*settings, Qt::Key_Escape);
  program_->RefreshNow();
  EXPECT_FALSE(settings->isVisible());
  EXPECT_TRUE(Main().Tabs().isEnabled());
  EXPECT_FALSE(App().frmMain.MSComm1.PortOpen);

  ClickOn("cmdConnect");
  Press(*settings, Qt::Key_Return);
  program_->RefreshNow();
  EXPECT_TRUE(App().frmMain.MSComm1.PortOpen);
  EXPECT_FALSE(Find<QPushButton>("cmdDisConnect").isHidden());
  EXPECT_TRUE(Find<QPushButton>("cmdConnect").isHidden());
}

TEST_F(WindowsTest, ATransferShowsHowFarItIsAndItsEndStaysUntilAnswered) {
  Main().Tabs().setCurrentIndex(kRemoteTab);
  OpenAndHold();
  EXPECT_EQ(Find<QLabel>("lbRemoteAccess").text(), "ACCESS");
  ClickOn("CmdUpDow(0)");
  EXPECT_TRUE(Find<QProgressBar>("vbalProgressBar1").isVisible());
  EXPECT_EQ(TransferProgressText(App()), "waiting for the unit");

  const auto stream = PatternStream({"V1400", "R12"}, 9, 0);
  Unit(std::string_view(stream).substr(0, 1530));
  EXPECT_TRUE(TransferProgressText(App()).startsWith("1,530 characters, "))
      << TransferProgressText(App()).toStdString();
  EXPECT_EQ(Find<QProgressBar>("vbalProgressBar1").value(), App().frmMain.vbalProgressBar1.value);

  Unit(std::string_view(stream).substr(1530));
  auto* end = program_->OnScreen().WindowOf(App().frmOK_buttom.form);
  ASSERT_TRUE(end->isVisible());
  EXPECT_TRUE(end->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_FALSE(Find<QProgressBar>("vbalProgressBar1").isVisible());
  EXPECT_EQ(App().LinkMode, kLinkUpload);

  end->close();
  EXPECT_EQ(App().LinkMode, kLinkIdle);
  EXPECT_FALSE(end->isVisible());
  EXPECT_TRUE(Find<QPushButton>("CmdUpDow(4)").isEnabled());
}

TEST_F(WindowsTest, ThePointerOverUploadAndDownloadShowsTheHint) {
  const auto send = [&](const char* name, QEvent::Type type) {
    QEvent event(type);
    QCoreApplication::sendEvent(&Find<QPushButton>(name), &event);
  };
  auto& pictures = App().frmMain.Picture1;
  for (auto& button : App().frmMain.CmdUpDow) button.enabled = true;
  send("CmdUpDow(0)", QEvent::Enter);
  EXPECT_TRUE(pictures[1].visible);
  send("CmdUpDow(0)", QEvent::Leave);
  EXPECT_FALSE(pictures[1].visible);
  send("CmdUpDow(1)", QEvent::Enter);
  EXPECT_TRUE(pictures[2].visible);
}

TEST_F(WindowsTest, TextThatHasNoCodeIsRefusedWithAReason) {
  TextBox box;
  box.max_length = 4;
  App().registry.Add(App().frmMain.form, "TextOfTheTest", box);
  QString hint;
  Bindings bindings(
      App(), [this](const Event& event) { return program_->Act(event); },
      [&](const QString& text) { hint = text; });
  std::unique_ptr<QWidget> line(bindings.Make(bindings.Named(App().frmMain.form, "TextOfTheTest"), "Text"));
  bindings.Refresh();
  Press(*line, Qt::Key_A, QStringLiteral("a"));
  Press(*line, Qt::Key_unknown, QString(QChar(0x20AC)));
  EXPECT_EQ(box.text, "a\x80");
  EXPECT_TRUE(hint.isEmpty());

  Press(*line, Qt::Key_unknown, QString(QChar(0x0416)));
  EXPECT_EQ(box.text, "a\x80");
  EXPECT_NE(hint.indexOf("Windows-1252"), -1);

  Main().Status().ShowHint(hint);
  EXPECT_EQ(Find<CutLabel>("StatusNote").Text(), hint);
}

TEST_F(WindowsTest, TheVersionMenuMarksTheFirmwareAndAnotherPickEndsTheProgram) {
  EXPECT_TRUE(Find<QAction>("V1400R12mnu").isChecked());

  Find<QAction>("V1400R12mnu").trigger();
  program_->RefreshNow();
  EXPECT_TRUE(Find<QAction>("V1400R12mnu").isChecked());
  EXPECT_TRUE(Main().isVisible());

  Find<QAction>("V1300R14mnu").trigger();
  EXPECT_EQ(stored_, "V1300R14");
  EXPECT_EQ(boxes_.size(), 1U);
  EXPECT_FALSE(Main().isVisible());
  EXPECT_EQ(program_->Act(ClickEvent{&App().frmMain.cmdConnect}), Outcome::kEnded);
}

TEST_F(WindowsTest, ARefreshWithoutAChangeTouchesNoWidget) {
  program_->RefreshNow();
  auto& label = Find<QLabel>("lbConnectting");
  label.setText("as left by the test");
  program_->RefreshNow();
  EXPECT_EQ(label.text(), "as left by the test");
  App().frmMain.lbConnectting.caption = "Changed";
  program_->RefreshNow();
  EXPECT_EQ(label.text(), "Changed");
}

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one), b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(Theme, TextStandsOutInBothThemes) {
  for (const auto theme : {Theme::kLight, Theme::kDark}) {
    ApplyTheme(theme);
    const auto palette = QApplication::palette();
    const auto check = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
      EXPECT_GE(Contrast(palette.color(text), palette.color(ground)), 4.5) << text << " on " << ground;
    };
    for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase}) {
      check(QPalette::WindowText, ground);
      check(QPalette::PlaceholderText, ground);
      check(QPalette::Link, ground);
    }
    check(QPalette::ButtonText, QPalette::Button);
    check(QPalette::HighlightedText, QPalette::Highlight);
    EXPECT_NE(palette.color(QPalette::Disabled, QPalette::WindowText), MutedColor(palette));
  }
}

TEST(Pictures, EveryStateIsTakenInBothThemes) {
  const TemporaryFolder site, shots;
  std::filesystem::create_directories(site.Path() / "V1400" / "R12");
  WriteWhole(site.File("V1400/R12/GENERIC.bin"), PatternStream({"V1400", "R12"}) + "\r\n");
  std::filesystem::create_directories(site.Path() / "ORB");
  WriteWhole(site.File("ORB/OVL Software.conf"), "[General]\nVersion=V1400\nRelease=R12\n");
  const auto folder = QString::fromStdString(site.Path().string());
  ASSERT_TRUE(SavePictures(folder, folder, QString::fromStdString(shots.Path().string())));
  for (const char* theme : {"light", "dark"}) {
    const QDir below(QString::fromStdString(shots.File(theme)));
    const auto load = [&](const char* name) { return QImage(below.filePath(QString::fromLatin1(name))); };
    EXPECT_EQ(load("remote_access.png").size(), QSize(1040, 700));
    for (const char* other :
         {"remote_open.png", "remote_asked.png", "remote_uploading.png", "remote_hint.png"}) {
      EXPECT_NE(load(other), load("remote_access.png")) << other;
    }
    EXPECT_FALSE(load("transfer_end.png").isNull());
    EXPECT_FALSE(load("scan_progress.png").isNull());
  }
}

}  // namespace
}  // namespace ovl::testing
