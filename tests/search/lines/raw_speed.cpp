#include "raw_speed.h"

// The kernel's declarations of a terminal. They conflict with those of the C library.
#include <asm/termbits.h>
#include <sys/ioctl.h>

namespace ovl::testing {

void SetRawSpeed(int terminal, unsigned bits_a_second) {
  struct termios2 settings {};
  if (::ioctl(terminal, TCGETS2, &settings) != 0) return;
  settings.c_iflag = 0;
  settings.c_oflag = 0;
  settings.c_lflag = 0;
  settings.c_cflag = BOTHER | CREAD | CLOCAL | CS8;
  settings.c_ispeed = settings.c_ospeed = bits_a_second;
  ::ioctl(terminal, TCSETS2, &settings);
}

}  // namespace ovl::testing
