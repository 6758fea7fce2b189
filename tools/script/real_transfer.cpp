#include "script/real_transfer.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>
#include <algorithm>
#include <limits>

#include "core/failure.h"
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

// The event loop that the ports need. A process has at most one, which may exist already.
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

// One transfer under its name. If it fails, it throws Stop with the reason.
class Transfer {
 public:
  Transfer(Session& session, std::string name)
      : session_(session), app_(session.App()), name_(std::move(name)), boxes_(session.BoxesShown()) {}

  void Run(controls::LinkAction action) {
    HoldRemoteMode();
    Press("CmdUpDow(" + std::to_string(action) + ")");
    RunUntil([&] {
      ReportProgress();
      return app_.frmOK_buttom.form.visible;
    });
    AwaitConfirmation();
    const bool refused = Refused();
    Press("frmOK_buttom.Command1");
    if (refused) Fail("the unit refused the stream");
    Report("done");
  }

  // Loads a file as the menu does. The menu reports no file that it cannot read, so the file is read here
  // first.
  void Open(const std::string& path) {
    Checked([&] { app_.platform.files.read(path); });
    const auto waiting = session_.AnswersWaiting();
    session_.AnswerFirst(path);
    Press("OpenMenu");
    if (session_.AnswersWaiting() != waiting) Fail("the program did not ask for a file");
    if (Disturbed()) FailAsShown();
  }

  void Save(const std::string& path) {
    Checked([&] { WriteStream(app_, path); });
  }

 private:
  // If the grant is not the last character when the time for it ends, the program takes the unit as silent.
  // Therefore nothing starts before that time is over.
  void HoldRemoteMode() {
    if (!app_.RemoteHeld) {
      Report("asking for remote mode");
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
    if (Disturbed()) FailAsShown();
  }

  // The program reports success as soon as the stream is sent, whatever the unit answers. This waits for the
  // answer.
  void AwaitConfirmation() {
    session_.Real().RunUntil([&] { return !app_.FinalAckExpected || Refused(); }, kConfirmationLimit);
  }

  bool Refused() const { return app_.LinkMode == core::kLinkDownload && app_.LastReceived == kNak; }

  [[noreturn]] void Fail(const std::string& reason) {
    throw Stop(ExitStatus::kTransferFailed, name_ + " failed: " + reason);
  }

  [[noreturn]] void FailAsShown() {
    if (app_.frmOK_buttom.form.visible && !session_.Ended()) Press("frmOK_buttom.Command1");
    const bool shown = session_.BoxesShown() != boxes_ && !session_.Boxes().empty();
    Fail(shown ? session_.Boxes().back().text : "the program has ended");
  }

  template <class Step>
  void Checked(const Step& step) {
    try {
      step();
    } catch (const core::Failure& failure) {
      Fail(failure.Text());
    }
  }

  void Report(const std::string& what) { session_.Progress() << name_ << ": " << what << std::endl; }

  void ReportProgress() {
    const int value = app_.frmMain.vbalProgressBar1.value / kProgressStep * kProgressStep;
    if (value > reported_) Report(std::to_string(value) + " %");
    reported_ = std::max(reported_, value);
  }

  Session& session_;
  core::Application& app_;
  std::string name_;
  int boxes_;
  int reported_ = 0;
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
