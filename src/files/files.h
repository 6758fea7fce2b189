// Reading and writing whole files. A failure throws Failure, which names the path and gives the system's
// reason.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ovl::files {

// A path below a folder, from the written form with backslashes: "\V1400\upload.bin".
std::string PathBelow(std::string_view folder, std::string_view written);

// All bytes of a regular file of at most 64 MiB.
std::string ReadWhole(const std::string& path);

// The lines of a file, without their ends. A line ends with CR LF or CR; a lone LF is no line end.
std::vector<std::string> ReadLines(const std::string& path);

// The lines of a file with nothing between them.
std::string ReadJoined(const std::string& path);

// Replaces the file in one step: the bytes go into a file beside it, which then takes its name. A link is
// followed. If it fails, the old file is as it was; so it is if the process ends meanwhile, and the file
// beside may stay. A file that is protected from writing, or is none, is not replaced.
void WriteWhole(const std::string& path, std::string_view bytes);

// A limit on the size of files then fails a write as a full disk does, instead of ending the program. For the
// start of every program.
void OutliveSizeLimit();

}  // namespace ovl::files
