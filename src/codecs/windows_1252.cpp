#include "codecs/windows_1252.h"

#include <algorithm>
#include <array>

namespace ovl::codecs {
namespace {

constexpr unsigned kFirst = 0x80;

// The characters of the codes 80 to 9F. Every other code equals its character's number.
constexpr std::array<char32_t, 32> kCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr unsigned kEnd = kFirst + kCharacters.size();

constexpr unsigned kContinuationBits = 6;

// The lengths that UTF-8 has: the bits of the first byte that say so, and the first number that needs it.
struct Length {
  unsigned mask, lead;
  std::size_t continuations;
  char32_t least;
};
constexpr std::array kLengths = {Length{0x80, 0x00, 0, 0}, Length{0xE0, 0xC0, 1, 0x80},
                                 Length{0xF0, 0xE0, 2, 0x800}, Length{0xF8, 0xF0, 3, 0x10000}};

// Takes one character from the front.
std::optional<char32_t> TakeCharacter(std::string_view& text) {
  const unsigned lead = static_cast<unsigned char>(text.front());
  const auto length = std::find_if(kLengths.begin(), kLengths.end(),
                                   [&](const Length& row) { return (lead & row.mask) == row.lead; });
  if (length == kLengths.end() || text.size() <= length->continuations) return std::nullopt;
  char32_t character = lead & ~length->mask;
  for (std::size_t byte = 1; byte <= length->continuations; ++byte) {
    const unsigned next = static_cast<unsigned char>(text[byte]);
    if ((next & 0xC0) != 0x80) return std::nullopt;
    character = character << kContinuationBits | (next & 0x3F);
  }
  if (character < length->least) return std::nullopt;
  text.remove_prefix(length->continuations + 1);
  return character;
}

}  // namespace

char32_t CharacterOfCode(unsigned char code) {
  return code >= kFirst && code < kEnd ? kCharacters.at(code - kFirst) : code;
}

std::optional<char> CodeOfCharacter(char32_t character) {
  if (character < kFirst || (character >= kEnd && character <= 0xFF)) return static_cast<char>(character);
  const auto* const place = std::find(kCharacters.begin(), kCharacters.end(), character);
  if (place == kCharacters.end()) return std::nullopt;
  return static_cast<char>(kFirst + static_cast<unsigned>(place - kCharacters.begin()));
}

void AppendUtf8(std::string& text, char32_t character) {
  const auto length = std::find_if(kLengths.rbegin(), kLengths.rend(),
                                   [&](const Length& row) { return character >= row.least; });
  auto shift = length->continuations * kContinuationBits;
  text += static_cast<char>(length->lead | character >> shift);
  while (shift > 0) {
    shift -= kContinuationBits;
    text += static_cast<char>(0x80 | (character >> shift & 0x3F));
  }
}

std::string Utf8OfWindows1252(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) AppendUtf8(text, CharacterOfCode(static_cast<unsigned char>(byte)));
  return text;
}

std::string WithoutCode(std::string_view text) {
  while (!text.empty()) {
    const auto before = text;
    const auto character = TakeCharacter(text);
    if (!character) return std::string(before);
    if (!CodeOfCharacter(*character)) return std::string(before.substr(0, before.size() - text.size()));
  }
  return {};
}

std::optional<std::string> Windows1252OfUtf8(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    const auto character = TakeCharacter(text);
    const auto code = character ? CodeOfCharacter(*character) : std::nullopt;
    if (!code) return std::nullopt;
    bytes += *code;
  }
  return bytes;
}

}  // namespace ovl::codecs
