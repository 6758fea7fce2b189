// What a text form stores: in part, as a whole, and one of another firmware.
#include <algorithm>

#include "codecs/codecs.h"
#include "image/slot_records.h"
#include "text_form_fixture.h"

namespace ovl::testing {
namespace {

// A change, and what the image then differs in.
std::string Changed(const image::ConfigImage& before, const image::ConfigImage& after) {
  std::string changed;
  for (const auto& difference : image::Differences(before, after, kLatest))
    changed += difference.name + " " + difference.before + " " + difference.after + "\n";
  return changed;
}

TEST_F(TextForm, APartKeepsWhatItDoesNotName) {
  const auto before = Pattern(kLatest);
  auto expected = before;
  expected[image::FieldId::COMMCFG_BAK] =
      codecs::ByteToHex(image::WithParityEntry(codecs::HexToInt(before[image::FieldId::COMMCFG_BAK]), 2));
  image::StoreExceptionText(expected.at(image::FieldId::EXCPSTRS, 3), kLatest, "5 \x80 \"\x07\"");
  image::StoreRange(expected.at(image::FieldId::EXCPSTRS, 3), kLatest, "00000001500000010000");
  image::StoreAlarmTrigger(expected.at(image::FieldId::ALMSTRUCT_BAK, 2), 26);
  expected[image::FieldId::EXECENTRY] = "7F";
  const auto read = Read("format = 1\r\n# Gr\u00F6\u00DFe " + std::string(200, '.') +
                         "\r\n[COMMUNICATION]\r\nPARITY = 'odd '\r\n[\"Exception 3\"]\r\n"
                         "text = \"5 \u20AC \\\"\\u0007\\\"\"\r\nRANGE = \"1,50 - 100.00\"\r\n['Alarm "
                         "2']\r\n'ALARM TRIGGER' = 'Ex. 13-24'\r\n['Other bytes']\r\nEXECENTRY = "
                         "'7F'");
  EXPECT_TRUE(read.problems.empty()) << TextOf(read.problems.front(), "text");
  EXPECT_EQ(Changed(expected, read.image), "");
}

TEST_F(TextForm, ACompleteFormIsTheWholeImageWhateverWasThere) {
  auto text = Exported(Pattern(kLatest, 5));
  EXPECT_EQ(Changed(Pattern(kLatest, 5), Read(text).image), "");
  // A line that is taken away is an error, and not a zero.
  const auto line = text.find("\nPARITY");
  text.erase(line, text.find('\n', line + 1) - line);
  const auto missing = Read(text);
  ASSERT_EQ(missing.problems.size(), 1U);
  EXPECT_EQ(TextOf(missing.problems.front(), "a"),
            "a:4:1: \"PARITY\" of [COMMUNICATION] is missing. Without the line \"complete = true\", settings "
            "that the text does not name keep their values");
}

// Fields of a stream that ended early, and bytes that no list has.
TEST_F(TextForm, FieldsThatNoListShowsComeBackAsTheyAre) {
  auto image = Pattern(kLatest);
  image[image::FieldId::RX_BAUDRATE] = "EE";
  image[image::FieldId::TX_BAUDRATE] = "";
  image[image::FieldId::LANGUAGE_BAK] = "0";
  image.at(image::FieldId::EXCPSTRS, 24).resize(7);
  image.at(image::FieldId::TRIGGER_TEXT, 2) = std::string("$2z\"\\\0\x81\xE9", 8);
  image[image::FieldId::REGTYPE] = "FF";
  auto with_option = Pattern(kLatest, 1);  // TCPIP
  with_option.at(image::FieldId::IPADDRESS, 3) = "0A4";
  const auto option = Read(Exported(with_option));
  EXPECT_TRUE(option.problems.empty()) << TextOf(option.problems.front(), "text");
  EXPECT_EQ(Changed(with_option, option.image), "");

  const auto text = Exported(image);
  EXPECT_NE(text.find("\"RX BAUDRATE\" = { bytes = \"EE\" }"), std::string::npos);
  EXPECT_NE(text.find("TX_BAUDRATE = { digits = \"\" }"), std::string::npos);
  const auto read = Read(text);
  EXPECT_TRUE(read.problems.empty()) << TextOf(read.problems.front(), text);
  EXPECT_EQ(Changed(image, read.image), "");
}

// Late V1400 before R11 sends this field and does not read it: after a load it is empty, and must stay so.
TEST_F(TextForm, AFieldThatIsNeverReadStaysEmpty) {
  const firmware::FirmwareId late{"V1400", "R7"};
  const auto read = Read("format = 1\n['TEXT SETUP']\n'SCREEN BLANK' = '5'", Strictness::kWhole, late);
  EXPECT_TRUE(read.problems.empty()) << TextOf(read.problems.front(), "text");
  EXPECT_EQ(read.image[image::FieldId::BLNKRTS_BAK], "");
  EXPECT_NE(read.image[image::FieldId::BLNKVAL], Pattern(late)[image::FieldId::BLNKVAL]);
  const auto bytes = Read("format = 1\n['Other bytes']\nBLNKRTS_BAK = '05'", Strictness::kWhole, late);
  ASSERT_EQ(bytes.problems.size(), 1U);
  EXPECT_EQ(bytes.problems[0].words,
            "a unit of V1400 R7 never sends \"BLNKRTS_BAK\", so it needs the line \"complete = true\"");
}

TEST_F(TextForm, OptionsGoWithTheirRegisterAndTabsByTheirTopic) {
  const auto read = Read(
      "format = 1\nfirmware = 'V1300 R14'\n['REGISTER SELECT']\nRegister = 'IBM RDS'\nDisplay = 'JOURNAL'\n"
      "[TIME]\nTITLE = 'SHOP 7'\n",
      Strictness::kPartial);
  EXPECT_TRUE(read.problems.empty());
  ASSERT_EQ(read.left_out.size(), 3U);
  EXPECT_EQ(read.left_out[2].words, "\"Display\" is an option of a register that is left out");
  EXPECT_NE(Exported(read.image).find("\nTITLE = \"SHOP 7\""), std::string::npos);
}

TEST_F(TextForm, AFormOfAnotherFirmwareGivesWhatIsThere) {
  const firmware::FirmwareId old{"V1300", "R14"};
  auto image = Pattern(old);
  image.at(image::FieldId::EXCPSTRS, 2) = image::FreeExceptionSlot(old);
  image::StoreExceptionText(image.at(image::FieldId::EXCPSTRS, 2), old, "VOID");
  const auto text = Exported(image, old);
  const auto whole = Read(text);
  EXPECT_FALSE(whole.problems.empty());
  const auto part = Read(text, Strictness::kPartial);
  EXPECT_TRUE(part.problems.empty()) << TextOf(part.problems.front(), "text");
  EXPECT_FALSE(part.left_out.empty());
  const auto text_taken = image::ExceptionText(part.image.at(image::FieldId::EXCPSTRS, 2), kLatest);
  EXPECT_TRUE(text_taken.starts_with("VOID  ")) << text_taken;
  EXPECT_EQ(part.image[image::FieldId::NET_TYPE], Pattern(kLatest)[image::FieldId::NET_TYPE]);
  // The same control has another caption.
  const auto handshake =
      Read("format = 1\nfirmware = 'V1300 R14'\n[COMMUNICATION]\nHANDSHAKE = 'ON'\n", Strictness::kPartial);
  EXPECT_NE(Exported(handshake.image).find("\n\"HW HANDSHAKING\" = \"ON\""), std::string::npos);
  // The option belongs to the register of the unit, which has another code under the other firmware.
  const auto list = Served(kLatest).frmMain.ComboReg.items;
  const auto micros = static_cast<int>(std::find(list.begin(), list.end(), "MICROS") - list.begin());
  const auto option = text_form::Import(
      Of(kLatest), Of, Pattern(kLatest, micros),
      host::ReadToml("format = 1\nfirmware = 'V1300 R14'\n['REGISTER SELECT']\nNetwork = 'LOCAL VSS'\n"),
      Strictness::kPartial);
  EXPECT_TRUE(option.problems.empty());
  // An error that has nothing to do with the firmware is one in any case.
  const auto slip =
      Read("format = 1\nfirmware = 'V1300 R14'\n[COMMUNICATION]\nPARTIY = 'ODD'\n", Strictness::kPartial);
  ASSERT_EQ(slip.problems.size(), 1U);
  EXPECT_EQ(slip.problems[0].words,
            "\"PARTIY\" is not a setting of [COMMUNICATION]. Did you mean \"PARITY\"?");
  EXPECT_FALSE(Read(text + "x = ", Strictness::kPartial).problems.empty());
}

// The settings can name a release of a family that no menu has.
TEST_F(TextForm, AFormOfTheRunningFirmwareIsReadWhateverItIs) {
  const firmware::FirmwareId running{"V1300", "R12"};
  EXPECT_TRUE(Read(Exported(Pattern(running), running), Strictness::kWhole, running).problems.empty());
}

TEST_F(TextForm, WhatTheFormHidesHasNoWords) {
  const firmware::FirmwareId old{"V1300", "R14"};
  const auto read =
      Read("format = 1\n['REGISTER SELECT']\nRegister = 'MICROS'\nNetwork = 'MICROS 3700 V4.X'\n",
           Strictness::kWhole, old);
  ASSERT_EQ(read.problems.size(), 1U);
  EXPECT_EQ(read.problems[0].words,
            "\"MICROS 3700 V4.X\" is not allowed for \"Network\"; allowed: \"LOCAL VSS\", \"MICROS IDN "
            "NETWORK\", \"MICROS ISN NETWORK\"");
  EXPECT_EQ(Exported(Pattern(old), old).find("VIDEO LOSS"), std::string::npos);
}

}  // namespace
}  // namespace ovl::testing
