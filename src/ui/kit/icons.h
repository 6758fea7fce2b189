// Icons that the program draws itself: lines in the text colour of the palette, sharp at every scale.
#pragma once

#include <QIcon>

namespace ovl::ui {

enum class Glyph { kUpload, kDownload, kClock, kHistory, kRemote, kReset };

// The glyph is at the left edge of the icon. An icon that is wider than high keeps a distance to the text
// beside it.
QIcon GlyphIcon(Glyph glyph);

// Draws the glyph into a square with the colour of the painter's pen.
void DrawGlyph(QPainter& painter, Glyph glyph, const QRectF& square);

}  // namespace ovl::ui
