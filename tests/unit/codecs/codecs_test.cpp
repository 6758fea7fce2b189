#include "codecs/codecs.h"

#include <gtest/gtest.h>

namespace ovl {
namespace {

TEST(HexToInt, ACharacterThatIsNoDigitCountsAsZero) {
  const std::vector<std::pair<std::string, int>> cases = {
      {"1G", 16},  {"G1", 1}, {"a5", 5},   {"F", 240},  {"", 0},
      {"FF", 255}, {" .", 0}, {"0A9", 10}, {"A0", 160}, {".1", 1},
  };
  for (const auto& [hex, value] : cases) EXPECT_EQ(codecs::HexToInt(hex), value) << hex;
}

TEST(HexByte, EveryCodeIsReadBack) {
  std::string text;
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(codecs::HexToInt(codecs::ByteToHex(code)), code);
    text += static_cast<char>(code);
  }
  EXPECT_EQ(codecs::HexToText(codecs::TextToHex(text)), text);
  EXPECT_EQ(codecs::ByteToHex(159), "9F");
  EXPECT_EQ(codecs::HexToText(""), std::string(1, '\0'));
  EXPECT_EQ(codecs::HexToText("414"), "A");
  EXPECT_EQ(codecs::TextToHex(" A "), "204120");
}

TEST(TextToCountedHex, IgnoresTheLastCharacter) {
  EXPECT_EQ(codecs::TextToCountedHex("ABC"), "0241424300");
  EXPECT_EQ(codecs::TextToCountedHex(""), "0000");
  EXPECT_EQ(codecs::TextToCountedHex("A"), "004100");
  EXPECT_EQ(codecs::TextToCountedHex("AB" + std::string(38, ' ')).substr(0, 6), "024142");
  EXPECT_EQ(codecs::TextToCountedHex(std::string(40, 'X')).substr(0, 2), "27");
  EXPECT_EQ(codecs::TextToCountedHex(std::string(39, ' ') + ".").substr(0, 2), "00");
}

TEST(Peel, ASectionThatIsTooShortKeepsItsRest) {
  std::string_view section = "ABCDE";
  EXPECT_EQ(codecs::PeelPair(section), "AB");
  codecs::DropPair(section);
  EXPECT_EQ(codecs::PeelPair(section), "E");
  EXPECT_EQ(codecs::PeelPair(section), "E");
  codecs::DropPair(section);
  EXPECT_EQ(codecs::PeelChars(section, 8), "E");
  section = "";
  EXPECT_EQ(codecs::PeelPair(section), "");
}

TEST(LeadingNumber, StopsAtTheFirstOtherCharacter) {
  EXPECT_EQ(codecs::LeadingNumber("12AB"), 12);
  EXPECT_EQ(codecs::LeadingNumber("AB"), 0);
  EXPECT_EQ(codecs::LeadingNumber(" 1"), 0);
  EXPECT_EQ(codecs::LeadingNumber("999999990"), 999'999'990);
  EXPECT_EQ(codecs::LeadingNumber("99999999999999"), 999'999'999);
}

}  // namespace
}  // namespace ovl
