#include "host/system/settings_place.h"

#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QStandardPaths>

namespace ovl::host {

// A desktop puts places of its own ahead of the system's, and QSettings looks only into the first place.
QString MachineSettingsFile(const QString& name) {
  const auto places = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
  for (const auto& place : places.mid(1)) {
    const auto path = QDir(place).filePath(name);
    if (QFile::exists(path)) return path;
  }
  return QDir(QLibraryInfo::path(QLibraryInfo::SettingsPath)).filePath(name);
}

}  // namespace ovl::host
