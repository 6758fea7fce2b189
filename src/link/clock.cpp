#include "link/clock.h"

#include <algorithm>

#include "core/actions.h"
#include "link/link_state.h"

namespace ovl::link {
namespace {

constexpr int kShortestMonth = 28;
constexpr std::int16_t kTicksToRefresh = 10;

std::string TwoDigits(int number) {
  return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

// For the unit every year that is divisible by 4 is a leap year, 00 too.
int DaysOfMonth(const core::Application& app) {
  switch (codecs::LeadingNumber(app.ClockMonth)) {
    case 4:
    case 6:
    case 9:
    case 11:
      return 30;
    case 2:
      return codecs::LeadingNumber(app.ClockYear) % 4 == 0 ? 29 : 28;
    default:
      return 31;
  }
}

// Shows the list that has as many entries as the month has days. A day that the month does not have becomes
// its last day. The day is stored even if the list does not move.
void ShowDayList(core::Application& app) {
  const int days = DaysOfMonth(app);
  auto& lists = app.frmMain.ComboDay;
  for (auto& list : lists) list.visible = false;
  auto& list = lists.at(static_cast<std::size_t>(days - kShortestMonth));
  AssignPosition(app, list, std::min(codecs::LeadingNumber(app.ClockDay), days) - 1, core::Raise::kAlways);
  list.visible = true;
}

}  // namespace

void ReadSystemClock(core::Application& app) {
  const auto now = app.platform.clock();
  app.ClockHour = TwoDigits(now.hour);
  app.ClockMinute = TwoDigits(now.minute);
  app.ClockSecond = TwoDigits(now.second);
  app.ClockMonth = TwoDigits(now.month);
  app.ClockDay = TwoDigits(now.day);
  app.ClockYear = TwoDigits(now.year);
}

void ShowClock(core::Application& app) {
  auto& form = app.frmMain;
  AssignPosition(app, form.ComboHR, codecs::LeadingNumber(app.ClockHour));
  AssignPosition(app, form.ComboMin, codecs::LeadingNumber(app.ClockMinute));
  AssignPosition(app, form.ComboSec, codecs::LeadingNumber(app.ClockSecond));
  AssignPosition(app, form.ComboYear, codecs::LeadingNumber(app.ClockYear));
  AssignPosition(app, form.ComboMonth, codecs::LeadingNumber(app.ClockMonth) - 1);
  ShowDayList(app);
}

void ComboHR_Click(core::Application& app, int) {
  app.ClockHour = TwoDigits(app.frmMain.ComboHR.position);
}

void ComboMin_Click(core::Application& app, int) {
  app.ClockMinute = TwoDigits(app.frmMain.ComboMin.position);
}

void ComboSec_Click(core::Application& app, int) {
  app.ClockSecond = TwoDigits(app.frmMain.ComboSec.position);
}

void ComboDay_Click(core::Application& app, int index) {
  app.ClockDay = TwoDigits(app.frmMain.ComboDay.at(static_cast<std::size_t>(index)).position + 1);
}

void ComboMonth_Click(core::Application& app, int) {
  app.ClockMonth = TwoDigits(app.frmMain.ComboMonth.position + 1);
  ShowDayList(app);
}

void ComboYear_Click(core::Application& app, int) {
  app.ClockYear = TwoDigits(app.frmMain.ComboYear.position);
  ShowDayList(app);
}

void CheckTD_Click(core::Application& app, int) {
  if (app.frmMain.CheckTD.checked) {
    ReadSystemClock(app);
    ShowClock(app);
    core::EnableTimer(app.frmMain.Timer, true);
    return;
  }
  AssignPosition(app, app.frmMain.ComboSec, 0);
  core::EnableTimer(app.frmMain.Timer, false);
  app.ClockTickCount = 0;
}

void Timer_Timer(core::Application& app, int) {
  if (app.ClockTickCount == kTicksToRefresh) {
    ReadSystemClock(app);
    ShowClock(app);
    app.ClockTickCount = 0;
  } else {
    Increment(app.ClockTickCount);
  }
}

}  // namespace ovl::link
