// The source files of the project, for the rules that they must keep.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace ovl::testing {

struct SourceFile {
  std::string path;    // from the top of the project, such as "src/core/gate.cpp"
  std::string folder;  // "src/core"
  std::vector<std::string> lines;
};

// All headers and sources below the folder, which is named from the top of the project.
std::vector<SourceFile> SourceFilesBelow(const std::string& folder);

// What the file includes: "core/gate.h" for a header of ours, "<vector>" for another.
std::vector<std::string> IncludesOf(const SourceFile& file);

}  // namespace ovl::testing
