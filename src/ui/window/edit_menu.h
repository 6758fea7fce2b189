// The Edit menu: undo and redo with the name of the act.
#pragma once

#include <functional>

#include "acts/act_history.h"
#include "ui/kit/bindings.h"

class QMenuBar;

namespace ovl::ui {

// How the window takes acts back. Both functions update the screen.
struct UndoActs {
  acts::ActHistory* history = nullptr;  // lives as long as the window
  std::function<void()> undo, redo;
};

QMenu* BuildEditMenu(QMenuBar& bar, Bindings& bindings, const UndoActs& acts);

}  // namespace ovl::ui
