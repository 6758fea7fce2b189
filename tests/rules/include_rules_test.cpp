// Who may include whom. The model stays free of the toolkit, and its folders build on each other in one
// direction.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

struct Include {
  std::string file;
  std::string header;
  bool quoted;
};

std::vector<Include> IncludesBelow(const fs::path& folder) {
  static const std::regex kInclude(R"(^\s*#include\s+([<"])([^>"]+)[>"])");
  std::vector<Include> includes;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const auto extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") continue;
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      std::smatch match;
      if (!std::regex_search(line, match, kInclude)) continue;
      includes.push_back({entry.path().string(), match[2], match[1] == "\""});
    }
  }
  return includes;
}

const fs::path kSource = fs::path(OVL_SOURCE_FOLDER);

TEST(IncludeRules, ModelFoldersBuildOnEachOtherInOneDirection) {
  const std::map<std::string, std::set<std::string>> allowed = {
      {"core", {"core"}},
      {"catalogue", {"core", "catalogue"}},
      {"panels", {"core", "panels"}},
      {"image", {"core", "catalogue", "image"}},
      {"registers", {"core", "catalogue", "image", "registers"}},
      {"link", {"core", "image", "link"}},
  };
  std::size_t checked = 0;
  for (const auto& [folder, targets] : allowed) {
    if (!fs::exists(kSource / "src" / folder)) continue;
    for (const auto& include : IncludesBelow(kSource / "src" / folder)) {
      if (!include.quoted) {
        EXPECT_NE(include.header.front(), 'Q') << include.file << " includes " << include.header;
        continue;
      }
      const auto target = include.header.substr(0, include.header.find('/'));
      EXPECT_TRUE(targets.count(target) == 1) << include.file << " includes " << include.header;
      ++checked;
    }
  }
  EXPECT_GT(checked, 50U);
}

TEST(IncludeRules, TheUnitSharesNothingWithTheProgram) {
  for (const auto& include : IncludesBelow(kSource / "tools" / "unit")) {
    if (!include.quoted) continue;
    EXPECT_TRUE(fs::exists(kSource / "tools" / "unit" / include.header))
        << include.file << " includes " << include.header;
  }
}

}  // namespace
}  // namespace ovl::testing
