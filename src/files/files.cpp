#include "files/files.h"

#include <algorithm>

namespace ovl::files {

std::string PathBelow(std::string_view folder, std::string_view written) {
  std::string path(folder);
  for (const char character : written) path += character == '\\' ? '/' : character;
  return path;
}

std::vector<std::string> LinesOf(std::string_view bytes) {
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin < bytes.size();) {
    const auto end = std::min(bytes.find('\r', begin), bytes.size());
    lines.emplace_back(bytes.substr(begin, end - begin));
    begin = end + 1;
    if (begin < bytes.size() && bytes[begin] == '\n') ++begin;
  }
  return lines;
}

std::string JoinLines(std::string_view bytes) {
  std::string joined;
  for (const auto& line : LinesOf(bytes)) joined += line;
  return joined;
}

std::vector<std::string> ReadLines(const core::FileAccess& files, const std::string& path) {
  return LinesOf(files.read(path));
}

std::string ReadJoined(const core::FileAccess& files, const std::string& path) {
  return JoinLines(files.read(path));
}

}  // namespace ovl::files
