// Open and Save: their file dialogs, files and message boxes.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "core/actions.h"
#include "image/record_stream.h"
#include "support/box_texts.h"
#include "support/control_characters.h"
#include "support/firmware_facts.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

// The digits of a file, without the code of the program.
std::string DigitsIn(const std::string& path) {
  auto text = ReadFile(path);
  for (std::size_t at = 0; (at = text.find('$')) != std::string::npos;) text.erase(at, 5);
  std::erase_if(text,
                [](char character) { return character == '\r' || character == '\n' || character == '#'; });
  return text;
}

TEST(FileCommands, AskWithTheirNamesAndFilters) {
  using Kind = core::FileDialog::Kind;
  constexpr const char* kTexts = "Text Files(*.txt)|*.txt|All Files(*.*)|*.*";
  const std::tuple<const char*, Kind, const char*, const char*> rows[] = {
      {"OpenMenu", Kind::kOpen, "*.bin", "Text Files(*.txt)|*.txt|Bin Files(*bin)|*.bin|All Files(*.*)|*.*"},
      {"menuSave", Kind::kSave, "*.Bin", kTexts},
      {"OpenHistory_menu", Kind::kOpen, "*.txt", kTexts},
      {"CmdUpDow(3)", Kind::kSave, "History.txt", kTexts},
  };
  Installed program(kLatest, Images::kFirstRegister);
  program.OpenAndHold();
  for (const auto& [button, kind, name, filter] : rows) {
    SCOPED_TRACE(button);
    program.Click(button);
    program.Unit(kAck);
    ASSERT_EQ(program.dialogs.size(), 1U);
    auto& dialog = program.dialogs.back();
    std::replace(dialog.file_name.begin(), dialog.file_name.end(), '\\', '/');
    EXPECT_EQ(dialog.kind, kind);
    EXPECT_EQ(dialog.file_name, program.folder.File(name));
    EXPECT_EQ(dialog.filter, filter);
    EXPECT_EQ(dialog.filter_index, 2);
    program.dialogs.clear();
  }
}

enum class Reopened { kSame, kShifted, kRefused };

TEST(FileCommands, SaveAndOpenDifferByFirmware) {
  struct Row {
    firmware::FirmwareId firmware;
    image::Region region;
    Reopened reopened;
  };
  using enum Reopened;
  constexpr auto kOwnersAlone = std::filesystem::perms::owner_all;
  const Row rows[] = {
      {{"V1400", "R2"}, {0x2000, 0x2840}, kSame},     {{"V1400", "R6"}, {0x2000, 0x2860}, kSame},
      {{"V1400", "R7"}, {0x2000, 0x2860}, kShifted},  {{"V1400", "R11"}, {0x2000, 0x2860}, kShifted},
      {{"V1400", "R12"}, {0x2000, 0x2860}, kShifted}, {{"V1300", "R23"}, {0x7800, 0x7FE0}, kSame},
      {{"V1324", "R17"}, {0x7800, 0x7FE0}, kSame},    {{"V1300", "R26"}, {0x7800, 0x7FE0}, kRefused},
      {{"V1324", "R25"}, {0x7800, 0x7FE0}, kRefused}, {{"V1310", "R1"}, {0x7800, 0x7FE0}, kRefused},
      {{"V1334", "R1"}, {0x7800, 0x7FE0}, kRefused},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.firmware.Joined());
    Installed program(row.firmware);
    // Bytes that no panel shows get other values, so that a shift by one byte is seen.
    const auto mark = [&](int byte, int value) {
      program.SetByte("GENERIC", byte, codecs::ByteToHex(value));
    };
    for (const int byte : {5, 6, 7, 8, 9, 10, 12, 18}) mark(byte, 0xA0 + byte);
    for (int byte = 2; byte < (row.reopened == kSame ? 6 : 8); ++byte) mark(program.Fixed(byte), 0x60 + byte);
    ASSERT_EQ(program.Open(program.PathOf("GENERIC")), core::Outcome::kDone);
    auto expected = DigitsIn(program.PathOf("GENERIC"));
    if (row.reopened == kShifted) {
      // Without the two bytes after the variant, and without the bytes after the software handshake.
      expected.erase(64 + 210, row.firmware.release == "R7" ? 14 : 16).erase(64 + 4, 4);
    }
    const auto path = program.folder.File("saved.bin");
    const auto target = program.folder.File("target.bin");
    WriteFile(target, "what stood there before");
    WriteFile(target + ".0.new", "a name beside it that is taken");
    std::filesystem::permissions(target, kOwnersAlone);
    const auto permissions = std::filesystem::status(target).permissions();
    std::error_code no_links;  // Windows has none
    std::filesystem::create_symlink("target.bin", path, no_links);
    ASSERT_EQ(program.Answer("menuSave", path), core::Outcome::kDone);
    const auto box = program.TakeBox();
    EXPECT_EQ(box.text, "Save Completed.        ");
    EXPECT_EQ(box.icon, core::BoxIcon::kInformation);
    EXPECT_EQ(ReadFile(path), image::BlockRecords(expected, row.region) + "\r\n");
    EXPECT_EQ(ReadFile(target + ".0.new"), "a name beside it that is taken");
    EXPECT_EQ(std::filesystem::status(target).permissions(), permissions);
    EXPECT_TRUE(std::filesystem::is_symlink(path) || no_links);

    const auto& image = program.app.image;
    const auto kept = image;
    ASSERT_EQ(program.Pick("ComboReg", 3), core::Outcome::kDone);
    const auto other = image;
    ASSERT_EQ(program.Open(path), core::Outcome::kDone);
    EXPECT_EQ(program.TakeBox().text, row.reopened == kRefused ? kForeignBox : "");
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_TRUE(program.app.PanelsReady && program.app.ImageTouched && !program.app.UploadApplying);
    EXPECT_EQ(program.Selected("ComboReg"), codecs::HexToInt(image[image::FieldId::REGTYPE]));
    if (row.reopened == kShifted) {
      EXPECT_EQ(image[image::FieldId::REGTYPE_EXT1] + image[image::FieldId::REGTYPE_EXT2], "6465");
      EXPECT_EQ(image[image::FieldId::HPADDR_BAK] + image[image::FieldId::VPADDR_BAK], "6667");
      EXPECT_EQ(image[image::FieldId::SITE_NO_BAK], "AC");
    } else {
      EXPECT_TRUE(image == (row.reopened == kSame ? kept : other));
      EXPECT_EQ(program.app.known_image == image, row.reopened == kSame);
    }
  }
}

TEST(FileCommands, ASaveThatFailsIsReported) {
  Installed program(kLatest, Images::kFirstRegister);
  program.Mark();
  for (const auto& target : {std::optional<std::string>(), {program.folder.File("no such folder/a.bin")}}) {
    ASSERT_EQ(program.Answer("menuSave", target), core::Outcome::kDone);
    const auto box = program.TakeBox();
    EXPECT_EQ(box.text, "NoFile Save. !!!        ");
    EXPECT_EQ(box.icon, core::BoxIcon::kInformation);
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.Written(), "");
  }
}

TEST(FileCommands, AnOpenWithoutAFileChangesOnlyTheNextPick) {
  Installed program(kLatest);
  const auto kept_from_us = program.folder.File("locked.bin"), huge = program.folder.File("huge.bin");
  WriteFile(kept_from_us, ReadFile(program.PathOf("ADS")));
  WriteFile(huge, "");
  std::filesystem::resize_file(huge, (64 << 20) + 1);
  std::vector<std::pair<std::optional<std::string>, const char*>> sources = {
      {std::nullopt, "Operation canceled"},
      {program.folder.File("missing.bin"), "No such file or directory"},
      {program.folder.Path().string(), "Is a directory"},
      {kept_from_us, "Permission denied"},
      {huge, "File too large"},
  };
  if (std::filesystem::is_character_file("/dev/null")) {
    sources.emplace_back("/dev/null", "Invalid argument");
    sources.emplace_back("/proc/self/mem", "Input/output error");
  }
  for (const auto& [source, reason] : sources) {
    SCOPED_TRACE(reason);
    program.Mark();
    program.app.ImageTouched = false;
    std::optional<Locked> locked;
    if (source == kept_from_us) locked.emplace(kept_from_us);
    ASSERT_EQ(program.Open(source), core::Outcome::kDone);
    locked.reset();
    EXPECT_TRUE(program.app.StatusNote.ends_with(std::string(": ") + reason)) << program.app.StatusNote;
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.Written(), "");
    EXPECT_TRUE(program.app.PanelsReady);
    EXPECT_TRUE(program.app.UploadApplying && program.app.ImageTouched && program.app.StreamText.empty());
    ASSERT_EQ(program.Register("ADS"), core::Outcome::kDone);
    EXPECT_EQ(program.Written(), "");
    EXPECT_FALSE(program.app.UploadApplying);
    EXPECT_EQ(program.Frames(), "");
  }
  ASSERT_EQ(program.Register("ADS"), core::Outcome::kDone);
  EXPECT_EQ(program.app.image[image::FieldId::REGTYPE], codecs::ByteToHex(program.CodeOf("ADS")));
  EXPECT_EQ(program.Frames(), "1");
}

TEST(FileCommands, AnUnusableFileIsReportedAndThePanelsShowTheOldImage) {
  Installed program(kLatest);
  std::string noise;
  for (int at = 0; at < 1 << 20; ++at) noise += static_cast<char>(at);
  const std::string contents[] = {"", "\r\n", noise, PatternStream({"V1300", "R14"}) + "\r\n",
                                  PatternStream({"V1334", "R1"}) + "\r\n"};
  for (const auto& content : contents) {
    SCOPED_TRACE(content.substr(0, 5));
    WriteFile(program.folder.File("foreign.bin"), content);
    program.Pick("ComboCOMM(1)", 7);
    program.app.image[image::FieldId::RX_BAUDRATE] = "02";
    program.app.OperatingCount = 3;
    core::EnableTimer(program.app.frmMain.Timer_Operating, true);
    program.Mark();
    ASSERT_EQ(program.Open(program.folder.File("foreign.bin")), core::Outcome::kDone);
    EXPECT_EQ(program.TakeBox().text, kForeignBox);
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.Written(), "");
    EXPECT_EQ(program.Selected("ComboCOMM(1)"), 2);
    EXPECT_TRUE(program.app.PanelsReady);
    EXPECT_FALSE(program.app.frmMain.Timer_Operating.enabled);
    EXPECT_EQ(program.app.OperatingCount, 0);
    ASSERT_EQ(program.Register("ADS"), core::Outcome::kDone);
    EXPECT_EQ(program.app.image[image::FieldId::REGTYPE], codecs::ByteToHex(program.CodeOf("ADS")))
        << "the pick counts";
    ASSERT_EQ(program.Register("GENERIC"), core::Outcome::kDone);
  }
}

TEST(FileCommands, AFileWithoutItsEndEndsTheProgram) {
  const auto whole = PatternStream(kLatest);
  std::string line_feeds_only = whole + "\n";
  std::erase(line_feeds_only, '\r');
  const std::tuple<firmware::FirmwareId, const char*, std::string> rows[] = {
      {{"V1400", "R4"}, "same start, other end", PatternStream({"V1400", "R7"}) + "\r\n"},
      {kLatest, "same start, other end", PatternStream({"V1400", "R4"}) + "\r\n"},
      {kLatest, "no end mark", whole.substr(0, whole.size() - 1) + "\r\n"},
      {kLatest, "nothing between the marks", "$2000#"},
      {kLatest, "letters behind the start", "$2000" + std::string(1 << 20, 'A')},
      {kLatest, "LF alone is no line end", line_feeds_only},
  };
  for (const auto& [firmware, what, content] : rows) {
    SCOPED_TRACE(what);
    Installed program(firmware, Images::kFirstRegister);
    WriteFile(program.folder.File("broken.bin"), content);
    EXPECT_EQ(program.Open(program.folder.File("broken.bin")), core::Outcome::kEnded);
    EXPECT_EQ(program.TakeBox().text, kBrokenBox);
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.Click("menuSave"), core::Outcome::kEnded);
  }
}

}  // namespace
}  // namespace ovl::testing
