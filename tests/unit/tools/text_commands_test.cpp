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
std::string Printed(std::vector<std::string> words) {
  const auto command = CommandOf({command_line::Wish::kRun, {}, {}, std::move(words)});
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

}  // namespace
}  // namespace ovl::script
