#include "unit/clock.h"

#include <array>

#include "unit/text.h"

namespace unit {
namespace {

constexpr std::string_view kForm = "MM-DD-YY HH:MM:SS";
constexpr unsigned kFebruary = 2;

bool IsLetter(char c) {
  return c >= 'A' && c <= 'Z';
}

unsigned DaysOf(unsigned month, unsigned year) {
  constexpr std::array<unsigned, 12> kDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = year % 4 == 0;
  return kDays[month - 1] + (month == kFebruary && leap ? 1U : 0U);
}

std::string FormError(std::string_view text) {
  for (std::size_t i = 0; i < kForm.size(); ++i) {
    const std::string place = "position " + std::to_string(i + 1) + " of the date and time: expected ";
    const std::string expected = IsLetter(kForm[i]) ? "a digit" : Quoted(kForm[i]);
    if (i >= text.size()) return place + expected + ", found the end";
    const bool digit = text[i] >= '0' && text[i] <= '9';
    const bool fits = IsLetter(kForm[i]) ? digit : text[i] == kForm[i];
    if (!fits) return place + expected + ", found " + Quoted(text[i]);
  }
  if (text.size() > kForm.size())
    return "characters after the date and time: " + Printable(text.substr(kForm.size()));
  return {};
}

unsigned TwoDigits(std::string_view text, std::size_t at) {
  return static_cast<unsigned>((text[at] - '0') * 10 + (text[at + 1] - '0'));
}

}  // namespace

std::string ClockError(std::string_view text) {
  const std::string form_error = FormError(text);
  if (!form_error.empty()) return form_error;
  const unsigned month = TwoDigits(text, 0);
  const unsigned day = TwoDigits(text, 3);
  const unsigned year = TwoDigits(text, 6);
  if (month < 1 || month > 12) return "there is no month " + std::string(text.substr(0, 2));
  if (day < 1 || day > DaysOf(month, year)) return "there is no date " + std::string(text.substr(0, 8));
  if (TwoDigits(text, 9) > 23 || TwoDigits(text, 12) > 59 || TwoDigits(text, 15) > 59) {
    return "there is no time " + std::string(text.substr(9));
  }
  return {};
}

}  // namespace unit
