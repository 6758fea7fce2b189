// Text forms as the statements write them and the commands read them.
#include <gtest/gtest.h>

#include <sstream>

#include "script/commands.h"
#include "script/parser.h"
#include "script/runner.h"
#include "support/harness.h"

namespace ovl::script {
namespace {

// The images are those of another firmware where the served one has none of its own.
std::string Exported(const firmware::FirmwareId& firmware, const firmware::FirmwareId& images) {
  const testing::Harness site(images);
  const auto file = site.folder.File("text.toml");
  std::ostringstream output, errors;
  Session session(output, errors);
  std::istringstream text("folder " + Quoted(site.folder.Path().string()) + "\nsetting Version " +
                          firmware.version + "\nsetting Release " + firmware.release + "\nstart\nexport " +
                          Quoted(file) + "\n");
  EXPECT_EQ(RunScript(session, text, "script", errors), ExitStatus::kDone) << errors.str();
  return testing::ReadFile(file);
}

// The exit status and what was printed.
std::string Printed(std::vector<std::string> words, std::string_view option = {}) {
  const auto options = CommandOptions();
  std::vector<command_line::Given> given;
  for (std::size_t number = 0; number < options.size(); ++number) {
    if (options[number].name == option) given.push_back({number, {}});
  }
  const auto command = CommandOf({command_line::Wish::kRun, {}, std::move(given), std::move(words)});
  std::ostringstream output, errors;
  const auto status = command.run(output, errors);
  return std::to_string(static_cast<int>(status)) + '\n' + output.str() + errors.str();
}

// The compact firmware has the captions of its own and the streams of another.
TEST(TextCommands, ReadTheTextsOfTheCompactFirmware) {
  const testing::TemporaryFolder folder;
  const auto file = folder.File("compact.toml");
  const auto text = Exported({"V1410", "R1"}, {"V1400", "R7"});
  testing::WriteFile(file, text);
  EXPECT_EQ(Printed({"export", file}), "0\n" + text);
}

TEST(TextCommands, ATextWithoutAFormatIsNoDamagedStream) {
  const testing::TemporaryFolder folder;
  const auto file = folder.File("text.toml");
  for (const auto* text :
       {"[COMMUNICATION]\nPARITY = 'ODD'\n", "'firmware' = 'V1400 R12'\n", "complete=true"}) {
    testing::WriteFile(file, text);
    EXPECT_EQ(Printed({"check", file}), "2\n" + file + ":1:1: the line \"format = 1\" is missing\n");
  }
}

TEST(TextCommands, APartIsComparedOnEitherSide) {
  const testing::TemporaryFolder folder;
  const auto whole = folder.File("whole.toml"), part = folder.File("part.toml");
  testing::WriteFile(whole, Exported({"V1400", "R12"}, {"V1400", "R12"}));
  testing::WriteFile(part, "format = 1\n[COMMUNICATION]\nPARITY = 'ODD'\n");
  const auto compared = Printed({"diff", part, whole});
  EXPECT_TRUE(compared.starts_with("1\nCOMMUNICATION: PARITY: \"ODD\" -> ")) << compared;
  EXPECT_TRUE(Printed({"diff", whole, part}).ends_with("-> \"ODD\"\n"));
}

TEST(TextCommands, APartChangesAFile) {
  const testing::TemporaryFolder folder;
  const auto text = folder.File("text.toml"), part = folder.File("part.toml");
  const auto file = folder.File("V1400R12 file.bin"), unnamed = folder.File("file.bin");
  const auto import = [&](const std::string& form, const std::string& into) {
    testing::WriteFile(part, "format = 1\n" + form);
    return Printed({"import", part, into}, "partial");
  };
  testing::WriteFile(text, Exported({"V1400", "R12"}, {"V1400", "R12"}));
  ASSERT_EQ(Printed({"import", text, file}), "0\n");

  const std::string parity = "[COMMUNICATION]\nPARITY = 'ODD'\n";
  EXPECT_EQ(import(parity, file), "0\n");
  EXPECT_TRUE(Printed({"diff", text, file}).ends_with(" -> \"ODD\"\n"));
  EXPECT_EQ(Printed({"diff", part, file}), "0\n");
  EXPECT_EQ(import("firmware = 'V1300 R14'\n[TIME]\nTITLE = 'SHOP 7'\n" + parity, file),
            "0\n" + part + ":2:12: the text is of V1300 R14, this program uses V1400 R12\n");

  const auto before = testing::ReadFile(file);
  testing::WriteFile(unnamed, before);
  EXPECT_TRUE(import(parity, unnamed).starts_with("2\n" + unnamed + ": it fits V1400R11, V1400R12. "));
  EXPECT_EQ(import("firmware = 'V1400 R12'\n" + parity, unnamed), "0\n");
  EXPECT_TRUE(import("[COMMUNICATION]\nPARITY = 'EVN'\n", file).starts_with("2\n" + part + ":3:10: "));
  EXPECT_TRUE(Printed({"import", part, file}).starts_with("2\n" + part + ": the text form names no "));
  EXPECT_EQ(testing::ReadFile(file), before);
}

// A record stream in its place would lose what a person has written there.
TEST(TextCommands, AnImportNeverReplacesATextForm) {
  const testing::TemporaryFolder folder;
  const auto text = folder.File("text.toml");
  const auto form = Exported({"V1400", "R12"}, {"V1400", "R12"});
  testing::WriteFile(text, form);
  EXPECT_TRUE(Printed({"import", text, text}).starts_with("2\n" + text + ": this file is a text form. "));
  EXPECT_TRUE(Printed({"import", text, text}, "partial").starts_with("2\n" + text + ": this file is a "));
  EXPECT_EQ(testing::ReadFile(text), form);
}

TEST(TextCommands, ATextInUtf16IsNamedAsOne) {
  const testing::TemporaryFolder folder;
  const auto text = folder.File("text.toml");
  testing::WriteFile(text, std::string("\xFF\xFE"
                                       "f\0",
                                       4));
  EXPECT_EQ(Printed({"check", text}), "2\n" + text + ":1:1: the text is in UTF-16. Save it in UTF-8\n");
}

}  // namespace
}  // namespace ovl::script
