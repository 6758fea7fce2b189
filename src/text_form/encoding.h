// What the entries of a control store, found out by picking them.
#pragma once

#include <string>
#include <vector>

#include "changes/preview_program.h"
#include "text_form/settings.h"

namespace ovl::text_form {

// An image of which every field has this digit.
image::ConfigImage FilledImage(const firmware::FirmwareId& firmware, char digit);

// The captions of the entries of a list or an option array, empty for an element that is hidden; OFF and ON
// for a check box.
std::vector<std::string> EntriesOf(const changes::PreviewProgram& program, std::string_view control);

struct Picked {
  std::vector<FieldPart> parts;                  // without the bits that a pick does not decide
  std::vector<std::vector<std::string>> stored;  // by entry and part
};

// Picks each entry in an image of zeros and in one of ones. Bits that then differ are not those of the
// control. Without any part: the control stores nothing there.
Picked PickEach(changes::PreviewProgram& program, std::string_view control, std::vector<FieldPart> parts,
                const image::ConfigImage& zeros, const image::ConfigImage& ones);

}  // namespace ovl::text_form
