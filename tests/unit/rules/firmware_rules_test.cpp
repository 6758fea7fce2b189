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

// Whether the code names a firmware in quotes, such as "V1400", "V1400R6" or "R6", compares one, or asks for
// its number. The sign of a template, a pointer or a stream has no blank behind it.
bool ComparesFirmware(const std::string& line) {
  static const std::regex firmware(
      R"re("(V1[34]|R)[0-9R]+"|\b(version|release|Joined\(\)) *([=!<>]=|[<>] )|)re"
      R"re(\.Number\(\)|ReleaseNumber\(|\.IsV1400\(\))re");
  return std::regex_search(CodeOf(line), firmware);
}

TEST(FirmwareRules, FamiliesAndReleasesAreComparedInOneFolderOnly) {
  // The tips name releases in words. The numbers of src/host/posix are those of file descriptors. The unit in
  // software shares nothing with the program, so that it can be wrong only by itself.
  const std::set<std::string> free_folders = {"src/firmware", "src/ui/tips", "src/host/posix", "tools/unit"};
  int files = 0;
  for (const auto* top : {"src", "tools"}) {
    for (const auto& file : SourceFilesBelow(top)) {
      if (free_folders.count(file.folder) == 1) continue;
      ++files;
      for (std::size_t line = 0; line < file.lines.size(); ++line)
        EXPECT_FALSE(ComparesFirmware(file.lines[line]))
            << file.path << ':' << line + 1 << ' ' << file.lines[line];
    }
  }
  EXPECT_GT(files, 130);
}

}  // namespace
}  // namespace ovl::testing
