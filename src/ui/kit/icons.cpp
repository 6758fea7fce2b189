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

// A short line; the dot of an "i", "?" or "!" is one without a length.
void AddLine(QPainterPath& path, QPointF from, QPointF to) {
  path.moveTo(from);
  path.lineTo(to + QPointF(0.01, 0));
}

QPainterPath Ring() {
  QPainterPath path;
  path.addEllipse(QPointF(8, 8), 6.8, 6.8);
  return path;
}

QPainterPath Information() {
  auto path = Ring();
  AddLine(path, {8, 4.8}, {8, 4.8});
  AddLine(path, {8, 7.4}, {8, 11.4});
  return path;
}

QPainterPath Question() {
  auto path = Ring();
  path.moveTo(5.9, 6.2);
  path.cubicTo({6, 3.6}, {10.2, 3.6}, {10.2, 6.2});
  path.cubicTo({10.2, 7.8}, {8, 7.8}, {8, 9.4});
  AddLine(path, {8, 11.8}, {8, 11.8});
  return path;
}

QPainterPath Warning() {
  QPainterPath path(QPointF(8, 1.6));
  path.lineTo(15, 14.2);
  path.lineTo(1, 14.2);
  path.closeSubpath();
  AddLine(path, {8, 6.2}, {8, 9.6});
  AddLine(path, {8, 11.9}, {8, 11.9});
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
    case Glyph::kInformation:
      return Information();
    case Glyph::kQuestion:
      return Question();
    case Glyph::kWarning:
      return Warning();
  }
  return {};
}

// Draws when the icon is painted, so that palette and scale may change after the icon was made.
class GlyphEngine : public QIconEngine {
 public:
  GlyphEngine(Glyph glyph, QColor (*color)(const QPalette&)) : glyph_(glyph), color_(color) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    painter->save();
    const auto palette = QGuiApplication::palette();
    const bool own_color = color_ != nullptr && mode != QIcon::Disabled;
    painter->setPen(own_color ? color_(palette) : palette.color(group, QPalette::ButtonText));
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
  QColor (*color_)(const QPalette&);
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

QIcon GlyphIcon(Glyph glyph, QColor (*color)(const QPalette& palette)) {
  return QIcon(new GlyphEngine(glyph, color));
}

}  // namespace ovl::ui
