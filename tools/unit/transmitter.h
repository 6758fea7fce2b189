#pragma once

#include <chrono>
#include <deque>
#include <optional>
#include <string>

namespace unit {

// Time since an arbitrary start. It is always handed in; nothing below main reads a clock.
using Time = std::chrono::nanoseconds;

// A start bit, eight bits and a stop bit; seven bits with parity are as long.
inline constexpr long long kBitsPerCharacter = 10;

// Bytes to send, after a pause that begins when everything before them has left.
struct Segment {
  Time pause{};
  std::string bytes;
};

// The sending half of the line: holds what has to go out and says when each character has passed the wire.
// The schedule is absolute, so a late wake-up is made good by the next one and the mean rate is that of the
// line.
class Transmitter {
 public:
  // `speed` in bits per second; 0: characters take no time.
  explicit Transmitter(unsigned speed) : speed_(speed) {}

  void Queue(Segment segment, Time now);

  // Forgets all that has not left yet.
  void Clear();

  bool Idle() const { return pending_.empty(); }

  // When TakeDue() has to be called next; nothing when idle. Characters of fast lines are gathered for a
  // millisecond, as adapters do.
  std::optional<Time> NextDue() const;

  // The characters that have passed the wire by now, each once.
  std::string TakeDue(Time now);

 private:
  struct Pending {
    Time start;
    std::string bytes;
    std::size_t sent = 0;
  };

  Time Passed(const Pending& pending, std::size_t characters) const;

  unsigned speed_;
  std::deque<Pending> pending_;
  Time free_at_{};
  Time last_taken_{};
};

}  // namespace unit
