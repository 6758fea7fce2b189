// Who edits which field: the lists and texts of the form that store it.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/application.h"

namespace ovl {

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

struct Editor {
  FieldId field;
  Place place;
  std::string_view controls;  // names of controls, blanks between them; none: an option of the register
  int bits = 0xFF;            // of a single byte, those that the controls store
};

// The captions under which a person finds the field, such as "COMMUNICATION: PARITY, DATA BITS"; of a single
// byte only those that store one of the bits. Empty if no control edits it. `options` stands for the options
// of a register. A control that is not there is a `std::logic_error`.
std::string EditedBy(const Application& app, FieldId field, std::string_view options, int bits = 0xFF);

// Fields that no control edits: read, kept and written back.
std::span<const FieldId> CarriedThrough();

}  // namespace ovl
