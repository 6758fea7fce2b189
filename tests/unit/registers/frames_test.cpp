// What the pick of a register does: which option frame each register of each firmware shows, under which
// title, and what the frame offers; and images that hold odd bytes, name another register, or are not there.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/configuration.h"
#include "image/record_stream.h"
#include "registers/selection_driver.h"
#include "support/firmware_facts.h"
#include "support/register_facts.h"
#include "unit/registers/register_program.h"

namespace ovl::testing {
namespace {

// REGTYPE_MINOR, REGTYPE_EXT1 and REGTYPE_EXT2.
std::string OptionBytes(const core::Application& app) {
  return app.image[F::REGTYPE_MINOR] + app.image[F::REGTYPE_EXT1] + app.image[F::REGTYPE_EXT2];
}
core::Outcome PickWith(Installed& program, const std::string& name, const std::string& option_bytes) {
  program.SetByte(name, program.Minor(), option_bytes.substr(0, 2));
  program.SetByte(name, program.Ext1(), option_bytes.substr(2, 2));
  program.SetByte(name, program.Ext2(), option_bytes.substr(4));
  return program.Register(name);
}

TEST(RegisterPick, ACodeOutsideTheListLeavesTheListAndStillShowsTheFrame) {
  Installed program(kLatest);
  program.SetByte("ADS", program.Code(), "F0");
  ASSERT_EQ(program.Register("ADS"), core::Outcome::kDone);
  EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "ADS");
  EXPECT_EQ(program.app.image[F::REGTYPE], "F0");
  EXPECT_EQ(program.Frames(), "1");
  ASSERT_EQ(program.Register("BLEEP"), core::Outcome::kDone);
  EXPECT_EQ(program.Frames(), "33");

  Installed without_list({"V1400", "R99"}, Images::kOwn);
  ASSERT_EQ(without_list.Start(), core::Outcome::kDone);
  registers::ShowRegisterOptions(without_list.app);
  EXPECT_EQ(without_list.Frames(), "");
}

TEST(RegisterPick, DresserWayneShowsItsChoiceFromThreeBytes) {
  struct Row {
    const char* option_bytes;
    std::string_view chosen_array;  // empty: the bytes choose nothing
    int element;
  };
  const Row rows[] = {
      {"020000", "", -1},     {"010700", "", -1},     {"000001", "POSOP", 1},
      {"010007", "TEROP", 7}, {"010100", "PRNOP", 0}, {"010200", "SECUOP", 0},
  };
  Installed program(kLatest);
  for (const auto& [bytes, chosen, element] : rows) {
    SCOPED_TRACE(bytes);
    ASSERT_EQ(PickWith(program, "DRESSER WAYNE", bytes), core::Outcome::kDone);
    EXPECT_EQ(program.Frames(), "36");
    for (const auto* name : {"POSOP", "TEROP", "PRNOP", "SECUOP"})
      EXPECT_TRUE(chosen.empty() || program.Selected(name) == (name == chosen ? element : -1)) << name;
    EXPECT_EQ(OptionBytes(program.app), bytes);
  }
}

TEST(RegisterPick, ForcedSpeedsAreStoredByAPickAndNotByAWholeLoad) {
  for (const firmware::FirmwareId& firmware : {firmware::FirmwareId{"V1310", "R1"}, {"V1400", "R6"}}) {
    Installed program(firmware);
    const std::string name = "CASIO TE-2200";
    program.SetByte(name, program.Minor(), "01");
    program.SetByte(name, kReceiveSpeed, "00");
    for (const bool whole : {false, true, false}) {
      EXPECT_EQ(whole ? program.Open(program.PathOf(name)) : program.Register(name), core::Outcome::kDone);
      EXPECT_EQ(program.app.image[F::RX_BAUDRATE], whole ? "00" : "05") << firmware.Joined();
      EXPECT_EQ(program.Selected("ComboCOMM(1)"), whole ? 0 : 5);
    }
  }
}

// Option bytes (REGTYPE_MINOR, REGTYPE_EXT1, REGTYPE_EXT2) in an image, and those after it was shown.
struct OptionBytesChange {
  firmware::FirmwareId firmware;
  const char *register_name, *stored, *after;
};

TEST(RegisterPick, AStoredCodeChangesWhereReaderAndWriterDiffer) {
  const OptionBytesChange rows[] = {
      {{"V1400", "R6"}, "EPSON GENERIC", "030000", "000000"},
      {{"V1324", "R23"}, "EPSON GENERIC", "030000", "030000"},
      {{"V1324", "R24"}, "EPSON GENERIC", "030000", "000000"},
      {{"V1334", "R1"}, "EPSON GENERIC", "030002", "020002"},
      {{"V1310", "R1"}, "EPSON GENERIC", "030002", "030002"},
      {{"V1310", "R1"}, "SHARP", "050000", "060000"},
      {{"V1300", "R23"}, "SHARP", "050000", "050000"},
      {{"V1324", "R26"}, "OMEGA 2000", "010000", "010001"},
      {{"V1400", "R7"}, "EPSON GENERIC", "030002", "030002"},
      {{"V1400", "R7"}, "OMEGA 2000", "050001", "050001"},
      {{"V1400", "R7"}, "TKMAXX", "010000", "010001"},
      {{"V1400", "R7"}, "EASY2TOUCH", "000007", "000001"},
      {{"V1400", "R7"}, "EUROPAD", "000007", "000007"},
      {{"V1400", "R7"}, "POSIFLEX", "000007", "000007"},
  };
  for (const auto& row : rows) {
    Installed program(row.firmware);
    ASSERT_EQ(PickWith(program, row.register_name, row.stored), core::Outcome::kDone) << row.register_name;
    EXPECT_EQ(OptionBytes(program.app), row.after) << row.register_name << " " << row.stored;
  }
}

TEST(RegisterPick, AnImageOfAnotherRegisterSelectsThatRegister) {
  Installed program(kLatest);
  const auto code = [&](const char* name) { return codecs::ByteToHex(program.CodeOf(name)); };
  program.SetByte("ADS", program.Code(), code("BLEEP"));
  program.SetByte("BLEEP", kUnitAddress, "77");
  const auto expect = [&](const char* picked, const char* shown, const char* frame) {
    SCOPED_TRACE(picked);
    ASSERT_EQ(program.Register(picked), core::Outcome::kDone);
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
  EXPECT_EQ(program.Register("ADS"), core::Outcome::kEnded);
  EXPECT_EQ(program.TakeBox().text,
            std::string(19, ' ') + reason + "\nPlease ReInstall Ovalon PC Software !!");
  EXPECT_EQ(program.app.StatusNote, path + ": " + reason);
  EXPECT_EQ(program.Register("GENERIC"), core::Outcome::kEnded);
  EXPECT_TRUE(program.NoBoxLeft());
}

TEST(RegisterPick, AfterAnOpenedFileTheNextPickWorks) {
  Installed program(kLatest);
  const auto kept = program.folder.File("kept.bin");
  program.SetByte("ADS", kUnitAddress, "77");
  std::filesystem::rename(program.PathOf("ADS"), kept);
  ASSERT_EQ(program.Open(kept),
            core::Outcome::kDone);  // the list follows without asking for the default image
  EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "ADS");
  EXPECT_EQ(program.app.image[F::UNITADDR], "77");
  EXPECT_EQ(program.Frames(), "1");
  ASSERT_EQ(program.Register("BLEEP"), core::Outcome::kDone);
  EXPECT_EQ(program.app.image[F::UNITADDR], "00");
}

std::string ShownFrame(Installed& program) {
  const auto frame = program.Frames();
  return frame.empty() ? frame : frame + " " + program.Control("frmAddress(" + frame + ")").caption;
}

TEST(OptionFrames, EveryRegisterShowsItsFrameAndKeepsItsDefaultImage) {
  for (const auto& firmware : EveryFirmware()) {
    Installed program(firmware);
    auto& app = program.app;
    const auto names = app.frmMain.ComboReg.items;
    for (const auto& name : names) {
      SCOPED_TRACE(name);
      ASSERT_EQ(program.Register(name), core::Outcome::kDone);
      EXPECT_EQ(app.image[image::FieldId::REGTYPE], codecs::ByteToHex(program.CodeOf(name)));
      EXPECT_EQ(ShownFrame(program), FrameOf(firmware, name));
      program.Mark();
      ASSERT_EQ(program.Register(name), core::Outcome::kDone);
      EXPECT_EQ(program.Written(), "");
      EXPECT_EQ(app.frmMain.ComboReg.Text(), name);
      ASSERT_EQ(program.Open(program.PathOf(name)), core::Outcome::kDone);
      EXPECT_EQ(SectionsToStream(app) + "\r\n", ReadFile(program.PathOf(name)));
    }
    EXPECT_TRUE(program.NoBoxLeft());
  }
}

const firmware::FirmwareId kV1400R2{"V1400", "R2"}, kV1400R4{"V1400", "R4"}, kV1400R6{"V1400", "R6"},
    kV1400R7{"V1400", "R7"}, kV1300R21{"V1300", "R21"}, kV1300R23{"V1300", "R23"}, kV1300R27{"V1300", "R27"},
    kV1310R1{"V1310", "R1"}, kV1324R23{"V1324", "R23"}, kV1324R24{"V1324", "R24"}, kV1334R1{"V1334", "R1"};

// How many options a register offers under each firmware.
struct Options {
  const char *register_name, *control;
  std::vector<std::pair<firmware::FirmwareId, int>> counts;
};
const Options kOptions[] = {
    {"NCR", "OpNCR", {{kV1400R4, 5}, {kV1400R6, 7}, {kV1300R27, 5}, {kV1310R1, 5}}},
    {"MICROS", "OpMicros", {{kV1400R4, 3}, {kV1400R6, 3}, {kV1400R7, 4}, {kV1300R27, 3}}},
    {"GILBARCO", "OpGilbraco", {{kV1400R4, 5}, {kV1400R6, 6}, {kV1300R21, 5}, {kV1300R23, 6}, {kV1310R1, 6}}},
    {"EPSON GENERIC", "OpRI_QT2", {{kV1400R4, 9}, {kV1400R6, 10}, {kV1400R7, 10}, {kV1310R1, 9}}},
    {"EPSON GENERIC", "OpRI_QT2", {{kV1324R23, 9}, {kV1324R24, 10}, {kV1334R1, 11}}},
};

TEST(OptionFrames, SomeOptionsCameWithARelease) {
  for (const auto& [register_name, control, counts] : kOptions) {
    for (const auto& [firmware, count] : counts) {
      Installed program(firmware);
      ASSERT_EQ(program.Register(register_name), core::Outcome::kDone);
      const auto offered = program.Offered(control);
      EXPECT_EQ(std::ranges::count(offered, '|') + 1, count) << offered;
    }
  }
}

// The captions of choices that depend on the firmware or on the register.
struct Captions {
  firmware::FirmwareId firmware;
  const char *register_name, *control, *offered;
};
const Captions kCaptions[] = {
    {kV1400R2, "WEIGH SCALE", "OpWEIGHS", "AVERY|MOLENS|LEON LD5204"},
    {kV1400R4, "WEIGH SCALE", "OpWEIGHS", "AVERY 2ND HEADER|AVERY PC OUTPUT|MOLENS|LEON LD5204"},
    {kV1400R4, "IBM3151 TERMINAL", "ComboDIPMIXED", "RECEIPT|JOURNAL|MIXED"},
    {kV1400R4, "SCHLUMBERGER", "ComboDIPMIXED", "RECEIPT|C .D. U|CDU(2L)"},
    {kV1400R4, "SCHLUMBERGER", "ComboDIPMIXED", "RECEIPT|C .D. U|CDU(2L)"},  // again
    {kV1400R6, "WEIGH SCALE", "OpWEIGHS", "AVERY 2ND HEADER|AVERY PC OUTPUT|MOLENS|LEON LD5204|PINAL"},
    {kV1400R6, "NUCLEUS PRINTER", "OpNUCP", "STANDARD (Both)|PRINTER WITH POLE|POLE VIA PRINTER"},
    {kV1400R7, "WEIGH SCALE", "OpWEIGHS",
     "AVERY 2ND HEADER|AVERY PC OUTPUT|DE LA RUE 2800|LEON LD5204|LEON ENG. LD52XX|MOLENS|PINAL|RITEWEIGH|"
     "TOLEDO 8142 DIRECT OUTPUT"},
    {kLatest, "OMRON", "JCMOp", "PROLOGIC|RS5550/5555"},
    {kLatest, "JCM", "JCMOp", "Gold 4800/4850|Gold G-225|Gold G-381|Gold G-556"},
    {kLatest, "PAR", "JCMOp", "POS 400|VIAGRO"},
    {kLatest, "VECTRON", "JCMOp", "COLOUR TOUCH|POS MINI/32|VARIO"},
    {kLatest, "PROSPER", "JCMOp", "ET7626|ET7826"},
    {kLatest, "EASY2TOUCH", "EASYOP", "TS600/TS700"},
    {kLatest, "EUROPAD", "EASYOP", "EP300/EP3000"},
    {kLatest, "POSIFLEX", "EASYOP", "EPOS/PST6000"},
    // A second pick adds the entries again.
    {kV1300R27, "IBM3151 TERMINAL", "ComboDIPMIXED", "RECEIPT|JOURNAL|MIXED"},
    {kV1300R27, "IBM3151 TERMINAL", "ComboDIPMIXED", "RECEIPT|JOURNAL|MIXED|RECEIPT|JOURNAL|MIXED"},
    {kV1310R1, "WEIGH SCALE", "OpNUCP", "AVERY|MOLENS|LEON LD5204"},
    {kV1324R24, "WEIGH SCALE", "OpNUCP", "AVERY|MOLENS|LEON LD5204"},
    {kV1324R24, "NUCLEUS PRINTER", "OpNUCP", "STANDARD (Both)|PRINTER WITH POLE|POLE VIA PRINTER"},
};

TEST(OptionFrames, SomeCaptionsFollowTheFirmwareOrTheRegister) {
  ProgramForRows programs;
  for (const auto& [firmware, register_name, control, offered] : kCaptions) {
    auto& program = programs.Of(firmware);
    ASSERT_EQ(program.Register(register_name), core::Outcome::kDone);
    EXPECT_EQ(program.Offered(control), offered) << register_name;
  }
}

TEST(OptionFrames, TheUniwellFrameShowsOneOfItsTwoLists) {
  Installed base({"V1400", "R6"}), models({"V1400", "R7"});
  for (const std::string name : {"UNIWELL UN4025", "MERIT", "UNIWELL"}) {
    const bool of_models = name != "UNIWELL UN4025";
    auto& program = of_models ? models : base;
    ASSERT_EQ(program.Register(name), core::Outcome::kDone);
    EXPECT_EQ(program.Control("ComboUni").visible, !of_models);
    EXPECT_EQ(program.Control("ComboUniFor14R7up").visible, of_models) << name;
  }
  EXPECT_EQ(models.Control("frmAddress(18)").caption, "");
}

}  // namespace
}  // namespace ovl::testing
