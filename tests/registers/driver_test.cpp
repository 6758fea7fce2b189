// A register's pick with images that hold odd bytes, name another register, or are not there; and what a pick
// leaves alone.
#include <gtest/gtest.h>

#include <filesystem>

#include "registers/rows.h"
#include "registers/selection_driver.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

using F = FieldId;

// REGTYPE_MINOR, REGTYPE_EXT1 and REGTYPE_EXT2.
std::string OptionBytes(const Application& app) {
  return app.image[F::REGTYPE_MINOR] + app.image[F::REGTYPE_EXT1] + app.image[F::REGTYPE_EXT2];
}
Outcome PickWith(Installed& program, const std::string& name, const std::string& option_bytes) {
  program.SetByte(name, program.Minor(), option_bytes.substr(0, 2));
  program.SetByte(name, program.Ext1(), option_bytes.substr(2, 2));
  program.SetByte(name, program.Ext2(), option_bytes.substr(4));
  return program.Register(name);
}

TEST(RegisterPick, ACodeOutsideTheListLeavesTheListAndStillShowsTheFrame) {
  Installed program(kLatest);
  program.SetByte("ADS", program.Code(), "F0");
  ASSERT_EQ(program.Register("ADS"), Outcome::kDone);
  EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "ADS");
  EXPECT_EQ(program.app.image[F::REGTYPE], "F0");
  EXPECT_EQ(program.Frames(), "1");
  ASSERT_EQ(program.Register("BLEEP"), Outcome::kDone);
  EXPECT_EQ(program.Frames(), "33");

  Installed without_list({"V1400", "R13"}, Images::kOwn);
  ASSERT_EQ(without_list.Start(), Outcome::kDone);
  ShowRegisterOptions(without_list.app);
  EXPECT_EQ(without_list.Frames(), "");
}

TEST(RegisterPick, DresserWayneChoosesByThreeBytes) {
  const std::tuple<const char*, std::string_view, int> rows[] = {
      {"020000", "", -1},     {"010700", "", -1},     {"000001", "POSOP", 1},
      {"010007", "TEROP", 7}, {"010100", "PRNOP", 0}, {"010200", "SECUOP", 0}};
  Installed program(kLatest);
  for (const auto& [bytes, chosen, element] : rows) {
    SCOPED_TRACE(bytes);
    ASSERT_EQ(PickWith(program, "DRESSER WAYNE", bytes), Outcome::kDone);
    EXPECT_EQ(program.Frames(), "36");
    for (const auto* name : {"POSOP", "TEROP", "PRNOP", "SECUOP"})
      EXPECT_TRUE(chosen.empty() || program.Selected(name) == (name == chosen ? element : -1)) << name;
    EXPECT_EQ(OptionBytes(program.app), bytes);
  }
}

TEST(RegisterPick, ForcedSpeedsReachTheImageOnAPickAndNotInAWholeLoad) {
  for (const FirmwareId& firmware : {FirmwareId{"V1310", "R1"}, {"V1400", "R6"}}) {
    Installed program(firmware);
    const std::string name = "CASIO TE-2200";
    program.SetByte(name, program.Minor(), "01");
    program.SetByte(name, kReceiveSpeed, "00");
    for (const bool whole : {false, true, false}) {
      EXPECT_EQ(whole ? program.Open(program.PathOf(name)) : program.Register(name), Outcome::kDone);
      EXPECT_EQ(program.app.image[F::RX_BAUDRATE], whole ? "00" : "05") << firmware.Joined();
      EXPECT_EQ(program.Selected("ComboCOMM(1)"), whole ? 0 : 5);
    }
  }
}

// What is read and what the choice then writes go by different tables in some firmware.
TEST(RegisterPick, AStoredCodeDriftsWhereReaderAndWriterDiffer) {
  const std::tuple<FirmwareId, const char*, const char*, const char*> rows[] = {
      {{"V1400", "R6"}, "EPSON GENERIC", "030000", "000000"},
      {{"V1324", "R24"}, "EPSON GENERIC", "030000", "000000"},
      {{"V1334", "R1"}, "EPSON GENERIC", "030002", "020002"},
      {{"V1310", "R1"}, "EPSON GENERIC", "030002", "030002"},
      {{"V1400", "R7"}, "EPSON GENERIC", "030002", "030002"},
      {{"V1310", "R1"}, "SHARP", "050000", "060000"},
      {{"V1300", "R23"}, "SHARP", "050000", "050000"},
      {{"V1324", "R26"}, "OMEGA 2000", "010000", "010001"},
      {{"V1400", "R7"}, "OMEGA 2000", "050001", "050001"},
      {{"V1400", "R7"}, "TKMAXX", "010000", "010001"},
      {{"V1400", "R7"}, "EASY2TOUCH", "000007", "000001"},
      {{"V1400", "R7"}, "EUROPAD", "000007", "000007"},
      {{"V1400", "R7"}, "POSIFLEX", "000007", "000007"}};
  for (const auto& [firmware, name, before, after] : rows) {
    SCOPED_TRACE(firmware.Joined() + " " + name);
    Installed program(firmware);
    ASSERT_EQ(PickWith(program, name, before), Outcome::kDone);
    EXPECT_EQ(OptionBytes(program.app), after);
  }
}

TEST(RegisterPick, AnImageOfAnotherRegisterLeadsThere) {
  Installed program(kLatest);
  const auto code = [&](const char* name) { return ByteToHex(program.CodeOf(name)); };
  program.SetByte("ADS", program.Code(), code("BLEEP"));
  program.SetByte("BLEEP", kUnitAddress, "77");
  const auto expect = [&](const char* picked, const char* shown, const char* frame) {
    SCOPED_TRACE(picked);
    ASSERT_EQ(program.Register(picked), Outcome::kDone);
    EXPECT_EQ(program.app.frmMain.ComboReg.Text(), shown);
    EXPECT_EQ(program.app.image[F::REGTYPE], code(shown));
    EXPECT_EQ(program.Frames(), frame);
  };
  expect("ADS", "BLEEP", "33");
  EXPECT_EQ(program.app.image[F::UNITADDR], "77");
  program.SetByte("BLEEP", program.Code(), code("ADS"));  // each names the other
  expect("ADS", "ADS", "1");
  expect("BLEEP", "BLEEP", "33");
  expect("GENERIC", "GENERIC", "");
  EXPECT_TRUE(program.NoBoxLeft());
}

TEST(RegisterPick, WithoutItsImageTheProgramEnds) {
  Installed program(kLatest);
  const std::string path = program.PathOf("ADS"), reason = "No such file or directory";
  std::filesystem::remove(path);
  EXPECT_EQ(program.Register("ADS"), Outcome::kEnded);
  EXPECT_EQ(program.TakeBox().text,
            std::string(19, ' ') + reason + "\nPlease ReInstall Ovalon PC Software !!");
  EXPECT_EQ(program.app.StatusNote, path + ": " + reason);
  EXPECT_EQ(program.Register("GENERIC"), Outcome::kEnded);
  EXPECT_TRUE(program.NoBoxLeft());
}

TEST(RegisterPick, AfterAnOpenedFileTheNextPickCounts) {
  Installed program(kLatest);
  const auto kept = program.folder.File("kept.bin");
  program.SetByte("ADS", kUnitAddress, "77");
  std::filesystem::rename(program.PathOf("ADS"), kept);
  ASSERT_EQ(program.Open(kept), Outcome::kDone);  // the list follows without asking for the default image
  EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "ADS");
  EXPECT_EQ(program.app.image[F::UNITADDR], "77");
  EXPECT_EQ(program.Frames(), "1");
  ASSERT_EQ(program.Register("BLEEP"), Outcome::kDone);
  EXPECT_EQ(program.app.image[F::UNITADDR], "00");
}

}  // namespace
}  // namespace ovl::testing
