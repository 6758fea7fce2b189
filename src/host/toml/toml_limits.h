// What the library that reads TOML must not get. It calls itself for each part of a name and for each list or
// table within another, so many of them would use up the stack. It takes for granted that a table begins with
// a name, a value within a list with a character of its own, and a date with a month that exists. Outside of
// quotes, a letter that is not in ASCII leads it to code that its authors declared unreachable; in a text
// over several lines that is hard to see. A text form needs none of these.
#pragma once

#include <limits>
#include <string_view>
#include <vector>

#include "text_form/document.h"

namespace ovl::host {

struct OutsideLimits {
  std::vector<text_form::Problem> problems;  // the first place of each line that the library must not get
  int last_line = std::numeric_limits<int>::max();  // what follows is a part of a text, or too much
};

OutsideLimits OutsideTomlLimits(std::string_view text);

}  // namespace ovl::host
