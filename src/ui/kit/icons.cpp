#include "ui/kit/icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace ovl::ui {
namespace {

// The glyphs are drawn on a square with sides of this many units.
constexpr qreal kUnits = 16;
constexpr qreal kStroke = 1.4;

QPainterPath Arrow(QPointF tip, QPointF tail, qreal head) {
  QPainterPath path(tail);
  path.lineTo(tip);
  const qreal back = tail.y() > tip.y() ? head : -head;
  path.moveTo(tip + QPointF(-head, back));
  path.lineTo(tip);
  path.lineTo(tip + QPointF(head, back));
  return path;
}

QPainterPath Tray() {
  QPainterPath path(QPointF(2, 10));
  path.lineTo(2, 14);
  path.lineTo(14, 14);
  path.lineTo(14, 10);
  return path;
}

QPainterPath Clock() {
  QPainterPath path;
  path.addEllipse(QPointF(8, 8), 6.3, 6.3);
  path.moveTo(8, 4);
  path.lineTo(8, 8);
  path.lineTo(10.8, 9.8);
  return path;
}

QPainterPath Lines() {
  QPainterPath path;
  for (const qreal y : {3.5, 8.0, 12.5}) {
    path.addEllipse(QPointF(2.4, y), 0.5, 0.5);
    path.moveTo(5.5, y);
    path.lineTo(14, y);
  }
  return path;
}

QPainterPath Chain() {
  QPainterPath path;
  path.addRoundedRect(QRectF(1, 5.2, 8, 5.6), 2.8, 2.8);
  path.addRoundedRect(QRectF(7, 5.2, 8, 5.6), 2.8, 2.8);
  return path;
}

QPainterPath Turn() {
  const QRectF circle(2, 2.4, 12, 12);
  QPainterPath path;
  path.arcMoveTo(circle, 50);
  path.arcTo(circle, 50, 310);
  const QPointF tip(11.9, 3.8);
  path.moveTo(tip + QPointF(0.4, -3));
  path.lineTo(tip);
  path.lineTo(tip + QPointF(-3, 0.4));
  return path;
}

QPainterPath PathOf(Glyph glyph) {
  switch (glyph) {
    case Glyph::kUpload: {
      auto path = Tray();
      path.addPath(Arrow({8, 1.5}, {8, 10.5}, 3.2));
      return path;
    }
    case Glyph::kDownload: {
      auto path = Tray();
      path.addPath(Arrow({8, 10.5}, {8, 1.5}, 3.2));
      return path;
    }
    case Glyph::kClock:
      return Clock();
    case Glyph::kHistory:
      return Lines();
    case Glyph::kRemote:
      return Chain();
    case Glyph::kReset:
      return Turn();
  }
  return {};
}

// Draws when the icon is painted, so that palette and scale may change after the icon was made.
class GlyphEngine : public QIconEngine {
 public:
  explicit GlyphEngine(Glyph glyph) : glyph_(glyph) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    painter->save();
    painter->setPen(QGuiApplication::palette().color(group, QPalette::ButtonText));
    DrawGlyph(*painter, glyph_, QRectF(place.topLeft(), QSizeF(place.height(), place.height())));
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new GlyphEngine(*this); }

 private:
  Glyph glyph_;
};

}  // namespace

void DrawGlyph(QPainter& painter, Glyph glyph, const QRectF& square) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(square.topLeft());
  painter.scale(square.width() / kUnits, square.height() / kUnits);
  painter.setPen(QPen(painter.pen().color(), kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(PathOf(glyph));
  painter.restore();
}

QIcon GlyphIcon(Glyph glyph) {
  return QIcon(new GlyphEngine(glyph));
}

}  // namespace ovl::ui
