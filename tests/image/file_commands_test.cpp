// Open and Save: what they ask, write, read and say.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "support/installed.h"

namespace ovl::testing {
namespace {

const FirmwareId kLatest{"V1400", "R12"};
constexpr const char* kForeign =
    "The Ovalon Version is not compatible !!!\n       Try with the same version again.";
constexpr const char* kBroken = "                System File Error. \nPlease ReInstall Ovalon PC Software !!";

Outcome Save(Harness& program, const std::optional<std::string>& path) {
  program.file_answers.push_back(path);
  return program.Click("menuSave");
}

// A file's records, taken apart without the program's help.
struct Records {
  std::vector<std::string> heads;
  std::vector<std::size_t> widths;
  std::string digits;
};

Records RecordsOf(const std::string& path) {
  Records records;
  auto text = ReadWhole(path);
  EXPECT_EQ(text.substr(text.size() - 3), "#\r\n");
  text.replace(text.size() - 3, 1, "");
  for (std::size_t end = 0; (end = text.find("\r\n")) != std::string::npos; text.erase(0, end + 2)) {
    records.heads.push_back(text.substr(0, 5));
    records.widths.push_back(end - 5);
    records.digits += text.substr(5, end - 5);
  }
  EXPECT_EQ(text, "");
  return records;
}

// Loads the first register's image with other bytes where no panel looks, so that a shift by one shows.
void LoadMarkedImage(Installed& program, bool extended) {
  for (const int byte : {5, 6, 7, 8, 9, 10, 12, 18}) program.SetByte("GENERIC", byte, ByteToHex(0xA0 + byte));
  for (int byte = 2; byte < (extended ? 8 : 6); ++byte) {
    program.SetByte("GENERIC", program.Fixed(byte), ByteToHex(0x60 + byte));
  }
  ASSERT_EQ(program.Open(program.PathOf("GENERIC")), Outcome::kDone);
}

TEST(FileCommands, AskWithTheirNamesAndFilters) {
  Installed program(kLatest, Images::kFirstRegister);
  program.Open(std::nullopt);
  Save(program, std::nullopt);
  ASSERT_EQ(program.dialogs.size(), 2U);
  for (auto& dialog : program.dialogs)
    std::replace(dialog.file_name.begin(), dialog.file_name.end(), '\\', '/');
  EXPECT_EQ(program.dialogs[0].kind, FileDialog::Kind::kOpen);
  EXPECT_EQ(program.dialogs[0].file_name, program.folder.File("*.bin"));
  EXPECT_EQ(program.dialogs[0].filter, "Text Files(*.txt)|*.txt|Bin Files(*bin)|*.bin|All Files(*.*)|*.*");
  EXPECT_EQ(program.dialogs[0].filter_index, 2);
  EXPECT_EQ(program.dialogs[1].kind, FileDialog::Kind::kSave);
  EXPECT_EQ(program.dialogs[1].file_name, program.folder.File("*.Bin"));
  EXPECT_EQ(program.dialogs[1].filter, "Text Files(*.txt)|*.txt|All Files(*.*)|*.*");
  EXPECT_EQ(program.dialogs[1].filter_index, 2);
}

enum class Reopened { kSame, kShifted, kRefused };

TEST(FileCommands, SaveAndOpenDifferByFirmware) {
  struct Row {
    FirmwareId firmware;
    const char *first, *last;
    std::size_t records, last_width;
    Reopened reopened;
  };
  const Row rows[] = {
      {{"V1400", "R2"}, "$2000", "$2840", 67, 48, Reopened::kSame},
      {{"V1400", "R6"}, "$2000", "$2860", 68, 16, Reopened::kSame},
      {{"V1400", "R7"}, "$2000", "$2860", 68, 16, Reopened::kShifted},
      {{"V1400", "R11"}, "$2000", "$2860", 68, 16, Reopened::kShifted},
      {{"V1400", "R12"}, "$2000", "$2860", 68, 16, Reopened::kShifted},
      {{"V1300", "R23"}, "$7800", "$7FE0", 64, 34, Reopened::kSame},
      {{"V1324", "R17"}, "$7800", "$7FE0", 64, 34, Reopened::kSame},
      {{"V1300", "R26"}, "$7800", "$7FE0", 64, 66, Reopened::kRefused},
      {{"V1324", "R25"}, "$7800", "$7FE0", 64, 66, Reopened::kRefused},
      {{"V1310", "R1"}, "$7800", "$7FE0", 64, 66, Reopened::kRefused},
      {{"V1334", "R1"}, "$7800", "$7FE0", 64, 66, Reopened::kRefused},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.firmware.Joined());
    Installed program(row.firmware);
    LoadMarkedImage(program, row.reopened != Reopened::kSame);
    auto& app = program.app;
    auto expected = RecordsOf(program.PathOf("GENERIC")).digits;
    if (row.reopened == Reopened::kShifted) {
      // Without the two bytes behind the variant, and without what stands behind the software handshake.
      const std::size_t fixed = row.firmware.release == "R7" ? 224 : 226;
      expected.erase(64 + 210, fixed - 210).erase(64 + 4, 4);
    }
    const auto path = program.folder.File("saved.bin");
    WriteWhole(path, "what stood there before");
    ASSERT_EQ(Save(program, path), Outcome::kDone);
    const auto box = program.TakeBox();
    EXPECT_EQ(box.text, "Save Completed.        ");
    EXPECT_EQ(box.icon, BoxIcon::kInformation);

    const auto saved = RecordsOf(path);
    ASSERT_EQ(saved.heads.size(), row.records);
    EXPECT_EQ(saved.heads.front(), row.first);
    EXPECT_EQ(saved.heads.back(), row.last);
    EXPECT_EQ(std::count(saved.widths.begin(), saved.widths.end() - 1, 64U),
              static_cast<int>(row.records) - 1);
    EXPECT_EQ(saved.widths.back(), row.last_width);
    EXPECT_TRUE(std::is_sorted(saved.heads.begin(), saved.heads.end()));
    EXPECT_EQ(saved.digits, expected);

    const auto kept = app.image;
    ASSERT_EQ(program.Pick("ComboReg", 3), Outcome::kDone);
    const auto other = app.image;
    ASSERT_EQ(program.Open(path), Outcome::kDone);
    EXPECT_EQ(program.TakeBox().text, row.reopened == Reopened::kRefused ? kForeign : "");
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_TRUE(app.PanelsReady);
    if (row.reopened == Reopened::kSame) {
      EXPECT_TRUE(app.image == kept);
    }
    if (row.reopened == Reopened::kRefused) {
      EXPECT_TRUE(app.image == other);
    }
    if (row.reopened == Reopened::kShifted) {
      EXPECT_EQ(app.image[FieldId::REGTYPE_EXT1] + app.image[FieldId::REGTYPE_EXT2], "6465");
      EXPECT_EQ(app.image[FieldId::HPADDR_BAK] + app.image[FieldId::VPADDR_BAK], "6667");
      EXPECT_EQ(app.image[FieldId::SITE_NO_BAK], "AC");
    }
  }
}

TEST(FileCommands, ASaveThatComesToNothingSaysSo) {
  Installed program(kLatest);
  program.Mark();
  const std::optional<std::string> targets[] = {std::nullopt, program.folder.File("no such folder/a.bin"),
                                                program.folder.Path().string()};
  for (const auto& target : targets) {
    ASSERT_EQ(Save(program, target), Outcome::kDone);
    const auto box = program.TakeBox();
    EXPECT_EQ(box.text, "NoFile Save. !!!        ");
    EXPECT_EQ(box.icon, BoxIcon::kInformation);
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.app.SYSCFG.size(), 64U);
    EXPECT_EQ(program.app.SYSFIXED.size(), 206U);
    EXPECT_FALSE(program.app.SYSSTR.empty());
  }
  EXPECT_EQ(program.Written(), "");
  EXPECT_FALSE(program.app.UploadApplying);

  const auto kept = program.folder.File("kept.bin");
  WriteWhole(kept, "kept");
  {
    const Locked folder(program.folder.Path().string());
    ASSERT_EQ(Save(program, kept), Outcome::kDone);
    EXPECT_EQ(program.TakeBox().text, "NoFile Save. !!!        ");
  }
  EXPECT_EQ(ReadWhole(kept), "kept");
}

TEST(FileCommands, AnOpenWithoutAFileLeavesAllButTheNextPick) {
  Installed program(kLatest);
  const auto kept_from_us = program.folder.File("locked.bin");
  WriteWhole(kept_from_us, ReadWhole(program.PathOf("ADS")));
  const std::optional<std::string> sources[] = {std::nullopt, program.folder.File("missing.bin"),
                                                program.folder.Path().string(), kept_from_us};
  for (const auto& source : sources) {
    SCOPED_TRACE(source.value_or("cancelled"));
    program.Mark();
    {
      const Locked file(kept_from_us);
      ASSERT_EQ(program.Open(source), Outcome::kDone);
    }
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.Written(), "");
    EXPECT_TRUE(program.app.PanelsReady);
    EXPECT_TRUE(program.app.UploadApplying);
    EXPECT_EQ(program.app.StreamText, "");
    ASSERT_EQ(program.Register("ADS"), Outcome::kDone);
    EXPECT_EQ(program.Written(), "");
    EXPECT_FALSE(program.app.UploadApplying);
    EXPECT_EQ(program.Frames(), "");
  }
  ASSERT_EQ(program.Register("ADS"), Outcome::kDone);
  EXPECT_EQ(program.app.image[FieldId::REGTYPE], ByteToHex(program.CodeOf("ADS")));
  EXPECT_EQ(program.Frames(), "1");
}

// A fixed noise of all bytes, without a "$".
std::string Noise(std::size_t size) {
  std::string noise;
  unsigned state = 12345;
  while (noise.size() < size) {
    state = state * 1103515245 + 12345;
    const char byte = static_cast<char>(state >> 16);
    if (byte != '$') noise += byte;
  }
  return noise;
}

TEST(FileCommands, AFileOfNoUseIsToldAndThePanelsShowTheOldImage) {
  Installed program(kLatest);
  const std::string contents[] = {"", "\r\n", Noise(10 << 20), PatternStream({"V1300", "R14"}) + "\r\n",
                                  PatternStream({"V1334", "R1"}) + "\r\n"};
  const auto path = program.folder.File("foreign.bin");
  for (const auto& content : contents) {
    SCOPED_TRACE(content.substr(0, 5));
    WriteWhole(path, content);
    program.Pick("ComboCOMM(1)", 7);
    program.app.image[FieldId::RX_BAUDRATE] = "02";
    program.Mark();
    ASSERT_EQ(program.Open(path), Outcome::kDone);
    EXPECT_EQ(program.TakeBox().text, kForeign);
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.Written(), "");
    EXPECT_EQ(program.app.frmMain.ComboCOMM[1].position, 2);
    EXPECT_TRUE(program.app.PanelsReady);
    ASSERT_EQ(program.Register("ADS"), Outcome::kDone);
    EXPECT_EQ(program.app.image[FieldId::REGTYPE], ByteToHex(program.CodeOf("ADS"))) << "the pick counts";
    ASSERT_EQ(program.Register("GENERIC"), Outcome::kDone);
  }
}

TEST(FileCommands, AFileWithoutItsEndEndsTheProgram) {
  const auto whole = PatternStream(kLatest);
  std::string line_feeds_only = whole + "\n";
  std::erase(line_feeds_only, '\r');
  const std::tuple<FirmwareId, const char*, std::string> rows[] = {
      {{"V1400", "R4"}, "same start, other end", PatternStream({"V1400", "R7"}) + "\r\n"},
      {kLatest, "same start, other end", PatternStream({"V1400", "R4"}) + "\r\n"},
      {kLatest, "no end mark", whole.substr(0, whole.size() - 1) + "\r\n"},
      {kLatest, "cut in the middle", whole.substr(0, 2000)},
      {kLatest, "noise behind the start", "$2000" + Noise(1 << 20)},
      {kLatest, "LF alone is no line end", line_feeds_only},
  };
  for (const auto& [firmware, what, content] : rows) {
    SCOPED_TRACE(what);
    Installed program(firmware, Images::kFirstRegister);
    const auto path = program.folder.File("broken.bin");
    WriteWhole(path, content);
    EXPECT_EQ(program.Open(path), Outcome::kEnded);
    EXPECT_EQ(program.TakeBox().text, kBroken);
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.Click("menuSave"), Outcome::kEnded);
  }
}

TEST(FileCommands, AFileThatFailsWhileItIsReadIsNoted) {
  Installed program(kLatest, Images::kFirstRegister);
  ASSERT_EQ(program.Open("/proc/self/mem"), Outcome::kDone);
  EXPECT_EQ(program.app.StatusNote, "/proc/self/mem: Input/output error");
  EXPECT_TRUE(program.app.PanelsReady);
}

TEST(FileCommands, LinesEndWithCrLfOrCr) {
  Installed program(kLatest);
  auto content = ReadWhole(program.PathOf("ADS"));
  const auto path = program.folder.File("ads.bin");
  for (const bool carriage_returns_only : {false, true}) {
    if (carriage_returns_only) std::erase(content, '\n');
    WriteWhole(path, content);
    ASSERT_EQ(program.Register("GENERIC"), Outcome::kDone);
    ASSERT_EQ(program.Open(path), Outcome::kDone);
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "ADS");
    EXPECT_TRUE(program.app.ImageTouched);
    EXPECT_TRUE(program.app.PanelsReady);
    EXPECT_FALSE(program.app.UploadApplying);
    EXPECT_EQ(program.app.CurrentFilePath, path);
  }
}

}  // namespace
}  // namespace ovl::testing
