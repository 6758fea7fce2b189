// The controls of the register options that show a field, on the frames of the register tab and in the
// windows that their buttons open.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "changes/preview_program.h"
#include "phrases/phrases.h"
#include "registers/options/option_rows.h"

namespace ovl::changes {

// Those of the frames in their order, then those of the windows.
std::vector<const registers::OptionRow*> AllOptions();

// Whether the options of the register have the control on the screen.
bool IsOnScreen(const PreviewProgram& program, const registers::OptionRow& option);

// A row of a window is in the frame kNone, or in the frame whose button opens the window.
std::vector<const registers::OptionRow*> OptionsThatShow(image::FieldId field, int entry);

// Whether the register whose options show has this one, in its frame or in the window of the frame.
bool IsOnScreen(const PreviewProgram& program, const registers::OptionRow& option);

// What the control shows. Nothing if the options of the register do not have it on the screen.
std::optional<phrases::Words> OptionWords(const PreviewProgram& program, const registers::OptionRow& option);

}  // namespace ovl::changes
