// All firmware that the program serves, in the order of the Version menu.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "firmware/firmware_id.h"

namespace ovl::firmware {

struct FirmwareEntry {
  std::string_view version;
  std::string_view release;
  bool in_menu;

  FirmwareId Id() const { return {std::string(version), std::string(release)}; }
};

// In menu order. The last one is not in the menu; only the settings store can select it.
std::span<const FirmwareEntry> FirmwareTable();

// The firmware of the table with this name, "V1400R12" or "V1400 R12". Nothing for another name.
std::optional<FirmwareId> FindFirmware(std::string_view name);

// The firmware with this joined name, such as "V1400R12", as the program serves it.
FirmwareId ServedFirmware(std::string_view joined);

}  // namespace ovl::firmware
