// One direction of a serial line at the level of characters: the sender's FIFO, the wire, which carries one
// character after the other, and the receiver's FIFO, which keeps characters back as hardware does.
#pragma once

#include <algorithm>
#include <chrono>
#include <deque>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <utility>

namespace ovl::testing {

using Clock = std::chrono::steady_clock;

struct Hardware {
  std::size_t fifo = 1;                  // characters at each end
  std::chrono::milliseconds latency{0};  // of an adapter: it hands over what it has after this time
  int lost = 0;                          // characters of 1000
  int doubled = 0;
};

// The longest time in which no character came later than 200 ms after the one before.
struct Stretch {
  std::size_t characters = 0;
  Clock::duration time{};
};

class Wire {
 public:
  Wire(const Hardware& hardware, unsigned seed) : hardware_(hardware), random_(seed) {}

  // How many characters the sender's FIFO takes now.
  std::size_t Room() const { return hardware_.fifo - std::min(hardware_.fifo, waiting_.size()); }
  void Send(std::string_view characters, Clock::time_point now);

  void SetSpeed(unsigned bits_a_second);

  // What the receiver hands over now.
  std::string Arrived(Clock::time_point now);

  // How much of the wire's time the longest stretch used, 0 to 1.
  double Share() const;

  // When there can be more; nothing if the wire is empty.
  std::optional<Clock::time_point> Next() const;

 private:
  void Carry(Clock::time_point now);
  void Count();
  Clock::time_point HandOver() const;
  bool Happens(int of_1000) {
    return of_1000 > 0 && std::uniform_int_distribution(1, 1000)(random_) <= of_1000;
  }

  Hardware hardware_;
  std::mt19937 random_;
  Clock::duration character_ = std::chrono::microseconds(1042);
  std::deque<char> waiting_;        // at the sender; the first is on the wire
  Clock::time_point due_;           // when the first has arrived
  std::string received_;            // by the receiver, not handed over
  Clock::time_point first_, last_;  // of these
  Clock::time_point carried_;       // the latest character
  Stretch stretch_, longest_;
};

}  // namespace ovl::testing
