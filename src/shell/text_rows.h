// What the panels around a stored text have in common: the text as it stands, and the button that opens its
// dialog.
#pragma once

#include "shell/layout.h"

namespace ovl {

// A read-only text that shows its beginning, under its own caption.
void AddTextRow(Bindings& bindings, PageColumn& column, const char* name);

// A button of the main form at the right end of a row of its own.
void AddSetButton(Bindings& bindings, PageColumn& column, const char* name);

// The title of the picture, on the panel of time and date.
void AddTitleRows(Bindings& bindings, PageColumn& column);

// The widest of the captions, as a label shows it.
int CaptionWidth(std::initializer_list<const Face*> faces);

// An overview at the left and the editor, which scrolls by itself, at the right.
QWidget* BesideOverview(QWidget* overview, QWidget* editor);

}  // namespace ovl
