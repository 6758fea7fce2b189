// One number for the whole state of a program, so that two builds can be compared after every act.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/application.h"

namespace ovl::testing {

// The order of the additions matters. Digests are comparable if the same compiler built both programs.
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
