// A small window over a form of the model. It comes and goes as the model says; closing it is an event like
// any other and closes nothing by itself.
#pragma once

#include <QDialog>

#include "ui/kit/bindings.h"

namespace ovl::ui {

class FormWindow : public QDialog {
 public:
  // The content is the caller's to build, as the layout of this widget.
  FormWindow(Bindings& bindings, controls::Form& form, QWidget* parent);

  // Opens to the right of the parent, so that both can be worked in, as far as the screen has room.
  void StandBeside() { beside_ = true; }

  // Shows or hides the window. True when that changed.
  bool Follow();

  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  bool TakesEnter(const QKeyEvent& event) const;

  bool OnScreen() const { return form_.loaded && form_.visible; }
  void Open();
  void Scroll();
  void PlaceBeside();

  Bindings& bindings_;
  controls::Form& form_;
  ChangeDetector<bool> enabled_;
  bool beside_ = false;
  bool scrolled_ = false;
};

// Moves the focus where the model wants it, once for each time it asked.
class FocusFollower {
 public:
  void Follow(const Bindings& bindings, const controls::Form& form);

 private:
  unsigned seen_ = 0;
};

}  // namespace ovl::ui
