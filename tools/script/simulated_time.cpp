#include "script/simulated_time.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "codecs/codecs.h"

namespace ovl::script {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

year_month_day DateOf(const core::ClockTime& time) {
  return {std::chrono::year(time.year), std::chrono::month(static_cast<unsigned>(time.month)),
          std::chrono::day(static_cast<unsigned>(time.day))};
}

}  // namespace

void SimulatedTime::SetClock(const core::ClockTime& time) {
  const std::chrono::milliseconds moment = sys_days(DateOf(time)).time_since_epoch() +
                                           std::chrono::hours(time.hour) + std::chrono::minutes(time.minute) +
                                           std::chrono::seconds(time.second);
  clock_offset_ = moment.count() - now_;
}

core::ClockTime SimulatedTime::Clock() const {
  const std::chrono::milliseconds moment(clock_offset_ + now_);
  const auto day = std::chrono::floor<days>(moment);
  const year_month_day date{sys_days(day)};
  const std::chrono::hh_mm_ss time(std::chrono::floor<std::chrono::seconds>(moment - day));
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(time.hours().count()),
          static_cast<int>(time.minutes().count()),
          static_cast<int>(time.seconds().count())};
}

void SimulatedTime::Watch(const controls::Registry& registry) {
  const auto before = std::exchange(running_, {});
  for (const auto& named : registry.All()) {
    auto* const* held = std::get_if<controls::Timer*>(&named.control);
    if (held == nullptr || !(*held)->enabled || (*held)->interval <= 0) continue;
    auto& timer = **held;
    const auto same = std::find_if(before.begin(), before.end(), [&](const Running& at) {
      return at.timer == &timer && at.starts == timer.starts && at.interval == timer.interval;
    });
    running_.push_back(
        same != before.end() ? *same : Running{&timer, timer.starts, timer.interval, now_ + timer.interval});
  }
}

const SimulatedTime::Running* SimulatedTime::Earliest() const {
  const auto first = std::min_element(running_.begin(), running_.end(),
                                      [](const Running& a, const Running& b) { return a.due < b.due; });
  return first == running_.end() ? nullptr : &*first;
}

std::optional<SimulatedTime::Milliseconds> SimulatedTime::NextDue() const {
  const auto* first = Earliest();
  return first == nullptr ? std::nullopt : std::optional(first->due);
}

void SimulatedTime::MoveTo(Milliseconds now) {
  now_ = std::max(now_, now);
}

controls::Timer* SimulatedTime::TakeDue() {
  const auto* first = Earliest();
  if (first == nullptr || first->due > now_) return nullptr;
  auto& taken = running_[static_cast<std::size_t>(first - running_.data())];
  taken.due = now_ + taken.interval;
  return taken.timer;
}

void SimulatedTime::Advance(const controls::Registry& registry, Milliseconds duration,
                            const std::function<bool(controls::Timer&)>& tick) {
  const auto end = now_ + duration;
  Watch(registry);
  for (auto due = NextDue(); due && *due <= end; due = NextDue()) {
    MoveTo(*due);
    if (!tick(*TakeDue())) return;
    Watch(registry);
  }
  MoveTo(end);
}

std::optional<core::ClockTime> ParseClock(std::string_view text) {
  constexpr std::string_view kForm = "dddd-dd-dd dd:dd:dd";
  const auto fits = [](char form, char character) {
    return form == 'd' ? character >= '0' && character <= '9' : form == character;
  };
  if (!std::equal(kForm.begin(), kForm.end(), text.begin(), text.end(), fits)) return std::nullopt;
  const auto number = [&](std::size_t place, std::size_t digits) {
    return codecs::LeadingNumber(text.substr(place, digits));
  };
  const core::ClockTime time{number(0, 4),  number(5, 2),  number(8, 2),
                             number(11, 2), number(14, 2), number(17, 2)};
  if (!DateOf(time).ok() || time.hour > 23 || time.minute > 59 || time.second > 59) return std::nullopt;
  return time;
}

}  // namespace ovl::script
