#include "pictures/step_marks.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <array>

namespace ovl::pictures {
namespace {

// The numbers are those of the steps on the page.
struct StepMark {
  const char* picture;
  int step;
  const char* control;
};
constexpr std::array kMarks = {
    StepMark{"tab0_register_select", 1, "RegisterFilter"},
    StepMark{"tab0_register_select", 2, "ComboReg"},
    StepMark{"tab2_alarm_outputs", 1, "AlarmOverview"},
    StepMark{"tab2_alarm_outputs", 2, "ComboALM(1)"},
    StepMark{"tab2_alarm_outputs", 2, "ComboALM(3)"},
    StepMark{"tab2_alarm_outputs", 3, "ComboALM(2)"},
    StepMark{"tab2_alarm_outputs", 4, "cmdSetTrigger"},
    StepMark{"tab4_exception_report", 1, "ExceptionOverview"},
    StepMark{"tab4_exception_report", 2, "cmdSetExcpstr"},
    StepMark{"tab4_exception_report", 3, "cmdSetRange"},
    StepMark{"tab4_exception_report", 3, "ComboExcp(5)"},
    StepMark{"tab4_exception_report", 4, "ComboExcp(1)"},
    StepMark{"tab4_exception_report", 4, "ComboExcp(2)"},
    StepMark{"tab4_exception_report", 4, "ComboExcp(3)"},
    StepMark{"tab6_remote", 1, "cmdConnect"},
    StepMark{"tab6_remote", 2, "CmdUpDow(4)"},
    StepMark{"tab6_remote", 3, "CmdUpDow(0)"},
    StepMark{"tab6_remote", 3, "CmdUpDow(1)"},
    StepMark{"tab6_remote", 3, "CmdUpDow(3)"},
    StepMark{"port_settings", 1, "Comport_Select"},
    StepMark{"port_settings", 2, "OpBaud"},
    StepMark{"port_settings", 2, "OpDataBits"},
    StepMark{"port_settings", 2, "OpParity"},
    StepMark{"port_settings", 3, "cmdSET"},
    StepMark{"range", 1, "Range_Hi"},
    StepMark{"range", 1, "Range_Low"},
    StepMark{"range", 2, "ComboDec"},
    StepMark{"range", 3, "cmdSetRange"},
    StepMark{"text_entry", 1, "Text1"},
    StepMark{"text_entry", 2, "cmdSET"},
};

void Draw(QPainter& painter, const QRect& control, int step) {
  constexpr int kRoom = 3, kRadius = 9, kCorner = 4;
  const QColor color(0xC2, 0x41, 0x0C);  // no control has it
  const auto frame = control.adjusted(-kRoom, -kRoom, kRoom - 1, kRoom - 1);
  painter.setPen(QPen(color, 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(frame, kCorner, kCorner);
  const QPoint middle(std::max(frame.left(), kRadius + 1), std::max(frame.top(), kRadius + 1));
  painter.setBrush(color);
  painter.drawEllipse(middle, kRadius, kRadius);
  painter.setPen(Qt::white);
  painter.drawText(QRect(middle.x() - kRadius, middle.y() - kRadius, 2 * kRadius, 2 * kRadius),
                   Qt::AlignCenter, QString::number(step));
}

// The names of controls that several forms have begin with the form.
const QWidget* ControlIn(const QWidget& window, const QString& name) {
  for (const auto* widget : window.findChildren<QWidget*>()) {
    const auto own = widget->objectName();
    if ((own == name || own.endsWith(QLatin1Char('.') + name)) && widget->isVisible() &&
        widget->window() == &window)
      return widget;
  }
  return nullptr;
}

}  // namespace

QPixmap WithStepMarks(const QString& name, const QPixmap& picture, const QWidget& window) {
  QPixmap marked;
  for (const auto& mark : kMarks) {
    if (name != QLatin1String(mark.picture)) continue;
    const auto* control = ControlIn(window, QLatin1String(mark.control));
    if (control == nullptr) continue;
    if (marked.isNull()) marked = picture;
    QPainter painter(&marked);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont([&] {
      auto font = window.font();
      font.setBold(true);
      return font;
    }());
    Draw(painter, QRect(control->mapTo(&window, QPoint()), control->size()), mark.step);
  }
  return marked;
}

}  // namespace ovl::pictures
