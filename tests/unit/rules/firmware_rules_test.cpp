// Only src/firmware knows what a family or a release means. All other code asks it.
#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "unit/rules/source_files.h"

namespace ovl::testing {
namespace {

// The line without its comment.
std::string CodeOf(const std::string& line) {
  bool quoted = false;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] == '"' && (at == 0 || line[at - 1] != '\\')) quoted = !quoted;
    if (!quoted && line.compare(at, 2, "//") == 0) return line.substr(0, at);
  }
  return line;
}

bool ComparesFirmware(const std::string& line) {
  static const std::regex pattern(R"re("V1[34]\d\d|"R\d+"|\.Number\(\)|ReleaseNumber\(|)re"
                                  R"re(\b(version|release|Joined\(\))\s*([=!<>]=|[<>](?!\w)))re");
  return std::regex_search(CodeOf(line), pattern);
}

TEST(FirmwareRules, FamiliesAndReleasesAreComparedInOneFolderOnly) {
  // The tips name releases in words. The numbers of src/host/posix are those of file descriptors.
  const std::set<std::string> free_folders = {"src/firmware", "src/ui/tips", "src/host/posix"};
  int files = 0;
  for (const auto& file : SourceFilesBelow("src")) {
    if (free_folders.count(file.folder) == 1) continue;
    ++files;
    for (std::size_t line = 0; line < file.lines.size(); ++line)
      EXPECT_FALSE(ComparesFirmware(file.lines[line]))
          << file.path << ':' << line + 1 << ' ' << file.lines[line];
  }
  EXPECT_GT(files, 100);
}

TEST(FirmwareRules, EveryKindOfComparisonIsFound) {
  for (const auto* line :
       {"if (firmware.version == \"V1300\") return;", "return app.firmware.Number() >= 26;",
        "const bool first = firmware.release != \"R1\";", "if (release == first.release) return;",
        "const auto known = {\"V1334\"};", "if (release < 7) return;", "if (name == \"R6\") return;",
        "return app.firmware.Joined() == name;", "if (firmware::ReleaseNumber(text) < 3) return;"})
    EXPECT_TRUE(ComparesFirmware(line)) << line;
  for (const auto* line : {"// Like \"V1400\", with release >= 6.", "app.firmware.release = stored;",
                           "label.caption = app.firmware.Joined();", "ShowTip(\"since release 6\");"})
    EXPECT_FALSE(ComparesFirmware(line)) << line;
}

}  // namespace
}  // namespace ovl::testing
