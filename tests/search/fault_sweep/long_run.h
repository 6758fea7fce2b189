// What the search programs have in common.
#pragma once

#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

#include "firmware/firmware_id.h"

namespace ovl::testing {

// One firmware for each form of stream that the link treats differently.
inline const std::vector<firmware::FirmwareId> kStreamForms = {
    {"V1400", "R12"}, {"V1400", "R4"}, {"V1300", "R14"}, {"V1334", "R1"}};

// The number at a place of the command line, or the default.
inline long NumberIn(int count, char** words, int at, long otherwise) {
  return at < count ? std::atol(words[at]) : otherwise;
}

// The shortest part of a sequence that still fails, or all of it if it does not fail again.
template <class Steps, class Fails>
Steps Shortest(Steps steps, const Fails& fails) {
  if (!fails(steps)) return steps;
  for (std::size_t length = steps.size() / 2; length > 0; length = length == 1 ? 0 : length / 2) {
    for (std::size_t at = 0; at + length <= steps.size();) {
      auto fewer = steps;
      const auto first = fewer.begin() + static_cast<std::ptrdiff_t>(at);
      fewer.erase(first, first + static_cast<std::ptrdiff_t>(length));
      if (fails(fewer)) {
        steps = std::move(fewer);
      } else {
        at += length;
      }
    }
  }
  return steps;
}

class StopWatch {
 public:
  std::string Text() const {
    const auto since = std::chrono::steady_clock::now() - start_;
    return std::to_string(std::chrono::duration_cast<std::chrono::seconds>(since).count()) + " s";
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace ovl::testing
