// Reading and replacing whole files of the machine. A failure throws Failure, which names the path and gives
// the system's reason.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/platform.h"

namespace ovl::host {

// Whether a replaced file survives a power failure from then on. kNo is for files that can be made again.
enum class Flush { kNo, kYes };

// The program's texts hold paths in UTF-8 on every system. Paths of another encoding, which some systems
// allow, keep their bytes.
std::filesystem::path PathOf(std::string_view text);
std::string TextOf(const std::filesystem::path& path);

// All bytes of a regular file of at most 64 MiB.
std::string ReadFile(const std::string& path);

// Replaces the file in one step: the bytes go into a new file beside it, which then takes its name. Links are
// followed, and the permissions of the old file are kept. A file that may not be written is not replaced, and
// neither is anything but a regular file. After a failure the old file is unchanged, with one exception: if
// only the folder cannot be flushed, the new file is there already. If the process ends meanwhile, the file
// is the old or the new one, and the new one may stay beside it.
void ReplaceFile(const std::string& path, std::string_view bytes, Flush flush = Flush::kYes);

// For Platform::files.
core::FileAccess DiskFiles(Flush flush = Flush::kYes);

}  // namespace ovl::host
