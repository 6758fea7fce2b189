// The rows of the option frames of the register tab: label, control and tool tip.
#pragma once

#include <span>
#include <string_view>

namespace ovl::ui {

enum class Place {
  kBelow,   // begins a line
  kBeside,  // to the right of the row above, in the same line
};

struct FrameRow {
  int frame;
  std::string_view words;    // label or column head; or the name of a label of the form; may be empty
  std::string_view control;  // a list, an option array, a button, or a label that shows a warning
  std::string_view tip;      // what the unit does with the setting; empty for a warning
  int columns = 1;           // of an option array; each column is filled from top to bottom
  Place place = Place::kBelow;
  std::string_view inner = {};  // an inner frame; the row shows only while this frame is visible too
};

// The rows of one frame, in reading order; empty for a number that has no frame.
std::span<const FrameRow> RowsOfFrame(int frame);

// The tip of a control of the main form, or of the array that it belongs to. Empty for a control that is in
// no option frame.
std::string_view FrameTipOf(std::string_view control);

}  // namespace ovl::ui
