// The tool tips of the controls: what the unit does with each setting.
#pragma once

#include <QString>
#include <string_view>

namespace ovl::ui {

// Empty for a control that explains itself. A member of an array without a tip of its own has the tip of the
// array.
QString ToolTipOf(std::string_view form, std::string_view control);

}  // namespace ovl::ui
