#include <QApplication>
#include <QProcess>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "bench.h"
#include "shell/program.h"
#include "shell/theme.h"
#include "site.h"

namespace ovl::bench {
namespace {

constexpr int kRuns = 7;
constexpr const char* kPainted = "painted ";

// Ends the event loop once every visible window has been painted.
class PaintWatch : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && !painted_ && qobject_cast<QWidget*>(watched)->isWindow()) {
      painted_ = true;
      QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  bool painted_ = false;
};

long PeakKibibytes() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.rfind("VmHWM:", 0) == 0) return std::stol(line.substr(6));
  }
  return 0;
}

}  // namespace

int PaintOnce(int argc, char** argv) {
  QApplication application(argc, argv);
  ApplyTheme(Theme::kDesktop);
  Program program(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
  if (program.Start() != Outcome::kDone) return EXIT_FAILURE;
  PaintWatch watch;
  for (auto* window : QApplication::topLevelWidgets()) window->installEventFilter(&watch);
  QApplication::exec();
  std::printf("%s%ld\n", kPainted, PeakKibibytes());
  std::fflush(stdout);
  return EXIT_SUCCESS;
}

void MeasureStart(Site& site) {
  std::vector<double> taken;
  double memory = 0;
  for (int run = 0; run < kRuns; ++run) {
    QProcess process;
    const auto start = std::chrono::steady_clock::now();
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--paint-once"), site.Folder(), site.Store()});
    if (!process.waitForReadyRead()) continue;
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    taken.push_back(time.count());
    memory =
        process.readAll().mid(static_cast<int>(std::string(kPainted).size())).trimmed().toDouble() / 1024;
    process.waitForFinished();
  }
  if (taken.empty()) {
    std::printf("the program did not start\n");
    return;
  }
  std::sort(taken.begin(), taken.end());
  std::printf(
      "process start to first painted window   %.0f ms (aim below 80), peak memory %.0f MiB (aim below 60)\n",
      taken[taken.size() / 2], memory);
}

}  // namespace ovl::bench
