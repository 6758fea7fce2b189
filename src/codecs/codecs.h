// Bytes as text. A byte is two upper-case hexadecimal digits; a section is a sequence of bytes. A conversion
// that fails gives 0 and reports no error, because the images of the units were made that way.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ovl::codecs {

// 0 to 255 from the first two characters. A missing character, or one that is no upper-case digit, counts as
// 0.
int HexToInt(std::string_view hex);

// Two upper-case digits of the low eight bits.
std::string ByteToHex(int byte);

void AppendCharHex(std::string& output, char character);

// Two digits for every character, also for blanks at both ends.
std::string TextToHex(std::string_view text);

// A length byte, all characters, and 00. The length is that of the text without its last character and
// without blanks at the end. A text that fills all places therefore counts one less; the unit expects this.
std::string TextToCountedHex(std::string_view text);

// One character for each pair of digits. An empty input gives one NUL character.
std::string HexToText(std::string_view hex);

// Remove characters from the front of a section. A section that is too short returns what it has and keeps
// it.
std::string PeelPair(std::string_view& section);
void DropPair(std::string_view& section);
std::string PeelChars(std::string_view& section, std::int16_t count);

// The number at the start of a text; 0 if there is none, and at most 999,999,999.
int LeadingNumber(std::string_view text);

}  // namespace ovl::codecs
