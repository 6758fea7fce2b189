#include "host/system/disk.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "host/posix/descriptor.h"

namespace ovl::host {
namespace {

int Flush(int descriptor) {
  if (::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP) return 0;
  return errno;
}

}  // namespace

std::FILE* OpenFile(const std::filesystem::path& path, const char* mode) {
  return std::fopen(path.c_str(), mode);
}

std::error_code TakeName(const std::filesystem::path& file, const std::filesystem::path& name) {
  std::error_code error;
  std::filesystem::rename(file, name, error);
  return error;
}

int FlushFile(std::FILE& file) {
  return Flush(::fileno(&file));
}

int FlushFolder(const std::filesystem::path& folder) {
  const Descriptor names(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (names.Number() < 0) return errno == EACCES ? 0 : errno;
  return Flush(names.Number());
}

void OutliveSizeLimit() {
  std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace ovl::host
