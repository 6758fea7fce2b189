// Where the operating system keeps settings that hold for all users.
#pragma once

#include <QString>

namespace ovl::host {

// The file of the settings named "ORGANISATION/APPLICATION.conf": the one that exists, or else the one to
// make. Empty if the system keeps settings in no file.
QString MachineSettingsFile(const QString& name);

}  // namespace ovl::host
