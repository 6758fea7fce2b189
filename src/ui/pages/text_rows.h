// What the panels around a stored text have in common: the text as it stands, and the button that opens its
// dialog.
#pragma once

#include "ui/kit/layout.h"

namespace ovl::ui {

// A stored text and the button for it take so much of a row together.
inline constexpr int kStoredTextWidth = 220;
inline constexpr int kSetButtonWidth = 150;

// A read-only text that shows its beginning, under its own caption, and beside it or below it the button.
enum class ButtonPlace { kBeside, kBelow };
void AddTextRow(Bindings& bindings, PageColumn& column, const char* name, const char* button,
                ButtonPlace place);

// The title of the picture, on the panel of time and date.
void AddTitleRows(Bindings& bindings, PageColumn& column);

// What the widest of the captions takes as a label, whichever of its letters is underlined.
int CaptionWidth(std::initializer_list<const controls::ControlState*> faces);

// An overview at the left and the editor, which scrolls up and down by itself, at the right.
QWidget* BesideOverview(Bindings& bindings, QWidget* overview, QScrollArea* editor);

}  // namespace ovl::ui
