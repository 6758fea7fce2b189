// A unit on the program's serial line, which carries characters when it is told to and fails when it is told
// to.
#pragma once

#include <memory>
#include <string>

#include "random.h"
#include "support/simulated_unit.h"
#include "ui/app/program.h"

namespace ovl::testing {

class Line {
 public:
  // Takes the place of the serial port of the program.
  Line(ui::Program& program, const firmware::FirmwareId& firmware);

  // Carries so many characters in either direction.
  void Carry(int count);

  // The device goes away, or comes back with another unit, which makes errors at random.
  void Lose();
  void Mend(Random& random);

 private:
  bool CarryOne();

  ui::Program& program_;
  std::string firmware_;
  std::unique_ptr<SimulatedUnit> unit_;
  std::optional<core::Failure> lost_;
  std::string in_;   // to the program
  std::string out_;  // to the unit
  bool open_ = false;
  bool wrote_ = false;
};

}  // namespace ovl::testing
