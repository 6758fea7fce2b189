#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace ovl::testing {

class Random {
 public:
  explicit Random(std::uint32_t seed) : numbers_(seed) {}

  // From 0 to below the count, which is more than 0.
  int Below(int count) { return static_cast<int>(numbers_() % static_cast<std::uint32_t>(count)); }
  int From(int first, int last) { return first + Below(last - first + 1); }
  bool OneOf(int count) { return Below(count) == 0; }

  template <class Things>
  auto& Any(Things& things) {
    return things[static_cast<std::size_t>(Below(static_cast<int>(std::size(things))))];
  }

 private:
  std::mt19937 numbers_;
};

}  // namespace ovl::testing
