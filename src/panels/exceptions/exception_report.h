// The report options for all exceptions together.
#pragma once

#include "core/application.h"
#include "core/editor.h"

namespace ovl::panels {

void ApplyTimeStamp(core::Application& app);
void ApplyDuplicateLine(core::Application& app);
void ComboExcepRe_Click(core::Application& app, int index);

std::span<const core::Editor> ExceptionReportEditors();

}  // namespace ovl::panels
