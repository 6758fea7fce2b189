#include "host/system/line.h"

#include <asm/termbits.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>

#include "host/posix/descriptor.h"

namespace ovl::host {
namespace {

bool LockedByOther(const QString& device) {
  const auto name = device.section(QLatin1Char('/'), -1);
  return ::access(QFile::encodeName(QStringLiteral("/var/lock/LCK..") + name).constData(), F_OK) == 0;
}

void MakeRaw(struct termios2& settings, int baud, int data_bits, char parity) {
  settings.c_iflag = 0;
  settings.c_oflag = 0;
  settings.c_lflag = 0;
  settings.c_cflag = BOTHER | CREAD | CLOCAL | (data_bits == 7 ? CS7 : CS8);
  if (parity != 'N') settings.c_cflag |= PARENB;
  if (parity == 'O') settings.c_cflag |= PARODD;
  settings.c_ispeed = static_cast<speed_t>(baud);
  settings.c_ospeed = static_cast<speed_t>(baud);
}

}  // namespace

int LineSpeed(LineHandle line) {
  struct termios2 settings {};
  if (::ioctl(line, TCGETS2, &settings) != 0) return 0;
  return static_cast<int>(settings.c_ospeed);
}

ParityCheck CheckParity(LineHandle line) {
  struct termios2 settings {};
  if (::ioctl(line, TCGETS2, &settings) != 0) return {errno, false};
  settings.c_iflag |= INPCK | PARMRK | IGNBRK;
  settings.c_iflag &= ~static_cast<tcflag_t>(IGNPAR);
  if (::ioctl(line, TCSETS2, &settings) != 0) return {errno, false};
  return {0, true};
}

WriteResult WriteAtOnce(LineHandle line, std::string_view bytes) {
  ssize_t taken = 0;
  do {
    taken = ::write(line, bytes.data(), bytes.size());
  } while (taken < 0 && errno == EINTR);
  if (taken >= 0) return {static_cast<std::size_t>(taken), 0};
  return {0, errno == EAGAIN ? 0 : errno};
}

bool LineAlive(LineHandle line) {
  struct pollfd state = {line, POLLIN, 0};
  if (::poll(&state, 1, 0) < 0) return errno == EINTR;
  if (state.revents == 0) return true;
  if ((state.revents & POLLIN) == 0 || (state.revents & (POLLERR | POLLHUP | POLLNVAL)) != 0) return false;
  int waiting = 0;
  return ::ioctl(line, FIONREAD, &waiting) == 0 && waiting > 0;
}

// If input is discarded after the event loop has seen it, the read fails although the line works. The reason
// is then that of an earlier call, and some of them make some versions of Qt read no more.
bool ReadAgain(QSerialPort& port) {
  if (!LineAlive(port.handle())) return false;
  port.setReadBufferSize(port.readBufferSize());  // starts to read
  return true;
}

Waiting WaitingCharacters(LineHandle line) {
  int count = 0;
  if (::ioctl(line, TIOCOUTQ, &count) == 0) return {count > 0, 0};
  const bool lacks_call = errno == ENOTTY || errno == EINVAL;
  return {false, lacks_call ? 0 : errno};
}

struct LinePreset::Held {
  Descriptor device;
};

LinePreset::LinePreset(const QString& device, int baud, int data_bits, char parity) {
  if (LockedByOther(device)) return;
  held_.reset(new Held{
      Descriptor(::open(QFile::encodeName(device).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))});
  struct termios2 settings {};
  if (::ioctl(held_->device.Number(), TCGETS2, &settings) != 0) return;
  MakeRaw(settings, baud, data_bits, parity);
  // If the driver refuses them here, the opening that follows fails as well and reports it.
  ::ioctl(held_->device.Number(), TCSETS2, &settings);
}

LinePreset::~LinePreset() = default;

}  // namespace ovl::host
