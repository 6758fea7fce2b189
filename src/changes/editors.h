// Which controls edit which field.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/application.h"
#include "core/editor.h"
#include "phrases/phrases.h"

namespace ovl::changes {

// All controls that edit a field, in the order of `core::Place`.
std::span<const core::Editor> Editors();

// The caption of a control without blanks at both ends and without a colon.
phrases::Words PlainCaption(const controls::ControlRef& control);

// The caption of the tab or window, such as "COMMUNICATION".
phrases::Words PlaceName(const core::Application& app, core::Place place);

// The captions of the controls that edit the field, such as "COMMUNICATION: PARITY, DATA BITS"; empty if no
// control edits it. `options` is the word for the options of a register. Throws std::logic_error if a control
// or its caption is missing.
std::string EditedBy(const core::Application& app, image::FieldId field, std::string_view options);

}  // namespace ovl::changes
