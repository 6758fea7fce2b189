#include "host/posix/flush.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>
#endif

namespace ovl::host {

#ifdef Q_OS_UNIX

namespace {

int Flush(int descriptor) {
  if (::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP) return 0;
  return errno;
}

}  // namespace

int FlushFile(std::FILE& file) {
  return Flush(::fileno(&file));
}

int FlushFolder(const std::string& path) {
  const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return errno == EACCES ? 0 : errno;
  const int error = Flush(folder);
  ::close(folder);
  return error;
}

#else

int FlushFile(std::FILE&) {
  return 0;
}

int FlushFolder(const std::string&) {
  return 0;
}

#endif

}  // namespace ovl::host
