#include "host/system/display.h"

namespace ovl::host {

bool DisplayHasName() {
  return true;
}

}  // namespace ovl::host
