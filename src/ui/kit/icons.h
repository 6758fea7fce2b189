// The program's own icons: one stroke in the colour of the text beside it, drawn for the palette and the
// scale at hand.
#pragma once

#include <QIcon>

namespace ovl::ui {

enum class Glyph { kUpload, kDownload, kClock, kHistory, kRemote, kReset };

// Drawn at the left edge of the icon's size; a size that is wider than high keeps the text beside it away.
QIcon GlyphIcon(Glyph glyph);

// Draws the glyph into a square with the painter's own pen colour.
void DrawGlyph(QPainter& painter, Glyph glyph, const QRectF& square);

}  // namespace ovl::ui
