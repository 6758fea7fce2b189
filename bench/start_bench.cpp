#include <QApplication>
#include <QProcess>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "bench.h"
#include "paint_watch.h"
#include "site.h"
#include "ui/app/program.h"
#include "ui/kit/theme.h"

namespace ovl::bench {
namespace {

constexpr int kRuns = 11;

struct Starts {
  QString program;
  QStringList words;
  QString platform;
  std::vector<double> times = {};
  double memory = 0;

  void Measure() {
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    process.setProcessEnvironment(environment);
    const auto start = std::chrono::steady_clock::now();
    process.start(program, words);
    if (!process.waitForReadyRead()) return;
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    times.push_back(time.count());
    memory =
        process.readAll().mid(static_cast<int>(std::string(kPainted).size())).trimmed().toDouble() / 1024;
    process.waitForFinished();
  }

  double Median() {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
  }
};

}  // namespace

int PaintOnce(int argc, char** argv) {
  QApplication application(argc, argv);
  ui::ApplyTheme(ui::Theme::kDesktop);
  ui::Program program(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
  if (program.Start() != core::Outcome::kDone) return EXIT_FAILURE;
  program.GuardUnsaved();
  PaintWatch watch;
  for (auto* window : QApplication::topLevelWidgets()) window->installEventFilter(&watch);
  QApplication::exec();
  TellPainted();
  return EXIT_SUCCESS;
}

// Turn about, so that what else the machine does meets both alike.
void MeasureStartOn(Site& site, const QString& platform) {
  Starts whole{QCoreApplication::applicationFilePath(),
               {QStringLiteral("--paint-once"), site.Folder(), site.Store()},
               platform};
  Starts empty{QCoreApplication::applicationDirPath() + QStringLiteral("/ovl-bench-empty"), {}, platform};
  for (int run = 0; run < kRuns; ++run) {
    whole.Measure();
    empty.Measure();
  }
  if (whole.times.empty() || empty.times.empty()) {
    std::printf("the program or the empty window did not start\n");
    return;
  }
  std::printf(
      "process start to first painted window   %.0f ms (aim below 80), peak memory %.0f MiB (aim below 60); "
      "platform %s\n",
      whole.Median(), whole.memory, qPrintable(platform));
  std::printf(
      "the same for an empty window            %.0f ms, %.0f MiB; %.2f times as long (aim at most 1.6)\n",
      empty.Median(), empty.memory, whole.Median() / empty.Median());
}

// Without a screen, and on one where there is one: a person starts the program on a screen.
void MeasureStart(Site& site) {
  MeasureStartOn(site, QStringLiteral("offscreen"));
  if (qEnvironmentVariableIsSet("DISPLAY")) MeasureStartOn(site, QStringLiteral("xcb"));
}

}  // namespace ovl::bench
