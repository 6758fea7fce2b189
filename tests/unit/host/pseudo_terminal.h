// A serial line without a device.
#pragma once

#include <asm/termbits.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace ovl {

// What the driver of a line answers instead of what a pseudo-terminal answers.
struct Driver {
  tcflag_t asked_flags = 0;  // those of the last settings that it was given
  std::optional<int> waiting_characters;
  std::optional<unsigned> speed;
};
extern Driver driver;

// The master of a pseudo-terminal plays the unit.
class PseudoTerminal {
 public:
  PseudoTerminal() : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
    EXPECT_TRUE(::grantpt(master_) == 0 && ::unlockpt(master_) == 0);
    device_ = ::ptsname(master_);
  }
  ~PseudoTerminal() { HangUp(); }
  PseudoTerminal(PseudoTerminal&&) = delete;

  const std::string& Device() const { return device_; }
  void HangUp() { ::close(std::exchange(master_, -1)); }

  void Send(std::string_view bytes) const {
    EXPECT_EQ(::write(master_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  // A pseudo-terminal has no parity errors. When its driver marks none, the test can send the marks itself.
  void SendRaw(std::string_view bytes) const {
    auto settings = Settings();
    settings.c_iflag &= ~static_cast<tcflag_t>(PARMRK);
    EXPECT_EQ(::ioctl(master_, TCSETS2, &settings), 0);
    Send(bytes);
  }
  std::string Receive() const {
    std::array<char, 4096> bytes = {};
    const auto count = ::read(master_, bytes.data(), bytes.size());
    return count > 0 ? std::string(bytes.data(), static_cast<std::size_t>(count)) : std::string();
  }

  unsigned Speed() const { return Settings().c_ospeed; }
  bool MarksParityErrors() const {
    return (Settings().c_iflag & (PARMRK | INPCK | IGNPAR)) == (PARMRK | INPCK);
  }

 private:
  struct termios2 Settings() const {
    struct termios2 settings {};
    EXPECT_EQ(::ioctl(master_, TCGETS2, &settings), 0);
    return settings;
  }

  int master_;
  std::string device_;
};

}  // namespace ovl
