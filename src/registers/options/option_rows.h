// The rows of the option frames on the register tab: label, control, tool tip, and the fields that the
// control shows. The windows, the tool tips and the list of changes read this table.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "controls/forms/register_options.h"
#include "image/config_image.h"

namespace ovl::registers {

template <image::FieldId... ids>
inline constexpr std::array kFields = {ids...};

// Of a control that shows no stored value.
inline constexpr std::span<const image::FieldId> kNoField;

struct OptionRow {
  controls::OptionFrame frame;
  std::string_view label;    // or column head; or the name of a label of the form; may be empty
  std::string_view control;  // a list, an option array, a button, or a label that shows a warning
  std::string_view tip;      // what the unit does with the setting; empty for a warning
  std::span<const image::FieldId> fields = kFields<image::FieldId::REGTYPE_MINOR>;  // that it shows
  int entry = 1;                      // of a field with several entries
  int bits = 0xFF;                    // of the first field
  std::string_view label_alone = {};  // names the row where its neighbours do not show; empty: `label`
  std::string_view inner = {};        // an inner frame; the row shows only while this frame is visible too
  int columns = 1;                    // of an option array; each column is filled from top to bottom
  bool beside = false;                // to the right of the row above, in the same line

  // Whether it shows the field, in the entry given.
  bool Shows(image::FieldId field, int of_entry) const;

  // The label that names the row alone. Empty: the caption of the control.
  std::string_view LabelAlone() const { return label_alone.empty() ? label : label_alone; }
};

// In the order of the frames, and in reading order within a frame.
std::span<const OptionRow> OptionRows();

// The rows of one frame; empty for a frame without rows.
std::span<const OptionRow> RowsOfFrame(controls::OptionFrame frame);

// The row of a control of the main form, or of the array that it belongs to. Null for a control that is in no
// option frame.
const OptionRow* FindOptionRow(std::string_view control);

}  // namespace ovl::registers
