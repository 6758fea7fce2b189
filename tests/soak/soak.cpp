// The real program for a long time: windows, event loop and serial layer, with a unit on a pseudo-terminal.
// ovl-soak [PERCENT] does so much of 200 uploads, 200 downloads, 500 register picks and 50 losses of the
// port. The first ten of each warm up, and every register once, as its frames come into being when they are
// first shown; what is told counts from there. Exit status 0: all within its bounds, on a machine that is not
// busy with other things.
#include <dirent.h>
#include <unistd.h>

#include <QApplication>
#include <QMessageBox>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <utility>

#include "event_loop.h"
#include "image/record_stream.h"
#include "shell/program.h"
#include "site.h"

namespace ovl::bench {
namespace {

constexpr int kSpeed = 115200;
constexpr int kSpeedElement = 9;
constexpr int kRegisterTab = 0;
constexpr int kRemoteTab = 6;
constexpr int kWarmUp = 10;
constexpr int kTransfers = 200;  // of each direction
constexpr int kPicks = 500;
constexpr int kLosses = 50;
constexpr long kMostGrowth = 2048;   // KiB
constexpr double kLongestHold = 20;  // milliseconds
constexpr int kBarAtLoss = 20;

long ResidentKiB() {
  long total = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

int OpenDescriptors() {
  int count = 0;
  DIR* folder = opendir("/proc/self/fd");
  while (folder != nullptr && readdir(folder) != nullptr) ++count;
  if (folder != nullptr) closedir(folder);
  return count;
}

struct Figures {
  long resident = ResidentKiB();
  int descriptors = OpenDescriptors();
};

class Soak {
 public:
  Soak(Site& site, Program& program, EventLoop& loop) : site_(site), program_(program), loop_(loop) {
    closer_.callOnTimeout([this] { CloseBox(); });
    closer_.start(1);
  }

  bool Connect() {
    if (!site_.StartUnit(kSpeed)) return false;
    Click("cmdConnect");
    Act(PickEvent{&Model().frmSettSR.OpBaud, kSpeedElement});
    Click("frmSettSR.cmdSET");
    return Model().frmMain.MSComm1.PortOpen;
  }

  bool Transfer(bool upload) {
    if (!Begin(upload)) return false;
    if (!loop_.RunUntil([&] { return Model().frmOK_buttom.form.visible; })) return false;
    Click("frmOK_buttom.Command1");
    Settle();
    return IsKnown(SectionsToStream(Model())) && Model().frmMain.form.enabled;
  }

  int Registers() { return static_cast<int>(Model().frmMain.ComboReg.items.size()); }

  void PickRegister(int number) {
    ShowTab(kRegisterTab);
    Act(PickEvent{&Model().frmMain.ComboReg, number % Registers()});
    Settle();
  }

  // Idle, with remote mode held, or in the middle of a transfer; then the unit comes back.
  bool LosePort(int number) {
    if (number % 4 == 1 && !Hold()) return false;
    if (number % 4 >= 2) {
      if (!Begin(number % 4 == 2)) return false;
      if (!loop_.RunUntil([&] { return Model().frmMain.vbalProgressBar1.value > kBarAtLoss; })) return false;
    }
    broken_off_ = broken_off_ || Model().FrameState != 0;
    site_.StopUnit();
    Settle();
    Click("cmdDisConnect");
    Settle();
    return !Model().frmMain.MSComm1.PortOpen && Connect();
  }

  int Boxes() const { return boxes_; }

 private:
  // The unit holds the same configuration all the time. What an upload that broke off had brought stands
  // ahead of the next one.
  bool IsKnown(const std::string& stream) {
    if (std::exchange(broken_off_, false)) return true;
    if (known_.empty()) known_ = stream;
    return stream == known_;
  }

  Application& Model() { return program_.Model(); }
  void Click(const char* name) { Act(ClickEvent{Model().registry.Find(name)->control}); }

  // From the event loop, like a person's, so that it counts as holding it.
  void Act(const Event& event) {
    bool done = false;
    QTimer::singleShot(0, [&] {
      program_.Act(event);
      done = true;
    });
    loop_.RunUntil([&] { return done; });
  }

  void ShowTab(int tab) { program_.OnScreen().Main().findChild<QTabWidget*>()->setCurrentIndex(tab); }

  bool Hold() {
    ShowTab(kRemoteTab);
    Click("CmdUpDow(4)");
    return loop_.RunUntil([&] { return Model().RemoteHeld && !Model().frmMain.General_timer.enabled; });
  }

  bool Begin(bool upload) {
    if (!Hold()) return false;
    Click(upload ? "CmdUpDow(0)" : "CmdUpDow(1)");
    return true;
  }

  // Frames and answers that are on their way.
  void Settle() {
    int turns = 0;
    loop_.RunUntil([&] { return ++turns > 30; });
  }

  void CloseBox() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    ++boxes_;
    box->accept();
  }

  Site& site_;
  Program& program_;
  EventLoop& loop_;
  QTimer closer_;
  int boxes_ = 0;
  bool broken_off_ = false;
  std::string known_;
};

bool Check(const char* what, bool held) {
  if (!held) std::printf("FAILED: %s\n", what);
  return held;
}

struct Amounts {
  int transfers, picks, losses;
};

// Does every kind of act, counted from so many to so many, and tells the longest hold of each.
class Runner {
 public:
  Runner(Soak& soak, EventLoop& loop) : soak_(soak), loop_(loop) {}

  bool Run(int from, const Amounts& to) {
    longest_ = 0;
    bool right = Repeat("uploads", from, to.transfers, [this](int) { return soak_.Transfer(true); });
    right = Repeat("downloads", from, to.transfers, [this](int) { return soak_.Transfer(false); }) && right;
    right =
        Repeat("picks", from, to.picks, [this](int number) { return soak_.PickRegister(number), true; }) &&
        right;
    return Repeat("port losses", from, to.losses, [this](int number) { return soak_.LosePort(number); }) &&
           right;
  }

  double LongestHold() const { return longest_; }

 private:
  bool Repeat(const char* what, int from, int to, const std::function<bool(int)>& step) {
    loop_.Restart();
    int done = 0;
    for (int number = from; number < to; ++number) done += step(number) ? 1 : 0;
    const int count = std::max(to - from, 0);
    std::printf("%-12s %3d of %3d, longest hold %.1f ms, most work at once %.1f ms, then %ld KiB\n", what,
                done, count, loop_.LongestHold(), loop_.MostWork(), ResidentKiB());
    longest_ = std::max(longest_, loop_.LongestHold());
    return done == count;
  }

  Soak& soak_;
  EventLoop& loop_;
  double longest_ = 0;
};

bool Run(Site& site, int percent) {
  Program program(site.Folder(), site.Store());
  if (!Check("the program starts", program.Start() == Outcome::kDone)) return false;
  EventLoop loop;
  Soak soak(site, program, loop);
  if (!Check("the port opens", soak.Connect())) return false;
  Runner runner(soak, loop);
  std::printf("Warming up\n");
  bool right = Check("the warm-up", runner.Run(0, {kWarmUp, soak.Registers(), kWarmUp}));
  const Figures begun;

  std::printf("The run\n");
  const Amounts whole{kTransfers * percent / 100, kPicks * percent / 100, kLosses * percent / 100};
  right = runner.Run(kWarmUp, whole) && right;
  const double hold = runner.LongestHold();
  const Figures ended;
  const long growth = ended.resident - begun.resident;
  std::printf("memory       %ld KiB, %+ld since the warm-up (bound %ld)\n", ended.resident, growth,
              kMostGrowth);
  std::printf("descriptors  %d, %+d\n", ended.descriptors, ended.descriptors - begun.descriptors);
  std::printf("longest hold %.1f ms (bound %.0f)\n", hold, kLongestHold);
  std::printf("boxes        %d\n", soak.Boxes());
  right = Check("memory", growth <= kMostGrowth) && right;
  right = Check("descriptors", ended.descriptors == begun.descriptors) && right;
  return Check("hold", hold <= kLongestHold) && right;
}

}  // namespace
}  // namespace ovl::bench

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  QApplication application(argc, argv);
  const int percent = argc > 1 ? std::atoi(argv[1]) : 100;
  ovl::bench::Site site;
  const bool right = ovl::bench::Run(site, percent);
  site.StopUnit();
  return right ? 0 : 1;
}
