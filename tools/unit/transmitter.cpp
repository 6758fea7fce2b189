#include "unit/transmitter.h"

#include <algorithm>

namespace unit {
namespace {

constexpr Time kGathering = std::chrono::milliseconds(1);

}  // namespace

Time Transmitter::Passed(const Pending& pending, std::size_t characters) const {
  if (speed_ == 0) return pending.start;
  const long long bits = static_cast<long long>(characters) * kBitsPerCharacter;
  return pending.start + Time(bits * Time::period::den / speed_);
}

void Transmitter::Queue(Segment segment, Time now) {
  if (segment.bytes.empty()) return;
  Pending pending{std::max(now, free_at_) + segment.pause, std::move(segment.bytes)};
  free_at_ = Passed(pending, pending.bytes.size());
  pending_.push_back(std::move(pending));
}

void Transmitter::Clear() {
  pending_.clear();
  free_at_ = Time{};
}

std::optional<Time> Transmitter::NextDue() const {
  if (pending_.empty()) return std::nullopt;
  const Pending& front = pending_.front();
  const Time last = Passed(front, front.bytes.size());
  return std::min(std::max(Passed(front, front.sent + 1), last_taken_ + kGathering), last);
}

std::string Transmitter::TakeDue(Time now) {
  std::string due;
  while (!pending_.empty()) {
    Pending& front = pending_.front();
    while (front.sent < front.bytes.size() && Passed(front, front.sent + 1) <= now) {
      due += front.bytes[front.sent++];
    }
    if (front.sent < front.bytes.size()) break;
    pending_.pop_front();
  }
  if (!due.empty()) last_taken_ = now;
  return due;
}

}  // namespace unit
