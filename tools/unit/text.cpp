#include "unit/text.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <system_error>
#include <utility>

namespace unit {
namespace {

constexpr std::array<std::pair<char, std::string_view>, 8> kControlNames{{
    {'\0', "NUL"},
    {kEnq, "ENQ"},
    {kAck, "ACK"},
    {'\n', "LF"},
    {kFormFeed, "FF"},
    {'\r', "CR"},
    {kNak, "NAK"},
    {kCan, "CAN"},
}};

bool IsPrintable(char byte) {
  return byte >= 0x20 && byte < 0x7F;
}

}  // namespace

std::string Printable(char byte) {
  if (IsPrintable(byte)) return {byte};
  for (const auto& [code, name] : kControlNames) {
    if (code == byte) return std::string("<").append(name).append(">");
  }
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "<x%02X>", static_cast<unsigned>(static_cast<unsigned char>(byte)));
  return text.data();
}

std::string Printable(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) text += Printable(byte);
  return text;
}

std::string Quoted(char byte) {
  return IsPrintable(byte) ? std::string("\"").append(1, byte).append("\"") : Printable(byte);
}

std::string Hex4(unsigned value) {
  std::array<char, 12> text{};
  std::snprintf(text.data(), text.size(), "%04X", value);
  return text.data();
}

std::optional<unsigned> UpperHexDigit(char c) {
  if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
  if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A') + 10U;
  return std::nullopt;
}

std::optional<unsigned long long> Decimal(std::string_view text, unsigned long long highest) {
  unsigned long long value = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, failure] = std::from_chars(text.data(), end, value);
  if (failure != std::errc{} || stop != end || value > highest) return std::nullopt;
  return value;
}

std::string SystemReason(int code) {
  return std::generic_category().message(code);
}

}  // namespace unit
