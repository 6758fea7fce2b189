#pragma once

#include <string>
#include <string_view>

namespace unit {

// A date and time as the tool sends it: "MM-DD-YY HH:MM:SS", every number with two digits.
// Returns what is wrong with `text`, or an empty text if the date and the time exist. Years divisible by four
// are leap years, and so is 00.
std::string ClockError(std::string_view text);

}  // namespace unit
