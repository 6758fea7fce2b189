#pragma once

#include <span>
#include <string_view>

namespace unit {

// Bytes of memory that one record carries.
inline constexpr unsigned kRecordBytes = 32;
inline constexpr unsigned kRecordDigits = 2 * kRecordBytes;

// The part of the unit's memory that holds its configuration.
struct Region {
  unsigned first;             // address of the first record
  unsigned last;              // address of the last record
  unsigned last_digits;       // hexadecimal digits of the last record, 2 to 64
  unsigned tolerated_digits;  // digits beyond the last that a tool may send; the unit drops them

  constexpr unsigned Records() const { return (last - first) / kRecordBytes + 1; }
  constexpr unsigned Digits() const { return (Records() - 1) * kRecordDigits + last_digits; }
};

// How the configuration is laid out inside the region.
enum class Layout { kEarly, kEarlyWithAlarmModes, kLate, kLateWithRts, kOldWithoutNetwork, kOld, kNew };

struct Firmware {
  std::string_view name;  // family and release, "V1400R12"
  Layout layout;
  std::string_view rs232;  // code of the plain RS-232 interface, two digits
  std::string_view demo;   // demonstration byte with the demonstration off, two digits
};

// All firmware that a unit can run.
std::span<const Firmware> AllFirmware();

// The firmware of exactly that name, or null.
const Firmware* FindFirmware(std::string_view name);

const Region& RegionOf(const Firmware& firmware);

}  // namespace unit
