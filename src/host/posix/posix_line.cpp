#include "host/posix/posix_line.h"

#include <QTimer>
#include <algorithm>
#include <cstdint>
#include <system_error>

#include "host/text_codec.h"

#ifdef Q_OS_LINUX
#include <QFile>
#include <QSocketNotifier>
#include <cerrno>

#include <asm/termbits.h>
#include <fcntl.h>
#include <grp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/timerfd.h>
#include <unistd.h>
#endif

namespace ovl::host {

std::string SystemText(int error) {
  const auto text = std::generic_category().message(error);
  return ToWindows1252(QString::fromLocal8Bit(text)).value_or("error " + std::to_string(error));
}

#ifdef Q_OS_LINUX

namespace {

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Number() const { return number_; }

 private:
  int number_;
};

}  // namespace

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

int LineSpeed(LineHandle line) {
  struct termios2 settings {};
  if (::ioctl(line, TCGETS2, &settings) != 0) return 0;
  return static_cast<int>(settings.c_ospeed);
}

int MarkParityErrors(LineHandle line) {
  struct termios2 settings {};
  if (::ioctl(line, TCGETS2, &settings) != 0) return errno;
  settings.c_iflag |= INPCK | PARMRK | IGNBRK;
  settings.c_iflag &= ~static_cast<tcflag_t>(IGNPAR);
  return ::ioctl(line, TCSETS2, &settings) == 0 ? 0 : errno;
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
  if (::poll(&state, 1, 0) < 0) return false;
  if (state.revents == 0) return true;
  if ((state.revents & POLLIN) == 0 || (state.revents & (POLLERR | POLLHUP | POLLNVAL)) != 0) return false;
  int waiting = 0;
  return ::ioctl(line, FIONREAD, &waiting) == 0 && waiting > 0;
}

bool CharactersWait(LineHandle line) {
  int waiting = 0;
  return ::ioctl(line, TIOCOUTQ, &waiting) == 0 && waiting > 0;
}

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

LinePreset::LinePreset(const QString& device, int baud, int data_bits, char parity) {
  if (LockedByOther(device)) return;
  descriptor_ = ::open(QFile::encodeName(device).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  struct termios2 settings {};
  if (descriptor_ < 0 || ::ioctl(descriptor_, TCGETS2, &settings) != 0) return;
  MakeRaw(settings, baud, data_bits, parity);
  // If the driver refuses them here, the opening that follows fails as well and reports it.
  ::ioctl(descriptor_, TCSETS2, &settings);
}

LinePreset::~LinePreset() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

struct ShortTimer::Source {
  explicit Source(const std::function<void()>& fire)
      : descriptor(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)) {
    fallback.setSingleShot(true);
    fallback.setTimerType(Qt::PreciseTimer);
    QObject::connect(&fallback, &QTimer::timeout, &fallback, fire);
    if (descriptor.Number() < 0) return;
    notifier = std::make_unique<QSocketNotifier>(descriptor.Number(), QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this, fire] {
      std::uint64_t times = 0;
      if (::read(descriptor.Number(), &times, sizeof times) == sizeof times) fire();
    });
  }

  bool Set(std::chrono::microseconds time) const {
    const auto nanoseconds = std::chrono::nanoseconds(time).count();
    constexpr long kSecond = 1'000'000'000;
    itimerspec spec = {};
    spec.it_value.tv_sec = nanoseconds / kSecond;
    spec.it_value.tv_nsec = nanoseconds % kSecond;
    return ::timerfd_settime(descriptor.Number(), 0, &spec, nullptr) == 0;
  }

  Descriptor descriptor;
  std::unique_ptr<QSocketNotifier> notifier;
  QTimer fallback;
};

#else

QString DeviceGroup(const QString&) {
  return {};
}

int ProbeDevice(const QString&) {
  return 0;
}

bool CanLockDevices() {
  return false;
}

int LineSpeed(LineHandle) {
  return 0;
}

int MarkParityErrors(LineHandle) {
  return 0;
}

WriteResult WriteAtOnce(LineHandle, std::string_view) {
  return {};
}

bool LineAlive(LineHandle) {
  return false;
}

bool CharactersWait(LineHandle) {
  return false;
}

LinePreset::LinePreset(const QString&, int, int, char) {}
LinePreset::~LinePreset() = default;

struct ShortTimer::Source {
  explicit Source(const std::function<void()>& fire) {
    fallback.setSingleShot(true);
    fallback.setTimerType(Qt::PreciseTimer);
    QObject::connect(&fallback, &QTimer::timeout, &fallback, fire);
  }

  bool Set(std::chrono::microseconds) const { return false; }

  QTimer fallback;
};

#endif

ShortTimer::ShortTimer(std::function<void()> fire) : source_(std::make_unique<Source>(fire)) {}

ShortTimer::~ShortTimer() = default;

void ShortTimer::Start(std::chrono::microseconds time) {
  // A time of zero would stop the system's timer.
  const auto wait = std::max(time, std::chrono::microseconds(1));
  if (source_->Set(wait)) return;
  source_->fallback.start(std::chrono::ceil<std::chrono::milliseconds>(wait));
}

void ShortTimer::Stop() {
  source_->Set(std::chrono::microseconds::zero());
  source_->fallback.stop();
}

}  // namespace ovl::host
