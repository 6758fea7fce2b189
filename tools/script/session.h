// One run of the tool: the program, and its hooks as the script defines them.
#pragma once

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "acts/act_history.h"
#include "acts/advice.h"
#include "core/gate.h"
#include "host/settings_store.h"
#include "script/simulated_line.h"
#include "script/simulated_time.h"

namespace ovl::script {

class RealLine;

// Using the program before it is started, or the simulated line while the machine's ports are in use, throws
// Stop with kWrongStatement.
class Session {
 public:
  // Statements print to `output`, transfers print their progress to `progress`. Both must outlive the
  // session.
  Session(std::ostream& output, std::ostream& progress);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // The hooks. Folder and store are kept for the next start as well.
  void SetFolder(std::string folder);
  void StoreSetting(const std::string& value, const std::string& text);
  void UseSystemStore() { system_store_.emplace(); }
  void QueueAnswer(std::optional<std::string> path) { answers_.push_back(std::move(path)); }
  // The next answer, before those that wait already.
  std::size_t AnswersWaiting() const { return answers_.size(); }
  void AnswerFirst(std::string path) { answers_.emplace_front(std::move(path)); }
  void SetClock(const core::ClockTime& time);
  // A change between the simulated line and the machine's ports needs a closed port.
  void UseRealPorts();
  void UseSimulatedPort();
  SimulatedLine& Simulated();
  RealLine& Real();
  SimulatedTime& Time() { return time_; }

  // The program.
  void Start();
  core::Application& App();
  // Observes the program since its start.
  acts::Advisor& Advisor();
  bool Started() const { return app_ != nullptr; }
  bool Ended() const { return app_ != nullptr && app_->ended; }
  controls::ControlRef Control(const std::string& name);

  acts::ActHistory& History();

  // Dispatches one event, and then the events of the line that are due.
  core::Outcome Act(const core::Event& event);
  void DeliverReceived();

  // Lets time pass. On the simulated line this takes no real time.
  void Wait(SimulatedTime::Milliseconds duration);

  // What the script can ask for.
  std::string TakeSent() { return std::exchange(sent_, {}); }
  std::optional<core::MessageBox> TakeBox();
  const std::deque<core::MessageBox>& Boxes() const { return boxes_; }
  // Since the session began.
  int BoxesShown() const { return boxes_shown_; }

  std::ostream& Output() { return output_; }
  std::ostream& Progress() { return progress_; }

 private:
  core::Platform MakePlatform();
  core::Outcome Dispatched(const core::Event& event);
  core::SerialLine& CurrentLine();
  void RequireClosedPort();
  void OpenRealPorts();
  void Show(const core::MessageBox& box);
  std::optional<core::FileAnswer> Answer();
  std::optional<core::SettingValue> ReadStore(std::string_view key, std::string_view value) const;
  core::Result WriteStore(std::string_view key, std::string_view value, std::string_view text);
  core::ClockTime Clock() const;
  void Settle();

  std::ostream& output_;
  std::ostream& progress_;
  std::string folder_ = ".";
  std::optional<host::SettingsStore> system_store_;
  std::map<std::pair<std::string, std::string>, std::string> store_;  // by key and value
  std::deque<std::optional<std::string>> answers_;
  std::deque<core::MessageBox> boxes_;  // not yet expected
  int boxes_shown_ = 0;
  std::string sent_;
  bool clock_set_ = false;
  SimulatedTime time_;
  SimulatedLine simulated_;
  core::SerialLine simulated_operations_;
  std::unique_ptr<core::Application> app_;
  std::unique_ptr<acts::ActHistory> history_;
  std::unique_ptr<acts::Advisor> advisor_;
  bool end_printed_ = false;
  std::unique_ptr<RealLine> real_;
  core::SerialLine real_operations_;
};

}  // namespace ovl::script
