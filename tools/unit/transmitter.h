#pragma once

#include <chrono>
#include <deque>
#include <optional>
#include <string>

namespace unit {

// Time since an arbitrary start. It is always a parameter: only Session reads a clock.
using Time = std::chrono::nanoseconds;

// A start bit, eight data bits and a stop bit. Seven data bits with parity take the same time.
inline constexpr long long kBitsPerCharacter = 10;

// Bytes to send, after a pause that begins when all earlier bytes are sent.
struct Segment {
  Time pause{};
  std::string bytes;
};

// The sending half of the line. It holds the bytes to send and decides when each of them has been sent. The
// schedule is absolute: a late wake-up does not delay later characters, so the mean rate is that of the line.
class Transmitter {
 public:
  // `speed` in bits per second; 0: characters take no time.
  explicit Transmitter(unsigned speed) : speed_(speed) {}

  void Queue(Segment segment, Time now);

  // Drops everything that is not sent yet.
  void Clear();

  bool Idle() const { return pending_.empty(); }

  // When to call TakeDue() next, or nothing when idle. On fast lines, the characters of one millisecond are
  // collected, as adapters do.
  std::optional<Time> NextDue() const;

  // The characters sent since the last call.
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
