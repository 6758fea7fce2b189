// Reads the input of a fuzzer, and reports a failed check.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace ovl::fuzz {

class Bytes {
 public:
  Bytes(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

  bool Empty() const { return rest_.empty(); }
  // Returns 0 at the end of the input.
  std::uint8_t Next() {
    if (rest_.empty()) return 0;
    const auto byte = static_cast<std::uint8_t>(rest_.front());
    rest_.remove_prefix(1);
    return byte;
  }
  // The text up to a NUL, or the rest.
  std::string_view NextText() {
    const auto text = rest_.substr(0, rest_.find('\0'));
    rest_.remove_prefix(std::min(text.size() + 1, rest_.size()));
    return text;
  }
  std::string_view Rest() const { return rest_; }

 private:
  std::string_view rest_;
};

// True for one of `count` inputs, depending on the content: for events that take much longer than others.
inline bool OneIn(unsigned count, std::string_view input) {
  unsigned sum = 0;
  for (const char byte : input) sum = sum * 31U + static_cast<unsigned char>(byte);
  return sum % count == 0;
}

inline void Require(bool held, const char* what) {
  if (held) return;
  std::fprintf(stderr, "Does not hold: %s\n", what);
  std::abort();
}

}  // namespace ovl::fuzz
