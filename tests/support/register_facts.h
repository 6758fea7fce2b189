// What the tests know about registers and their option frames, written down apart from the tables of the
// program. A new register or option frame changes register_facts.cpp only.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "firmware/firmware_id.h"
#include "image/config_image.h"

namespace ovl::testing {

// The registers in the list of a firmware.
std::size_t NumberOfRegisters(const firmware::FirmwareId& firmware);

// The number and the title of the option frame that a register shows when it is picked. Empty: the register
// has no options under this firmware.
std::string FrameOf(const firmware::FirmwareId& firmware, std::string_view register_name);

// A register that shows the control, for the tests of the control.
struct Example {
  firmware::FirmwareId firmware;
  std::string register_name;  // empty: only some models show the control
  // The number of choices, where a pick stores its position in the first field and does nothing else.
  int plain_choices = 0;
};

struct OptionControl {
  int frame;  // that it is in, or kNoFrame
  std::string name;
  std::vector<image::FieldId> fields = {};  // that it may write; it shows the first
  Example example = {};
  std::string inner_frame = {};  // the control is visible only together with this frame
};

inline constexpr int kNoFrame = -1;

// The same control has several rows where several registers show it.
const std::vector<OptionControl>& OptionControls();

}  // namespace ovl::testing
