// What a screen reader learns of some controls.
#pragma once

namespace ovl::ui {

// On some systems Qt calls a drop-down list by its current entry, unless its label has the same parent. It
// calls a round button a check box if it does not exclude others by itself. With this, a list has its
// accessible name and a round button its role. May be called any number of times.
void UseSpokenControls();

}  // namespace ovl::ui
