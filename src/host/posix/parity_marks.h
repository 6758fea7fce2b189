// How a serial line tells which characters arrived with a parity error: the driver puts FF 00 ahead of such a
// character, and sends a good FF twice.
#pragma once

#include <string>
#include <string_view>

namespace ovl::host {

// Takes the marks out of what was read and puts "?" in the place of a bad character. A mark may be split over
// any number of reads. One decoder serves one opening of the port.
class ParityMarks {
 public:
  std::string Decode(std::string_view bytes);

 private:
  enum class Seen { kNothing, kEscape, kMark };
  Seen seen_ = Seen::kNothing;
};

}  // namespace ovl::host
