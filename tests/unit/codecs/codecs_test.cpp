#include "codecs/codecs.h"

#include <gtest/gtest.h>

namespace ovl {
namespace {

TEST(HexToInt, CountsWhatIsNoDigitAsZero) {
  const std::vector<std::pair<std::string, int>> cases = {
      {"1G", 16},  {"G1", 1}, {"a5", 5},   {"F", 240},  {"", 0},
      {"FF", 255}, {" .", 0}, {"0A9", 10}, {"A0", 160}, {".1", 1},
  };
  for (const auto& [hex, value] : cases) EXPECT_EQ(HexToInt(hex), value) << hex;
}

TEST(HexByte, AllCodesMakeTheRoundTrip) {
  std::string text;
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(HexToInt(ByteToHex(code)), code);
    text += static_cast<char>(code);
  }
  EXPECT_EQ(HexToText(TextToHex(text)), text);
  EXPECT_EQ(ByteToHex(159), "9F");
  EXPECT_EQ(HexToText(""), std::string(1, '\0'));
  EXPECT_EQ(HexToText("414"), "A");
  EXPECT_EQ(TextToHex(" A "), "204120");
}

TEST(TextToCountedHex, NeverExaminesTheLastCharacter) {
  EXPECT_EQ(TextToCountedHex("ABC"), "0241424300");
  EXPECT_EQ(TextToCountedHex(""), "0000");
  EXPECT_EQ(TextToCountedHex("A"), "004100");
  EXPECT_EQ(TextToCountedHex("AB" + std::string(38, ' ')).substr(0, 6), "024142");
  EXPECT_EQ(TextToCountedHex(std::string(40, 'X')).substr(0, 2), "27");
  EXPECT_EQ(TextToCountedHex(std::string(39, ' ') + ".").substr(0, 2), "00");
}

TEST(Peel, ASectionThatHoldsTooFewKeepsThem) {
  std::string_view section = "ABCDE";
  EXPECT_EQ(PeelPair(section), "AB");
  DropPair(section);
  EXPECT_EQ(PeelPair(section), "E");
  EXPECT_EQ(PeelPair(section), "E");
  DropPair(section);
  EXPECT_EQ(PeelChars(section, 8), "E");
  section = "";
  EXPECT_EQ(PeelPair(section), "");
}

TEST(LeadingNumber, StopsAtTheFirstOtherCharacter) {
  EXPECT_EQ(LeadingNumber("12AB"), 12);
  EXPECT_EQ(LeadingNumber("AB"), 0);
  EXPECT_EQ(LeadingNumber(" 1"), 0);
  EXPECT_EQ(LeadingNumber("999999990"), 999'999'990);
  EXPECT_EQ(LeadingNumber("99999999999999"), 999'999'999);
}

}  // namespace
}  // namespace ovl
