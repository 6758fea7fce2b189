// The settings store: the machine-wide settings of the program. On Windows that is the registry key of the
// same name, elsewhere an INI file of the system's settings folder.
#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/platform.h"

class QSettings;

namespace ovl {

class SettingsStore {
 public:
  // A folder that is given takes the place of the machine's: the store is then the INI file
  // "ORB/OVL Software.conf" below it.
  explicit SettingsStore(QString folder = {});

  // Nothing if the store holds no such value or can't be read, or if the text has characters that the
  // program's texts lack. An INI file holds texts only, the registry also numbers.
  std::optional<SettingValue> Read(std::string_view key, std::string_view value) const;

  // False if the store can't be written.
  bool Write(std::string_view key, std::string_view value, std::string_view text) const;

  // After a Read without a value, after a Write that failed: "PATH: Permission denied".
  std::string WhyNotRead() const;
  std::string WhyNotWritten() const;

 private:
  // Empty where the toolkit keeps no file.
  QString Path() const;
  std::unique_ptr<QSettings> Open() const;

  QString folder_;
};

}  // namespace ovl
