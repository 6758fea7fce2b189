// Who edits which field: the lists and texts of the form that store it.
#pragma once

#include <span>
#include <string_view>

#include "core/config_image.h"

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
};

std::span<const Editor> Editors();

// Fields that no control edits: read, kept and written back.
std::span<const FieldId> CarriedThrough();

}  // namespace ovl
