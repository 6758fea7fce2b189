#include "host/system/display.h"

namespace ovl::host {

bool DisplayHasName() {
  return false;
}

}  // namespace ovl::host
