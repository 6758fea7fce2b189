#include "unit/firmware.h"

#include <array>

namespace unit {
namespace {

constexpr Region kRegionEarly{0x2000, 0x2840, 48, 0};
constexpr Region kRegionEarlyWithAlarmModes{0x2000, 0x2860, 16, 0};
constexpr Region kRegionLate{0x2000, 0x2860, 34, 2};
constexpr Region kRegionLateWithRts{0x2000, 0x2860, 36, 0};
constexpr Region kRegionOld{0x7800, 0x7FE0, 34, 0};
constexpr Region kRegionNew{0x77F0, 0x7FF0, 2, 0};

constexpr auto kFirmware = std::to_array<Firmware>({
    {"V1400R1", Layout::kEarly, "0A", "01"},
    {"V1400R2", Layout::kEarly, "0A", "00"},
    {"V1400R4", Layout::kEarly, "0A", "00"},
    {"V1400R6", Layout::kEarlyWithAlarmModes, "0A", "00"},
    {"V1400R7", Layout::kLate, "0E", "00"},
    {"V1400R11", Layout::kLateWithRts, "0E", "00"},
    {"V1400R12", Layout::kLateWithRts, "0E", "00"},
    {"V1300R14", Layout::kOld, "0A", "01"},
    {"V1300R15", Layout::kOld, "0A", "01"},
    {"V1300R16", Layout::kOld, "0A", "01"},
    {"V1300R17", Layout::kOld, "0A", "01"},
    {"V1300R18", Layout::kOld, "0A", "01"},
    {"V1300R19", Layout::kOld, "0A", "01"},
    {"V1300R20", Layout::kOld, "0A", "01"},
    {"V1300R21", Layout::kOld, "0A", "01"},
    {"V1300R23", Layout::kOld, "0A", "01"},
    {"V1300R26", Layout::kNew, "0E", "01"},
    {"V1300R27", Layout::kNew, "0E", "00"},
    {"V1324R17", Layout::kOldWithoutNetwork, "0A", "01"},
    {"V1324R18", Layout::kOldWithoutNetwork, "0A", "01"},
    {"V1324R19", Layout::kOld, "0A", "01"},
    {"V1324R20", Layout::kOld, "0A", "01"},
    {"V1324R21", Layout::kOld, "0A", "01"},
    {"V1324R23", Layout::kOld, "0A", "01"},
    {"V1324R24", Layout::kOld, "0A", "01"},
    {"V1324R25", Layout::kNew, "0E", "01"},
    {"V1324R26", Layout::kNew, "0E", "00"},
    {"V1310R1", Layout::kNew, "0E", "00"},
    {"V1334R1", Layout::kNew, "0E", "00"},
});

}  // namespace

std::span<const Firmware> AllFirmware() {
  return kFirmware;
}

const Firmware* FindFirmware(std::string_view name) {
  for (const Firmware& firmware : kFirmware) {
    if (firmware.name == name) return &firmware;
  }
  return nullptr;
}

const Region& RegionOf(const Firmware& firmware) {
  switch (firmware.layout) {
    case Layout::kEarly:
      return kRegionEarly;
    case Layout::kEarlyWithAlarmModes:
      return kRegionEarlyWithAlarmModes;
    case Layout::kLate:
      return kRegionLate;
    case Layout::kLateWithRts:
      return kRegionLateWithRts;
    case Layout::kOldWithoutNetwork:
    case Layout::kOld:
      return kRegionOld;
    case Layout::kNew:
      break;
  }
  return kRegionNew;
}

}  // namespace unit
