// No type is defined twice under one name: two definitions that meet in one program break it without a word
// from compiler or linker.
#include <gtest/gtest.h>

#include <map>
#include <regex>

#include "unit/rules/source_files.h"

namespace ovl::testing {
namespace {

struct Definition {
  std::string name;  // with its namespace
  std::string place;
};

// The types that the file defines in a named namespace. The layout puts these definitions at the left edge.
std::vector<Definition> DefinitionsIn(const SourceFile& file) {
  static const std::regex kOpen("namespace ([\\w:]+) \\{"),
      kType("(?:struct|class|enum class|enum) (\\w+)(?![\\w:])[^;]*\\{.*");
  std::vector<Definition> definitions;
  std::string space;
  bool unnamed = false;
  std::smatch match;
  for (std::size_t line = 0; line < file.lines.size(); ++line) {
    const auto& text = file.lines[line];
    if (std::regex_match(text, match, kOpen)) space = match[1];
    if (text == "namespace {") unnamed = true;
    if (text == "}  // namespace") unnamed = false;
    if (unnamed || !std::regex_match(text, match, kType)) continue;
    definitions.push_back({space + "::" + match[1].str(), file.path + ":" + std::to_string(line + 1)});
  }
  return definitions;
}

TEST(NameRules, NoTypeIsDefinedTwice) {
  std::map<std::string, std::string> places;
  for (const auto* folder : {"src", "tools", "tests/support"}) {
    for (const auto& file : SourceFilesBelow(folder)) {
      for (const auto& definition : DefinitionsIn(file)) {
        const auto [first, added] = places.emplace(definition.name, definition.place);
        EXPECT_TRUE(added) << definition.name << ": " << first->second << " and " << definition.place;
      }
    }
  }
  EXPECT_GT(places.size(), 100U);
}

}  // namespace
}  // namespace ovl::testing
