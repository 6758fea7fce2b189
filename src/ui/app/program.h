// The program: the model, the machine it runs on, and the windows. Every event goes through Act.
#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <memory>
#include <vector>

#include "acts/act_history.h"
#include "acts/advice.h"
#include "core/gate.h"
#include "host/serial_port.h"
#include "host/settings_store.h"
#include "ui/app/unsaved_copy.h"
#include "ui/app/windows.h"
#include "ui/files/file_acts.h"
#include "ui/files/text_acts.h"

namespace ovl::ui {

// Needs the event loop of the QApplication object, which must outlive it.
class Program {
 public:
  // With an empty store folder it uses the settings of the machine. It fills the platform record of the
  // model; a caller that needs other functions there replaces them before the start.
  Program(QString folder, QString store_folder);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Starts the model, builds the windows and shows them. kEnded: the program has shown the reason and must
  // end.
  core::Outcome Start();

  // Called once after the start of a program that a user works with. It reports the copies of earlier runs
  // and keeps a copy of the changes from now on.
  void GuardUnsaved();

  // Opens a file as Open does when its dialog is answered. Only after a start that did not end the program.
  void OpenFile(const QString& path) { files_->Open(path); }

  // Passes one event to the model and updates the screen, the timers and the port. When the program ends by
  // it, the windows close at once and the event loop ends.
  core::Outcome Act(const core::Event& event);

  // The same for an act of our own, under the name by which it can be undone.
  core::Outcome RunOwn(const phrases::Words& name, const std::function<void()>& act);

  // Take back the last act, or repeat the one taken back last.
  void Undo();
  void Redo();

  // Ends this program and starts a new one, which opens the changes of this one. If the changes cannot be
  // kept or the new program does not start, this one goes on and the status bar shows the reason.
  void Restart();

  // Starts the program file with these arguments. Tests replace it.
  std::function<bool(const QStringList&)> start_again;

  // Carries out the action of a line of advice.
  void RunAdvice(const acts::Advice& advice);

  // Updates the screen now and does not wait for the next frame.
  void RefreshNow();

  core::Application& Model() { return app_; }
  // Valid only after a start that did not end the program.
  Windows& OnScreen() { return *windows_; }

 private:
  struct TimerState {
    controls::Timer* model;
    std::unique_ptr<QTimer> clock;
    unsigned starts = 0;
    int interval = 0;
  };

  void FillPlatform();
  void BuildFileActs();
  std::optional<core::FileAnswer> AskForFile(const core::FileDialog& request);
  core::Outcome DispatchUserAct(const core::Event& event);
  core::Outcome DispatchAny(const core::Event& event);
  void CollectTimers();
  enum class Pace { kPrompt, kStream };
  void AfterEvent(core::Outcome outcome, Pace pace = Pace::kPrompt);
  void RefreshWithin(int milliseconds);
  void UpdateTimer(TimerState& timer);
  void Tick(controls::Timer& timer);
  void End();
  void ShowRescueNotice();
  void AfterOwnAct(core::Outcome outcome);
  void PickSlot(const acts::Advice& advice);
  QString FileForRestart();
  QString BoxDetail(const core::MessageBox& box) const;

  QString folder_, store_folder_;
  core::Application app_;
  host::SettingsStore store_;
  QString store_problem_;
  host::SerialPort port_;
  std::unique_ptr<acts::ActHistory> history_;  // of the started program, as the next one
  std::unique_ptr<acts::Advisor> advisor_;
  std::unique_ptr<UnsavedCopy> unsaved_;
  std::unique_ptr<Windows> windows_;
  std::unique_ptr<FileActs> files_;
  std::unique_ptr<TextActs> texts_;
  bool opening_ = false;  // the handler of Open runs
  QStringList rescued_;   // copies of earlier runs that were not opened yet
  QString unguarded_;     // why changes are not guarded; empty if they are
  std::vector<TimerState> timers_;
  QTimer frame_;
  QElapsedTimer since_refresh_;
};

}  // namespace ovl::ui
