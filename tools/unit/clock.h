#pragma once

#include <string>
#include <string_view>

namespace unit {

// A date and time as the tool sends it: "MM-DD-YY HH:MM:SS", every number with two digits.
// Says what is wrong with `text`, empty when the date and the time exist. Years divisible by four, 00 among
// them, are leap years.
std::string ClockError(std::string_view text);

}  // namespace unit
