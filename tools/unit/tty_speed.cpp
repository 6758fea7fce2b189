#include "unit/tty_speed.h"

// The kernel's declarations of a terminal. They conflict with those of the C library.
#include <asm/termbits.h>
#include <sys/ioctl.h>

namespace unit {

unsigned TtySpeed(int descriptor) {
  termios2 settings{};
  if (::ioctl(descriptor, TCGETS2, &settings) != 0) return 0;
  return settings.c_ospeed;
}

}  // namespace unit
