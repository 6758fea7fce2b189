// Runs the real program for a long time, with windows, event loop and serial port, and a unit on a
// pseudo-terminal.
//   ovl-soak [PERCENT]
// performs this part of 200 uploads, 200 downloads, 500 register picks and 50 losses of the port. The first
// ten of each are a warm-up, as is one pick of every register, because its frames are built when they are
// first shown. The numbers count after that. The exit status is 0 if all bounds are kept. The computer must
// not be busy with other work.
#include <unistd.h>

#include <QApplication>
#include <QMessageBox>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <utility>

#include "core/configuration.h"
#include "event_loop.h"
#include "image/record_stream.h"
#include "site.h"
#include "ui/app/program.h"

namespace ovl::bench {
namespace {

constexpr int kWarmUp = 10;
constexpr long kMostGrowth = 2048;   // KiB
constexpr double kLongestHold = 20;  // milliseconds

long ResidentKiB() {
  long total = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

long OpenDescriptors() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

bool Check(const char* what, bool held) {
  if (!held) std::printf("FAILED: %s\n", what);
  return held;
}

class Soak {
 public:
  Soak(Site& site, ui::Program& program, EventLoop& loop) : site_(site), program_(program), loop_(loop) {
    closer_.callOnTimeout([this] { CloseBox(); });
    closer_.start(1);
  }

  bool Connect() {
    constexpr int kSpeed = 115200, kSpeedElement = 9;
    if (!site_.StartUnit(kSpeed)) return false;
    Click("cmdConnect");
    Act(core::PickEvent{&Model().frmSettSR.OpBaud, kSpeedElement});
    Click("frmSettSR.cmdSET");
    return Model().frmMain.MSComm1.PortOpen;
  }

  // Performs every kind of act and prints how long it blocked the event loop.
  bool Run(int from, int transfers, int picks, int losses) {
    longest_ = 0;
    bool right = Repeat("uploads", from, transfers, [this](int) { return Transfer(true); });
    right = Repeat("downloads", from, transfers, [this](int) { return Transfer(false); }) && right;
    right = Repeat("picks", from, picks, [this](int number) { return PickRegister(number); }) && right;
    return Repeat("port losses", from, losses, [this](int number) { return LosePort(number); }) && right;
  }

  int Registers() { return static_cast<int>(Model().frmMain.ComboReg.items.size()); }
  double LongestHold() const { return longest_; }
  int Boxes() const { return boxes_; }

 private:
  bool Repeat(const char* what, int from, int to, const std::function<bool(int)>& act) {
    loop_.Restart();
    const int count = std::max(to - from, 0);
    int done = 0;
    for (int number = from; number < to; ++number) done += act(number) ? 1 : 0;
    std::printf("%-12s %3d of %3d, longest hold %.1f ms, most work at once %.1f ms, then %ld KiB\n", what,
                done, count, loop_.LongestHold(), loop_.MostWork(), ResidentKiB());
    longest_ = std::max(longest_, loop_.LongestHold());
    return done == count;
  }

  bool Transfer(bool upload) {
    if (!Begin(upload) || !loop_.RunUntil([&] { return Model().frmOK_buttom.form.visible; })) return false;
    Click("frmOK_buttom.Command1");
    Settle();
    return IsKnown(core::SectionsToStream(Model())) && Model().frmMain.form.enabled;
  }

  bool PickRegister(int number) {
    ShowTab(0);
    Act(core::PickEvent{&Model().frmMain.ComboReg, number % Registers()});
    Settle();
    return true;
  }

  // The port is lost when it is idle, in remote mode, or during a transfer. Then the unit comes back.
  bool LosePort(int number) {
    if (number % 4 == 1 && !Hold()) return false;
    if (number % 4 >= 2) {
      if (!Begin(number % 4 == 2)) return false;
      if (!loop_.RunUntil([&] { return Model().frmMain.vbalProgressBar1.value > 20; })) return false;
    }
    broken_off_ = broken_off_ || Model().FrameState != 0;
    site_.StopUnit();
    Settle();
    Click("cmdDisConnect");
    Settle();
    return !Model().frmMain.MSComm1.PortOpen && Connect();
  }

  // The unit always has the same configuration. The rest of a broken upload remains ahead of the next one.
  bool IsKnown(const std::string& stream) {
    if (std::exchange(broken_off_, false)) return true;
    if (known_.empty()) known_ = stream;
    return stream == known_;
  }

  core::Application& Model() { return program_.Model(); }
  void Click(const char* name) { Act(core::ClickEvent{Model().registry.Find(name)->control}); }

  // Runs in the event loop, like an action of the user, so that its time is measured.
  void Act(const core::Event& event) {
    bool done = false;
    QTimer::singleShot(0, [&] {
      program_.Act(event);
      done = true;
    });
    loop_.RunUntil([&] { return done; });
  }

  // 0 is the tab of the registers, 6 the tab of the link.
  void ShowTab(int tab) { program_.OnScreen().Main().findChild<QTabWidget*>()->setCurrentIndex(tab); }

  bool Hold() {
    ShowTab(6);
    Click("CmdUpDow(4)");
    return loop_.RunUntil([&] { return Model().RemoteHeld && !Model().frmMain.General_timer.enabled; });
  }

  bool Begin(bool upload) {
    const bool held = Hold();
    if (held) Click(upload ? "CmdUpDow(0)" : "CmdUpDow(1)");
    return held;
  }

  // Waits for frames and answers that are still to come.
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
  ui::Program& program_;
  EventLoop& loop_;
  QTimer closer_;
  int boxes_ = 0;
  double longest_ = 0;
  bool broken_off_ = false;
  std::string known_;
};

bool Run(Site& site, int percent) {
  ui::Program program(site.Folder(), site.Store());
  if (!Check("the program starts", program.Start() == core::Outcome::kDone)) return false;
  EventLoop loop;
  Soak soak(site, program, loop);
  if (!Check("the port opens", soak.Connect())) return false;
  std::printf("Warming up\n");
  bool right = Check("the warm-up", soak.Run(0, kWarmUp, soak.Registers(), kWarmUp));
  const long resident = ResidentKiB(), descriptors = OpenDescriptors();

  std::printf("The run\n");
  right = soak.Run(kWarmUp, 2 * percent, 5 * percent, percent / 2) && right;
  const double hold = soak.LongestHold();
  const long growth = ResidentKiB() - resident, more = OpenDescriptors() - descriptors;
  std::printf("memory       %+ld KiB since the warm-up (bound %ld)\n", growth, kMostGrowth);
  std::printf("descriptors  %+ld\n", more);
  std::printf("longest hold %.1f ms (bound %.0f)\n", hold, kLongestHold);
  std::printf("boxes        %d\n", soak.Boxes());
  right = Check("memory", growth <= kMostGrowth) && right;
  right = Check("descriptors", more == 0) && right;
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
