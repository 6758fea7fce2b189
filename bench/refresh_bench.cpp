#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "bench.h"
#include "site.h"
#include "ui/app/program.h"
#include "ui/kit/theme.h"
#include "ui/window/main_window.h"

namespace ovl::bench {
namespace {

struct Times {
  std::vector<double> acts = {}, refreshes = {};
};

double MillisecondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void Measure(ui::Program& program, const core::Event& event, Times& times) {
  times.acts.push_back(MillisecondsOf([&] { program.Act(event); }));
  times.refreshes.push_back(MillisecondsOf([&] { program.RefreshNow(); }));
  QApplication::processEvents();
}

void Print(const char* what, std::vector<double>& times) {
  std::sort(times.begin(), times.end());
  std::printf("%-39s median %.2f ms, longest %.2f ms\n", what, times[times.size() / 2], times.back());
}

}  // namespace

// After every tab was shown, so that all pages are built, as after a while of work.
void MeasureRefresh(Site& site) {
  ui::ApplyTheme(ui::Theme::kDesktop);
  ui::Program program(site.Folder(), site.Store());
  if (program.Start() != core::Outcome::kDone) return;
  auto& tabs = program.OnScreen().Main().Tabs();
  for (int tab = 0; tab < tabs.count(); ++tab) {
    tabs.setCurrentIndex(tab);
    QApplication::processEvents();
  }
  auto& form = program.Model().frmMain;
  Times settings, registers;
  for (int act = 0; act < 200; ++act) Measure(program, core::PickEvent{&form.ComboALM[3], act % 5}, settings);
  const int names = static_cast<int>(form.ComboReg.items.size());
  for (int position = 0; position < names; ++position)
    Measure(program, core::PickEvent{&form.ComboReg, position}, registers);
  std::printf("refresh after an act, all pages built (aim below 4 ms)\n");
  Print("  pick of an alarm's duration", settings.acts);
  Print("  the refresh after it", settings.refreshes);
  Print("  pick of a register", registers.acts);
  Print("  the refresh after it", registers.refreshes);
}

}  // namespace ovl::bench
