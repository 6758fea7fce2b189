// The controls of the register options: the frame in which they are, their labels and the fields that they
// show.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "changes/shadow_program.h"
#include "controls/forms/register_options.h"
#include "image/config_image.h"

namespace ovl::changes {

struct OptionControl {
  controls::OptionFrame frame;  // kNone: a window of its own
  std::string_view name;
  std::string_view label;  // empty: the caption of the control
  std::string_view inner;  // the control shows only while this frame is visible too; may be empty
  std::array<image::FieldId, 3> fields;
  int bits = 0xFF;  // of the first field
  int entry = 1;    // of a field with several entries

  bool Shows(image::FieldId field, int of_entry) const;
};

std::span<const OptionControl> OptionControls();

// Whether the options of the register have the control on the screen, and what it shows then.
std::optional<std::string> OptionWords(const ShadowProgram& program, const OptionControl& option);

}  // namespace ovl::changes
