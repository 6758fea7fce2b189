// The numeric test of an exception: two fixed-point values, stored digit by digit.
#pragma once

#include "core/application.h"

namespace ovl {

void cmdSetRange_Click(Application& app, int index);

void frmSetRange_Load(Application& app, int index);
void frmSetRange_Unload(Application& app, int index);
void RangeField_Leave(Application& app, int index);
void ComboDec_Click(Application& app, int index);
void RangeClear_Click(Application& app, int index);
void RangeSet_Click(Application& app, int index);

}  // namespace ovl
