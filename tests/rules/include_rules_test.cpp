// Who may include whom. The model stays free of the toolkit, and its folders build on each other in one
// direction.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

struct Include {
  std::string file;
  std::string header;
  bool quoted;
};

// What stands between the marks of an #include line; nothing for any other line.
std::optional<Include> IncludeIn(const std::string& file, const std::string& line) {
  constexpr std::string_view kWord = "#include ";
  if (line.compare(0, kWord.size(), kWord) != 0) return std::nullopt;
  const bool quoted = line[kWord.size()] == '"';
  const auto begin = kWord.size() + 1;
  return Include{file, line.substr(begin, line.find_first_of("\">", begin) - begin), quoted};
}

std::vector<Include> IncludesBelow(const fs::path& folder) {
  std::vector<Include> includes;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const auto extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") continue;
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      if (auto include = IncludeIn(entry.path().string(), line)) includes.push_back(std::move(*include));
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
