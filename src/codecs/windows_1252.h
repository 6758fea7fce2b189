// Texts of the unit, which are in Windows-1252, as UTF-8 and back. The codes that Windows-1252 leaves open
// are the characters of the same number.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ovl::codecs {

char32_t CharacterOfCode(unsigned char code);
std::optional<char> CodeOfCharacter(char32_t character);

std::string Utf8OfWindows1252(std::string_view bytes);

// The first character that has no code, and what is not valid UTF-8 as it is; empty if every one has a code.
std::string WithoutCode(std::string_view text);

// Nothing if a character has no code, or if the text is not valid UTF-8.
std::optional<std::string> Windows1252OfUtf8(std::string_view text);

void AppendUtf8(std::string& text, char32_t character);

}  // namespace ovl::codecs
