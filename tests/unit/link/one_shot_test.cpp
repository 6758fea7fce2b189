#include "unit/link/states.h"

namespace ovl::testing {
namespace {

constexpr int kRefresh = 11;  // ticks from one refresh of the clock to the next

void ShowTime(Harness& program, const core::ClockTime& time) {
  program.now = time;
  program.Tick(program.app.frmMain.Timer, kRefresh);
}

// What the lists show. Behind the day is the length of the month for which its list is made.
std::string Shown(const controls::MainForm& main) {
  std::string days;
  for (std::size_t list = 0; list < 4; ++list) {
    if (main.ComboDay[list].visible) days += main.ComboDay[list].Text() + "/" + std::to_string(28 + list);
  }
  return main.ComboMonth.Text() + "-" + days + "-" + main.ComboYear.Text() + " " + main.ComboHR.Text() + ":" +
         main.ComboMin.Text() + ":" + main.ComboSec.Text();
}

TEST(SetTime, SendsThePickedTime) {
  InState program(State::kHeld);
  ShowTime(program, {2023, 1, 31, 10, 20, 30});
  program.Click("CheckTD");
  const std::pair<const char*, int> picks[] = {
      {"ComboHR", 23}, {"ComboMin", 59}, {"ComboSec", 1}, {"ComboYear", 0}, {"ComboMonth", 1}};
  for (const auto& [list, position] : picks)
    EXPECT_EQ(program.Pick(list, position), core::Outcome::kDone) << list;
  program.Press("CmdUpDow(2)");
  EXPECT_EQ(program.TakeSent(), "/TD02-29-00 23:59:01\r\n\r");
}

TEST(Clock, FollowsTheComputerAtEachEleventhTickAndWhenTheBoxIsChecked) {
  InState program(State::kClosed);
  auto& main = program.app.frmMain;
  ShowTime(program, {2024, 2, 29, 23, 59, 58});
  EXPECT_EQ(Shown(main), "02-29/29-24 23:59:58");
  program.now = {2100, 12, 31, 0, 0, 5};
  EXPECT_EQ(program.Pick("ComboHR", 7), core::Outcome::kDone);
  program.Tick(main.Timer, kRefresh - 1);
  EXPECT_EQ(Shown(main), "02-29/29-24 07:59:58");
  program.Tick(main.Timer);
  EXPECT_EQ(Shown(main), "12-31/31-00 00:00:05");

  ShowTime(program, {2026, 3, 5, 14, 7, 9});
  program.Tick(main.Timer, 4);
  program.Click("CheckTD");
  EXPECT_EQ(Shown(main), "03-05/31-26 14:07:00");
  EXPECT_EQ(program.app.ClockSecond, "00");
  EXPECT_EQ(program.app.ClockTickCount, 0);
  EXPECT_EQ(main.Timer.interval, 100);
  EXPECT_EQ(program.Tick(main.Timer), core::Outcome::kRefused);

  program.now = {2026, 3, 30, 1, 2, 3};
  program.Click("CheckTD");
  EXPECT_EQ(Shown(main), "03-30/31-26 01:02:03");
  EXPECT_TRUE(main.Timer.enabled);
}

TEST(Clock, ADayThatFallsBackTwiceIsStoredTwice) {
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

TEST(Clock, ADayAfterTheEndOfTheMonthBecomesItsLastDay) {
  const std::tuple<core::ClockTime, const char*, int, std::string> rows[] = {
      {{2023, 1, 31}, "ComboMonth", 1, "02-28/28-23"},  {{2024, 1, 31}, "ComboMonth", 1, "02-29/29-24"},
      {{2023, 1, 29}, "ComboMonth", 1, "02-28/28-23"},  {{2023, 1, 9}, "ComboMonth", 1, "02-09/28-23"},
      {{2024, 2, 29}, "ComboYear", 23, "02-28/28-23"},  {{2024, 2, 29}, "ComboYear", 0, "02-29/29-00"},
      {{2023, 2, 28}, "ComboYear", 24, "02-28/29-24"},  {{2023, 3, 31}, "ComboYear", 24, "03-31/31-24"},
      {{2023, 2, 28}, "ComboMonth", 2, "03-28/31-23"},  {{2023, 1, 31}, "ComboMonth", 3, "04-30/30-23"},
      {{2023, 1, 31}, "ComboMonth", 4, "05-31/31-23"},  {{2023, 1, 31}, "ComboMonth", 5, "06-30/30-23"},
      {{2023, 1, 31}, "ComboMonth", 6, "07-31/31-23"},  {{2023, 1, 31}, "ComboMonth", 7, "08-31/31-23"},
      {{2023, 1, 31}, "ComboMonth", 8, "09-30/30-23"},  {{2023, 1, 31}, "ComboMonth", 9, "10-31/31-23"},
      {{2023, 1, 31}, "ComboMonth", 10, "11-30/30-23"}, {{2023, 1, 31}, "ComboMonth", 11, "12-31/31-23"}};
  for (const auto& [start, list, position, shown] : rows) {
    SCOPED_TRACE(shown);
    InState program(State::kClosed);
    ShowTime(program, start);
    program.Click("CheckTD");
    EXPECT_EQ(program.Pick(list, position), core::Outcome::kDone);
    EXPECT_EQ(Shown(program.app.frmMain), shown + " 00:00:00");
    EXPECT_EQ(program.app.ClockDay, shown.substr(3, 2));
  }
}

}  // namespace
}  // namespace ovl::testing
