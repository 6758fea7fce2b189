// The seven tabs of the main form, each laid out by the names of its controls.
#pragma once

#include <vector>

#include "shell/bindings.h"

class QWidget;

namespace ovl {

// In the order of the tabs.
std::vector<QWidget*> BuildPages(Bindings& bindings);

// The centre of the program: the link to the unit and what is done over it.
QWidget* BuildRemotePage(Bindings& bindings);

}  // namespace ovl
