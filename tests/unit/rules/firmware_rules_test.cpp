// Only src/firmware knows what a family or a release means. All other code asks it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string_view>

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

bool IsWord(char character) {
  return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
}

// Whether a text of the line is the start given and digits: "V1400", "V1400R6", "R6". The start has the
// quote.
bool NamesFirmware(std::string_view code, std::string_view start) {
  for (auto at = code.find(start); at != std::string_view::npos; at = code.find(start, at + 1)) {
    const auto rest = code.substr(at + start.size());
    const auto digits = rest.find_first_not_of("0123456789R");
    if (digits != 0 && digits != std::string_view::npos && rest[digits] == '"') return true;
  }
  return false;
}

// Whether a comparison follows. The sign of a template, a pointer or a stream has no blank behind it.
bool StartsWithComparison(std::string_view code) {
  code.remove_prefix(std::min(code.find_first_not_of(' '), code.size()));
  for (const auto* sign : {"==", "!=", "<=", ">="}) {
    if (code.starts_with(sign)) return true;
  }
  return code.starts_with("< ") || code.starts_with("> ");
}

bool ComparesWord(std::string_view code, std::string_view word) {
  for (auto at = code.find(word); at != std::string_view::npos; at = code.find(word, at + 1)) {
    const bool whole = at == 0 || !IsWord(code[at - 1]);
    if (whole && StartsWithComparison(code.substr(at + word.size()))) return true;
  }
  return false;
}

bool ComparesFirmware(const std::string& line) {
  const auto code = CodeOf(line);
  for (const auto* start : {"\"V13", "\"V14", "\"R"}) {
    if (NamesFirmware(code, start)) return true;
  }
  for (const auto* word : {"version", "release", "Joined()"}) {
    if (ComparesWord(code, word)) return true;
  }
  for (const auto* call : {".Number()", "ReleaseNumber(", ".IsV1400()"}) {
    if (code.find(call) != std::string::npos) return true;
  }
  return false;
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
