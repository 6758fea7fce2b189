// Which control stores which field. Each panel and the register options list theirs beside their handlers.
#pragma once

#include <span>
#include <string_view>

#include "image/config_image.h"

namespace ovl::core {

// Where a control is, in the order of the tabs. The last two are windows.
enum class Place {
  kRegister,
  kText,
  kAlarmOutputs,
  kCommunication,
  kExceptionReport,
  kTime,
  kRemote,
  kRange,
  kMicros
};

// The part of a record that a control stores.
enum class Part { kAll, kFirstByte, kDuration, kVideoLoss, kRange, kText };

// How to find the list entry for a stored value.
enum class ValueDisplay {
  kNothing,
  kPicked,    // the selected entry
  kSetIsOn,   // the second entry if the bit is set
  kSetIsOff,  // the first entry if the bit is set
  kParity
};

inline constexpr int kWholeByte = 0xFF;

struct Editor {
  image::FieldId field;
  Place place;
  std::string_view controls;  // names, with blanks between them; empty for an option of the register
  int bits = kWholeByte;      // the bits of the first byte that the controls store
  ValueDisplay display = ValueDisplay::kNothing;
  Part part = Part::kAll;
};

}  // namespace ovl::core
