#pragma once

#include <string>
#include <string_view>

#include "unit/firmware.h"

namespace unit {

// A text, or the error with the path and the system's reason.
struct Loaded {
  std::string text;
  std::string error;
};

Loaded ReadFile(const std::string& path);

// Replaces the whole file: the text is written beside it and renamed over it, so that a failure loses
// nothing. Returns what went wrong, with the path and the system's reason, or an empty text.
std::string WriteFile(const std::string& path, std::string_view text);

bool FileExists(const std::string& path);

// An image file: a record stream of that firmware. It may have any line ends, and one behind the end mark.
Loaded LoadImage(const std::string& path, const Firmware& firmware);
std::string SaveImage(const std::string& path, const Firmware& firmware, std::string_view image);

// A history of that many made-up lines, each with its number and ended by CR LF.
std::string MadeUpHistory(unsigned lines);

// A history file, with every lone line feed as CR LF. A file with the byte that ends a history is an error.
Loaded LoadHistory(const std::string& path);

}  // namespace unit
