#include "link/clock.h"

#include <algorithm>

#include "core/actions.h"
#include "link/link_state.h"

namespace ovl {
namespace {

constexpr int kShortestMonth = 28;
constexpr std::int16_t kTicksToRefresh = 10;

std::string TwoDigits(int number) {
  return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

// Every year divisible by 4 is a leap year to the unit, 00 included.
int DaysOfMonth(const Application& app) {
  switch (LeadingNumber(app.ClockMonth)) {
    case 4:
    case 6:
    case 9:
    case 11:
      return 30;
    case 2:
      return LeadingNumber(app.ClockYear) % 4 == 0 ? 29 : 28;
    default:
      return 31;
  }
}

// Shows the list with as many entries as the month has days. A day that the month lacks becomes its last one,
// and is stored also when the list stood there before.
void ShowDayList(Application& app) {
  const int days = DaysOfMonth(app);
  auto& lists = app.frmMain.ComboDay;
  for (auto& list : lists) list.visible = false;
  auto& list = lists.at(static_cast<std::size_t>(days - kShortestMonth));
  AssignPosition(app, list, std::min(LeadingNumber(app.ClockDay), days) - 1, Raise::kAlways);
  list.visible = true;
}

}  // namespace

void ReadSystemClock(Application& app) {
  const auto now = app.platform.clock();
  app.ClockHour = TwoDigits(now.hour);
  app.ClockMinute = TwoDigits(now.minute);
  app.ClockSecond = TwoDigits(now.second);
  app.ClockMonth = TwoDigits(now.month);
  app.ClockDay = TwoDigits(now.day);
  app.ClockYear = TwoDigits(now.year);
}

void ShowClock(Application& app) {
  auto& form = app.frmMain;
  AssignPosition(app, form.ComboHR, LeadingNumber(app.ClockHour));
  AssignPosition(app, form.ComboMin, LeadingNumber(app.ClockMinute));
  AssignPosition(app, form.ComboSec, LeadingNumber(app.ClockSecond));
  AssignPosition(app, form.ComboYear, LeadingNumber(app.ClockYear));
  AssignPosition(app, form.ComboMonth, LeadingNumber(app.ClockMonth) - 1);
  ShowDayList(app);
}

void ComboHR_Click(Application& app, int) {
  app.ClockHour = TwoDigits(app.frmMain.ComboHR.position);
}

void ComboMin_Click(Application& app, int) {
  app.ClockMinute = TwoDigits(app.frmMain.ComboMin.position);
}

void ComboSec_Click(Application& app, int) {
  app.ClockSecond = TwoDigits(app.frmMain.ComboSec.position);
}

void ComboDay_Click(Application& app, int index) {
  app.ClockDay = TwoDigits(app.frmMain.ComboDay.at(static_cast<std::size_t>(index)).position + 1);
}

void ComboMonth_Click(Application& app, int) {
  app.ClockMonth = TwoDigits(app.frmMain.ComboMonth.position + 1);
  ShowDayList(app);
}

void ComboYear_Click(Application& app, int) {
  app.ClockYear = TwoDigits(app.frmMain.ComboYear.position);
  ShowDayList(app);
}

void CheckTD_Click(Application& app, int) {
  if (app.frmMain.CheckTD.checked) {
    ReadSystemClock(app);
    ShowClock(app);
    EnableTimer(app.frmMain.Timer, true);
    return;
  }
  AssignPosition(app, app.frmMain.ComboSec, 0);
  EnableTimer(app.frmMain.Timer, false);
  app.ClockTickCount = 0;
}

void Timer_Timer(Application& app, int) {
  if (app.ClockTickCount == kTicksToRefresh) {
    ReadSystemClock(app);
    ShowClock(app);
    app.ClockTickCount = 0;
  } else {
    Increment(app.ClockTickCount);
  }
}

}  // namespace ovl
