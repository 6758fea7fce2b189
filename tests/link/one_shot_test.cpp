#include <gtest/gtest.h>

#include "image/files.h"
#include "link/states.h"

namespace ovl::testing {
namespace {

constexpr int kRefresh = 11;  // ticks from one refresh of the clock to the next
constexpr const char* kTimeDone = "SET TIME DATE FINISHED.";

void ShowTime(Harness& program, const ClockTime& time) {
  program.now = time;
  program.Tick(program.app.frmMain.Timer, kRefresh);
}

int VisibleDays(const MainForm& main) {
  int visible = -1;
  for (int list = 0; list < 4; ++list) {
    if (!main.ComboDay[static_cast<std::size_t>(list)].visible) continue;
    EXPECT_EQ(visible, -1);
    visible = list;
  }
  return visible;
}

std::string ShownDay(const MainForm& main) {
  return main.ComboDay.at(static_cast<std::size_t>(VisibleDays(main))).Text();
}

TEST(SetTime, SendsTheClockThatIsShown) {
  InState program(State::kHeld);
  ShowTime(program, {2026, 3, 5, 14, 7, 9});
  program.Tick(program.app.frmMain.Time_handcheck, 3);
  Press("CmdUpDow(2)")(program);
  EXPECT_EQ(program.TakeSent(), "/TD03-05-26 14:07:09\r\n\r");
  EXPECT_EQ(program.app.HandcheckCount, 0);
  ExpectState(program.app, State::kSettingClock);
}

TEST(SetTime, SendsWhatWasPicked) {
  InState program(State::kHeld);
  ShowTime(program, {2023, 1, 31, 10, 20, 30});
  program.Click("CheckTD");
  const std::vector<std::pair<const char*, int>> picks = {
      {"ComboHR", 23}, {"ComboMin", 59}, {"ComboSec", 1}, {"ComboYear", 0}, {"ComboMonth", 1}};
  for (const auto& [list, position] : picks) EXPECT_EQ(program.Pick(list, position), Outcome::kDone) << list;
  Press("CmdUpDow(2)")(program);
  EXPECT_EQ(program.TakeSent(), "/TD02-29-00 23:59:01\r\n\r");
}

TEST(SetTime, EndsWithTheAcknowledgementOnly) {
  InState program(State::kSettingClock);
  program.Unit("noise$#");
  ExpectState(program.app, State::kSettingClock);
  EXPECT_TRUE(program.app.SetTimePending);
  program.Unit(kAck);
  ExpectBox(program, "", kTimeDone);
  ExpectState(program.app, State::kOpen);
  EXPECT_FALSE(program.app.SetTimePending);
  EXPECT_EQ(program.TakeSent(), "");
  Hold(program);
  ExpectState(program.app, State::kHeld);
}

// The flag that a refusal leaves behind takes the next answer for its own.
TEST(SetTime, RefusedTakesALaterGrantForItsAnswer) {
  InState program(State::kSettingClock);
  program.Unit(kNak);
  ExpectBox(program, kFailTitle, kFailText);
  OpenPort(program);
  program.Click("CmdUpDow(4)");
  program.Unit(kAck);
  ExpectBox(program, "", kTimeDone);
  EXPECT_FALSE(program.app.RemoteHeld);
  program.Tick(program.app.frmMain.General_timer);
  ExpectState(program.app, State::kOpen);
  EXPECT_TRUE(program.NoBoxLeft());
}

TEST(SetTime, RefusedOutsideRemoteModeAsksForAnotherTry) {
  InState program(State::kSettingClock);
  program.Unit(kNak);
  program.TakeBox();
  OpenPort(program);
  program.Unit(kNak);
  ExpectBox(program, "", "Please Send Time Date agian.");
  EXPECT_FALSE(program.app.SetTimePending);
  ExpectState(program.app, State::kOpen);
}

TEST(OneShot, DisconnectForgetsWhatIsPending) {
  for (const auto state : {State::kSettingClock, State::kReadingHistory, State::kResetting}) {
    SCOPED_TRACE(NameOf(state));
    InState program(state);
    Disconnect(program);
    ExpectState(program.app, State::kClosed);
    EXPECT_FALSE(program.app.SetTimePending || program.app.HistoryPending || program.app.MasterResetPending);
    OpenPort(program);
    program.TakeSent();
    Hold(program);
    ExpectState(program.app, State::kHeld);
    EXPECT_TRUE(program.NoBoxLeft());
  }
}

TEST(OneShot, HistoryAndResetLeaveTheKeepAliveCountAlone) {
  for (const auto* button : {"CmdUpDow(3)", "CmdUpDow(5)"}) {
    InState program(State::kHeld);
    program.Tick(program.app.frmMain.Time_handcheck, 3);
    program.Click(button);
    EXPECT_EQ(program.app.HandcheckCount, 3) << button;
  }
}

TEST(History, GoesIntoTheFileThatWasChosen) {
  const std::vector<std::pair<std::string, std::string>> texts = {
      {"", "OVLH\r\n\r\n"},
      {"01/02/26 SALE\r\n$#/TD\xE9\x80\r\n", "OVLH\r\n01/02/26 SALE\r\n$#/TD\xE9\x80\r\n\r\n"}};
  for (const auto& [text, content] : texts) {
    InState program(State::kReadingHistory);
    const auto path = program.folder.File("chosen.txt");
    WriteWhole(path, std::string(500, 'x'));
    program.file_answers.push_back(path);
    program.Unit(text);
    EXPECT_TRUE(program.dialogs.empty());
    EXPECT_EQ(program.app.HistoryText, text);
    program.Unit(kAck);
    ASSERT_EQ(program.dialogs.size(), 1U);
    EXPECT_EQ(program.dialogs[0].kind, FileDialog::Kind::kSave);
    EXPECT_EQ(program.dialogs[0].file_name, program.folder.File("History.txt"));
    EXPECT_EQ(program.dialogs[0].filter, "Text Files(*.txt)|*.txt|All Files(*.*)|*.*");
    EXPECT_EQ(program.dialogs[0].filter_index, 2);
    EXPECT_EQ(ReadWhole(path), content);
    EXPECT_EQ(program.app.CurrentFilePath, path);
    EXPECT_FALSE(program.app.HistoryPending);
    ExpectState(program.app, State::kOpen);
    EXPECT_EQ(program.TakeSent(), "");
  }
}

TEST(History, GoesIntoTheOfferedFileWhenTheDialogIsCancelled) {
  InState program(State::kReadingHistory);
  program.file_answers.push_back(std::nullopt);
  program.Unit(std::string("one\r\n") + kAck);
  EXPECT_EQ(ReadWhole(program.folder.File("History.txt")), "OVLH\r\none\r\n\r\n");
  EXPECT_EQ(program.app.CurrentFilePath, program.folder.File("History.txt"));
  ExpectState(program.app, State::kOpen);
}

TEST(History, ThatCannotBeWrittenStillEnds) {
  for (const bool cancelled : {false, true}) {
    InState program(State::kReadingHistory);
    const auto path = program.folder.File(cancelled ? "History.txt" : "chosen.txt");
    std::filesystem::create_directories(path + "/inside");
    if (!cancelled) program.file_answers.push_back(path);
    program.Unit(std::string("one") + kAck);
    EXPECT_FALSE(program.app.HistoryPending);
    ExpectState(program.app, State::kOpen);
    Hold(program);
    ExpectState(program.app, State::kHeld);
  }
}

TEST(History, BrokenOffStandsUntilTheNextOneIsAskedFor) {
  InState program(State::kReadingHistory);
  program.Unit("one?");
  ExpectBox(program, "", kParityText);
  EXPECT_EQ(program.app.HistoryText, "one");
  EXPECT_TRUE(program.app.HistoryPending);
  OpenPort(program);
  Disconnect(program);
  OpenPort(program);
  program.TakeSent();
  Hold(program);
  EXPECT_EQ(program.app.HistoryText, "one");
  Press("CmdUpDow(3)")(program);
  EXPECT_EQ(program.app.HistoryText, "");
}

TEST(Clock, FollowsTheComputerEveryEleventhTick) {
  InState program(State::kClosed);
  auto& main = program.app.frmMain;
  ShowTime(program, {2024, 2, 29, 23, 59, 58});
  EXPECT_EQ(main.ComboHR.Text() + main.ComboMin.Text() + main.ComboSec.Text(), "235958");
  EXPECT_EQ(main.ComboMonth.Text() + main.ComboYear.Text(), "0224");
  EXPECT_EQ(VisibleDays(main), 1);
  EXPECT_EQ(ShownDay(main), "29");

  program.now = {2100, 12, 31, 0, 0, 5};
  EXPECT_EQ(program.Pick("ComboHR", 7), Outcome::kDone);
  EXPECT_EQ(program.app.ClockHour, "07");
  program.Tick(main.Timer, kRefresh - 1);
  EXPECT_EQ(main.ComboHR.Text(), "07");
  program.Tick(main.Timer);
  EXPECT_EQ(main.ComboHR.Text() + main.ComboMin.Text() + main.ComboSec.Text(), "000005");
  EXPECT_EQ(main.ComboMonth.Text() + main.ComboYear.Text(), "1200");
  EXPECT_EQ(VisibleDays(main), 3);
  EXPECT_EQ(ShownDay(main), "31");
  EXPECT_EQ(program.app.ClockDay, "31");
}

TEST(Clock, StandsWhileTheBoxIsClearedAndFollowsAtOnceWhenTicked) {
  InState program(State::kClosed);
  auto& main = program.app.frmMain;
  ShowTime(program, {2026, 3, 5, 14, 7, 9});
  program.Tick(main.Timer, 4);
  program.Click("CheckTD");
  EXPECT_EQ(main.ComboSec.Text(), "00");
  EXPECT_EQ(program.app.ClockSecond, "00");
  EXPECT_FALSE(main.Timer.enabled);
  EXPECT_EQ(program.app.ClockTickCount, 0);
  EXPECT_EQ(program.Tick(main.Timer), Outcome::kRefused);

  program.now = {2026, 4, 30, 1, 2, 3};
  program.Click("CheckTD");
  EXPECT_TRUE(main.Timer.enabled);
  EXPECT_EQ(main.ComboHR.Text() + main.ComboMin.Text() + main.ComboSec.Text(), "010203");
  EXPECT_EQ(VisibleDays(main), 2);
  EXPECT_EQ(ShownDay(main), "30");
}

TEST(Clock, ADayThatFallsTwiceIsStoredTwice) {
  InState program(State::kClosed);
  ShowTime(program, {2023, 1, 31, 0, 0, 0});
  for (int round = 0; round < 2; ++round) {
    program.Pick("ComboMonth", 1);
    EXPECT_EQ(program.app.ClockDay, "28");
    program.Pick("ComboMonth", 0);
    program.Pick("ComboDay(3)", 30);
    EXPECT_EQ(program.app.ClockDay, "31");
  }
}

TEST(Clock, ADayThatTheMonthLacksFallsToItsLast) {
  struct Row {
    ClockTime start;
    const char* list;
    int position;
    int days;  // which list of days shows
    const char* day;
  };
  const std::vector<Row> rows = {
      {{2023, 1, 31}, "ComboMonth", 1, 0, "28"},  {{2024, 1, 31}, "ComboMonth", 1, 1, "29"},
      {{2000, 1, 31}, "ComboMonth", 1, 1, "29"},  {{2024, 1, 29}, "ComboMonth", 1, 1, "29"},
      {{2023, 1, 29}, "ComboMonth", 1, 0, "28"},  {{2023, 1, 9}, "ComboMonth", 1, 0, "09"},
      {{2024, 2, 29}, "ComboYear", 23, 0, "28"},  {{2024, 2, 29}, "ComboYear", 0, 1, "29"},
      {{2023, 2, 28}, "ComboYear", 24, 1, "28"},  {{2023, 3, 31}, "ComboYear", 24, 3, "31"},
      {{2023, 1, 31}, "ComboMonth", 3, 2, "30"},  {{2023, 1, 31}, "ComboMonth", 5, 2, "30"},
      {{2023, 1, 31}, "ComboMonth", 8, 2, "30"},  {{2023, 1, 31}, "ComboMonth", 10, 2, "30"},
      {{2023, 1, 30}, "ComboMonth", 10, 2, "30"}, {{2023, 2, 28}, "ComboMonth", 2, 3, "28"},
      {{2023, 1, 31}, "ComboMonth", 4, 3, "31"},  {{2023, 1, 31}, "ComboMonth", 6, 3, "31"},
      {{2023, 1, 31}, "ComboMonth", 7, 3, "31"},  {{2023, 1, 31}, "ComboMonth", 9, 3, "31"},
      {{2023, 1, 31}, "ComboMonth", 11, 3, "31"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::to_string(row.start.year) + "-" + std::to_string(row.start.month) + " " + row.list +
                 " " + std::to_string(row.position));
    InState program(State::kClosed);
    ShowTime(program, row.start);
    program.Click("CheckTD");
    EXPECT_EQ(program.Pick(row.list, row.position), Outcome::kDone);
    EXPECT_EQ(VisibleDays(program.app.frmMain), row.days);
    EXPECT_EQ(ShownDay(program.app.frmMain), row.day);
    EXPECT_EQ(program.app.ClockDay, row.day);
  }
}

}  // namespace
}  // namespace ovl::testing
