#include "ui/window/window_icon.h"

#include <QPainter>
#include <QPixmap>

namespace ovl::ui {
namespace {

constexpr qreal kUnits = 256;
constexpr qreal kStroke = 14;
constexpr QColor kLine(0x1F, 0x3A, 0x5F), kScreen(0xDB, 0xE6, 0xF2);

// The lower edge is torn off.
QPolygonF Receipt() {
  return {{80, 17},   {176, 17},  {176, 149}, {160, 135}, {144, 149},
          {128, 135}, {112, 149}, {96, 135},  {80, 149}};
}

QPixmap DrawnAt(int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / kUnits, size / kUnits);
  painter.setPen(QPen(kLine, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(kScreen);
  painter.drawRoundedRect(QRectF(15, 47, 226, 150), 18, 18);
  painter.drawLine(84, 231, 172, 231);
  painter.drawLine(128, 197, 128, 231);
  painter.setBrush(Qt::white);
  painter.drawPolygon(Receipt());
  painter.drawLine(106, 49, 150, 49);
  painter.drawLine(106, 79, 150, 79);
  painter.drawLine(106, 109, 128, 109);
  return pixmap;
}

}  // namespace

QIcon WindowIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48, 128}) icon.addPixmap(DrawnAt(size));
  return icon;
}

}  // namespace ovl::ui
