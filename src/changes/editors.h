// Which controls edit which field.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/application.h"

namespace ovl::changes {

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

// In the order of the fields. The controls of a field follow each other.
std::span<const Editor> Editors();

// The captions of the controls that edit the field, such as "COMMUNICATION: PARITY, DATA BITS"; empty if no
// control edits it. With two contents, only the visible controls that store a difference between them.
// `options` is the word for the options of a register. Throws std::logic_error if a control or its caption is
// missing.
std::string EditedBy(const core::Application& app, image::FieldId field, std::string_view options);
std::string EditedBy(const core::Application& app, image::FieldId field, std::string_view options,
                     std::string_view before, std::string_view after);

// Fields that no control edits. They are read, kept and written back.
std::span<const image::FieldId> CarriedThrough();

}  // namespace ovl::changes
