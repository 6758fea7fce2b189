#include "unit/session.h"

#include <poll.h>
#include <signal.h>
#include <sys/signalfd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <iostream>

#include "unit/factory.h"
#include "unit/memory.h"
#include "unit/text.h"

namespace unit {
namespace {

// Signals that end the program arrive on a descriptor, so that a wait neither misses one nor is interrupted.
Descriptor CatchSignals() {
  sigset_t set{};
  ::sigemptyset(&set);
  ::sigaddset(&set, SIGINT);
  ::sigaddset(&set, SIGTERM);
  ::sigaddset(&set, SIGHUP);
  if (::sigprocmask(SIG_BLOCK, &set, nullptr) != 0) return Descriptor();
  ::signal(SIGPIPE, SIG_IGN);
  ::signal(SIGXFSZ, SIG_IGN);
  return Descriptor(::signalfd(-1, &set, SFD_NONBLOCK | SFD_CLOEXEC));
}

Loaded LoadHistoryOf(const Options& options) {
  const auto lines = MadeUpLines(options.history);
  if (lines) return {MadeUpHistory(*lines), {}};
  return LoadHistory(options.history);
}

}  // namespace

Session::Session(const Options& options) : options_(options) {}

std::unique_ptr<Session> Session::Start(const Options& options, std::string& error) {
  std::unique_ptr<Session> session(new Session(options));
  error = session->Prepare();
  return error.empty() ? std::move(session) : nullptr;
}

std::string Session::Prepare() {
  signals_ = CatchSignals();
  if (!signals_.Open()) return "cannot watch signals: " + SystemReason(errno);
  std::string error = OpenLog();
  if (!error.empty()) return error;
  UnitSetup setup{
      options_.firmware, {}, {}, options_.paced ? options_.speed : 0, Faults(options_.faults, options_.seed)};
  error = LoadMemory(setup.image);
  if (!error.empty()) return error;
  Loaded history = LoadHistoryOf(options_);
  if (!history.error.empty()) return history.error;
  setup.history = std::move(history.text);
  line_ = PtyLine::Open(error);
  if (line_ && !options_.link.empty()) error = line_->MakeLink(options_.link);
  if (!error.empty()) return error;
  unit_.emplace(std::move(setup), MakeHooks());
  return {};
}

std::string Session::OpenLog() {
  if (options_.log.empty()) return {};
  if (options_.log == "-") {
    journal_ = Journal([](const std::string& line) { std::cout << line << std::endl; });
    return {};
  }
  log_file_.open(options_.log);
  if (!log_file_) return "cannot write " + options_.log + ": " + SystemReason(errno);
  journal_ = Journal([this](const std::string& line) { log_file_ << line << std::endl; });
  return {};
}

std::string Session::LoadMemory(std::string& image) const {
  const bool kept = !options_.memory.empty();
  const bool exists = kept && FileExists(options_.memory);
  const std::string& source = exists ? options_.memory : options_.image;
  Loaded loaded =
      source.empty() ? Loaded{FactoryImage(*options_.firmware), {}} : LoadImage(source, *options_.firmware);
  if (!loaded.error.empty()) return loaded.error;
  image = std::move(loaded.text);
  return kept && !exists ? SaveImage(options_.memory, *options_.firmware, image) : std::string();
}

UnitHooks Session::MakeHooks() {
  UnitHooks hooks;
  hooks.complain = [this](const std::string& text) { Complain(text); };
  hooks.note = [this](const std::string& text) { Note(text); };
  hooks.send = [this](const std::string& bytes) { Speak(bytes); };
  hooks.keep_image = [this](const std::string& image) {
    return options_.memory.empty() ? std::string() : SaveImage(options_.memory, *options_.firmware, image);
  };
  hooks.keep_clock = [this](const std::string& clock) {
    return options_.clock_file.empty() ? std::string() : WriteFile(options_.clock_file, clock + "\n");
  };
  return hooks;
}

Time Session::Now() const {
  return std::chrono::steady_clock::now() - started_;
}

void Session::Complain(const std::string& text) {
  complained_ = true;
  std::cerr << "ovl-unit: " << text << std::endl;
  journal_.Remark("complaint: " + text, Now());
}

void Session::Note(const std::string& text) {
  if (options_.verbose) std::cerr << "ovl-unit: note: " << text << std::endl;
  journal_.Remark(text, Now());
}

bool Session::Run() {
  Note(std::string(options_.firmware->name) + " at " + std::to_string(options_.speed) + " on " + Port());
  for (bool stop = false; !stop;) {
    Wait(stop);
    line_->FollowOpenings();
    Hear();
    unit_->Advance(Now());
    const auto due = journal_.NextDue();
    if (due && *due <= Now()) journal_.Flush();
  }
  journal_.Flush();
  return !complained_;
}

void Session::Wait(bool& stop) {
  std::array<pollfd, 3> awaited{{
      {line_->Arrivals(), POLLIN, 0},
      {signals_.Get(), POLLIN, 0},
      {line_->Openings(), POLLIN, 0},
  }};
  std::optional<Time> due = unit_->NextDue();
  const auto journal_due = journal_.NextDue();
  if (journal_due) due = due ? std::min(*due, *journal_due) : *journal_due;
  timespec patience{};
  if (due) {
    const Time left = std::max(Time{}, *due - Now());
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
    patience.tv_sec = static_cast<time_t>(seconds.count());
    patience.tv_nsec = static_cast<long>((left - seconds).count());
  }
  ::ppoll(awaited.data(), awaited.size(), due ? &patience : nullptr, nullptr);
  stop = (awaited[1].revents & POLLIN) != 0;
}

void Session::Hear() {
  const std::string bytes = line_->Read();
  if (bytes.empty()) return;
  const unsigned speed = line_->SpeedOfArrivals();
  if (speed != options_.speed) return NoteNoise(speed, bytes.size());
  noise_speed_ = 0;
  const Time now = Now();
  journal_.Add(Journal::Side::kTool, bytes, now);
  for (const char byte : bytes) unit_->Receive(byte, now);
}

void Session::Speak(const std::string& bytes) {
  const unsigned speed = line_->Speed();
  if (speed != options_.speed) return NoteNoise(speed, bytes.size());
  journal_.Add(Journal::Side::kUnit, bytes, Now());
  if (line_->Write(bytes) || overrun_noted_) return;
  overrun_noted_ = true;
  Note("the program does not read, so bytes are lost");
}

void Session::NoteNoise(unsigned speed, std::size_t count) {
  if (speed == noise_speed_) return;
  noise_speed_ = speed;
  Note("the line is set to " + std::to_string(speed) + ", not to " + std::to_string(options_.speed) + ": " +
       std::to_string(count) + " bytes and all others at this baud rate are lost");
}

}  // namespace unit
