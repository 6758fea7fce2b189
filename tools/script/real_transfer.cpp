#include "script/real_transfer.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>
#include <algorithm>
#include <limits>

#include "core/failure.h"
#include "files/files.h"
#include "host/serial_port.h"
#include "script/image_fields.h"
#include "script/session.h"
#include "script/stop.h"

namespace ovl::script {
namespace {

using Milliseconds = SimulatedTime::Milliseconds;

constexpr Milliseconds kLongestSleep = 1000;
constexpr Milliseconds kConfirmationLimit = 1000;
constexpr int kProgressStep = 10;
constexpr std::string_view kNak = "\x15";

// The event loop that the ports need. There is at most one in a process, and someone else may have it.
class EventLoopOwner {
 public:
  EventLoopOwner() {
    if (QCoreApplication::instance() == nullptr) {
      application_ = std::make_unique<QCoreApplication>(count_, words_);
    }
  }

 private:
  int count_ = 1;
  char name_[11] = "ovl-script";
  char* words_[2] = {name_, nullptr};
  std::unique_ptr<QCoreApplication> application_;
};

}  // namespace

struct RealLine::Parts {
  Parts(Session& owner, const std::string& program_folder)
      : session(owner), port(QFile::decodeName(program_folder.c_str()), [&owner](const core::Event& event) {
          return owner.Act(event);
        }) {}

  void TickDueTimers();

  EventLoopOwner loop;
  Session& session;
  host::SerialPort port;
};

RealLine::RealLine(Session& session, const std::string& program_folder)
    : parts_(std::make_unique<Parts>(session, program_folder)) {}

RealLine::~RealLine() = default;

core::SerialLine RealLine::Operations() {
  return parts_->port.Operations();
}

void RealLine::Resume() {
  parts_->port.Resume();
}

void RealLine::Parts::TickDueTimers() {
  auto& time = session.Time();
  while (!session.Ended()) {
    time.Watch(session.App().registry);
    auto* timer = time.TakeDue();
    if (timer == nullptr) return;
    port.DeliverPending();
    session.Act(core::TickEvent{timer});
  }
}

void RealLine::RunUntil(const std::function<bool()>& done, std::optional<Milliseconds> limit) {
  auto& time = parts_->session.Time();
  const auto start = time.Now();
  const auto end = limit ? start + *limit : std::numeric_limits<Milliseconds>::max();
  QElapsedTimer elapsed;
  elapsed.start();
  QTimer alarm;
  alarm.setSingleShot(true);
  alarm.setTimerType(Qt::PreciseTimer);
  while (!parts_->session.Ended() && !done() && time.Now() < end) {
    time.Watch(parts_->session.App().registry);
    const auto wake = std::min(time.NextDue().value_or(time.Now() + kLongestSleep), end);
    alarm.start(static_cast<int>(std::clamp<Milliseconds>(wake - time.Now(), 0, kLongestSleep)));
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    time.MoveTo(start + elapsed.elapsed());
    parts_->TickDueTimers();
  }
}

void RealLine::RunFor(Milliseconds duration) {
  RunUntil([] { return false; }, duration);
}

namespace {

// One transfer: what it is called, and what went wrong if it did not come to its end.
class Transfer {
 public:
  Transfer(Session& session, std::string name)
      : session_(session), app_(session.App()), name_(std::move(name)), boxes_(session.BoxesShown()) {}

  void Run(controls::LinkAction action) {
    HoldRemoteMode();
    Press("CmdUpDow(" + std::to_string(action) + ")");
    RunUntil([&] {
      TellProgress();
      return app_.frmOK_buttom.form.visible;
    });
    AwaitConfirmation();
    const bool refused = Refused();
    Press("frmOK_buttom.Command1");
    if (refused) Fail("the unit refused the stream");
    Tell("done");
  }

  // Loads a file as the menu does. The menu tells nothing of a file that it cannot read.
  void Open(const std::string& path) {
    Checked([&] { files::ReadWhole(path); });
    const auto waiting = session_.AnswersWaiting();
    session_.AnswerFirst(path);
    Press("OpenMenu");
    if (session_.AnswersWaiting() != waiting) Fail("the program did not ask for a file");
    if (Disturbed()) FailAsTold();
  }

  void Save(const std::string& path) {
    Checked([&] { WriteStream(app_, path); });
  }

 private:
  // The program takes a unit that has sent something else by the end of the time for the grant for one that
  // has not answered; so nothing is started until that time is over.
  void HoldRemoteMode() {
    if (!app_.RemoteHeld) {
      Tell("asking for remote mode");
      Press("CmdUpDow(" + std::to_string(controls::kRemote) + ")");
    }
    RunUntil([&] { return app_.RemoteHeld && !app_.frmMain.General_timer.enabled; });
  }

  bool Disturbed() const { return session_.Ended() || session_.BoxesShown() != boxes_; }

  void Press(const std::string& name) {
    if (session_.Act(core::ClickEvent{session_.Control(name)}) == core::Outcome::kRefused)
      Fail(name + " is disabled");
  }

  void RunUntil(const std::function<bool()>& reached) {
    session_.Real().RunUntil([&] { return Disturbed() || reached(); });
    if (Disturbed()) FailAsTold();
  }

  // The program takes a stream that has gone out for taken in, whatever the unit answers; here its answer is
  // waited for.
  void AwaitConfirmation() {
    session_.Real().RunUntil([&] { return !app_.FinalAckExpected || Refused(); }, kConfirmationLimit);
  }

  bool Refused() const { return app_.LinkMode == core::kLinkDownload && app_.LastReceived == kNak; }

  [[noreturn]] void Fail(const std::string& reason) {
    throw Stop(ExitStatus::kTransferFailed, name_ + " failed: " + reason);
  }

  [[noreturn]] void FailAsTold() {
    if (app_.frmOK_buttom.form.visible && !session_.Ended()) Press("frmOK_buttom.Command1");
    const bool told = session_.BoxesShown() != boxes_ && !session_.Boxes().empty();
    Fail(told ? session_.Boxes().back().text : "the program has ended");
  }

  template <class Step>
  void Checked(const Step& step) {
    try {
      step();
    } catch (const core::Failure& failure) {
      Fail(failure.Text());
    }
  }

  void Tell(const std::string& what) { session_.Progress() << name_ << ": " << what << std::endl; }

  void TellProgress() {
    const int value = app_.frmMain.vbalProgressBar1.value / kProgressStep * kProgressStep;
    if (value > told_) Tell(std::to_string(value) + " %");
    told_ = std::max(told_, value);
  }

  Session& session_;
  core::Application& app_;
  std::string name_;
  int boxes_;
  int told_ = 0;
};

}  // namespace

void UploadTo(Session& session, const std::string& path) {
  Transfer upload(session, "upload");
  upload.Run(controls::kUpload);
  if (!path.empty()) upload.Save(path);
}

void DownloadFrom(Session& session, const std::string& path) {
  Transfer download(session, "download");
  if (!path.empty()) download.Open(path);
  download.Run(controls::kDownload);
}

}  // namespace ovl::script
