#include "host/system/settings_place.h"

namespace ovl::host {

QString MachineSettingsFile(const QString&) {
  return {};
}

}  // namespace ovl::host
