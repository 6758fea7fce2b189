// No type is defined twice under one name: two definitions that meet in one program break it without a word
// from compiler or linker.
#include <gtest/gtest.h>

#include <map>
#include <string_view>

#include "unit/rules/source_files.h"

namespace ovl::testing {
namespace {

struct Definition {
  std::string name;  // with its namespace
  std::string place;
};

// The name of the type whose definition the line begins; empty for every other line.
std::string TypeIn(const std::string& line) {
  for (const std::string_view kind : {"struct ", "class ", "enum class ", "enum "}) {
    if (!line.starts_with(kind)) continue;
    const auto end = line.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_",
                                            kind.size());
    const bool defines = line.find('{') != std::string::npos && line[end] == ' ';
    if (defines) return line.substr(kind.size(), end - kind.size());
  }
  return {};
}

// The types that the file defines in a named namespace. The layout puts these definitions at the left edge.
std::vector<Definition> DefinitionsIn(const SourceFile& file) {
  constexpr std::string_view kOpen = "namespace ";
  std::vector<Definition> definitions;
  std::string space;
  bool unnamed = false;
  for (std::size_t line = 0; line < file.lines.size(); ++line) {
    const auto& text = file.lines[line];
    if (text == "namespace {") {
      unnamed = true;
    } else if (text == "}  // namespace") {
      unnamed = false;
    } else if (text.starts_with(kOpen)) {
      space = text.substr(kOpen.size(), text.find(' ', kOpen.size()) - kOpen.size());
    }
    const auto type = unnamed ? std::string() : TypeIn(text);
    if (!type.empty())
      definitions.push_back({space + "::" + type, file.path + ":" + std::to_string(line + 1)});
  }
  return definitions;
}

TEST(NameRules, NoTypeIsDefinedTwice) {
  std::map<std::string, std::string> places;
  for (const auto* folder : {"src", "tools", "tests", "bench"}) {
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
