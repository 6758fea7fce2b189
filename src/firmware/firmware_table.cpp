#include "firmware/firmware_table.h"

#include <algorithm>

#include "firmware/traits.h"

namespace ovl::firmware {
namespace {

constexpr auto kFirmware = std::to_array<FirmwareEntry>({
    {"V1400", "R1", true},  {"V1400", "R2", true},  {"V1400", "R4", true},  {"V1400", "R6", true},
    {"V1400", "R7", true},  {"V1400", "R11", true}, {"V1400", "R12", true}, {"V1300", "R14", true},
    {"V1300", "R15", true}, {"V1300", "R16", true}, {"V1300", "R17", true}, {"V1300", "R18", true},
    {"V1300", "R19", true}, {"V1300", "R20", true}, {"V1300", "R21", true}, {"V1300", "R23", true},
    {"V1300", "R26", true}, {"V1300", "R27", true}, {"V1324", "R17", true}, {"V1324", "R18", true},
    {"V1324", "R19", true}, {"V1324", "R20", true}, {"V1324", "R21", true}, {"V1324", "R23", true},
    {"V1324", "R24", true}, {"V1324", "R25", true}, {"V1324", "R26", true}, {"V1310", "R1", true},
    {"V1334", "R1", true},  {"V1410", "R1", false},
});

}  // namespace

std::span<const FirmwareEntry> FirmwareTable() {
  return kFirmware;
}

std::optional<FirmwareId> FindFirmware(std::string_view name) {
  std::string joined(name);
  joined.erase(std::remove(joined.begin(), joined.end(), ' '), joined.end());
  const auto found = std::find_if(kFirmware.begin(), kFirmware.end(),
                                  [&](const FirmwareEntry& entry) { return entry.Id().Joined() == joined; });
  return found == kFirmware.end() ? std::nullopt : std::optional(found->Id());
}

FirmwareId ServedFirmware(std::string_view joined) {
  const auto release = std::min(joined.rfind('R'), joined.size());
  const FirmwareId named{std::string(joined.substr(0, release)), std::string(joined.substr(release))};
  return IsCompact(named) ? ServedAs(named) : named;
}

}  // namespace ovl::firmware
