// A program with a unit on its line, in simulated time: the line carries one character a millisecond, and
// timers tick when they come due. The unit hears 9600 baud without parity, obeys the two transfer commands in
// remote mode, and gives up whatever it was doing when the line is closed.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "support/harness.h"

namespace ovl::testing {

class Site : public Harness {
 public:
  enum class Passing { kWhole, kDropped, kDoubled, kGarbled };

  explicit Site(const FirmwareId& firmware);

  // One character in either direction, and the event that it causes. False: nothing is under way.
  bool Character(Passing passing = Passing::kWhole, unsigned garble = 0);
  void UntilQuiet();
  void Live(std::int64_t milliseconds);

  // From now on the unit says nothing, the transmitter never runs empty, the device is gone, all is well
  // again.
  void Silence() { silent_ = true; }
  void Stall() { stalled_ = true; }
  void Lose();
  void Mend();

  // From a closed port to remote mode.
  void Hold();

  std::string configuration;  // what the unit sends when it is asked to
  std::string taken;          // the last stream that it was sent

 private:
  struct Due {
    Timer* timer = nullptr;
    unsigned starts = 0;
    std::int64_t at = 0;
  };

  void Hear(char character);
  void ToUnit(Passing passing, unsigned garble);
  void ToProgram(Passing passing, unsigned garble);
  std::int64_t NextDue();
  void TickDue();

  std::array<Due, 5> timers_;
  std::int64_t time_ = 0;
  std::string out_, in_;  // on their way to the unit and from it
  std::size_t in_at_ = 0;
  std::string heard_;
  bool owed_ = false;  // the transmitter will run empty
  bool silent_ = false, stalled_ = false, remote_ = false, taking_ = false, out_of_tune_ = false;
};

}  // namespace ovl::testing
