// Every firmware of the menu, and tables whose rows are text.
#pragma once

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "firmware/firmware_id.h"
#include "firmware/firmware_table.h"
#include "image/config_image.h"

namespace ovl::testing {

using F = image::FieldId;

inline const firmware::FirmwareId kLatest{"V1400", "R12"};

inline std::vector<firmware::FirmwareId> EveryFirmware() {
  std::vector<firmware::FirmwareId> firmware;
  for (const auto& entry : firmware::FirmwareTable()) {
    if (entry.in_menu) firmware.push_back({std::string(entry.version), std::string(entry.release)});
  }
  return firmware;
}

inline std::vector<std::string> Split(const std::string& text, char separator) {
  std::istringstream stream(text);
  std::vector<std::string> parts;
  for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
  return parts;
}

// A table's text begins with the firmware that its rows are about: "V1400R12|...".
inline std::pair<firmware::FirmwareId, std::vector<std::string>> FirmwareAndRows(const std::string& text,
                                                                                 char separator) {
  const auto parts = Split(text, separator);
  return {{parts[0].substr(0, 5), parts[0].substr(5)}, {parts.begin() + 1, parts.end()}};
}

// The name of a register, which may have blanks in it, and the last two words of the row.
inline std::vector<std::string> NameAndTwoWords(const std::string& row) {
  const auto last = row.rfind(' '), first = row.rfind(' ', last - 1);
  return {row.substr(0, first), row.substr(first + 1, last - first - 1), row.substr(last + 1)};
}

}  // namespace ovl::testing
