// Parity errors of a serial port: the driver puts FF 00 before a bad character and doubles a good FF.
#pragma once

#include <string>
#include <string_view>

namespace ovl::host {

// Removes the marks and replaces each bad character by "?". A mark may be split over any number of reads.
// Each opening of the port needs a new decoder.
class ParityMarks {
 public:
  std::string Decode(std::string_view bytes);

 private:
  enum class Seen { kNothing, kEscape, kMark };
  Seen seen_ = Seen::kNothing;
};

}  // namespace ovl::host
