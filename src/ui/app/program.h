// The program: the model, the machine it runs on, and the windows over it. Every event, whoever it comes
// from, goes through Act.
#pragma once

#include <QString>
#include <QTimer>
#include <memory>
#include <vector>

#include "core/gate.h"
#include "host/serial_port.h"
#include "host/settings_store.h"
#include "ui/app/unsaved_copy.h"
#include "ui/app/windows.h"

namespace ovl::ui {

// Lives in the event loop of the toolkit's application object, which must outlive it.
class Program {
 public:
  // An empty store folder means the machine's own settings. Fills the model's platform record; whoever wants
  // other parts in it replaces them ahead of the start.
  Program(QString folder, QString store_folder);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Starts the model, builds the windows and shows them. kEnded: the program told why and is over.
  core::Outcome Start();

  // For the program that a person works in, once it has started: names what an earlier run left, and keeps a
  // copy of the changes from now on.
  void GuardUnsaved();

  // Hands one event to the model and follows what it led to. When the program ends by it, the windows go at
  // once and the event loop is told to stop.
  core::Outcome Act(const core::Event& event);

  // Shows the model as it is now, without waiting for the next frame.
  void RefreshNow();

  core::Application& Model() { return app_; }
  // Only after a start that did not end the program.
  Windows& OnScreen() { return *windows_; }

 private:
  struct TimerState {
    controls::Timer* model;
    std::unique_ptr<QTimer> clock;
    unsigned starts = 0;
    int interval = 0;
  };

  void FillPlatform();
  bool IsLeaving(const core::Event& event);
  core::Outcome ActAndTell(const core::Event& event);
  void CollectTimers();
  void Follow(core::Outcome outcome);
  void FollowTimer(TimerState& timer);
  void Tick(controls::Timer& timer);
  void End();
  QString BoxDetail(const core::MessageBox& box) const;

  QString folder_;
  core::Application app_;
  host::SettingsStore store_;
  std::string store_problem_;
  host::SerialPort port_;
  std::unique_ptr<UnsavedCopy> unsaved_;
  std::unique_ptr<Windows> windows_;
  std::vector<TimerState> timers_;
  QTimer frame_;
};

}  // namespace ovl::ui
