// The content of the status bar: state of remote mode, serial port, last problem, firmware.
#pragma once

#include <QTimer>
#include <QWidget>
#include <array>
#include <optional>

#include "ui/kit/bindings.h"
#include "ui/pages/link_drawing.h"

class QPushButton;
class QStackedWidget;

namespace ovl::ui {

// One line of text. Where it does not fit, its end is cut and the tool tip shows the whole text.
class CutLabel : public QWidget {
 public:
  explicit CutLabel(QWidget* parent = nullptr);

  void SetText(const QString& text);
  const QString& Text() const { return text_; }
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int WidthOf(const QString& text) const;
  void UpdateTip();

  QString text_;
};

// Shows the state of remote mode by its shape: a dot, a ring, a dash, or a cross.
class StateDot : public QWidget {
 public:
  explicit StateDot(QWidget* parent = nullptr);

  void Set(LinkState state);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  LinkState link_state_ = LinkState::kClosed;
};

class StatusStrip : public QWidget {
 public:
  explicit StatusStrip(Bindings& bindings);

  // The last problem of the serial port, as the port reports it.
  std::function<QString()> port_problem;

  // What became of changes of an earlier run and of the copy of unsaved changes; empty if all is well.
  void SetRescueNotice(const QString& notice);

  // What became of a file, until the next message of this kind. That an act is done also goes when the
  // configuration changes or a transfer begins; a failure stays. An empty text takes away what was shown.
  void ShowDone(const QString& message);
  void ShowFailure(const QString& message);

  // Shows a hint for a few seconds, instead of the last problem.
  void ShowHint(const QString& hint);

  // The height of the line; it is the same with and without a button.
  static int LineHeight(const QWidget& widget);

  // Adds a button in front of the firmware.
  void AddButton(QPushButton* button);

  // Each tab has its own label for the firmware.
  void ShowTab(int tab);

 private:
  // The messages side by side. Each has the room that its length asks for.
  enum Source { kProblem, kPort, kFile, kRescue, kSources };

  void ShowFileMessage(const QString& message);
  QString Problem() const;
  void ForgetOutdated();
  void ShowMessages();
  QString PortText() const;
  QWidget* FirmwareLabels(Bindings& bindings);
  void BindContent(Bindings& bindings);

  const core::Application& app_;
  StateDot* dot_;
  QLabel* state_;
  CutLabel* port_;
  std::array<CutLabel*, kSources> messages_{};
  QStackedWidget* firmware_;
  QString hint_, rescue_notice_, file_message_;
  // The configuration when the act was done, or when the user cancelled one.
  std::optional<image::ConfigImage> done_with_, cancelled_with_;
  unsigned failures_seen_ = 0;
  std::string note_before_file_;
  unsigned failures_before_file_ = 0;
  QTimer hint_end_;
};

}  // namespace ovl::ui
