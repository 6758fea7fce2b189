#include "pictures/camera_picture.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QSaveFile>

#include "host/text_codec.h"

namespace ovl::pictures {
namespace {

constexpr QSize kSize(640, 480);
constexpr int kFontHeight = 22;
constexpr int kLineHeight = 26;
constexpr QPoint kTextStart(28, 40);
constexpr const char* kLines[] = {
    "CORNER SHOP",
    "11/24/26  14:07:09",
    "COFFEE            2.40",
    "SANDWICH          4.10",
    "TOTAL             6.50",
    "CASH             10.00",
    "CHANGE            3.50",
    "NO SALE",
};

QColor Grey(int level) {
  return QColor(level, level, level);
}

void Fill(QPainter& painter, int level, const QPolygonF& shape) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(Grey(level));
  painter.drawPolygon(shape);
}

void Fill(QPainter& painter, int level, const QRectF& shape) {
  painter.fillRect(shape, Grey(level));
}

void DrawRoom(QPainter& painter) {
  QLinearGradient wall(0, 0, 0, 300);
  wall.setColorAt(0, Grey(70));
  wall.setColorAt(1, Grey(120));
  painter.fillRect(QRectF(0, 0, 640, 300), wall);
  Fill(painter, 95, QRectF(0, 300, 640, 180));
  constexpr double kShelf = 74;
  for (int shelf = 0; shelf < 3; ++shelf) {
    const double board = 110 + kShelf * shelf;
    Fill(painter, 55, QRectF(300, board - 60, 340, 60));
    for (int thing = 0; thing < 17; ++thing) {
      const int height = 26 + (thing * 7 + shelf * 5) % 26;
      Fill(painter, 90 + (thing * 37 + shelf * 61) % 90,
           QRectF(306 + thing * 20, board - height, 14, height));
    }
    Fill(painter, 150, QRectF(296, board, 344, 7));
  }
}

// `face` is the grey of the head below the hair; a head seen from behind has that of the hair.
void DrawPerson(QPainter& painter, QPointF head, double size, int level, int face) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(Grey(level));
  const QRectF body(head.x() - 0.95 * size, head.y() + 0.75 * size, 1.9 * size, 4.4 * size);
  painter.drawRoundedRect(body, 0.8 * size, 0.8 * size);
  painter.setBrush(Grey(face));
  painter.drawEllipse(head, 0.55 * size, 0.7 * size);
  painter.setBrush(Grey(level - 10));
  painter.drawChord(QRectF(head.x() - 0.58 * size, head.y() - 0.75 * size, 1.16 * size, 1.3 * size), 0,
                    180 * 16);
}

void DrawCounter(QPainter& painter) {
  Fill(painter, 185, QPolygonF({{250, 330}, {640, 292}, {640, 352}, {310, 396}}));
  Fill(painter, 105, QPolygonF({{310, 396}, {640, 352}, {640, 480}, {310, 480}}));
  Fill(painter, 130, QPolygonF({{250, 330}, {310, 396}, {310, 480}, {250, 440}}));
}

void DrawRegister(QPainter& painter) {
  Fill(painter, 40, QPolygonF({{436, 322}, {540, 311}, {546, 350}, {444, 363}}));
  Fill(painter, 62, QPolygonF({{436, 322}, {450, 288}, {536, 279}, {540, 311}}));
  Fill(painter, 200, QPolygonF({{456, 296}, {512, 290}, {515, 306}, {454, 313}}));
  Fill(painter, 235, QPolygonF({{520, 286}, {533, 285}, {535, 262}, {522, 262}}));
}

// As in the picture of a camera: lines, and darker towards the corners.
void DrawLens(QPainter& painter) {
  QRadialGradient corners(320, 240, 430);
  corners.setColorAt(0.5, QColor(0, 0, 0, 0));
  corners.setColorAt(1, QColor(0, 0, 0, 150));
  painter.fillRect(QRect(QPoint(), kSize), corners);
  painter.setPen(QColor(0, 0, 0, 26));
  for (int line = 0; line < kSize.height(); line += 2) painter.drawLine(0, line, kSize.width(), line);
}

void DrawText(QPainter& painter) {
  QFont font(QStringLiteral("DejaVu Sans Mono"));
  font.setPixelSize(kFontHeight);
  font.setBold(true);
  QPainterPath path;
  QPointF place = kTextStart;
  for (const auto* line : kLines) {
    path.addText(place, font, QString::fromLatin1(line));
    place.ry() += kLineHeight;
  }
  painter.strokePath(path, QPen(Qt::black, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(path, Qt::white);
}

}  // namespace

core::Result SaveCameraPicture(const QString& file) {
  QImage image(kSize, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawRoom(painter);
  DrawPerson(painter, {560, 190}, 38, 70, 140);
  DrawCounter(painter);
  DrawRegister(painter);
  DrawPerson(painter, {330, 300}, 46, 45, 35);
  DrawLens(painter);
  DrawText(painter);
  painter.end();
  QSaveFile target(file);
  const bool saved = target.open(QIODevice::WriteOnly) && image.save(&target, "PNG") && target.commit();
  return saved ? core::Result() : host::FailureOf(file, target.errorString());
}

}  // namespace ovl::pictures
