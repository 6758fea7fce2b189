#include "host/system/device.h"

#include <asm/termbits.h>
#include <fcntl.h>
#include <grp.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>

#include "host/posix/descriptor.h"

namespace ovl::host {

QString DeviceOf(int number) {
  constexpr int kFirstUsb = 9;
  if (number < kFirstUsb) return QStringLiteral("/dev/ttyS%1").arg(number - 1);
  return QStringLiteral("/dev/ttyUSB%1").arg(number - kFirstUsb);
}

QString DeviceGroup(const QString& device) {
  struct stat status {};
  if (::stat(QFile::encodeName(device).constData(), &status) != 0) return {};
  const auto* group = ::getgrgid(status.st_gid);
  return group == nullptr ? QString() : QString::fromLocal8Bit(group->gr_name);
}

int ProbeDevice(const QString& device) {
  const Descriptor probe(
      ::open(QFile::encodeName(device).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
  if (probe.Number() < 0) return errno;
  struct termios settings {};
  return ::ioctl(probe.Number(), TCGETS, &settings) == 0 ? 0 : errno;
}

bool CanLockDevices() {
  return ::access("/var/lock", R_OK | W_OK) == 0;
}

}  // namespace ovl::host
