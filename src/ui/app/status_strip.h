// The status bar's content: remote state, port, what last went wrong, firmware.
#pragma once

#include <QTimer>
#include <QWidget>

#include "ui/kit/bindings.h"
#include "ui/pages/link_drawing.h"

class QPushButton;
class QStackedWidget;

namespace ovl::ui {

// One line of text, cut at its end where the room is too small; the whole text is its tool tip then.
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
  void UpdateTip();

  QString text_;
};

// The state of remote mode by form: a full dot, a ring, or a dash.
class StateDot : public QWidget {
 public:
  explicit StateDot(QWidget* parent = nullptr);

  void Set(LinkPicture picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  LinkPicture picture_ = LinkPicture::kClosed;
};

class StatusStrip : public QWidget {
 public:
  explicit StatusStrip(Bindings& bindings);

  // What last went wrong with the port, as the port layer tells it.
  std::function<QString()> port_problem;

  // Stands where nothing more urgent is to be told.
  void SetNotice(const QString& notice) { notice_ = notice; }

  // A passing word in the place of what last went wrong.
  void ShowHint(const QString& hint);

  // The bar is as high with a button as without one.
  static int LineHeight(const QWidget& widget);

  // A button that stands before the firmware.
  void AddButton(QPushButton* button);

  // Each tab has its own label of the firmware.
  void ShowTab(int tab);

 private:
  QString Note() const;
  QString PortText() const;
  QWidget* FirmwareLabels(Bindings& bindings);

  const core::Application& app_;
  StateDot* dot_;
  QLabel* state_;
  QLabel* port_;
  CutLabel* note_;
  QStackedWidget* firmware_;
  QString hint_, notice_;
  QTimer hint_end_;
};

}  // namespace ovl::ui
