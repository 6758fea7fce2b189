// Files as the operating system offers them to `host/files.h`.
#pragma once

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace ovl::host {

// std::fopen for a path of any characters.
std::FILE* OpenFile(const std::filesystem::path& path, const char* mode);

// Gives the file the name, in one step and in place of a file that has it.
std::error_code TakeName(const std::filesystem::path& file, const std::filesystem::path& name);

// The next two make the disk keep what was written. Both return an error number, or 0. A file system without
// such an operation counts as a success.

// The bytes of an open file and its permissions.
int FlushFile(std::FILE& file);

// The names in a folder. A folder that may not be read cannot be opened for this and is left alone.
int FlushFolder(const std::filesystem::path& folder);

// Every program calls this at its start. A write beyond the limit on the size of files then fails like a
// write to a full disk, instead of ending the program.
void OutliveSizeLimit();

}  // namespace ovl::host
