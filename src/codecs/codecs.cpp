#include "codecs/codecs.h"

#include <algorithm>

namespace ovl::codecs {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr char kBlank = ' ';

int DigitAt(std::string_view hex, std::size_t place) {
  if (place >= hex.size()) return 0;
  const auto value = kDigits.find(hex[place]);
  return value == std::string_view::npos ? 0 : static_cast<int>(value);
}

}  // namespace

int HexToInt(std::string_view hex) {
  return DigitAt(hex, 0) * 16 + DigitAt(hex, 1);
}

std::string ByteToHex(int byte) {
  const auto value = static_cast<unsigned>(byte) & 0xFFU;
  return {kDigits[value / 16], kDigits[value % 16]};
}

void AppendCharHex(std::string& output, char character) {
  const auto value = static_cast<unsigned char>(character);
  output += kDigits[value / 16U];
  output += kDigits[value % 16U];
}

std::string TextToHex(std::string_view text) {
  std::string hex;
  hex.reserve(text.size() * 2);
  for (const char character : text) AppendCharHex(hex, character);
  return hex;
}

std::string TextToCountedHex(std::string_view text) {
  std::size_t length = text.empty() ? 0 : text.size() - 1;
  while (length > 0 && text[length - 1] == kBlank) --length;
  return ByteToHex(static_cast<int>(length)) + TextToHex(text) + "00";
}

std::string HexToText(std::string_view hex) {
  if (hex.empty()) return std::string(1, '\0');
  std::string text;
  text.reserve(hex.size() / 2);
  for (; hex.size() >= 2; hex.remove_prefix(2)) text += static_cast<char>(HexToInt(hex));
  return text;
}

std::string PeelPair(std::string_view& section) {
  return PeelChars(section, 2);
}

void DropPair(std::string_view& section) {
  if (section.size() >= 2) section.remove_prefix(2);
}

std::string PeelChars(std::string_view& section, std::int16_t count) {
  const auto wanted = static_cast<std::size_t>(std::max<std::int16_t>(count, 0));
  const std::string output(section.substr(0, wanted));
  if (section.size() >= wanted) section.remove_prefix(wanted);
  return output;
}

int LeadingNumber(std::string_view text) {
  constexpr int kLargest = 999'999'999;
  int number = 0;
  for (const char character : text) {
    if (character < '0' || character > '9') break;
    if (number > (kLargest - (character - '0')) / 10) return kLargest;
    number = number * 10 + (character - '0');
  }
  return number;
}

}  // namespace ovl::codecs
