// The table of all fields: name, section, layouts and releases that have it, width, and whether the default
// image of a register sets it. Every reader and writer goes through this table in order.
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

// The layouts that have a field, as bits.
using LayoutSet = unsigned;
constexpr LayoutSet Bit(firmware::Layout layout) {
  return 1U << static_cast<unsigned>(layout);
}
inline constexpr LayoutSet kV1400 = Bit(firmware::Layout::kEarlyV1400) | Bit(firmware::Layout::kLateV1400);
inline constexpr LayoutSet kV13 = Bit(firmware::Layout::kOldV13) | Bit(firmware::Layout::kNewV13);
inline constexpr LayoutSet kEvery = kV1400 | kV13;
inline constexpr LayoutSet kLate = Bit(firmware::Layout::kLateV1400);
inline constexpr LayoutSet kExtended = kLate | Bit(firmware::Layout::kNewV13);

// In these layouts, releases before this one do not have the field. With `readers_only` that holds only for
// reading: the field is written in any case.
struct Since {
  LayoutSet layouts = 0;
  int release = 0;
  bool readers_only = false;
};

// The number of hexadecimal digits of an entry.
struct Width {
  std::int16_t digits = 2;  // in the V1400 layouts
  std::int16_t digits_v13 = digits;
};

struct FieldRow {
  FieldId id;
  std::string_view name;
  Section section;
  LayoutSet layouts;
  bool is_default;  // the default image of a register sets it
  Width width = {};
  Capability capability = Capability::kNone;
  std::string_view sentinel = {};  // what the field holds if the firmware lacks the capability
  Since since = {};
};

std::span<const FieldRow> FieldTable();
const FieldRow* FindField(std::string_view name);
// In constant time, for every field is in the table.
const FieldRow& RowOf(FieldId field);

int DigitsOf(const FieldRow& row, firmware::Layout layout);
bool HasCapability(const firmware::Capabilities& capabilities, Capability capability);

// Whether a stream of this firmware contains the field. The layout is a separate parameter, because saved
// files can have another layout than the firmware.
bool InStream(const FieldRow& row, firmware::Layout layout, const firmware::FirmwareId& firmware,
              const firmware::Capabilities& capabilities, Direction direction);

// The three sections of an image, as hexadecimal digits.
struct Sections {
  std::string SYSCFG, SYSFIXED, SYSSTR;
};

enum class Scope {
  kWhole,
  kRegisterDefault,  // only the fields marked as defaults
};

// Fields that the layout lacks keep their content, except those that every load sets.
void ReadSections(const Sections& sections, const firmware::FirmwareId& firmware,
                  const firmware::Capabilities& capabilities, Scope scope, ConfigImage& image);

// Gives the fields that need a missing capability their sentinel. A stream is composed after this.
void MarkMissingFields(ConfigImage& image, const firmware::Capabilities& capabilities);

// The fields in the given layout. The V13xx layouts have fixed section lengths, which are filled with zeros.
Sections WriteSections(const ConfigImage& image, firmware::Layout layout,
                       const firmware::FirmwareId& firmware, const firmware::Capabilities& capabilities);

}  // namespace ovl::image
