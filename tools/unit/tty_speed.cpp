#include "unit/tty_speed.h"

// The kernel's own view of a terminal; it cannot be included beside the C library's.
#include <asm/termbits.h>
#include <sys/ioctl.h>

namespace unit {

unsigned TtySpeed(int descriptor) {
  termios2 settings{};
  if (::ioctl(descriptor, TCGETS2, &settings) != 0) return 0;
  return settings.c_ospeed;
}

}  // namespace unit
