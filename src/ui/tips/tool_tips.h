// What the unit does with a setting, told where the pointer rests.
#pragma once

#include <QString>
#include <string_view>

namespace ovl::ui {

// Empty for a control that speaks for itself. Members of an array without a tip of their own have the
// array's.
QString ToolTipOf(std::string_view form, std::string_view control);

}  // namespace ovl::ui
