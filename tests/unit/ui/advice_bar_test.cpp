// The line of advice below the tabs, and its action "Restart".
#include <gtest/gtest.h>

#include <QLabel>

#include "unit/ui/screen.h"

namespace ovl::testing {
namespace {

class AdviceBarTest : public ::testing::Test {
 protected:
  std::string Words() {
    screen_.Show();
    return screen_.Find<QLabel>("AdviceWords").text().toStdString();
  }
  bool IsShown() {
    screen_.Show();
    return screen_.IsShown("Advice");
  }

  // An upload of which only the first character arrives.
  void BreakAnUpload() {
    auto& app = screen_.App();
    for (const char* name : {"cmdConnect", "frmSettSR.cmdSET", "CmdUpDow(4)"})
      screen_.program->Act(core::ClickEvent{app.registry.Find(name)->control});
    Receive("\x06");
    screen_.program->Act(core::ClickEvent{&app.frmMain.CmdUpDow[controls::kUpload]});
    Receive("$");
    Receive("0");
    screen_.program->Act(core::ClickEvent{&app.frmMain.cmdDisConnect});
  }

  void Receive(const std::string& character) {
    screen_.App().platform.serial.read = [character] { return character; };
    screen_.program->Act(core::ReceivedEvent{});
  }

  Screen screen_{{"V1400", "R12"}};
};

TEST_F(AdviceBarTest, AHiddenLineMakesRoomForTheNextAndAnEmptyBarDisappears) {
  EXPECT_NE(Words().find("not those of the unit. On REMOTE, press "), std::string::npos) << Words();
  const auto place = screen_.Main().Tabs().mapToGlobal(QPoint());
  screen_.App().image[image::FieldId::TRIGGER_TEXT].replace(0, 2, "03");
  EXPECT_EQ(Words().find("not those of the unit. On REMOTE, press "), std::string::npos)
      << "the setting is more important";
  auto& line = screen_.Find<QLabel>("AdviceWords");
  QEvent enter(QEvent::Enter);
  QApplication::sendEvent(&line, &enter);
  EXPECT_TRUE(line.textInteractionFlags() & Qt::TextSelectableByMouse) << "to send it to somebody";
  screen_.Click("AdviceClose");
  EXPECT_NE(Words().find("not those of the unit. On REMOTE, press "), std::string::npos) << Words();
  screen_.Click("AdviceClose");
  EXPECT_FALSE(IsShown());
  EXPECT_EQ(screen_.Main().Tabs().mapToGlobal(QPoint()), place) << "a click would meet another control";
}

TEST_F(AdviceBarTest, TheActionShowsTheAlarmThatTheLineNames) {
  const auto pick_free_exception = [this](int alarm) {
    screen_.Pick("ComboALM(0)", alarm);
    screen_.Pick("ComboALM(1)", 5);
    screen_.Pick("ComboALM(0)", 0);
  };
  pick_free_exception(8);
  EXPECT_NE(Words().find("alarm 9 (5)"), std::string::npos) << Words();
  pick_free_exception(2);
  EXPECT_NE(Words().find("alarms 3 (5) and 9 (5)"), std::string::npos) << Words();
  screen_.Click("AdviceAction");
  EXPECT_EQ(screen_.App().frmMain.ComboALM[0].position, 2);
  EXPECT_EQ(screen_.Focus(), "ComboALM(1)");
}

// What the new program opens is part of the session "broken_transfers".
TEST_F(AdviceBarTest, RestartEndsTheProgramOnlyWhenANewOneHasStarted) {
  screen_.program->GuardUnsaved();
  bool starts = false;
  screen_.program->start_again = [&](const QStringList&) { return starts; };
  BreakAnUpload();
  ASSERT_TRUE(IsShown());
  screen_.Click("AdviceAction");
  EXPECT_FALSE(screen_.App().ended);
  starts = true;
  screen_.Click("AdviceAction");
  EXPECT_TRUE(screen_.App().ended);
}

}  // namespace
}  // namespace ovl::testing
