#include "ui/app/program.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <cstdlib>

#include "acts/act_names.h"
#include "acts/unsaved_changes.h"
#include "changes/also_stored.h"
#include "host/files.h"
#include "host/system_clock.h"
#include "host/text_codec.h"
#include "start/start_up.h"
#include "ui/dialogs/boxes.h"
#include "ui/dialogs/changes_window.h"
#include "ui/language/model_texts.h"
#include "ui/print/print_item.h"
#include "ui/window/status_strip.h"

namespace ovl::ui {
namespace {

// The longest time from an event to its refresh, in milliseconds. A refresh takes the time of some
// characters, so while a stream runs there are fewer.
constexpr int kFrame = 16;
constexpr int kStreamFrame = 150;

}  // namespace

Program::Program(QString folder, QString store_folder)
    : folder_(std::move(folder)),
      store_folder_(std::move(store_folder)),
      store_(store_folder_),
      port_(folder_, [this](const core::Event& event) { return Act(event); }) {
  frame_.setSingleShot(true);
  frame_.callOnTimeout([this] { RefreshNow(); });
  start_again = [](const QStringList& arguments) {
    return QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments);
  };
  port_.on_loss = [this] { frame_.start(kFrame); };
  FillPlatform();
}

// Windows report a lost focus while they are destroyed. The model must not handle it any more.
Program::~Program() {
  if (unsaved_ && !app_.ended) unsaved_->End(true);
  texts_.reset();
  files_.reset();
  const auto going = std::move(windows_);
  app_.ended = true;
}

void Program::FillPlatform() {
  auto& platform = app_.platform;
  platform.program_folder = QFile::encodeName(folder_).toStdString();
  platform.show_message = [this](const core::MessageBox& box) {
    RefreshNow();
    ShowBox(windows_ ? windows_->Front() : nullptr, box, BoxDetail(box));
  };
  platform.ask_file = [this](const core::FileDialog& request) { return AskForFile(request); };
  platform.read_setting = [this](std::string_view key, std::string_view value) {
    auto found = store_.Read(key, value);
    if (!found) {
      store_problem_ =
          QCoreApplication::translate(
              "Program", "%1\nTo set the firmware, run as root, for instance: ovl-setup V1400 R12")
              .arg(host::FromSystem(store_.WhyNotRead()));
    }
    return found;
  };
  platform.write_setting = [this](std::string_view key, std::string_view value, std::string_view text) {
    const auto written = store_.Write(key, value, text);
    if (!written.Ok()) {
      store_problem_ = QCoreApplication::translate("Program",
                                                   "%1\nThe next start uses the same firmware as this one. "
                                                   "To set the other one, run as root: ovl-setup %2")
                           .arg(FailureText(written.Problem()),
                                QString::fromStdString(app_.firmware.version + " " + app_.firmware.release));
    }
    return written.Ok();
  };
  platform.clock = host::LocalClockTime;
  // Nothing to do: the form keeps the request, and its window reads it when it opens.
  platform.SetWindowPos = [](std::string_view) {};
  platform.files = host::DiskFiles();
  platform.serial = port_.Operations();
}

core::Outcome Program::Start() {
  const auto outcome = start::StartProgram(app_);
  if (outcome == core::Outcome::kEnded) return outcome;
  history_ = std::make_unique<acts::ActHistory>(app_);
  advisor_ = std::make_unique<acts::Advisor>(app_);
  windows_ = std::make_unique<Windows>(
      app_, [this](const core::Event& event) { return Act(event); },
      OwnActs{history_.get(), advisor_.get(), [this] { Undo(); }, [this] { Redo(); },
              [this](const acts::Advice& advice) { RunAdvice(advice); }});
  windows_->SetOwnActs(
      [this](const phrases::Words& name, const std::function<void()>& act) { return RunOwn(name, act); });
  windows_->Main().Status().port_problem = [this] { return port_.LastProblem(); };
  BuildFileActs();
  CollectTimers();
  RefreshNow();
  AfterEvent(outcome);
  return outcome;
}

void Program::BuildFileActs() {
  const auto front = [this] { return windows_->Front(); };
  const auto show_done = [this](const QString& text) { windows_->Main().Status().ShowDone(text); };
  const auto show_failure = [this](const QString& text) { windows_->Main().Status().ShowFailure(text); };
  files_ = std::make_unique<FileActs>(
      app_, windows_->Main(),
      FileActs::Hooks{[this](const core::Event& event) { return Act(event); }, front, show_done, show_failure,
                      [this] {
                        advisor_->BackupWritten();
                        RefreshNow();
                      }});
  texts_ = std::make_unique<TextActs>(
      app_, windows_->Main(),
      TextActs::Hooks{
          front, show_done, show_failure,
          [this](const phrases::Words& name, const std::function<void()>& act) { RunOwn(name, act); },
          [this](const QString& file, const image::ConfigImage& other) {
            windows_->Main().Changes().OpenComparison(file, other);
          }});
  AddPrintItem(app_, windows_->Main(), {front, show_done, show_failure});
}

void Program::GuardUnsaved() {
  rescued_ = RescueCopies(folder_);
  unsaved_ = std::make_unique<UnsavedCopy>(app_, folder_);
  unsaved_->report = [this](const core::Result& written) {
    unguarded_ = written.Ok() ? QString()
                              : QCoreApplication::translate(
                                    "Program", "The program cannot keep a copy of your changes. %1")
                                    .arg(FailureText(written.Problem()));
    ShowRescueNotice();
  };
  ShowRescueNotice();
  RefreshNow();
}

void Program::ShowRescueNotice() {
  auto notice = unguarded_;
  if (notice.isEmpty() && !rescued_.isEmpty())
    notice =
        QCoreApplication::translate("Program", "%1 contains rescued changes. Open it with \"File\", \"Open\"")
            .arg(rescued_.join(QStringLiteral(", ")));
  windows_->Main().Status().SetRescueNotice(notice);
}

void Program::CollectTimers() {
  for (const auto& control : app_.registry.All()) {
    auto* const* timer = std::get_if<controls::Timer*>(&control.control);
    if (timer == nullptr) continue;
    auto clock = std::make_unique<QTimer>();
    clock->setTimerType(Qt::PreciseTimer);
    clock->callOnTimeout([this, model = *timer] { Tick(*model); });
    timers_.push_back({*timer, std::move(clock)});
  }
}

core::Outcome Program::Act(const core::Event& event) {
  const bool ended_before = app_.ended;
  const bool of_user = windows_ && !app_.handling && changes::IsAct(event);
  const auto outcome = of_user ? DispatchUserAct(event) : DispatchAny(event);
  if (unsaved_ && !ended_before && outcome == core::Outcome::kEnded)
    unsaved_->End(acts::DropsUnsavedChanges(app_, event, store_problem_.isEmpty()));
  const bool streams = history_ && history_->IsHeldByTransfer();
  AfterEvent(outcome, streams && !of_user ? Pace::kStream : Pace::kPrompt);
  return outcome;
}

core::Outcome Program::RunOwn(const phrases::Words& name, const std::function<void()>& act) {
  const auto outcome = history_->Run(name, act);
  AfterOwnAct(outcome);
  return outcome;
}

void Program::Undo() {
  history_->Undo();
  AfterOwnAct(core::Outcome::kDone);
}

void Program::Redo() {
  history_->Redo();
  AfterOwnAct(core::Outcome::kDone);
}

void Program::AfterOwnAct(core::Outcome outcome) {
  advisor_->AfterOwnAct();
  windows_->SetAlsoStored({});
  AfterEvent(outcome);
}

// Before the start is complete there is neither history nor advice.
core::Outcome Program::DispatchAny(const core::Event& event) {
  if (!advisor_) return Dispatch(app_, event);
  advisor_->Before(event);
  const auto outcome = history_->Act(event);
  advisor_->After(event);
  return outcome;
}

void Program::RunAdvice(const acts::Advice& advice) {
  auto& main = windows_->Main();
  const auto* control = advice.control.empty() ? nullptr : app_.registry.Find(advice.control);
  switch (advice.action) {
    case acts::AdviceAction::kRestart:
      return Restart();
    case acts::AdviceAction::kSaveBackup:
      return files_->SaveBackup();
    case acts::AdviceAction::kPickVersion:
      return main.OpenVersionMenu();
    case acts::AdviceAction::kUndo:
      return Undo();
    case acts::AdviceAction::kGoToControl:
      PickSlot(advice);
      if (control != nullptr) main.GoTo(controls::StateOf(control->control));
      return;
    case acts::AdviceAction::kClickControl:
      if (control != nullptr) Act(core::ClickEvent{control->control});
      return;
    case acts::AdviceAction::kNone:
      return;
  }
}

void Program::PickSlot(const acts::Advice& advice) {
  const auto* named = advice.list.empty() ? nullptr : app_.registry.Find(advice.list);
  auto* const* list = named == nullptr ? nullptr : std::get_if<controls::List*>(&named->control);
  if (list != nullptr && (*list)->position != advice.slot - 1) Act(core::PickEvent{*list, advice.slot - 1});
}

// The new program opens the changes, or the file that was open. A mixture of two uploads is dropped.
QString Program::FileForRestart() {
  if (advisor_->ImageIsMixture()) return {};
  const auto kept = unsaved_->Keep();
  const bool opened = acts::FileNameOf(app_.CurrentFilePath) == history_->Origin();
  return kept.isEmpty() && opened ? QFile::decodeName(app_.CurrentFilePath.c_str()) : kept;
}

void Program::Restart() {
  if (!unsaved_ || app_.handling || !app_.frmMain.form.enabled) return;
  auto& status = windows_->Main().Status();
  try {
    QStringList arguments{QStringLiteral("--folder"), folder_};
    if (!store_folder_.isEmpty()) arguments << QStringLiteral("--store") << store_folder_;
    if (const auto file = FileForRestart(); !file.isEmpty()) arguments << file;
    if (start_again(arguments)) {
      Act(core::ClickEvent{&app_.frmMain.menuExit});
      return;
    }
    status.ShowFailure(
        QCoreApplication::translate("Program", "The program could not restart. Exit, and start it again."));
  } catch (const core::Failure& failure) {
    status.ShowFailure(QCoreApplication::translate("Program", "The program cannot save the changes: %1")
                           .arg(FailureText(failure)));
  }
}

core::Outcome Program::DispatchUserAct(const core::Event& event) {
  const auto before = app_.image;
  const auto failures_before = app_.failures_noted;
  opening_ = core::Clicks(event, app_.frmMain.OpenMenu);
  const auto outcome = DispatchAny(event);
  opening_ = false;
  if (outcome != core::Outcome::kDone) return outcome;
  windows_->SetAlsoStored(Shown(changes::AlsoStored(app_, event, before)));
  const bool opened = core::Clicks(event, app_.frmMain.OpenMenu) && !app_.UploadApplying;
  if (opened && app_.failures_noted == failures_before) windows_->Main().Status().ShowDone({});
  const QFileInfo file(QFile::decodeName(app_.CurrentFilePath.c_str()));
  if (opened && file.dir() == QDir(folder_) && rescued_.removeAll(file.fileName()) > 0) ShowRescueNotice();
  if (core::Clicks(event, app_.frmMain.menuSave) && !app_.saved_path.empty())
    windows_->Main().Status().ShowDone(
        QCoreApplication::translate("Program", "Saved: %1").arg(host::FromSystem(app_.saved_path)));
  return outcome;
}

// The dialog can stay open for long, so changes are guarded before it opens.
std::optional<core::FileAnswer> Program::AskForFile(const core::FileDialog& request) {
  RefreshNow();
  if (unsaved_) unsaved_->WritePending();
  if (opening_ && files_) return files_->AskForFileToOpen(request);
  return AskFile(windows_ ? windows_->Front() : nullptr, request);
}

// Runs after every event. An event during a running handler changes nothing in the model, but the screen must
// go back to the state of the model.
void Program::AfterEvent(core::Outcome outcome, Pace pace) {
  if (app_.handling) {
    frame_.start(kFrame);
    return;
  }
  if (outcome == core::Outcome::kEnded) return End();
  port_.Resume();
  for (auto& timer : timers_) UpdateTimer(timer);
  if (windows_ && windows_->HasFormsToShowOrHide()) return RefreshNow();
  if (pace == Pace::kPrompt) return RefreshWithin(kFrame);
  // The next character was handed over a moment ago, so the line waits for a refresh the least.
  if (since_refresh_.elapsed() >= kStreamFrame) return RefreshNow();
  RefreshWithin(2 * kStreamFrame);  // if the stream pauses
}

void Program::RefreshWithin(int milliseconds) {
  if (!frame_.isActive() || frame_.remainingTime() > milliseconds) frame_.start(milliseconds);
}

void Program::UpdateTimer(TimerState& timer) {
  const auto& model = *timer.model;
  if (!model.enabled) return timer.clock->stop();
  const bool runs =
      timer.clock->isActive() && timer.starts == model.starts && timer.interval == model.interval;
  if (runs) return;
  timer.starts = model.starts;
  timer.interval = model.interval;
  timer.clock->start(model.interval);
}

// Characters that have already arrived are handled before the tick. A tick during a running handler is lost.
void Program::Tick(controls::Timer& timer) {
  if (!app_.handling) port_.DeliverPending();
  Act(core::TickEvent{&timer});
}

void Program::RefreshNow() {
  frame_.stop();
  since_refresh_.start();
  if (!windows_ || app_.ended) return;
  windows_->Refresh();
  if (unsaved_) unsaved_->WriteSoonIfChanged();
}

void Program::End() {
  frame_.stop();
  for (auto& timer : timers_) timer.clock->stop();
  if (windows_) windows_->HideAll();
  QCoreApplication::exit(EXIT_SUCCESS);
}

// The reason from the system that the text of the box does not contain.
QString Program::BoxDetail(const core::MessageBox& box) const {
  if (!store_problem_.isEmpty()) return store_problem_;
  return box.shows_note ? StatusNoteText(app_) : QString();
}

}  // namespace ovl::ui
