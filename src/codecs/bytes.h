// Bits of a byte, and parts of a record of hexadecimal digits.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace ovl::codecs {

inline bool HasBit(int byte, int bit) {
  return (byte >> bit & 1) != 0;
}

inline int WithBit(int byte, int bit, bool set) {
  return set ? byte | 1 << bit : byte & ~(1 << bit);
}

// Half of a number, rounded to the even neighbour: 1 gives 0, 3 gives 2.
inline int HalfToEven(int number) {
  const int half = number / 2;
  return number % 2 != 0 && half % 2 != 0 ? half + 1 : half;
}

// The digits of a record from `first` on, at most `count` of them. Empty if the record ends before `first`.
inline std::string Slice(std::string_view record, std::size_t first, std::size_t count = std::string::npos) {
  return std::string(record.substr(std::min(first, record.size()), count));
}

}  // namespace ovl::codecs
