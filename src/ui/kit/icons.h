// Icons that the program draws itself: lines in the text colour of the palette, sharp at every scale.
#pragma once

#include <QColor>
#include <QIcon>

class QPalette;

namespace ovl::ui {

enum class Glyph { kUpload, kDownload, kClock, kHistory, kRemote, kInformation, kQuestion, kWarning };

// The glyph is at the left edge of the icon. An icon that is wider than high keeps a distance to the text
// beside it. Without a colour of its own it has that of the text of a button.
QIcon GlyphIcon(Glyph glyph, QColor (*color)(const QPalette& palette) = nullptr);

// Draws the glyph into a square with the colour of the painter's pen.
void DrawGlyph(QPainter& painter, Glyph glyph, const QRectF& square);

}  // namespace ovl::ui
