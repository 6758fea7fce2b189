#include "host/system/disk.h"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <string>
#include <string_view>

#include "host/windows/last_error.h"

namespace ovl::host {
namespace {

// The C library does not know the mode "x".
std::FILE* CreateNew(const std::filesystem::path& path) {
  const int descriptor =
      ::_wopen(path.c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY, _S_IREAD | _S_IWRITE);
  return descriptor < 0 ? nullptr : ::_fdopen(descriptor, "wb");
}

}  // namespace

std::FILE* OpenFile(const std::filesystem::path& path, const char* mode) {
  const std::string_view wanted(mode);
  if (wanted.find('x') != std::string_view::npos) return CreateNew(path);
  return ::_wfopen(path.c_str(), std::wstring(wanted.begin(), wanted.end()).c_str());
}

int FlushFile(std::FILE& file) {
  return ::_commit(::_fileno(&file)) == 0 ? 0 : errno;
}

// ReplaceFileW keeps more of the old file, but it moves two files one after the other: a program that ends
// between them leaves no file of that name.
std::error_code TakeName(const std::filesystem::path& file, const std::filesystem::path& name) {
  const DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  if (::MoveFileExW(file.c_str(), name.c_str(), flags) != 0) return {};
  return {static_cast<int>(::GetLastError()), std::system_category()};
}

// A name is on the disk when TakeName returns.
int FlushFolder(const std::filesystem::path&) {
  return 0;
}

void OutliveSizeLimit() {}

}  // namespace ovl::host
