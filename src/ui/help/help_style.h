// The style of a help page, on the screen and in print.
#pragma once

#include <QColor>

class QTextDocument;

namespace ovl::ui {

// Draws lines around the cells of tables and sets the distances of headings and paragraphs.
void StyleHelp(QTextDocument& document, const QColor& hairline);

}  // namespace ovl::ui
