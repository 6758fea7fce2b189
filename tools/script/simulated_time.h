// Time for the timers of the model. It stops until it is moved, and the clock moves with it.
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

  // Sets the clock. Before that it begins with the year 2000.
  void SetClock(const core::ClockTime& time);
  core::ClockTime Clock() const;

  // Checks which timers of the program run. A timer that was started, restarted or given another interval
  // since the last check is due one whole interval from now. A timer without an interval is never due.
  void Watch(const controls::Registry& registry);

  // Removes all timers, for a new program.
  void Forget() { running_.clear(); }

  Milliseconds Now() const { return now_; }
  std::optional<Milliseconds> NextDue() const;

  // Does not move backwards.
  void MoveTo(Milliseconds now);

  // The timer that has been due longest; among equals, the one registered first. Null if none is due. It is
  // due again one interval from now, so missed ticks are lost.
  controls::Timer* TakeDue();

  // Moves by the duration and ticks every timer when it is due, with a check after each tick. `tick` returns
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

// "2026-03-05 14:07:09". Nothing for another form or for a date or time that does not exist.
std::optional<core::ClockTime> ParseClock(std::string_view text);

}  // namespace ovl::script
