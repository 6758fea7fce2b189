#include "support/site.h"

#include <algorithm>
#include <limits>

namespace ovl::testing {
namespace {

constexpr std::string_view kRequest = "~~~SOH_REQUEST_EOT~~~k";
constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();

}  // namespace

Site::Site(const FirmwareId& firmware) : Harness(firmware) {
  auto& main = app.frmMain;
  Timer* const timers[] = {&main.Timer, &main.General_timer, &main.Time_handcheck, &main.Timer_Operating,
                           &app.frmSettSR.BaudRateScan};
  for (std::size_t timer = 0; timer < timers_.size(); ++timer) timers_[timer].timer = timers[timer];
  auto& serial = app.platform.serial;
  serial.write = [this](std::string_view text) -> SerialLine::Error {
    if (line_error) return line_error;
    out_ += text;
    owed_ = true;
    return std::nullopt;
  };
  serial.close = [this, close = serial.close] {
    close();
    out_.clear();
    in_.clear();
    heard_.clear();
    in_at_ = 0;
    owed_ = remote_ = taking_ = false;
  };
  serial.open = [this, open = serial.open](const LineSettings& line) {
    out_of_tune_ = line.text != "9600,N,8,1";
    return open(line);
  };
  Start();
}

void Site::Lose() {
  line_error = "No such device";
  silent_ = true;
  in_.clear();
  out_.clear();
  in_at_ = 0;
}

void Site::Mend() {
  line_error.reset();
  silent_ = stalled_ = false;
}

void Site::Hold() {
  Click("cmdConnect");
  Click("cmdSET");
  Click("CmdUpDow(4)");
  Live(400);
}

void Site::Hear(char character) {
  if (out_of_tune_) return;
  if (taking_) {
    taken += character;
    if (character != '#') return;
    taking_ = remote_ = false;
    in_ += '\x06';
    return;
  }
  heard_ += character;
  const auto told = [this](std::string_view text) {
    return heard_.size() >= text.size() &&
           heard_.compare(heard_.size() - text.size(), text.size(), text) == 0;
  };
  if (told(kRequest)) {
    remote_ = true;
    in_ += '\x06';
  } else if (remote_ && told("\x05")) {
    in_ += '\x0C';
  } else if (remote_ && told("/LU\r")) {
    remote_ = false;
    in_ += configuration;
  } else if (remote_ && told("/LD\r")) {
    taking_ = true;
    taken.clear();
    in_ += '\x06';
  }
}

void Site::ToUnit(Passing passing, unsigned garble) {
  if (!out_.empty()) {
    const char character = out_.front();
    out_.erase(0, 1);
    if (passing == Passing::kGarbled) Hear(static_cast<char>(static_cast<unsigned char>(character) ^ garble));
    if (passing == Passing::kWhole || passing == Passing::kDoubled) Hear(character);
    if (passing == Passing::kDoubled) Hear(character);
  }
  if (!out_.empty()) return;
  owed_ = false;
  Dispatch(app, DrainedEvent{});
}

void Site::ToProgram(Passing passing, unsigned garble) {
  char character = in_[in_at_++];
  if (in_at_ == in_.size()) {
    in_.clear();
    in_at_ = 0;
  }
  if (passing == Passing::kDropped) return;
  if (passing == Passing::kGarbled)
    character = static_cast<char>(static_cast<unsigned char>(character) ^ garble);
  Unit({&character, 1});
  if (passing == Passing::kDoubled) Unit({&character, 1});
}

bool Site::Character(Passing passing, unsigned garble) {
  if (app.ended) return false;
  if (owed_ && !stalled_) {
    ToUnit(passing, garble);
  } else if (in_at_ < in_.size() && !silent_) {
    ToProgram(passing, garble);
  } else {
    return false;
  }
  ++time_;
  TickDue();
  return true;
}

void Site::UntilQuiet() {
  while (Character()) {
  }
}

void Site::Live(std::int64_t milliseconds) {
  const auto end = time_ + milliseconds;
  while (time_ < end && !app.ended) {
    if (Character()) continue;
    time_ = std::min(NextDue(), end);
    TickDue();
  }
}

// A timer that was started since the last look comes due a whole interval from now.
std::int64_t Site::NextDue() {
  auto next = kNever;
  for (auto& due : timers_) {
    if (!due.timer->enabled) continue;
    if (due.starts != due.timer->starts) {
      due.starts = due.timer->starts;
      due.at = time_ + due.timer->interval;
    }
    next = std::min(next, due.at);
  }
  return next;
}

void Site::TickDue() {
  while (NextDue() <= time_) {
    for (auto& due : timers_) {
      if (!due.timer->enabled || due.at > time_) continue;
      due.at = time_ + due.timer->interval;
      Tick(*due.timer);
    }
  }
}

}  // namespace ovl::testing
