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

namespace ovl::host {

class SettingsStore {
 public:
  // A folder that is given takes the place of the machine's: the store is then the INI file
  // "ORB/OVL Software.conf" below it.
  explicit SettingsStore(QString folder = {});

  // Nothing if the store holds no such value or can't be read, if its file holds what is neither text nor
  // number, or if the text has characters that the program's texts lack.
  std::optional<core::SettingValue> Read(std::string_view key, std::string_view value) const;

  // False if the store can't be written. A file that holds what is neither text nor number is put aside
  // first, under the ending ".unsound".
  bool Write(std::string_view key, std::string_view value, std::string_view text) const;

  // After a Read without a value, after a Write that failed: "PATH: Permission denied".
  std::string WhyNotRead() const;
  std::string WhyNotWritten() const;

 private:
  // Empty where the toolkit keeps no file.
  QString Path() const;
  bool IsSound() const;
  std::unique_ptr<QSettings> Open() const;

  QString folder_;
};

}  // namespace ovl::host
