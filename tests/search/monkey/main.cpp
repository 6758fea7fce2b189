// Does random acts in the windows of the program and compares the windows with the model after each. Prints
// the first finding with the shortest sequence of acts that shows it.
//   ovl-monkey [ACTS [SEED [RUN [FIRMWARE]]]]
// Starts the program again after 500 acts, with the next firmware if none is given. A finding names its run:
// with the same seed and this run it comes again at once, unless it depends on the timers of Qt.
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <map>

#include "acts.h"
#include "check.h"
#include "firmware/firmware_table.h"
#include "search/fault_sweep/long_run.h"

namespace ovl::testing {
namespace {

using Seeds = std::vector<std::uint32_t>;

constexpr int kActsOfRun = 500;

Random answers(1);

struct Outcome {
  std::string wrong;
  std::vector<std::string> acts;
};

// How long acts hold the event loop, in milliseconds. Only the time of this thread counts, because a busy
// computer makes every act long. A click also activates its window, and this time counts.
constexpr double kHold = 50;

double ThreadTime() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// The acts that held it for longer than kHold, without their numbers, and the longest time of each.
std::map<std::string, double> holds;

void NoteHold(const std::string& act, double time) {
  if (time < kHold) return;
  auto& longest = holds[act.substr(0, act.find_last_not_of("0123456789,") + 1)];
  longest = std::max(longest, time);
}

// A window manager does this when the active window closes. The offscreen platform does not.
void ActivateFrontWindow(Screen& screen) {
  if (QApplication::activeWindow() != nullptr || QApplication::activePopupWidget() != nullptr) return;
  screen.OnScreen().Front()->activateWindow();
}

// Runs the acts until one leaves something wrong, or the program ends.
Outcome Run(const firmware::FirmwareId& firmware, const Seeds& seeds) {
  Outcome outcome;
  answers = Random(1);
  // An act of an earlier run can have changed it.
  static const auto font = QApplication::font();
  QApplication::setFont(font);
  Site site(firmware);
  site.screen.Show();
  for (const auto seed : seeds) {
    const auto before = ThreadTime();
    outcome.acts.push_back(DoAtRandom(site, seed));
    if (site.screen.App().ended || !site.screen.Main().isVisible()) return outcome;
    NoteHold(outcome.acts.back(), ThreadTime() - before);
    ActivateFrontWindow(site.screen);
    site.screen.Show();
    QCoreApplication::processEvents();
    outcome.wrong = WhatIsWrong(site.screen);
    if (!outcome.wrong.empty()) return outcome;
  }
  return outcome;
}

std::vector<firmware::FirmwareId> FirmwareOf(const char* name) {
  std::vector<firmware::FirmwareId> all;
  for (const auto& row : firmware::FirmwareTable()) {
    const firmware::FirmwareId id{std::string(row.version), std::string(row.release)};
    if (name == nullptr || id.Joined() == name) all.push_back(id);
  }
  return all;
}

int Search(int acts, std::uint32_t seed, std::size_t first_run,
           const std::vector<firmware::FirmwareId>& all) {
  Random random(seed);
  int done = 0;
  for (std::size_t run = 0; done < acts; ++run) {
    const auto& firmware = all[run % all.size()];
    Seeds seeds;
    for (int act = 0; act < kActsOfRun; ++act)
      seeds.push_back(static_cast<std::uint32_t>(random.Below(1 << 30)));
    if (run < first_run) continue;
    const auto outcome = Run(firmware, seeds);
    done += static_cast<int>(outcome.acts.size());
    if (outcome.wrong.empty()) continue;
    std::printf("%s, act %zu of run %zu: %s\n", firmware.Joined().c_str(), outcome.acts.size(), run,
                outcome.wrong.c_str());
    seeds.resize(outcome.acts.size());
    const auto is_wrong = [&](const Seeds& fewer) { return !Run(firmware, fewer).wrong.empty(); };
    const auto shortest = Run(firmware, Shortest(seeds, is_wrong));
    for (const auto& act : shortest.acts) std::printf("  %s\n", act.c_str());
    std::printf("%s\n", shortest.wrong.c_str());
    return 1;
  }
  std::printf("%d acts, nothing wrong\n", done);
  for (const auto& [act, time] : holds)
    std::printf("  held the event loop for %.0f ms: %s\n", time, act.c_str());
  return 0;
}

// The offscreen platform complains about each window that is raised.
void Print(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith(QLatin1String("This plugin")))
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** words) {
  using namespace ovl::testing;
  qInstallMessageHandler(Print);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(count, words);
  QApplication::setQuitOnLastWindowClosed(false);
  AnswerAtRandom(answers);
  const int acts = count > 1 ? std::atoi(words[1]) : 20'000;
  const auto seed = count > 2 ? static_cast<std::uint32_t>(std::strtoul(words[2], nullptr, 10)) : 1U;
  const std::size_t first_run = count > 3 ? std::strtoul(words[3], nullptr, 10) : 0;
  const auto all = FirmwareOf(count > 4 ? words[4] : nullptr);
  if (acts <= 0 || all.empty()) {
    std::fprintf(stderr, "Usage: ovl-monkey [ACTS [SEED [RUN [FIRMWARE]]]]\n");
    return 2;
  }
  return Search(acts, seed, first_run, all);
}
