// The one table of the fields: name, section, width, which layouts have it and when, whether a register's
// default image sets it. Every reader and writer walks it in order.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "firmware/firmware_id.h"
#include "image/config_image.h"

namespace ovl::image {

enum class Section { kSyscfg, kSysfixed, kSysstr };
enum class Capability { kNone, kAtmInterface, kTcpIp, kTimeFields, kAnsiTerm };
enum class Direction { kRead, kWrite };

// Which layouts hold a field, as bits.
using LayoutSet = unsigned;
constexpr LayoutSet Bit(firmware::Layout layout) {
  return 1U << static_cast<unsigned>(layout);
}
inline constexpr LayoutSet kV1400 = Bit(firmware::Layout::kEarlyV1400) | Bit(firmware::Layout::kLateV1400);
inline constexpr LayoutSet kV13 = Bit(firmware::Layout::kOldV13) | Bit(firmware::Layout::kNewV13);
inline constexpr LayoutSet kEvery = kV1400 | kV13;
inline constexpr LayoutSet kLate = Bit(firmware::Layout::kLateV1400);
inline constexpr LayoutSet kExtended = kLate | Bit(firmware::Layout::kNewV13);

// A layout has the field only from this release on; for readers alone, or for writers too.
struct Since {
  LayoutSet layouts = 0;
  int release = 0;
  bool readers_only = false;
};

// The hexadecimal digits of an entry: a byte, or a record.
struct Width {
  std::int16_t digits = 2;  // in the V1400 layouts
  std::int16_t digits_v13 = digits;
};

struct FieldRow {
  FieldId id;
  std::string_view name;
  Section section;
  LayoutSet layouts;
  bool is_default;  // taken from a register's default image
  Width width = {};
  Capability capability = Capability::kNone;
  std::string_view sentinel = {};  // what the field holds when the capability is missing
  Since since = {};
};

std::span<const FieldRow> FieldTable();
const FieldRow* FindField(std::string_view name);

firmware::Layout LayoutOf(const firmware::FirmwareId& firmware);
int DigitsOf(const FieldRow& row, firmware::Layout layout);
bool HasCapability(const firmware::Capabilities& capabilities, Capability capability);

// What the firmware has.
firmware::Capabilities CapabilitiesOf(const firmware::FirmwareId& firmware);

// Whether a stream of this firmware holds the field. The layout is given apart, since files can be written in
// another one than the firmware's own.
bool InStream(const FieldRow& row, firmware::Layout layout, int release,
              const firmware::Capabilities& capabilities, Direction direction);

// The three sections of an image, as rows of hexadecimal digits.
struct Sections {
  std::string SYSCFG, SYSFIXED, SYSSTR;
};

enum class Scope {
  kWhole,
  kRegisterDefault,  // only the fields marked as defaults
};

// Fields that the layout lacks keep what they held, but for those that every load sets.
void ReadSections(const Sections& sections, const firmware::FirmwareId& firmware,
                  const firmware::Capabilities& capabilities, Scope scope, ConfigImage& image);

// Gives the fields of a missing capability their sentinel, as each composing of a stream does first.
void MarkMissingFields(ConfigImage& image, const firmware::Capabilities& capabilities);

// The fields in the given layout, padded to the section lengths of the V13xx layouts.
Sections WriteSections(const ConfigImage& image, firmware::Layout layout,
                       const firmware::FirmwareId& firmware, const firmware::Capabilities& capabilities);

}  // namespace ovl::image
