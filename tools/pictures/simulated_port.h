// A serial port whose unit sends what the pictures need.
#pragma once

#include <string>
#include <string_view>

#include "ui/app/program.h"

namespace ovl::pictures {

inline constexpr std::string_view kAck = "\x06";

class SimulatedPort {
 public:
  // Takes the place of the serial port in the program's platform. Both must outlive the program's last event.
  explicit SimulatedPort(ui::Program& program);

  void ReceiveFromUnit(std::string_view text);
  void SendCharacters(int count);

  // The port does not open; the device of the open port is gone. Until the program opens it again.
  void Refuse(std::errc reason);
  void Lose();

 private:
  ui::Program& program_;
  char character_ = '\0';
  bool written_ = false;
  core::Result opening_, lost_;
};

// The image as a unit sends it. Under a firmware that no unit has, the program reads another memory region
// than it writes, and the image can be empty.
std::string StreamOfUnit(const core::Application& app);

}  // namespace ovl::pictures
