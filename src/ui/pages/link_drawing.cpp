#include "ui/pages/link_drawing.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>

#include "core/actions.h"
#include "ui/kit/theme.h"

namespace ovl::ui {
namespace {

// The sizes of the drawing are in units of which this many are as high as the font.
constexpr qreal kUnitsOfFont = 12;
constexpr QSizeF kSize(440, 116);
constexpr qreal kStroke = 1.8;

// The height and the ends of the line between the two devices.
constexpr qreal kLineY = 52;
constexpr qreal kLineLeft = 116;
constexpr qreal kLineRight = 318;
constexpr qreal kLineMiddle = (kLineLeft + kLineRight) / 2;

constexpr QRectF kScreen(14, 20, 82, 52);
constexpr QRectF kUnit(332, 28, 100, 44);
constexpr qreal kWordHeight = 20;

qreal Scale() {
  return Em(1) / kUnitsOfFont;
}

QRectF Scaled(const QRectF& place) {
  return {place.topLeft() * Scale(), place.size() * Scale()};
}

bool IsLive(LinkState state) {
  return state == LinkState::kAccess || IsTransfer(state);
}

}  // namespace

LinkState LinkStateOf(const core::Application& app) {
  const auto& form = app.frmMain;
  if (core::LostDevice(app) != nullptr) return LinkState::kLost;
  if (app.ScanActive) return LinkState::kScanning;
  if (!form.MSComm1.PortOpen) return LinkState::kClosed;
  if (form.General_timer.enabled) return LinkState::kAsked;
  const bool access = form.Picture1[3].visible;
  if (access && app.LinkMode == core::kLinkUpload) return LinkState::kUploading;
  if (access && app.LinkMode == core::kLinkDownload) return LinkState::kDownloading;
  return access ? LinkState::kAccess : LinkState::kOpen;
}

bool IsTransfer(LinkState state) {
  return state == LinkState::kUploading || state == LinkState::kDownloading;
}

QString LinkStateText(LinkState state) {
  switch (state) {
    case LinkState::kClosed:
      return QCoreApplication::translate("LinkDrawing", "Port closed");
    case LinkState::kOpen:
      return QCoreApplication::translate("LinkDrawing", "Port open");
    case LinkState::kAsked:
      return QCoreApplication::translate("LinkDrawing", "Requesting remote mode");
    case LinkState::kAccess:
      return QCoreApplication::translate("LinkDrawing", "In remote mode");
    case LinkState::kUploading:
      return QCoreApplication::translate("LinkDrawing", "Uploading");
    case LinkState::kDownloading:
      return QCoreApplication::translate("LinkDrawing", "Downloading");
    case LinkState::kScanning:
      return QCoreApplication::translate("LinkDrawing", "Scanning");
    case LinkState::kLost:
      return QCoreApplication::translate("LinkDrawing", "Device lost");
  }
  return {};
}

LinkDrawing::LinkDrawing(const core::Application& app, QLabel& access) : app_(app), access_(access) {
  setObjectName(QStringLiteral("LinkDrawing"));
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  access_.setParent(this);
  access_.setAlignment(Qt::AlignCenter);
  access_.setGeometry(
      Scaled({kLineLeft, kLineY - 14 - kWordHeight, kLineRight - kLineLeft, kWordHeight}).toRect());
  auto strong = access_.font();
  strong.setWeight(QFont::DemiBold);
  access_.setFont(strong);
  shown_ = FromModel();
}

QSize LinkDrawing::sizeHint() const {
  return (kSize * Scale()).toSize();
}

LinkDrawing::Shown LinkDrawing::FromModel() const {
  const auto& form = app_.frmMain;
  Shown shown;
  shown.state = LinkStateOf(app_);
  if (form.Picture1[1].visible) shown.hint = Hint::kToComputer;
  if (form.Picture1[2].visible) shown.hint = Hint::kToUnit;
  shown.port =
      app_.PortNumber == 0
          ? QCoreApplication::translate("LinkDrawing", "Computer")
          : QCoreApplication::translate("LinkDrawing", "Comport %1").arg(static_cast<int>(app_.PortNumber));
  return shown;
}

void LinkDrawing::Refresh() {
  auto now = FromModel();
  if (now == shown_ && !accessibleName().isEmpty()) return;
  shown_ = std::move(now);
  setAccessibleName(
      QCoreApplication::translate("LinkDrawing", "Link to the unit: %1").arg(LinkStateText(shown_.state)));
  access_.setForegroundRole(IsLive(shown_.state) ? QPalette::Link : QPalette::WindowText);
  update();
}

void LinkDrawing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.save();
  painter.scale(Scale(), Scale());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::WindowText), kStroke, Qt::SolidLine, Qt::RoundCap));
  DrawComputer(painter);
  DrawUnit(painter);
  DrawLine(painter);
  DrawMark(painter);
  painter.restore();
  DrawWords(painter);
}

void LinkDrawing::DrawComputer(QPainter& painter) const {
  painter.drawRoundedRect(kScreen, 4, 4);
  const qreal foot = kScreen.bottom() + 6;
  painter.drawLine(QPointF(kScreen.left() - 11, foot), QPointF(kScreen.right() + 11, foot));
}

void LinkDrawing::DrawUnit(QPainter& painter) const {
  painter.drawRoundedRect(kUnit, 4, 4);
  const qreal middle = kUnit.center().y();
  for (const qreal x : {16.0, 30.0, 44.0}) {
    const QPointF lamp(kUnit.left() + x, middle);
    const bool lit = IsLive(shown_.state);
    painter.setBrush(lit ? QBrush(AccentColor(palette())) : QBrush(Qt::NoBrush));
    painter.drawEllipse(lamp, 3.2, 3.2);
  }
  painter.setBrush(Qt::NoBrush);
  for (const qreal y : {-9.0, 0.0, 9.0}) {
    painter.drawLine(QPointF(kUnit.right() - 30, middle + y), QPointF(kUnit.right() - 13, middle + y));
  }
}

void LinkDrawing::DrawLine(QPainter& painter) const {
  auto pen = painter.pen();
  const bool live = IsLive(shown_.state);
  const bool waits = shown_.state == LinkState::kAsked || shown_.state == LinkState::kScanning;
  QPen line(live ? AccentColor(palette()) : pen.color(), live ? 2.4 : kStroke, Qt::SolidLine, Qt::RoundCap);
  if (waits) line.setDashPattern({2, 3});
  if (shown_.state == LinkState::kClosed) line.setColor(MutedColor(palette()));
  painter.setPen(line);
  if (shown_.state == LinkState::kClosed || shown_.state == LinkState::kLost) {
    constexpr qreal kGap = 22;
    constexpr qreal kPin = 6;
    for (const qreal end : {kLineMiddle - kGap, kLineMiddle + kGap}) {
      painter.drawLine(QPointF(end < kLineMiddle ? kLineLeft : kLineRight, kLineY), QPointF(end, kLineY));
      painter.drawLine(QPointF(end, kLineY - kPin), QPointF(end, kLineY + kPin));
    }
  } else {
    painter.drawLine(QPointF(kLineLeft, kLineY), QPointF(kLineRight, kLineY));
  }
  painter.setPen(pen);
}

void LinkDrawing::DrawMark(QPainter& painter) const {
  const QPointF middle(kLineMiddle, kLineY);
  const auto pen = painter.pen();
  switch (shown_.state) {
    case LinkState::kAsked:
      painter.setBrush(palette().color(QPalette::Window));
      painter.drawEllipse(middle, 7, 7);
      break;
    case LinkState::kScanning:
      painter.setBrush(palette().color(QPalette::Window));
      painter.drawEllipse(middle + QPointF(-2, -2), 7, 7);
      painter.drawLine(middle + QPointF(3, 3), middle + QPointF(9, 9));
      break;
    case LinkState::kAccess:
      painter.setPen(Qt::NoPen);
      painter.setBrush(AccentColor(palette()));
      painter.drawEllipse(middle, 7, 7);
      break;
    case LinkState::kUploading:
    case LinkState::kDownloading:
      DrawArrows(painter, shown_.state == LinkState::kDownloading, true);
      break;
    case LinkState::kLost:
      for (const qreal slope : {-1.0, 1.0})
        painter.drawLine(middle - QPointF(7, 7 * slope), middle + QPointF(7, 7 * slope));
      break;
    default:
      break;
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(pen);
  if (shown_.hint != Hint::kNone && !IsTransfer(shown_.state) && shown_.state != LinkState::kLost)
    DrawArrows(painter, shown_.hint == Hint::kToUnit, false);
}

void LinkDrawing::DrawArrows(QPainter& painter, bool to_unit, bool filled) const {
  constexpr qreal kHead = 8;
  constexpr qreal kFirst = 44;
  const auto color = filled ? AccentColor(palette()) : MutedColor(palette());
  painter.setPen(QPen(color, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(filled ? QBrush(color) : QBrush(Qt::NoBrush));
  const qreal back = to_unit ? -kHead : kHead;
  for (const qreal shift : {-kFirst, 0.0, kFirst}) {
    if (!filled && shift == 0.0) continue;
    const QPointF tip(kLineMiddle + shift - back / 2, kLineY);
    QPainterPath head(tip + QPointF(back, -kHead * 0.8));
    head.lineTo(tip);
    head.lineTo(tip + QPointF(back, kHead * 0.8));
    if (filled) head.closeSubpath();
    painter.drawPath(head);
  }
}

void LinkDrawing::DrawWords(QPainter& painter) const {
  const auto put = [&](const QRectF& place, const QString& text) {
    painter.drawText(Scaled(place), Qt::AlignCenter, text);
  };
  const QRectF under(kLineLeft, kLineY + 14, kLineRight - kLineLeft, kWordHeight);
  const qreal foot = kScreen.bottom() + 16;

  painter.setPen(MutedColor(palette()));
  put(QRectF(kScreen.left() - 20, foot, kScreen.width() + 40, kWordHeight), shown_.port);
  put(QRectF(kUnit.left() - 10, foot, kUnit.width() + 20, kWordHeight),
      QCoreApplication::translate("LinkDrawing", "Unit"));
  put(under, LinkStateText(shown_.state));
}

}  // namespace ovl::ui
