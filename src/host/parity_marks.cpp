#include "host/parity_marks.h"

namespace ovl::host {
namespace {

constexpr char kEscape = '\xFF';
constexpr char kBad = '\0';

}  // namespace

std::string ParityMarks::Decode(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    if (seen_ == Seen::kMark) {
      text += '?';
      seen_ = Seen::kNothing;
    } else if (seen_ == Seen::kEscape && byte == kBad) {
      seen_ = Seen::kMark;
    } else if (seen_ == Seen::kEscape) {
      text += kEscape;
      // This driver does not double a good FF, so the byte behind it is a character of its own.
      if (byte != kEscape) text += byte;
      seen_ = Seen::kNothing;
    } else if (byte == kEscape) {
      seen_ = Seen::kEscape;
    } else {
      text += byte;
    }
  }
  return text;
}

}  // namespace ovl::host
