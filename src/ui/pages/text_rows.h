// What the panels with a stored text share: the text, and the button that opens its dialog.
#pragma once

#include "ui/kit/layout.h"

namespace ovl::ui {

// The widths of a stored text and of its button in a row.
inline constexpr Em kStoredTextWidth(18.33);
inline constexpr Em kSetButtonWidth(12.5);

// Gives a button beside a text the width of the others, or that of its caption.
void WidenSetButton(QWidget& button);

// Adds a read-only text that shows its beginning, with its own caption, and the button beside it or below it.
enum class ButtonPlace { kBeside, kBelow };
void AddTextRow(Bindings& bindings, PageColumn& column, const char* name, const char* button,
                ButtonPlace place);

// A widget that only shows a value opens the window of the value like its button: with a click, Enter or
// Space.
void OpenWithButton(Bindings& bindings, QWidget& shown, controls::Button& button);

// The title that the unit shows in the picture, on the panel of time and date.
void AddTitleRows(Bindings& bindings, PageColumn& column);

// The width of the widest of these captions as a label, whichever of its letters is underlined.
int CaptionWidth(std::initializer_list<const controls::ControlState*> states);

// An overview at the left and the editor at the right; the editor scrolls vertically by itself.
QWidget* OverviewWithEditor(Bindings& bindings, QWidget* overview, QScrollArea* editor);

}  // namespace ovl::ui
