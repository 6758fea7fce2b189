#include "platform/pseudo_terminal.h"

#include <asm/termbits.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace ovl {
namespace {

struct termios2 Settings(int descriptor) {
  struct termios2 settings {};
  EXPECT_EQ(::ioctl(descriptor, TCGETS2, &settings), 0);
  return settings;
}

}  // namespace

PseudoTerminal::PseudoTerminal() : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
  std::array<char, 64> name = {};
  EXPECT_EQ(::grantpt(master_), 0);
  EXPECT_EQ(::unlockpt(master_), 0);
  EXPECT_EQ(::ptsname_r(master_, name.data(), name.size()), 0);
  device_ = name.data();
}

PseudoTerminal::~PseudoTerminal() {
  HangUp();
}

void PseudoTerminal::HangUp() {
  if (master_ >= 0) ::close(master_);
  master_ = -1;
}

void PseudoTerminal::Send(std::string_view bytes) const {
  EXPECT_EQ(::write(master_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
}

void PseudoTerminal::SendRaw(std::string_view bytes) const {
  auto settings = Settings(master_);
  settings.c_iflag &= ~static_cast<tcflag_t>(PARMRK);
  EXPECT_EQ(::ioctl(master_, TCSETS2, &settings), 0);
  Send(bytes);
}

std::string PseudoTerminal::Receive() const {
  std::array<char, 4096> bytes = {};
  const auto count = ::read(master_, bytes.data(), bytes.size());
  return count > 0 ? std::string(bytes.data(), static_cast<std::size_t>(count)) : std::string();
}

unsigned PseudoTerminal::Speed() const {
  return Settings(master_).c_ospeed;
}

bool PseudoTerminal::MarksParityErrors() const {
  const auto flags = Settings(master_).c_iflag;
  return (flags & PARMRK) != 0 && (flags & INPCK) != 0 && (flags & IGNPAR) == 0;
}

}  // namespace ovl
