#include "files/files.h"

#include <algorithm>

namespace ovl::files {

std::string PathBelow(std::string_view folder, std::string_view written) {
  std::string path(folder);
  for (const char character : written) path += character == '\\' ? '/' : character;
  return path;
}

std::vector<std::string> ReadLines(const core::FileAccess& files, const std::string& path) {
  const auto bytes = files.read(path);
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin < bytes.size();) {
    const auto end = std::min(bytes.find('\r', begin), bytes.size());
    lines.push_back(bytes.substr(begin, end - begin));
    begin = end + 1;
    if (begin < bytes.size() && bytes[begin] == '\n') ++begin;
  }
  return lines;
}

std::string ReadJoined(const core::FileAccess& files, const std::string& path) {
  std::string joined;
  for (const auto& line : ReadLines(files, path)) joined += line;
  return joined;
}

}  // namespace ovl::files
