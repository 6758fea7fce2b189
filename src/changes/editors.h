// Who edits which field: the lists and texts of the form that store it.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/application.h"

namespace ovl::changes {

// In the order of the form's tabs; the windows of a register stand with their register.
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

// Of a record of several bytes, what a control stores.
enum class Part { kAll, kFirstByte, kDuration, kVideoLoss, kRange, kText };

// How a list tells what a value means, once it is stored.
enum class ValueDisplay {
  kNothing,
  kPicked,    // the entry that is picked
  kSetIsOn,   // the second entry stands for a set bit
  kSetIsOff,  // the first one does
  kParity
};

inline constexpr int kWholeByte = 0xFF;

struct Editor {
  image::FieldId field;
  Place place;
  std::string_view controls;  // names of controls, blanks between them; none: an option of the register
  int bits = kWholeByte;      // of the (first) byte, those that the controls store
  ValueDisplay tells = ValueDisplay::kNothing;
  Part part = Part::kAll;
};

// In the order of the fields; several controls of one field one behind the other.
std::span<const Editor> Editors();

// The captions under which a person finds the field, such as "COMMUNICATION: PARITY, DATA BITS"; with two
// contents only those on the form that store what differs. Empty if no control edits it. `options` stands for
// the options of a register. A control that is not there or has no caption is a `std::logic_error`.
std::string EditedBy(const core::Application& app, image::FieldId field, std::string_view options);
std::string EditedBy(const core::Application& app, image::FieldId field, std::string_view options,
                     std::string_view before, std::string_view after);

// Fields that no control edits: read, kept and written back.
std::span<const image::FieldId> CarriedThrough();

}  // namespace ovl::changes
