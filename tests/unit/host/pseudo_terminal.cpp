#include "pseudo_terminal.h"

#include <sys/syscall.h>

#include <cstdarg>

namespace ovl {

Driver driver;

}  // namespace ovl

// Takes the place of the function of the system in this program and in its libraries.
extern "C" int ioctl(int line, unsigned long request, ...) noexcept {
  std::va_list arguments;
  va_start(arguments, request);
  auto* argument = va_arg(arguments, void*);
  va_end(arguments);
  const auto status = static_cast<int>(::syscall(SYS_ioctl, line, request, argument));
  if (request == TCSETS2) ovl::driver.asked_flags = static_cast<struct termios2*>(argument)->c_cflag;
  if (request == TIOCOUTQ && ovl::driver.waiting_characters)
    *static_cast<int*>(argument) = *ovl::driver.waiting_characters;
  if (request == TCGETS2 && ovl::driver.speed)
    static_cast<struct termios2*>(argument)->c_ospeed = *ovl::driver.speed;
  return status;
}
