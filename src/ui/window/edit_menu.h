// The Edit menu: undo and redo with the name of the act.
#pragma once

#include "ui/kit/bindings.h"
#include "ui/window/own_acts.h"

class QMenuBar;

namespace ovl::ui {

QMenu* BuildEditMenu(QMenuBar& bar, Bindings& bindings, const OwnActs& acts);

}  // namespace ovl::ui
