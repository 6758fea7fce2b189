#pragma once

#include <string>
#include <string_view>

#include "unit/firmware.h"

namespace unit {

// A text or the reason why there is none, with the path and the system's words.
struct Loaded {
  std::string text;
  std::string error;
};

Loaded ReadFile(const std::string& path);

// Replaces the file whole: the text is written beside it and renamed over it, so that a failure loses
// nothing. What went wrong, with the path and the system's reason; empty when done.
std::string WriteFile(const std::string& path, std::string_view text);

bool FileExists(const std::string& path);

// An image file: a record stream of that firmware, line ends and one behind the end mark allowed.
Loaded LoadImage(const std::string& path, const Firmware& firmware);
std::string SaveImage(const std::string& path, const Firmware& firmware, std::string_view image);

// A history of that many made-up lines, each with its number and ended by CR LF.
std::string MadeUpHistory(unsigned lines);

// A history file, its lone line feeds turned into CR LF. Refused when it holds the byte that ends a history.
Loaded LoadHistory(const std::string& path);

}  // namespace unit
