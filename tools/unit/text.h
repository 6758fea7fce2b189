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

// A byte as a person can read it: itself when it is printable ASCII, "<CR>" for a control code with a name,
// "<xHH>" for all others.
std::string Printable(char byte);
std::string Printable(std::string_view bytes);

// One received byte for a message: a printable one in quotation marks, any other as Printable() names it.
std::string Quoted(char byte);

// Four upper-case hexadecimal digits.
std::string Hex4(unsigned value);

// The value of an upper-case hexadecimal digit; nothing for any other character, lower case included.
std::optional<unsigned> UpperHexDigit(char c);

// A whole text of decimal digits, at most `highest`; nothing for an empty text, a sign, a blank or a larger
// value.
std::optional<unsigned long long> Decimal(std::string_view text, unsigned long long highest);

// What the system says about errno `code`.
std::string SystemReason(int code);

}  // namespace unit
