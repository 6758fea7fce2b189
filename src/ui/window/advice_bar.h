// One line below the tabs: what happened, and what to do now. It is hidden while there is no advice.
#pragma once

#include <QWidget>

#include "ui/kit/bindings.h"
#include "ui/window/own_acts.h"

class QLabel;
class QPushButton;
class QToolButton;

namespace ovl::ui {

class AdviceBar : public QWidget {
 public:
  // The acts must outlive the bar.
  AdviceBar(Bindings& bindings, const OwnActs& acts);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Shows the most important line. True if the bar appears or disappears.
  bool ShowFirst();

  const OwnActs& acts_;
  acts::Advice shown_;
  QLabel* words_;
  QPushButton* action_;
  QToolButton* close_;
};

}  // namespace ovl::ui
