#include "unit/pty_line.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <termios.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include "unit/text.h"
#include "unit/tty_speed.h"

namespace unit {
namespace {

// Not a speed of a unit, so that the unit does not hear a tool that sets no speed.
constexpr speed_t kSpeedBeforeTool = B300;

// A tool needs far less time than this between restoring its settings and closing.
constexpr int kClosingMilliseconds = 2;

bool MakeRaw(int descriptor) {
  termios settings{};
  if (::tcgetattr(descriptor, &settings) != 0) return false;
  ::cfmakeraw(&settings);
  ::cfsetspeed(&settings, kSpeedBeforeTool);
  return ::tcsetattr(descriptor, TCSANOW, &settings) == 0;
}

bool Readable(int descriptor, int milliseconds) {
  pollfd awaited{descriptor, POLLIN, 0};
  return ::poll(&awaited, 1, milliseconds) > 0;
}

}  // namespace

std::unique_ptr<PtyLine> PtyLine::Open(std::string& error) {
  std::unique_ptr<PtyLine> line(new PtyLine);
  error = line->OpenEnds();
  if (!error.empty()) return nullptr;
  line->WatchOpenings();
  return line;
}

std::string PtyLine::OpenEnds() {
  const std::string failure = "cannot make a pseudo-terminal: ";
  master_ = Descriptor(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK));
  if (!master_.Open()) return failure + SystemReason(errno);
  std::array<char, 128> name{};
  const bool ready = ::grantpt(master_.Get()) == 0 && ::unlockpt(master_.Get()) == 0 &&
                     ::ptsname_r(master_.Get(), name.data(), name.size()) == 0;
  if (!ready) return failure + SystemReason(errno);
  path_ = name.data();
  keeper_ = Descriptor(::open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC));
  if (!keeper_.Open() || !MakeRaw(keeper_.Get()))
    return "cannot set up " + path_ + ": " + SystemReason(errno);
  return {};
}

void PtyLine::WatchOpenings() {
  watch_ = Descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
  const bool watching =
      watch_.Open() && ::inotify_add_watch(watch_.Get(), path_.c_str(), IN_OPEN | IN_CLOSE) >= 0;
  if (!watching) watch_ = Descriptor();
}

PtyLine::~PtyLine() {
  std::error_code ignored;
  if (!link_.empty() && std::filesystem::read_symlink(link_, ignored) == path_)
    std::filesystem::remove(link_, ignored);
}

std::string PtyLine::MakeLink(const std::string& link) {
  const std::filesystem::path place(link);
  std::error_code failure;
  if (place.has_parent_path()) std::filesystem::create_directories(place.parent_path(), failure);
  if (failure) return "cannot make the folder of " + link + ": " + failure.message();
  const auto kind = std::filesystem::symlink_status(place, failure).type();
  if (kind == std::filesystem::file_type::symlink) {
    std::filesystem::remove(place, failure);
  } else if (kind != std::filesystem::file_type::not_found) {
    return "cannot make the link " + link + ": there is already something that is not a link";
  }
  failure.clear();
  std::filesystem::create_symlink(path_, place, failure);
  if (failure) return "cannot make the link " + link + ": " + failure.message();
  link_ = std::filesystem::absolute(place, failure).string();
  return {};
}

bool PtyLine::TakeOpenings() {
  if (!watch_.Open()) return false;
  bool left = false;
  alignas(inotify_event) std::array<char, 4096> events{};
  const ssize_t size = ::read(watch_.Get(), events.data(), events.size());
  for (ssize_t at = 0; at + static_cast<ssize_t>(sizeof(inotify_event)) <= size;) {
    inotify_event event{};
    std::memcpy(&event, events.data() + at, sizeof event);
    at += static_cast<ssize_t>(sizeof event + event.len);
    if ((event.mask & IN_OPEN) != 0) {
      if (holders_++ > 0) continue;
      seen_speed_ = 0;
    } else {
      if (holders_ == 0 || --holders_ > 0) continue;
      left = true;
    }
    ForgetLastHolder();
  }
  return left;
}

void PtyLine::FollowOpenings() {
  const unsigned seen = seen_speed_;
  if (TakeOpenings() && Readable(master_.Get(), 0)) left_speed_ = seen;
}

void PtyLine::ForgetLastHolder() {
  ::tcflush(keeper_.Get(), TCIFLUSH);
  // If a tool ended without closing, the device is still marked as exclusive.
  if (holders_ == 0) ::ioctl(keeper_.Get(), TIOCNXCL);
}

std::string PtyLine::Read() {
  std::array<char, 4096> part{};
  const ssize_t count = ::read(master_.Get(), part.data(), part.size());
  return count <= 0 ? std::string() : std::string(part.data(), static_cast<std::size_t>(count));
}

unsigned PtyLine::Speed() const {
  return TtySpeed(keeper_.Get());
}

bool PtyLine::HolderLeaves() {
  if (holders_ == 0) return true;
  return Readable(watch_.Get(), kClosingMilliseconds) && TakeOpenings();
}

unsigned PtyLine::SpeedOfArrivals() {
  if (left_speed_ != 0) return std::exchange(left_speed_, 0);
  const unsigned seen = seen_speed_;
  const unsigned set = Speed();
  const bool changed = watch_.Open() && seen != 0 && set != seen;
  if (changed && HolderLeaves()) return seen;
  seen_speed_ = set;
  return set;
}

bool PtyLine::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(master_.Get(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace unit
