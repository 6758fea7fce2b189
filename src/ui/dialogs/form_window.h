// A small window for a form of the model. The model decides when it is visible: closing it sends an event and
// does not hide it by itself.
#pragma once

#include <QDialog>

#include "ui/kit/bindings.h"

namespace ovl::ui {

class FormWindow : public QDialog {
 public:
  // The caller builds the content as the layout of this widget.
  FormWindow(Bindings& bindings, controls::Form& form, QWidget* parent);

  // The window opens at the right of the parent as far as the screen has room, so that the user can work in
  // both.
  void OpenBesideParent() { opens_beside_ = true; }

  // Shows or hides the window as the model says. True when that changed.
  bool ShowAsModelSays();

  void reject() override;
  QSize sizeHint() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  bool TakesEnter(const QKeyEvent& event) const;

  bool OnScreen() const { return form_.loaded && form_.visible; }
  void Open();
  void ScrollIfTooLarge();
  void Scroll(bool was_fixed);
  void PlaceBeside();

  Bindings& bindings_;
  controls::Form& form_;
  ChangeDetector<bool> enabled_;
  bool opens_beside_ = false;
  QWidget* scrolled_ = nullptr;  // the content, if the screen is too small for it
};

// Moves the focus to the control that the model asks for, once for each request.
class FocusMover {
 public:
  void MoveFocusAsAsked(const Bindings& bindings, const controls::Form& form);

 private:
  unsigned seen_ = 0;
};

}  // namespace ovl::ui
