// Makes the disk keep what was written, as far as the operating system offers that.
#pragma once

#include <cstdio>
#include <string>

namespace ovl::host {

// Both return an error number, or 0. A file system without such an operation counts as a success.

// The bytes of an open file and its permissions.
int FlushFile(std::FILE& file);

// The names in a folder. A folder that may not be read cannot be opened for this and is left alone.
int FlushFolder(const std::string& path);

}  // namespace ovl::host
