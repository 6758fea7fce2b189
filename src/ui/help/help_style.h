// The look of a help page, on the screen and in print.
#pragma once

#include <QColor>

class QTextDocument;

namespace ovl::ui {

// Rules the tables with hairlines of the colour and gives headings and paragraphs their distances.
void StyleHelp(QTextDocument& document, const QColor& hairline);

}  // namespace ovl::ui
