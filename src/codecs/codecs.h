// The text forms of bytes. A HexByte is two upper-case hexadecimal digits; a section is a row of them. A
// conversion that fails contributes 0 and reports nothing: the unit's images were made that way.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ovl::codecs {

// 0 to 255 from the first two characters; whatever is no upper-case digit, or is missing, counts 0.
int HexToInt(std::string_view hex);

// Two upper-case digits. Only the low eight bits of the value count.
std::string ByteToHex(int byte);

void AppendCharHex(std::string& output, char character);

// Two digits for every character, blanks at either end included.
std::string TextToHex(std::string_view text);

// A length byte, every character, and 00. The length byte is the position of the last character that is no
// blank, searched from the last but one on: the unit expects a full text to count one short.
std::string TextToCountedHex(std::string_view text);

// One character for each whole pair; an empty input gives one NUL character.
std::string HexToText(std::string_view hex);

// Take characters off the front of a section. A section that holds too few gives what it has and keeps it.
std::string PeelPair(std::string_view& section);
void DropPair(std::string_view& section);
std::string PeelChars(std::string_view& section, std::int16_t count);

// The number that the leading decimal digits of a text form; 0 without any. Saturates at 999,999,999.
int LeadingNumber(std::string_view text);

}  // namespace ovl::codecs
