// Time for the timers of the model: it stands still until it is moved. The clock moves along.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "controls/registry.h"
#include "core/platform.h"

namespace ovl::script {

class SimulatedTime {
 public:
  using Milliseconds = std::int64_t;

  // From here on the clock shows this time. Before it was ever set it starts with the year 2000.
  void SetClock(const core::ClockTime& time);
  core::ClockTime Clock() const;

  // Looks which timers of the program run. One that was started, restarted or given another interval since
  // the last look comes due a whole interval from now. A timer without an interval never does.
  void Watch(const controls::Registry& registry);

  // The timers of a program that is gone.
  void Forget() { running_.clear(); }

  Milliseconds Now() const { return now_; }
  std::optional<Milliseconds> NextDue() const;

  // Never backwards.
  void MoveTo(Milliseconds now);

  // The timer that came due first, of several at once the one that was registered first; nothing if none is
  // due by now. It comes due again an interval from now, so that ticks that were missed are lost.
  controls::Timer* TakeDue();

  // Moves by so much and ticks every timer when it comes due, with a look after each tick. `tick` tells
  // whether to go on.
  void Advance(const controls::Registry& registry, Milliseconds duration,
               const std::function<bool(controls::Timer&)>& tick);

 private:
  struct Running {
    controls::Timer* timer;
    unsigned starts;
    int interval;
    Milliseconds due;
  };

  const Running* Earliest() const;

  Milliseconds now_ = 0;
  Milliseconds clock_offset_ = 946'684'800'000;  // the clock when now_ was 0, since 1970
  std::vector<Running> running_;                 // in the order of registration
};

// "2026-03-05 14:07:09"; nothing for another form or a time that no clock shows.
std::optional<core::ClockTime> ParseClock(std::string_view text);

}  // namespace ovl::script
