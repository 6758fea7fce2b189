// A program with a simulated unit on its serial port, in simulated time. The line carries one character in a
// millisecond, and timers tick when they are due. The unit understands 9600 baud without parity and the two
// transfer commands in remote mode. It stops what it does when the port is closed.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "support/control_characters.h"
#include "support/harness.h"

namespace ovl::testing {

class ProgramWithUnit : public Harness {
 public:
  enum class Passing { kWhole, kDropped, kDoubled, kGarbled };

  explicit ProgramWithUnit(const firmware::FirmwareId& firmware) : Harness(firmware) {
    for (const auto& control : app.registry.All()) {
      if (auto* const* timer = std::get_if<controls::Timer*>(&control.control)) timers_.push_back({*timer});
    }
    app.platform.serial.close = [this, close = app.platform.serial.close] {
      close();
      for (auto* text : {&sent_, &in_, &heard_}) text->clear();
      wrote_ = remote_ = taking_ = false;
    };
    Start();
  }

  // Carries one character in either direction. Returns false if there is none to carry.
  bool Character(Passing passing = Passing::kWhole, unsigned garble = 0) {
    if (app.ended) return false;
    if (wrote_ && !stalled_) {
      for (const char character : Arriving(sent_, passing, garble)) Hear(character);
      if (sent_.empty()) {
        wrote_ = false;
        Dispatch(app, core::DrainedEvent{});
      }
    } else if (!in_.empty() && !silent_) {
      Unit(Arriving(in_, passing, garble));
    } else {
      return false;
    }
    ++time_;
    TickDue();
    return true;
  }
  void UntilQuiet() {
    while (Character()) continue;
  }
  void Live(std::int64_t milliseconds) {
    const auto end = time_ + milliseconds;
    while (time_ < end && !app.ended) {
      if (Character()) continue;
      time_ = std::min(NextDue(), end);
      TickDue();
    }
  }

  // From now on the unit sends nothing, the transmitter never becomes empty, or the device is gone; Mend()
  // ends all of these.
  void Silence() { silent_ = true; }
  void Stall() { stalled_ = true; }
  void Lose() {
    line_error = "No such device";
    silent_ = true;
    in_.clear();
    sent_.clear();
  }
  void Mend() {
    line_error.reset();
    silent_ = stalled_ = false;
  }

  // Opens the port and enters remote mode.
  void EnterRemoteMode() {
    for (const auto* button : {"cmdConnect", "cmdSET", "CmdUpDow(4)"}) Click(button);
    Live(400);
  }

  std::string configuration;  // that the unit sends in an upload
  std::string taken;          // the last stream that the unit received

 private:
  struct Due {
    controls::Timer* timer = nullptr;
    unsigned starts = 0;
    std::int64_t at = 0;
  };

  // Takes the first character of the line and returns what arrives at the other end.
  static std::string Arriving(std::string& line, Passing passing, unsigned garble) {
    if (line.empty()) return {};
    const auto bits = static_cast<unsigned char>(line.front()) ^ (passing == Passing::kGarbled ? garble : 0U);
    line.erase(0, 1);
    if (passing == Passing::kDropped) return {};
    return std::string(passing == Passing::kDoubled ? 2 : 1, static_cast<char>(bits));
  }

  void Hear(char character) {
    if (!opened.back().ends_with(":9600,N,8,1")) return;
    if (taking_) {
      taken += character;
      if (character != '#') return;
      taking_ = remote_ = false;
      in_ += kAck;
      return;
    }
    heard_ += character;
    const auto heard = [this](std::string_view text) { return heard_.ends_with(text); };
    if (heard(kRemoteRequest)) {
      remote_ = true;
      in_ += kAck;
    } else if (remote_ && heard(kEnq)) {
      in_ += kFormFeed;
    } else if (remote_ && heard("/LU\r")) {
      remote_ = false;
      in_ += configuration;
    } else if (remote_ && heard("/LD\r")) {
      taking_ = true;
      taken.clear();
      in_ += kAck;
    }
  }

  // A timer that was started since the last call is due one interval from now.
  std::int64_t NextDue() {
    auto next = std::numeric_limits<std::int64_t>::max();
    for (auto& due : timers_) {
      if (!due.timer->enabled) continue;
      if (due.starts != due.timer->starts) due.at = time_ + due.timer->interval;
      due.starts = due.timer->starts;
      next = std::min(next, due.at);
    }
    return next;
  }
  void TickDue() {
    while (NextDue() <= time_) {
      for (auto& due : timers_) {
        if (!due.timer->enabled || due.at > time_) continue;
        due.at = time_ + due.timer->interval;
        Tick(*due.timer);
      }
    }
  }

  std::vector<Due> timers_;
  std::int64_t time_ = 0;
  std::string in_;  // on its way from the unit
  std::string heard_;
  bool silent_ = false, stalled_ = false, remote_ = false, taking_ = false;
};

}  // namespace ovl::testing
