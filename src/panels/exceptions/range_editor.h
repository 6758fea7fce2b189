// The range test of an exception: two decimal numbers, stored digit by digit.
#pragma once

#include "core/application.h"
#include "core/editor.h"

namespace ovl::panels {

void cmdSetRange_Click(core::Application& app, int index);

void frmSetRange_Load(core::Application& app, int index);
void frmSetRange_Unload(core::Application& app, int index);
void RangeField_Leave(core::Application& app, int index);
void ComboDec_Click(core::Application& app, int index);
void RangeClear_Click(core::Application& app, int index);
void RangeSet_Click(core::Application& app, int index);

std::span<const core::Editor> RangeEditors();

}  // namespace ovl::panels
