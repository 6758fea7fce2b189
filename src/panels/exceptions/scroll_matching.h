// Whether a match can span several lines, and the timeout for it.
#pragma once

#include "core/application.h"
#include "core/editor.h"

namespace ovl::panels {

void ApplyScrollMatching(core::Application& app);
void ComboScroll_Click(core::Application& app, int index);

std::span<const core::Editor> ScrollMatchingEditors();

}  // namespace ovl::panels
