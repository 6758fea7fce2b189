// The exception slots: the patterns that the unit looks for, and what it does when one matches.
#pragma once

#include "core/application.h"
#include "core/editor.h"

namespace ovl::panels {

void ApplyExceptionPanel(core::Application& app);

// Shows a slot, 1 to 24, on the panel. Lists that change run their clicks. A slot that another tool has
// written can therefore change when it is shown.
void LoadExceptionSlot(core::Application& app, int number);

void ComboExcp_Click(core::Application& app, int index);
void TextException_Change(core::Application& app, int index);
void cmdSetExcpstr_Click(core::Application& app, int index);

// The slot on the panel; null if none is selected yet.
std::string* ShownSlot(core::Application& app);

// The character between integer and decimal digits on the printout of the register.
const char* DecimalSeparator(const core::Application& app);

std::span<const core::Editor> ExceptionEditors();

}  // namespace ovl::panels
