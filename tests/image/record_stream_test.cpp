#include "image/record_stream.h"

#include <gtest/gtest.h>

#include <set>

#include "support/harness.h"

namespace ovl::testing {
namespace {

// Written down apart from the program's table: family, releases, first and last marker, digits in the last
// record.
struct FirmwareLine {
  const char* version;
  std::vector<const char*> releases;
  const char* first;
  const char* last;
  std::size_t records;
  std::size_t last_digits;
};

const std::vector<FirmwareLine>& Lines() {
  static const std::vector<FirmwareLine> lines = {
      {"V1400", {"R1", "R2", "R4"}, "$2000", "$2840", 67, 48},
      {"V1400", {"R6"}, "$2000", "$2860", 68, 16},
      {"V1400", {"R7"}, "$2000", "$2860", 68, 34},
      {"V1400", {"R11", "R12"}, "$2000", "$2860", 68, 36},
      {"V1300", {"R14", "R15", "R16", "R17", "R18", "R19", "R20", "R21", "R23"}, "$7800", "$7FE0", 64, 34},
      {"V1324", {"R17", "R18", "R19", "R20", "R21", "R23", "R24"}, "$7800", "$7FE0", 64, 34},
      {"V1300", {"R26", "R27"}, "$77F0", "$7FF0", 65, 2},
      {"V1324", {"R25", "R26"}, "$77F0", "$7FF0", 65, 2},
      {"V1310", {"R1"}, "$77F0", "$7FF0", 65, 2},
      {"V1334", {"R1"}, "$77F0", "$7FF0", 65, 2},
  };
  return lines;
}

std::string Joined(std::string stream) {
  std::erase_if(stream, [](char character) { return character == '\r' || character == '\n'; });
  return stream;
}

struct Loaded {
  explicit Loaded(const FirmwareId& firmware) : program(firmware) {
    program.app.firmware = firmware;
    PrepareCapabilities(program.app);
  }
  bool Load(std::string_view stream) { return LoadStream(program.app, stream); }

  Harness program;
};

TEST(RecordStream, EveryFirmwareComposesWhatItDecoded) {
  int firmware_count = 0;
  for (const auto& line : Lines()) {
    for (const auto* release : line.releases) {
      const FirmwareId firmware{line.version, release};
      SCOPED_TRACE(firmware.Joined());
      const auto stream = RawPatternStream(firmware);
      EXPECT_EQ(stream.substr(0, 5), line.first);
      EXPECT_EQ(std::count(stream.begin(), stream.end(), '$'), static_cast<long>(line.records));
      const auto tail = stream.substr(stream.rfind('$'));
      EXPECT_EQ(tail.substr(0, 5), line.last);
      EXPECT_EQ(tail.size(), 5 + line.last_digits + 1);

      Loaded loaded(firmware);
      ASSERT_TRUE(loaded.Load(Joined(stream)));
      EXPECT_EQ(SectionsToStream(loaded.program.app), stream);
      EXPECT_EQ(ReopenableStream(loaded.program.app), stream);
      ++firmware_count;
    }
  }
  EXPECT_EQ(firmware_count, 29);
}

// Field, byte offset in its section for the early and late V1400, the old and the new V13xx layout; -1:
// absent.
struct Place {
  FieldId field;
  int entry;
  bool in_syscfg;
  int early, late, old_v13, new_v13;
};

TEST(FieldMap, FieldsStandWhereTheUnitKeepsThem) {
  using enum FieldId;
  const std::vector<Place> places = {
      {UNITADDR, 1, true, 11, 11, 11, 11},        {REGDV_TYPE_BAK, 1, true, 20, 20, 20, 20},
      {HIST_SRC_ID, 1, true, 31, 31, 31, 31},     {REGTYPE_MINOR, 1, false, 1, 1, 1, 1},
      {REGTYPE_EXT2, 1, false, -1, 3, -1, 3},     {HPADDR_BAK, 1, false, 2, 4, 2, 4},
      {ALMNORMAL_BAK, 2, false, 12, 14, 12, 14},  {FLAGDWLIND, 1, false, 16, 18, 16, 18},
      {IPADDRESS, 1, false, 81, 83, 65, 67},      {DECIMAL_POINT_BAK, 1, false, 85, 87, 69, 71},
      {DAYLIGHT_BAK, 1, false, 90, 92, 74, 76},   {SPCOMPRES_BAK, 1, false, 92, 94, 76, 78},
      {SW_HANDSHAKE, 1, false, 102, 104, -1, -1}, {ECRDIGIT_1, 1, false, -1, 111, -1, -1},
      {BLNKRTS_BAK, 1, false, -1, 112, -1, 79},
  };
  const std::vector<std::pair<FirmwareId, int Place::*>> layouts = {
      {{"V1400", "R4"}, &Place::early},
      {{"V1400", "R12"}, &Place::late},
      {{"V1300", "R14"}, &Place::old_v13},
      {{"V1334", "R1"}, &Place::new_v13},
  };
  for (const auto& [firmware, offset] : layouts) {
    Loaded loaded(firmware);
    const auto stream = Joined(RawPatternStream(firmware, 7));
    std::string digits;
    ASSERT_EQ(ParseRecords(stream, ReadRegion(firmware), digits), ParseResult::kOk);
    ASSERT_TRUE(loaded.Load(stream));
    const std::size_t syscfg = firmware.IsV1400() ? 64 : 96;
    for (const auto& place : places) {
      if (place.*offset < 0) continue;
      const auto at = (place.in_syscfg ? 0 : syscfg) + 2 * static_cast<std::size_t>(place.*offset);
      EXPECT_EQ(loaded.program.app.image.at(place.field, place.entry), digits.substr(at, 2))
          << firmware.Joined() << " offset " << place.*offset;
    }
  }
}

TEST(FieldMap, FirmwareThatLackAFieldHoldItsSentinelOrZero) {
  using enum FieldId;
  Loaded v1324({"V1324", "R18"});
  ASSERT_TRUE(v1324.Load(Joined(RawPatternStream({"V1324", "R18"}))));
  for (int entry = 1; entry <= 4; ++entry) {
    EXPECT_EQ(v1324.program.app.image.at(IPADDRESS, entry), " ........ATCPIP MODE");
  }
  EXPECT_EQ(v1324.program.app.image[IGSCFG_BAK], " ........ATM INTERFACE");
  EXPECT_EQ(v1324.program.app.image[DSPROW], " ........ANSI TERM");
  EXPECT_EQ(v1324.program.app.image[DSPCOL], " ........AANSI TERM");
  EXPECT_EQ(v1324.program.app.image[REGTYPE_EXT1], "00");
  EXPECT_EQ(v1324.program.app.image[REGTYPE_EXT2], "00");
}

TEST(FieldMap, ADefaultLoadTakesOnlyTheRegistersFields) {
  using enum FieldId;
  const std::set<FieldId> kRegisters = {
      EXECENTRY,      COMMCFG_BAK,  IOCFG_BAK,     RX_BAUDRATE,      TX_BAUDRATE,   UNITADDR,
      DV_ADDRIND_BAK, TCIADDBAK_1,  TCIADDBAK_2,   TCIADDBAK_3,      GTITLE_NF_BAK, GPS_CONFIG_BAK,
      REGDV_TYPE_BAK, REG_GNA_BAK,  REG_LNA_BAK,   REG_IDNA_BAK,     PCDV_TYPE_BAK, PC_GNA_BAK,
      PC_LNA_BAK,     PC_IDNA_BAK,  MICROS_STATUS, DEVICE_INDEX_BAK, REGTYPE,       REGTYPE_MINOR,
      REGTYPE_EXT1,   REGTYPE_EXT2, IPADDRESS};
  for (const auto& line : Lines()) {
    const FirmwareId firmware{line.version, line.releases.back()};
    SCOPED_TRACE(firmware.Joined());
    Loaded loaded(firmware), whole(firmware);
    const auto& image = loaded.program.app.image;
    ASSERT_TRUE(loaded.Load(Joined(RawPatternStream(firmware, 1))));
    const auto before = image;
    loaded.program.app.PanelsReady = true;
    ASSERT_TRUE(loaded.Load(Joined(RawPatternStream(firmware, 2, 9))));
    ASSERT_TRUE(whole.Load(Joined(RawPatternStream(firmware, 2, 9))));
    for (const auto& field : FieldTable()) {
      const auto& from = kRegisters.contains(field.id) ? whole.program.app.image : before;
      for (int entry = 1; entry <= EntryCount(field.id); ++entry) {
        EXPECT_EQ(image.at(field.id, entry), from.at(field.id, entry)) << field.name;
      }
    }
  }
}

TEST(RecordStream, BlankTimeFlagOfR7GoesOutOnceAPanelWroteIt) {
  const FirmwareId firmware{"V1400", "R7"};
  Loaded loaded(firmware);
  auto& app = loaded.program.app;
  const auto stream = RawPatternStream(firmware);
  ASSERT_TRUE(loaded.Load(Joined(stream)));
  EXPECT_EQ(app.image[FieldId::BLNKRTS_BAK], "");
  app.image[FieldId::BLNKRTS_BAK] = "01";
  const auto longer = SectionsToStream(app);
  EXPECT_EQ(app.SYSFIXED.size(), 226U);
  EXPECT_EQ(longer.size(), stream.size() + 2);
  ASSERT_TRUE(loaded.Load(Joined(stream)));
  EXPECT_EQ(SectionsToStream(app), stream);
}

TEST(RecordStream, OldV13PaddingIsZeroAfterTheNextWrite) {
  const FirmwareId firmware{"V1300", "R14"};
  auto stream = Joined(RawPatternStream(firmware));
  const std::size_t padding = 2 * 69 + 5;  // the tail of the first section begins in the second record
  stream.replace(69 + 5 + 4, 2, "AB");
  ASSERT_LT(padding, stream.size());
  Loaded loaded(firmware);
  ASSERT_TRUE(loaded.Load(stream));
  EXPECT_EQ(Joined(SectionsToStream(loaded.program.app)), Joined(RawPatternStream(firmware)));
}

TEST(RecordStream, JunkAroundAndWrongAddressesInsideAreIgnored) {
  const FirmwareId firmware{"V1400", "R12"};
  const auto stream = Joined(RawPatternStream(firmware));
  auto addresses = stream;
  addresses.replace(69, 5, "$ZZZZ");
  std::string every_byte;
  for (int code = 0; code < 256; ++code) every_byte += static_cast<char>(code);
  for (const auto& text : {"junk #$20" + stream, stream + "#$2000trailing", addresses, every_byte + stream}) {
    Loaded loaded(firmware);
    ASSERT_TRUE(loaded.Load(text));
    EXPECT_EQ(Joined(SectionsToStream(loaded.program.app)), stream);
  }
}

TEST(RecordStream, LowerCaseDigitsSurviveTheLoad) {
  const FirmwareId firmware{"V1400", "R12"};
  auto stream = Joined(RawPatternStream(firmware));
  stream.replace(5, 2, "a5");
  Loaded loaded(firmware);
  ASSERT_TRUE(loaded.Load(stream));
  EXPECT_EQ(loaded.program.app.image[FieldId::EXECENTRY], "a5");
  EXPECT_EQ(HexToInt("a5"), 5);
}

TEST(RecordStream, AShortStreamLeavesMissingFieldsEmpty) {
  const FirmwareId firmware{"V1400", "R12"};
  Loaded loaded(firmware);
  ASSERT_TRUE(loaded.Load("$2000" + std::string(64, '1') + "$2860" + "22#"));
  EXPECT_EQ(loaded.program.app.image[FieldId::HIST_SRC_ID], "11");
  EXPECT_EQ(loaded.program.app.image[FieldId::REGTYPE], "22");
  EXPECT_EQ(loaded.program.app.image[FieldId::REGTYPE_MINOR], "");
  EXPECT_EQ(loaded.program.app.image.at(FieldId::EXCPSTRS, 24), "");
}

TEST(RecordStream, AnotherFamilyIsToldAndLeavesTheImage) {
  Loaded loaded({"V1334", "R1"});
  auto& app = loaded.program.app;
  ASSERT_TRUE(loaded.Load(Joined(RawPatternStream({"V1334", "R1"}))));
  const auto before = app.image;
  app.frmMain.Timer_Operating.enabled = true;
  app.OperatingCount = 3;
  for (const auto& text :
       {Joined(RawPatternStream({"V1400", "R12"})), Joined(RawPatternStream({"V1300", "R14"})), std::string(),
        std::string(1 << 20, 'A')}) {
    EXPECT_FALSE(loaded.Load(text));
    EXPECT_EQ(loaded.program.TakeBox().text,
              "The Ovalon Version is not compatible !!!\n       Try with the same version again.");
    EXPECT_TRUE(app.image == before);
  }
  EXPECT_FALSE(app.frmMain.Timer_Operating.enabled);
  EXPECT_EQ(app.OperatingCount, 0);
}

TEST(RecordStream, AStreamWithoutItsEndEndsTheProgram) {
  const FirmwareId firmware{"V1400", "R4"};
  const auto stream = Joined(RawPatternStream(firmware));
  const std::vector<std::string> broken = {
      Joined(RawPatternStream({"V1400", "R7"})),  // another last marker
      stream.substr(0, stream.size() - 1),        // no "#"
      "$2000" + std::string(1 << 20, 'A'),        // one megabyte without "#"
      "$2000#",
      RawPatternStream(firmware),  // line ends that were not taken out shift the records
  };
  for (const auto& text : broken) {
    Loaded loaded(firmware);
    loaded.program.app.image[FieldId::EXECENTRY] = "77";
    static const std::string* current = nullptr;
    current = &text;
    EXPECT_EQ(DispatchStart(loaded.program.app, [](Application& app) { LoadStream(app, *current); }),
              Outcome::kEnded);
    EXPECT_EQ(loaded.program.TakeBox().text,
              "                System File Error. \nPlease ReInstall Ovalon PC Software !!");
    EXPECT_EQ(loaded.program.app.image[FieldId::EXECENTRY], "77");
  }
}

}  // namespace
}  // namespace ovl::testing
