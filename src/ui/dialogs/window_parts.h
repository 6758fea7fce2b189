// What the small windows have in common: margins and push buttons.
#pragma once

#include <string_view>

#include "ui/kit/bindings.h"
#include "ui/kit/theme.h"

class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace ovl::ui {

// The layout of a window, from top to bottom.
QVBoxLayout* WindowLayout(QWidget& window, int spacing = kSectionGap);

// The button for a control of the form, with the least width of a button.
QPushButton* MakePushButton(Bindings& bindings, const controls::Form& form, std::string_view name);

// The row of buttons at the bottom of a window: the default button at the right and, if there is one, another
// button at the left.
QHBoxLayout* MakeButtonRow(Bindings& bindings, const controls::Form& form, std::string_view default_name,
                           std::string_view left_name = {});

}  // namespace ovl::ui
