// The seven tabs of the main form, each laid out by the names of its controls.
#pragma once

#include <array>

#include "shell/bindings.h"

class QWidget;

namespace ovl {

using PageBuilder = QWidget* (*)(Bindings& bindings);

// In the order of the tabs. Whoever places a page owns it.
extern const std::array<PageBuilder, 7> kPages;

// The centre of the program: the link to the unit and what is done over it.
QWidget* BuildRemotePage(Bindings& bindings);

}  // namespace ovl
