// What stands in the 54 option frames of the register tab, line by line.
#pragma once

#include <span>
#include <string_view>

namespace ovl::ui {

enum class Place {
  kBelow,   // begins a line
  kBeside,  // stands to the right of the row above, in the same line
};

struct FrameRow {
  int frame;
  std::string_view words;    // label or column head; or the name of a label of the form; may be empty
  std::string_view control;  // a list, an option array, a button, or a label that warns
  int columns = 1;           // of an option array, filled downwards
  Place place = Place::kBelow;
  std::string_view inner = {};  // a frame inside, which must be visible as well
};

// The rows of one frame, in reading order; none for a number that has no frame.
std::span<const FrameRow> RowsOfFrame(int frame);

}  // namespace ovl::ui
