// One number for everything that a program holds and shows, so that two builds can be compared act by act.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/application.h"

namespace ovl::testing {

// The order of what is added counts. Two digests can be compared when the same compiler made both programs.
class Digest {
 public:
  void Add(std::string_view text);
  void Add(std::int64_t number);
  // The image, all state variables, and the state of every control and form.
  void AddState(const core::Application& app);

  // Sixteen hexadecimal digits.
  std::string Text() const;

 private:
  std::uint64_t value_ = 0;
};

}  // namespace ovl::testing
