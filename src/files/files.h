// Paths below the program folder, and files as lines of text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/platform.h"

namespace ovl::files {

// A path below a folder, from the written form with backslashes: "\V1400\upload.bin".
std::string PathBelow(std::string_view folder, std::string_view written);

// The lines of a file, without their ends. A line ends with CR LF or CR; a lone LF is no line end.
std::vector<std::string> LinesOf(std::string_view bytes);

// These lines with nothing between them.
std::string JoinLines(std::string_view bytes);

// The same of a file that is read. Both throw Failure.
std::vector<std::string> ReadLines(const core::FileAccess& files, const std::string& path);
std::string ReadJoined(const core::FileAccess& files, const std::string& path);

}  // namespace ovl::files
