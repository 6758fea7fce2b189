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
  // With a folder, the store is the INI file "ORB/OVL Software.conf" below it instead of the machine's.
  explicit SettingsStore(QString folder = {});

  // Nothing if the store lacks the value or cannot be read, if its file holds a value that is neither text
  // nor number, or if the text has characters outside Windows-1252.
  std::optional<core::SettingValue> Read(std::string_view key, std::string_view value) const;

  // A file with a value that is neither text nor number is renamed first, with the ending ".unsound".
  core::Result Write(std::string_view key, std::string_view value, std::string_view text) const;

  // The reason for a Read without a value: "PATH: Permission denied".
  std::string WhyNotRead() const;

 private:
  // Empty where QSettings keeps no file.
  QString Path() const;
  bool IsSound() const;
  core::Failure WriteFailure() const;
  std::unique_ptr<QSettings> Open() const;

  QString folder_;
};

}  // namespace ovl::host
