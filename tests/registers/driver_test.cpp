// A register's pick with images that hold odd bytes, name another register, or are not there; and what a pick
// leaves alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "support/installed.h"

namespace ovl::testing {
namespace {

const FirmwareId kLatest{"V1400", "R12"};

TEST(RegisterPick, ACodeOutsideTheListLeavesTheListAndStillShowsTheFrame) {
  Installed program(kLatest);
  program.SetByte("ADS", program.Code(), "F0");
  ASSERT_EQ(program.Register("ADS"), Outcome::kDone);
  EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "ADS");
  EXPECT_EQ(program.app.image[FieldId::REGTYPE], "F0");
  EXPECT_EQ(program.Frames(), "1");
  ASSERT_EQ(program.Register("BLEEP"), Outcome::kDone);
  EXPECT_EQ(program.Frames(), "33");
}

TEST(RegisterPick, AByteWithoutItsChoiceLeavesTheFrameHidden) {
  // Bytes from kMinor on stand in the fixed section.
  constexpr int kMinor = 101, kExt2 = 103;
  using Rows = std::vector<std::tuple<const char*, int, const char*>>;
  const std::pair<FirmwareId, Rows> firmware_rows[] = {
      {kLatest, {{"ADS", kMinor, "02"},          {"DELTA SONO 3.1", kMinor, "04"},
                 {"GASBOY", kMinor, "12"},       {"GASBOY", kTitle, "03"},
                 {"GILBARCO", kMinor, "06"},     {"IBM", kExt2, "07"},
                 {"ICL", kExt2, "02"},           {"NCR", kExt2, "03"},
                 {"NIXDORF", kExt2, "02"},       {"MICRELEC", kUnitAddress, "05"},
                 {"MICROS", kMinor, "04"},       {"NORAND 1200", kConsole, "09"},
                 {"PANASONIC", kTitle, "02"},    {"TCI", kTciAddress + 2, "0A"},
                 {"UNIWELL", kMinor, "0D"},      {"UNIWELL", kExt2, "02"},
                 {"SENSORS", kExt2, "FF"},       {"TEC", kMinor, "40"},
                 {"TEAM POS 2000", kExt2, "02"}, {"WEIGH SCALE", kMinor, "09"}}},
      {{"V1310", "R1"},
       {{"NIXDORF BEETLE", kMinor, "09"}, {"POLE DISPLAY", kMinor, "02"}, {"CASIO TK-T500", kMinor, "02"}}},
      {{"V1324", "R26"},
       {{"BEETLE 50 PRINTERS", kMinor, "09"},
        {"NUCLEUS PRINTER", kMinor, "03"},
        {"SCHLUMBERGER", kMinor, "03"}}},
  };
  for (const auto& [firmware, rows] : firmware_rows) {
    Installed program(firmware);
    for (const auto& [name, byte, value] : rows) {
      SCOPED_TRACE(firmware.Joined() + " " + name + " " + value);
      const auto whole = ReadWhole(program.PathOf(name));
      program.SetByte(name, byte < 100 ? byte : program.Fixed(byte - 100), value);
      ASSERT_EQ(program.Register(name), Outcome::kDone);
      EXPECT_EQ(program.app.frmMain.ComboReg.Text(), name);
      EXPECT_EQ(program.Frames(), "");
      WriteWhole(program.PathOf(name), whole);
      ASSERT_EQ(program.Register(name), Outcome::kDone);
      EXPECT_NE(program.Frames(), "");
    }
    EXPECT_TRUE(program.NoBoxLeft());
  }
}

TEST(RegisterPick, DresserWayneChoosesByThreeBytes) {
  struct Row {
    const char *minor, *ext1, *ext2, *chosen;
    int element;
  };
  const Row rows[] = {
      {"02", "00", "00", "", -1},     {"01", "07", "00", "", -1},     {"00", "00", "01", "POSOP", 1},
      {"01", "00", "07", "TEROP", 7}, {"01", "01", "00", "PRNOP", 0}, {"01", "02", "00", "SECUOP", 0},
  };
  Installed program(kLatest);
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.minor) + row.ext1 + row.ext2);
    program.SetByte("DRESSER WAYNE", program.Minor(), row.minor);
    program.SetByte("DRESSER WAYNE", program.Ext1(), row.ext1);
    program.SetByte("DRESSER WAYNE", program.Ext2(), row.ext2);
    ASSERT_EQ(program.Register("DRESSER WAYNE"), Outcome::kDone);
    EXPECT_EQ(program.Frames(), "36");
    for (const char* name : {"POSOP", "TEROP", "PRNOP", "SECUOP"}) {
      EXPECT_EQ(program.Selected(name), name == std::string_view(row.chosen) ? row.element : -1) << name;
    }
    const auto& image = program.app.image;
    EXPECT_EQ(image[FieldId::REGTYPE_MINOR] + image[FieldId::REGTYPE_EXT1] + image[FieldId::REGTYPE_EXT2],
              std::string(row.minor) + row.ext1 + row.ext2);
  }
}

TEST(RegisterPick, ForcedSpeedsReachTheImageOnAPickAndNotInAWholeLoad) {
  for (const FirmwareId& firmware : {FirmwareId{"V1310", "R1"}, {"V1400", "R6"}}) {
    SCOPED_TRACE(firmware.Joined());
    Installed program(firmware);
    const std::string name = "CASIO TE-2200";
    program.SetByte(name, program.Minor(), "01");
    program.SetByte(name, kReceiveSpeed, "00");
    program.SetByte(name, kTransmitSpeed, "01");
    const auto& app = program.app;
    const auto speeds = [&] {
      return app.image[FieldId::RX_BAUDRATE] + app.image[FieldId::TX_BAUDRATE] + " " +
             std::to_string(app.frmMain.ComboCOMM[1].position) +
             std::to_string(app.frmMain.ComboCOMM[2].position);
    };
    ASSERT_EQ(program.Register(name), Outcome::kDone);
    EXPECT_EQ(speeds(), "0505 55");
    ASSERT_EQ(program.Open(program.PathOf(name)), Outcome::kDone);
    EXPECT_EQ(speeds(), "0001 01");
    EXPECT_EQ(app.image[FieldId::REGTYPE_MINOR], "01");
    EXPECT_TRUE(app.PanelsReady);
    ASSERT_EQ(program.Register(name), Outcome::kDone);
    EXPECT_EQ(speeds(), "0505 55");
  }
}

// What is read and what the choice then writes go by different tables in some firmware.
TEST(RegisterPick, AStoredCodeDriftsWhereReaderAndWriterDiffer) {
  struct Row {
    FirmwareId firmware;
    const char *name, *minor, *ext2, *minor_after, *ext2_after;
  };
  const Row rows[] = {
      {{"V1400", "R6"}, "EPSON GENERIC", "03", nullptr, "00", "00"},
      {{"V1324", "R24"}, "EPSON GENERIC", "03", nullptr, "00", "00"},
      {{"V1334", "R1"}, "EPSON GENERIC", "03", "02", "02", "02"},
      {{"V1400", "R7"}, "EPSON GENERIC", "03", "02", "03", "02"},
      {{"V1310", "R1"}, "SHARP", "05", "00", "06", "00"},
      {{"V1300", "R23"}, "SHARP", "05", nullptr, "05", "00"},
      {{"V1324", "R26"}, "OMEGA 2000", "01", "00", "01", "01"},
      {{"V1400", "R7"}, "OMEGA 2000", "05", "01", "05", "01"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.firmware.Joined() + " " + row.name);
    Installed program(row.firmware);
    program.SetByte(row.name, program.Minor(), row.minor);
    if (row.ext2 != nullptr) program.SetByte(row.name, program.Ext2(), row.ext2);
    ASSERT_EQ(program.Register(row.name), Outcome::kDone);
    EXPECT_EQ(program.app.image[FieldId::REGTYPE_MINOR], row.minor_after);
    EXPECT_EQ(program.app.image[FieldId::REGTYPE_EXT2], row.ext2_after);
  }
}

TEST(RegisterPick, AnImageOfAnotherRegisterLeadsThere) {
  Installed program(kLatest);
  const auto code = [&](const char* name) { return ByteToHex(program.CodeOf(name)); };
  program.SetByte("ADS", program.Code(), code("BLEEP"));
  program.SetByte("BLEEP", kUnitAddress, "77");
  ASSERT_EQ(program.Register("ADS"), Outcome::kDone);
  EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "BLEEP");
  EXPECT_EQ(program.app.image[FieldId::REGTYPE], code("BLEEP"));
  EXPECT_EQ(program.app.image[FieldId::UNITADDR], "77");
  EXPECT_EQ(program.Frames(), "33");

  program.SetByte("BLEEP", program.Code(), code("ADS"));  // each names the other
  for (const auto& [picked, frame] : {std::pair{"ADS", "1"}, {"BLEEP", "33"}}) {
    SCOPED_TRACE(picked);
    ASSERT_EQ(program.Register(picked), Outcome::kDone);
    EXPECT_EQ(program.app.frmMain.ComboReg.Text(), picked);
    EXPECT_EQ(program.app.image[FieldId::REGTYPE], code(picked));
    EXPECT_EQ(program.Frames(), frame);
  }
  ASSERT_EQ(program.Register("GENERIC"), Outcome::kDone);
  EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "GENERIC");
  EXPECT_TRUE(program.NoBoxLeft());
}

// Three kinds of an image that is not there: missing, a folder in its place, kept from the reader.
void ExpectEndWithoutImage(const FirmwareId& firmware, std::string_view kind) {
  SCOPED_TRACE(firmware.Joined() + " " + std::string(kind));
  Installed program(firmware);
  const auto path = program.PathOf("ADS");
  std::optional<Locked> locked;
  if (kind == "locked") locked.emplace(path);
  if (kind != "locked") std::filesystem::remove(path);
  if (kind == "folder") std::filesystem::create_directory(path);
  EXPECT_EQ(program.Register("ADS"), Outcome::kEnded);
  const auto text = program.TakeBox().text;
  EXPECT_EQ(text.substr(0, 19), std::string(19, ' '));
  const auto line_end = text.find('\n');
  ASSERT_NE(line_end, std::string::npos);
  EXPECT_GT(line_end, 19U) << "the failure is described";
  EXPECT_NE(text.substr(19, 1), " ");
  EXPECT_EQ(text.substr(line_end + 1), "Please ReInstall Ovalon PC Software !!");
  EXPECT_EQ(program.Register("GENERIC"), Outcome::kEnded);
  EXPECT_TRUE(program.NoBoxLeft());
}

TEST(RegisterPick, WithoutItsImageTheProgramEnds) {
  for (const FirmwareId& firmware : {kLatest, FirmwareId{"V1300", "R14"}}) {
    for (const char* kind : {"missing", "folder", "locked"}) ExpectEndWithoutImage(firmware, kind);
  }
}

TEST(RegisterPick, AfterAnOpenedFileTheNextPickCounts) {
  Installed program(kLatest);
  program.Register("ADS");
  ASSERT_EQ(program.Open(program.PathOf("ADS")), Outcome::kDone);
  ASSERT_EQ(program.Register("BLEEP"), Outcome::kDone);
  EXPECT_EQ(program.app.image[FieldId::REGTYPE], ByteToHex(program.CodeOf("BLEEP")));
  EXPECT_EQ(program.Frames(), "33");

  const auto kept = program.folder.File("kept.bin");
  program.SetByte("ADS", kUnitAddress, "77");
  std::filesystem::rename(program.PathOf("ADS"), kept);
  ASSERT_EQ(program.Open(kept), Outcome::kDone);  // the list follows without asking for the default image
  EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "ADS");
  EXPECT_EQ(program.app.image[FieldId::UNITADDR], "77");
  EXPECT_EQ(program.Frames(), "1");
  ASSERT_EQ(program.Register("BLEEP"), Outcome::kDone);
  EXPECT_EQ(program.app.image[FieldId::UNITADDR], "00");
}

TEST(RegisterPick, TakesTheRegistersFieldsAndLeavesTheInstallers) {
  using F = FieldId;
  const F taken[] = {F::EXECENTRY,        F::COMMCFG_BAK,    F::IOCFG_BAK,      F::RX_BAUDRATE,
                     F::TX_BAUDRATE,      F::UNITADDR,       F::DV_ADDRIND_BAK, F::TCIADDBAK_1,
                     F::TCIADDBAK_2,      F::TCIADDBAK_3,    F::GTITLE_NF_BAK,  F::GPS_CONFIG_BAK,
                     F::DEVICE_INDEX_BAK, F::REGDV_TYPE_BAK, F::REG_GNA_BAK,    F::REG_LNA_BAK,
                     F::REG_IDNA_BAK,     F::PCDV_TYPE_BAK,  F::PC_GNA_BAK,     F::PC_LNA_BAK,
                     F::PC_IDNA_BAK,      F::MICROS_STATUS,  F::REGTYPE,        F::REGTYPE_MINOR,
                     F::REGTYPE_EXT1,     F::REGTYPE_EXT2,   F::IPADDRESS};
  for (const FirmwareId& firmware :
       {FirmwareId{"V1400", "R4"}, kLatest, {"V1300", "R14"}, {"V1324", "R17"}, {"V1310", "R1"}}) {
    Installed program(firmware);
    const auto base = program.app.image;
    program.Fill("EE");
    ASSERT_EQ(program.Register("GENERIC"), Outcome::kDone);
    for (const auto& row : FieldTable()) {
      if (row.id == F::IGSCFG_BAK) continue;  // in no stream
      const bool from_image = std::find(std::begin(taken), std::end(taken), row.id) != std::end(taken);
      for (int entry = 1; entry <= EntryCount(row.id); ++entry) {
        EXPECT_EQ(program.app.image.at(row.id, entry), from_image ? base.at(row.id, entry) : "EE")
            << firmware.Joined() << " " << row.name << " " << entry;
      }
    }
  }
}

}  // namespace
}  // namespace ovl::testing
