#include "unit/rules/source_files.h"

#include <fstream>
#include <string_view>

namespace ovl::testing {

namespace fs = std::filesystem;

std::vector<SourceFile> SourceFilesBelow(const std::string& folder) {
  const fs::path top(OVL_SOURCE_FOLDER);
  std::vector<SourceFile> files;
  for (const auto& entry : fs::recursive_directory_iterator(top / folder)) {
    const auto extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") continue;
    const auto path = entry.path().lexically_relative(top);
    auto& file = files.emplace_back(SourceFile{path.string(), path.parent_path().string(), {}});
    std::ifstream text(entry.path());
    for (std::string line; std::getline(text, line);) file.lines.push_back(line);
  }
  return files;
}

std::vector<std::string> IncludesOf(const SourceFile& file) {
  constexpr std::string_view kWord = "#include ";
  std::vector<std::string> includes;
  for (const auto& line : file.lines) {
    if (!line.starts_with(kWord)) continue;
    const auto name = line.substr(kWord.size());
    includes.push_back(name.front() == '"' ? name.substr(1, name.find('"', 1) - 1) : name);
  }
  return includes;
}

}  // namespace ovl::testing
