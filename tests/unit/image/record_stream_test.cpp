#include "image/record_stream.h"
#include "core/configuration.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/firmware_facts.h"
#include "support/harness.h"

namespace ovl::testing {
namespace {

std::string Joined(std::string stream) {
  std::erase_if(stream, [](char character) { return character == '\r' || character == '\n'; });
  return stream;
}

// An application that has loaded a stream.
struct Loaded : core::Application {
  Loaded(const firmware::FirmwareId& its_firmware, std::string_view stream) {
    firmware = its_firmware;
    core::PrepareCapabilities(*this);
    Load(stream);
  }
  void Load(std::string_view stream) { EXPECT_TRUE(core::LoadStream(*this, stream)); }
};

TEST(RecordStream, EveryFirmwareWritesTheStreamThatItRead) {
  constexpr std::size_t kDigitsInRecord = 64, kHead = 5, kEndMark = 1;
  for (const auto& [firmware, expected, features] : AllFirmwareFacts()) {
    SCOPED_TRACE(firmware.Joined());
    const auto stream = RawPatternStream(firmware);
    EXPECT_EQ(stream.substr(0, kHead), expected.first_record);
    const auto records = static_cast<std::size_t>(std::count(stream.begin(), stream.end(), '$'));
    EXPECT_EQ(records, expected.digits / kDigitsInRecord + 1);
    const auto tail = stream.substr(stream.rfind('$'));
    EXPECT_EQ(tail.substr(0, kHead), expected.last_record);
    EXPECT_EQ(tail.size(), kHead + expected.digits % kDigitsInRecord + kEndMark);
    Loaded app(firmware, Joined(stream));
    EXPECT_EQ(SectionsToStream(app), stream);
  }
}

// Field, byte offset in its section for the early and late V1400, the old and the new V13xx layout; -1:
// absent.
struct Place {
  image::FieldId field;
  int entry;
  bool in_syscfg;
  int early, late, old_v13, new_v13;
};

TEST(FieldMap, FieldsHaveTheirPlaceInTheStream) {
  using enum image::FieldId;
  const Place places[] = {
      {UNITADDR, 1, true, 11, 11, 11, 11},        {REGDV_TYPE_BAK, 1, true, 20, 20, 20, 20},
      {HIST_SRC_ID, 1, true, 31, 31, 31, 31},     {REGTYPE_MINOR, 1, false, 1, 1, 1, 1},
      {REGTYPE_EXT2, 1, false, -1, 3, -1, 3},     {HPADDR_BAK, 1, false, 2, 4, 2, 4},
      {ALMNORMAL_BAK, 2, false, 12, 14, 12, 14},  {FLAGDWLIND, 1, false, 16, 18, 16, 18},
      {IPADDRESS, 1, false, 81, 83, 65, 67},      {DECIMAL_POINT_BAK, 1, false, 85, 87, 69, 71},
      {DAYLIGHT_BAK, 1, false, 90, 92, 74, 76},   {SPCOMPRES_BAK, 1, false, 92, 94, 76, 78},
      {SW_HANDSHAKE, 1, false, 102, 104, -1, -1}, {ECRDIGIT_1, 1, false, -1, 111, -1, -1},
      {BLNKRTS_BAK, 1, false, -1, 112, -1, 79},
  };
  const std::pair<firmware::FirmwareId, int Place::*> layouts[] = {{{"V1400", "R4"}, &Place::early},
                                                                   {kLatest, &Place::late},
                                                                   {{"V1300", "R14"}, &Place::old_v13},
                                                                   {{"V1334", "R1"}, &Place::new_v13}};
  for (const auto& [firmware, offset] : layouts) {
    const auto stream = Joined(RawPatternStream(firmware, 7));
    const Loaded app(firmware, stream);
    std::string digits;
    ASSERT_EQ(image::ParseRecords(stream, image::ReadRegion(firmware), digits), image::ParseResult::kOk);
    const std::size_t syscfg = firmware.IsV1400() ? 64 : 96;
    for (const auto& place : places) {
      if (place.*offset < 0) continue;
      const auto at = (place.in_syscfg ? 0 : syscfg) + 2 * static_cast<std::size_t>(place.*offset);
      EXPECT_EQ(app.image.at(place.field, place.entry), digits.substr(at, 2))
          << firmware.Joined() << " offset " << place.*offset;
    }
  }
}

TEST(FieldMap, AFieldThatTheFirmwareLacksHasItsPlaceholderOrZero) {
  using enum image::FieldId;
  const firmware::FirmwareId firmware{"V1324", "R18"};
  const Loaded app(firmware, Joined(RawPatternStream(firmware)));
  const std::pair<image::FieldId, const char*> rows[] = {{IPADDRESS, " ........ATCPIP MODE"},
                                                         {IGSCFG_BAK, " ........ATM INTERFACE"},
                                                         {DSPROW, " ........ANSI TERM"},
                                                         {DSPCOL, " ........AANSI TERM"},
                                                         {REGTYPE_EXT1, "00"},
                                                         {REGTYPE_EXT2, "00"}};
  for (const auto& [field, held] : rows) {
    for (int entry = 1; entry <= image::EntryCount(field); ++entry)
      EXPECT_EQ(app.image.at(field, entry), held);
  }
}

TEST(FieldMap, ADefaultLoadChangesOnlyTheFieldsOfTheRegister) {
  const std::string registers =
      " EXECENTRY COMMCFG_BAK IOCFG_BAK RX_BAUDRATE TX_BAUDRATE UNITADDR DV_ADDRIND_BAK TCIADDBAK_1 "
      "TCIADDBAK_2 TCIADDBAK_3 GTITLE_NF_BAK GPS_CONFIG_BAK REGDV_TYPE_BAK REG_GNA_BAK REG_LNA_BAK "
      "REG_IDNA_BAK PCDV_TYPE_BAK PC_GNA_BAK PC_LNA_BAK PC_IDNA_BAK MICROS_STATUS DEVICE_INDEX_BAK REGTYPE "
      "REGTYPE_MINOR REGTYPE_EXT1 REGTYPE_EXT2 IPADDRESS ";
  for (const auto& firmware : EveryFirmware()) {
    SCOPED_TRACE(firmware.Joined());
    const Loaded old(firmware, Joined(RawPatternStream(firmware, 1)));
    const Loaded whole(firmware, Joined(RawPatternStream(firmware, 2, 9)));
    Loaded app(firmware, Joined(RawPatternStream(firmware, 1)));
    app.PanelsReady = true;
    app.Load(Joined(RawPatternStream(firmware, 2, 9)));
    for (const auto& field : image::FieldTable()) {
      const bool taken = registers.find(std::string(" ").append(field.name).append(" ")) != std::string::npos;
      const auto& from = taken ? whole.image : old.image;
      for (int entry = 1; entry <= image::EntryCount(field.id); ++entry) {
        EXPECT_EQ(app.image.at(field.id, entry), from.at(field.id, entry)) << field.name;
      }
    }
  }
}

TEST(RecordStream, R7SendsTheBlankTimeFlagOnlyAfterAPanelWroteIt) {
  const firmware::FirmwareId firmware{"V1400", "R7"};
  const auto stream = RawPatternStream(firmware);
  Loaded app(firmware, Joined(stream));
  EXPECT_EQ(app.image[image::FieldId::BLNKRTS_BAK], "");
  app.image[image::FieldId::BLNKRTS_BAK] = "01";
  const auto longer = SectionsToStream(app);
  EXPECT_EQ(longer.size(), stream.size() + 2);
  app.Load(Joined(stream));
  EXPECT_EQ(SectionsToStream(app), stream);
}

TEST(RecordStream, TextOutsideTheFieldsIsIgnoredAndLowerCaseIsKept) {
  const firmware::FirmwareId old{"V1300", "R14"};
  const auto stream = Joined(RawPatternStream(kLatest)), padded = Joined(RawPatternStream(old));
  const auto with = [](std::string text, std::size_t at, const std::string& other) {
    return text.replace(at, other.size(), other);
  };
  std::string every_byte;
  for (int code = 0; code < 256; ++code) every_byte += static_cast<char>(code);
  const std::tuple<firmware::FirmwareId, std::string, std::string> rows[] = {
      {kLatest, "junk #$20" + stream, stream},
      {kLatest, stream + "#$2000trailing", stream},
      {kLatest, with(stream, 69, "$ZZZZ"), stream},
      {kLatest, every_byte + stream, stream},
      {kLatest, with(stream, 5, "a5"), with(stream, 5, "a5")},
      // The end of the first section is in the second record.
      {old, with(padded, 69 + 5 + 4, "AB"), padded},
  };
  for (const auto& [firmware, text, composed] : rows) {
    Loaded app(firmware, text);
    EXPECT_EQ(Joined(SectionsToStream(app)), composed);
  }
}

TEST(RecordStream, AShortStreamLeavesMissingFieldsEmpty) {
  const Loaded app(kLatest, "$2000" + std::string(64, '1') + "$2860" + "22#");
  EXPECT_EQ(app.image[image::FieldId::HIST_SRC_ID], "11");
  EXPECT_EQ(app.image[image::FieldId::REGTYPE], "22");
  EXPECT_EQ(app.image[image::FieldId::REGTYPE_MINOR], "");
  EXPECT_EQ(app.image.at(image::FieldId::EXCPSTRS, 24), "");
}

}  // namespace
}  // namespace ovl::testing
