#include "script/session.h"

#include "core/settings.h"
#include "host/files.h"
#include "host/system_clock.h"
#include "script/parser.h"
#include "script/real_transfer.h"
#include "script/stop.h"
#include "start/start_up.h"

namespace ovl::script {

Session::Session(std::ostream& output, std::ostream& progress)
    : output_(output), progress_(progress), simulated_operations_(simulated_.Operations()) {}

Session::~Session() = default;

void Session::SetFolder(std::string folder) {
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
  folder_ = std::move(folder);
}

void Session::StoreSetting(const std::string& value, const std::string& text) {
  const auto written = WriteStore(core::kSettingsKey, value, text);
  if (!written.Ok())
    Wrong("the settings store of the computer cannot be written: " + written.Problem().Text());
}

void Session::SetClock(const core::ClockTime& time) {
  time_.SetClock(time);
  clock_set_ = true;
}

void Session::RequireClosedPort() {
  if (app_ != nullptr && !app_->ended && app_->frmMain.MSComm1.PortOpen) Wrong("the port is open");
}

void Session::UseRealPorts() {
  if (real_ != nullptr) return;
  RequireClosedPort();
  OpenRealPorts();
}

// The program folder decides which device a port's number means, so the ports are made anew.
void Session::OpenRealPorts() {
  real_.reset();
  real_ = std::make_unique<RealLine>(*this, folder_);
  real_operations_ = real_->Operations();
}

void Session::UseSimulatedPort() {
  if (real_ == nullptr) return;
  RequireClosedPort();
  real_operations_ = {};
  real_.reset();
}

SimulatedLine& Session::Simulated() {
  if (real_ != nullptr) Wrong("the ports of the computer are in use");
  return simulated_;
}

RealLine& Session::Real() {
  if (real_ == nullptr) Wrong("the ports of the computer are not in use");
  return *real_;
}

core::SerialLine& Session::CurrentLine() {
  return real_ != nullptr ? real_operations_ : simulated_operations_;
}

core::Platform Session::MakePlatform() {
  core::Platform platform;
  platform.program_folder = folder_;
  platform.show_message = [this](const core::MessageBox& box) { Show(box); };
  platform.ask_file = [this](const core::FileDialog&) { return Answer(); };
  platform.read_setting = [this](auto key, auto value) { return ReadStore(key, value); };
  platform.write_setting = [this](auto key, auto value, auto text) {
    return WriteStore(key, value, text).Ok();
  };
  platform.clock = [this] { return Clock(); };
  platform.SetWindowPos = [](std::string_view) {};
  platform.files = host::DiskFiles();
  platform.serial.open = [this](const core::LineSettings& settings) { return CurrentLine().open(settings); };
  platform.serial.close = [this] { CurrentLine().close(); };
  platform.serial.write = [this](std::string_view text) {
    auto written = CurrentLine().write(text);
    if (written.Ok()) sent_ += text;
    return written;
  };
  platform.serial.read = [this] { return CurrentLine().read(); };
  platform.serial.clear_input = [this] { CurrentLine().clear_input(); };
  platform.serial.clear_output = [this] { CurrentLine().clear_output(); };
  platform.serial.lost = [this] { return CurrentLine().lost(); };
  return platform;
}

void Session::Start() {
  CurrentLine().close();
  if (real_ != nullptr) OpenRealPorts();
  time_.Forget();
  history_.reset();
  advisor_.reset();
  app_ = std::make_unique<core::Application>();
  app_->platform = MakePlatform();
  advisor_ = std::make_unique<acts::Advisor>(*app_);
  end_printed_ = false;
  start::StartProgram(*app_);
  history_ = std::make_unique<acts::ActHistory>(*app_);
  Settle();
}

core::Application& Session::App() {
  if (app_ == nullptr) Wrong("the program was not started");
  return *app_;
}

acts::Advisor& Session::Advisor() {
  App();
  return *advisor_;
}

controls::ControlRef Session::Control(const std::string& name) {
  const auto* named = App().registry.Find(name);
  if (named == nullptr) Wrong("no control has the name " + Quoted(name));
  return named->control;
}

acts::ActHistory& Session::History() {
  App();
  return *history_;
}

core::Outcome Session::Dispatched(const core::Event& event) {
  auto& history = History();
  advisor_->Before(event);
  const auto outcome = history.Act(event);
  advisor_->After(event);
  return outcome;
}

core::Outcome Session::Act(const core::Event& event) {
  const auto outcome = Dispatched(event);
  Settle();
  DeliverReceived();
  return outcome;
}

void Session::Settle() {
  if (app_->ended && !std::exchange(end_printed_, true)) output_ << "ended" << std::endl;
  if (real_ != nullptr) real_->Resume();
}

void Session::DeliverReceived() {
  while (!Ended() && simulated_.TakeReceived()) {
    const auto outcome = Dispatched(core::ReceivedEvent{});
    if (outcome == core::Outcome::kBusy) return simulated_.KeepReceived();
    Settle();
  }
}

void Session::Wait(SimulatedTime::Milliseconds duration) {
  auto& app = App();
  if (real_ != nullptr) {
    real_->RunFor(duration);
    return;
  }
  time_.Advance(app.registry, duration, [this](controls::Timer& timer) {
    Act(core::TickEvent{&timer});
    return !Ended();
  });
}

void Session::Show(const core::MessageBox& box) {
  output_ << "box " << Quoted(box.title) << ' ' << Quoted(box.text) << std::endl;
  boxes_.push_back(box);
  ++boxes_shown_;
}

std::optional<core::MessageBox> Session::TakeBox() {
  if (boxes_.empty()) return std::nullopt;
  auto box = std::move(boxes_.front());
  boxes_.pop_front();
  return box;
}

std::optional<core::FileAnswer> Session::Answer() {
  if (answers_.empty()) return std::nullopt;
  const auto path = std::move(answers_.front());
  answers_.pop_front();
  return path ? std::optional(core::FileAnswer{*path}) : std::nullopt;
}

std::optional<core::SettingValue> Session::ReadStore(std::string_view key, std::string_view value) const {
  if (system_store_) return system_store_->Read(key, value);
  const auto found = store_.find({std::string(key), std::string(value)});
  return found == store_.end() ? std::nullopt : std::optional<core::SettingValue>(found->second);
}

core::Result Session::WriteStore(std::string_view key, std::string_view value, std::string_view text) {
  if (system_store_) return system_store_->Write(key, value, text);
  store_.insert_or_assign({std::string(key), std::string(value)}, std::string(text));
  return {};
}

core::ClockTime Session::Clock() const {
  return real_ != nullptr && !clock_set_ ? host::LocalClockTime() : time_.Clock();
}

}  // namespace ovl::script
