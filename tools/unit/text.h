#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace unit {

inline constexpr char kEnq = 5;
inline constexpr char kAck = 6;
inline constexpr char kFormFeed = 12;
inline constexpr char kNak = 21;
inline constexpr char kCan = 24;

// A byte in readable form: printable ASCII as it is, "<CR>" for a control code with a name, "<xHH>" for
// others.
std::string Printable(char byte);
std::string Printable(std::string_view bytes);

// One received byte for a message: a printable one in quotation marks, any other as Printable() names it.
std::string Quoted(char byte);

// Four upper-case hexadecimal digits.
std::string Hex4(unsigned value);

// The value of an upper-case hexadecimal digit. Nothing for other characters, including lower-case digits.
std::optional<unsigned> UpperHexDigit(char c);

// The value of a text of decimal digits, at most `highest`. Nothing for an empty text, a sign, a blank or a
// larger value.
std::optional<unsigned long long> Decimal(std::string_view text, unsigned long long highest);

// The system's description of errno `code`.
std::string SystemReason(int code);

}  // namespace unit
