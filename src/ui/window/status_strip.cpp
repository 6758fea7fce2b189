#include "ui/window/status_strip.h"

#include <QCoreApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStackedWidget>
#include <QtMath>
#include <array>

#include "core/actions.h"
#include "host/comports.h"
#include "host/text_codec.h"
#include "ui/kit/box_layouts.h"
#include "ui/kit/theme.h"
#include "ui/language/model_texts.h"

namespace ovl::ui {
namespace {

constexpr int kHintTime = 6000;
constexpr Em kDotSize(1);
constexpr Em kGap(1.5);
constexpr Em kAboveLine(0.5);
constexpr Em kStripMargin(0.17);

}  // namespace

CutLabel::CutLabel(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void CutLabel::SetText(const QString& text) {
  if (text == text_) return;
  text_ = text;
  setAccessibleName(text);
  updateGeometry();
  UpdateTip();
  update();
}

// Rounded up: a text that is a part of a pixel wider than its room is cut.
int CutLabel::WidthOf(const QString& text) const {
  return qCeil(QFontMetricsF(font()).horizontalAdvance(text));
}

QSize CutLabel::sizeHint() const {
  return {WidthOf(text_), fontMetrics().height()};
}

void CutLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                   fontMetrics().elidedText(text_, Qt::ElideRight, width()));
}

void CutLabel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  UpdateTip();
}

void CutLabel::UpdateTip() {
  setToolTip(WidthOf(text_) > width() ? text_ : QString());
}

StateDot::StateDot(QWidget* parent) : QWidget(parent) {
  setFixedSize(kDotSize, kDotSize);
}

void StateDot::Set(LinkState state) {
  link_state_ = state;
  update();
}

void StateDot::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF circle = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
  switch (link_state_) {
    case LinkState::kClosed:
      painter.setPen(QPen(MutedColor(palette()), 2, Qt::SolidLine, Qt::RoundCap));
      painter.drawLine(QPointF(circle.left(), circle.center().y()),
                       QPointF(circle.right(), circle.center().y()));
      break;
    case LinkState::kLost:
      painter.setPen(QPen(palette().color(QPalette::WindowText), 2, Qt::SolidLine, Qt::RoundCap));
      painter.drawLine(circle.topLeft(), circle.bottomRight());
      painter.drawLine(circle.topRight(), circle.bottomLeft());
      break;
    case LinkState::kOpen:
    case LinkState::kAsked:
    case LinkState::kScanning:
      painter.setPen(QPen(palette().color(QPalette::WindowText), 1.6));
      painter.drawEllipse(circle);
      break;
    default:
      painter.setPen(Qt::NoPen);
      painter.setBrush(AccentColor(palette()));
      painter.drawEllipse(circle);
  }
}

StatusStrip::StatusStrip(Bindings& bindings)
    : app_(bindings.Model()),
      dot_(new StateDot),
      state_(new QLabel),
      port_(new CutLabel),
      firmware_(new QStackedWidget) {
  auto* across = new QHBoxLayout(this);
  across->setContentsMargins(kMargin - kFieldGap, kStripMargin, kFieldGap, kStripMargin);
  setMinimumHeight(LineHeight(*this) + 2 * kStripMargin);
  across->setSpacing(kRowGap);
  state_->setObjectName(QStringLiteral("StatusState"));
  port_->setObjectName(QStringLiteral("StatusPort"));
  // Where the room is short, the port gives way to the button of the changes.
  port_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  across->addWidget(dot_);
  across->addWidget(state_);
  across->addSpacing(kGap - kRowGap);
  across->addWidget(port_);
  across->addSpacing(kGap - kRowGap);
  constexpr std::array kNames = {"StatusNote", "StatusPortProblem", "StatusFile", "StatusRescue"};
  for (std::size_t source = 0; source < messages_.size(); ++source) {
    messages_[source] = new CutLabel;
    messages_[source]->setObjectName(QLatin1String(kNames[source]));
    messages_[source]->setVisible(source == kProblem);
    across->addWidget(messages_[source], 1);
  }
  across->addWidget(FirmwareLabels(bindings));
  hint_end_.setSingleShot(true);
  hint_end_.callOnTimeout(this, [this] {
    hint_.clear();
    ShowMessages();
  });
  BindContent(bindings);
}

void StatusStrip::BindContent(Bindings& bindings) {
  bindings.OnRefresh(
      [this, link = ChangeDetector<LinkState>(), port = ChangeDetector<std::string>()]() mutable {
        const auto now = LinkStateOf(app_);
        if (link.Update(now)) {
          dot_->Set(now);
          state_->setText(LinkStateText(now));
        }
        const auto& comm = app_.frmMain.MSComm1;
        const auto opened = comm.PortOpen ? comm.Settings : std::string();
        if (port.Update(std::to_string(app_.PortNumber) + ' ' + opened)) port_->SetText(PortText());
        ShowMessages();
        return false;
      });
}

QWidget* StatusStrip::FirmwareLabels(Bindings& bindings) {
  const auto& form = bindings.Model().frmMain;
  for (std::size_t tab = 0; tab < form.lbVersionID.size(); ++tab) {
    auto* page = new QWidget;
    auto* across = LayOutAcross(*page);
    const auto name = "lbVersionID(" + std::to_string(tab) + ")";
    across->addWidget(
        bindings.Make(bindings.Named(form.form, name), QCoreApplication::translate("StatusBar", "Firmware")));
    firmware_->addWidget(page);
  }
  firmware_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  return firmware_;
}

int StatusStrip::LineHeight(const QWidget& widget) {
  return widget.fontMetrics().height() + kAboveLine;
}

void StatusStrip::AddButton(QPushButton* button) {
  auto* across = static_cast<QHBoxLayout*>(layout());
  across->insertWidget(across->indexOf(firmware_), button);
}

void StatusStrip::ShowHint(const QString& hint) {
  hint_ = hint;
  ShowMessages();
  hint_end_.start(kHintTime);
}

void StatusStrip::ShowDone(const QString& message) {
  done_with_ = app_.image;
  ShowFileMessage(message);
}

void StatusStrip::ShowFailure(const QString& message) {
  done_with_.reset();
  ShowFileMessage(message);
}

void StatusStrip::ShowFileMessage(const QString& message) {
  file_message_ = message;
  note_before_file_ = app_.StatusNote;
  failures_before_file_ = app_.failures_noted;
  ShowMessages();
}

void StatusStrip::SetRescueNotice(const QString& notice) {
  rescue_notice_ = notice;
  ShowMessages();
}

void StatusStrip::ShowTab(int tab) {
  // The order of the labels differs from that of the tabs.
  constexpr std::array kLabelOfTab{0, 1, 2, 5, 4, 6, 3};
  firmware_->setCurrentIndex(kLabelOfTab.at(static_cast<std::size_t>(tab)));
}

// A hint, or what last went wrong. The port says more about itself than the model does, and a later message
// about a file replaces an earlier one.
QString StatusStrip::Problem() const {
  if (!hint_.isEmpty()) return hint_;
  const bool of_port = app_.noted_failure && app_.noted_failure->Subject() == core::PortName(app_);
  if (of_port && port_problem && !port_problem().isEmpty()) return {};
  const bool replaced = failures_before_file_ == app_.failures_noted && note_before_file_ == app_.StatusNote;
  if (!of_port && replaced) return {};
  return StatusNoteText(app_);
}

// What the user has cancelled is no failure.
void StatusStrip::ForgetOutdated() {
  if (failures_seen_ != app_.failures_noted) {
    failures_seen_ = app_.failures_noted;
    cancelled_with_.reset();
    if (app_.noted_failure && app_.noted_failure->Is(std::errc::operation_canceled))
      cancelled_with_ = app_.image;
  }
  if (cancelled_with_ && *cancelled_with_ != app_.image) {
    note_before_file_ = app_.StatusNote;
    failures_before_file_ = app_.failures_noted;
    cancelled_with_.reset();
  }
  if (done_with_ && (*done_with_ != app_.image || IsTransfer(LinkStateOf(app_)))) {
    file_message_.clear();
    done_with_.reset();
  }
}

void StatusStrip::ShowMessages() {
  ForgetOutdated();
  const std::array texts = {Problem(), port_problem ? port_problem() : QString(), file_message_,
                            rescue_notice_};
  auto* across = static_cast<QBoxLayout*>(layout());
  for (std::size_t source = 0; source < texts.size(); ++source) {
    auto* message = messages_[source];
    if (message->Text() == texts[source]) continue;
    message->SetText(texts[source]);
    message->setVisible(source == kProblem || !texts[source].isEmpty());
    across->setStretchFactor(message, 1 + static_cast<int>(texts[source].size()));
  }
}

QString StatusStrip::PortText() const {
  const int number = app_.PortNumber;
  if (number == 0) return QCoreApplication::translate("StatusBar", "No port chosen");
  const auto device = host::ComportDevice(QFile::decodeName(app_.platform.program_folder.c_str()), number);
  auto text = QCoreApplication::translate("StatusBar", "Comport %1, %2", "number, device")
                  .arg(QString::number(number), device);
  if (!app_.frmMain.MSComm1.PortOpen) return text;
  return text + QStringLiteral(", ") +
         host::FromWindows1252(app_.frmMain.MSComm1.Settings).replace(QLatin1Char(','), QLatin1Char(' '));
}

}  // namespace ovl::ui
