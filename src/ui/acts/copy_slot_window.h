// The window that copies the shown exception or alarm to other numbers.
#pragma once

#include <QDialog>

#include "acts/copy_slot.h"
#include "ui/kit/bindings.h"

class QLabel;
class QMenu;
class QPushButton;
class QSpinBox;

namespace ovl::ui {

class CopySlotWindow : public QDialog {
 public:
  // The source is the exception or alarm that the panel shows.
  CopySlotWindow(const Bindings& bindings, acts::SlotKind kind, QWidget* parent);

 private:
  QSpinBox* MakeNumber(const char* name, const QString& label);
  void LayOut();
  acts::SlotCopy Wanted() const;
  void ShowEffect();
  void Copy();

  const Bindings& bindings_;
  acts::SlotKind kind_;
  int from_;
  QSpinBox* first_;
  QSpinBox* last_;
  QLabel* effect_;
  QPushButton* copy_;
};

// Opens the window above the window of `parent`. It does nothing while the main form is blocked or the panel
// shows no exception or alarm.
void OpenCopySlotWindow(const Bindings& bindings, acts::SlotKind kind, QWidget& parent);

// The button beside an overview.
QPushButton* BuildCopySlotButton(const Bindings& bindings, acts::SlotKind kind);

// Adds "Copy Exception..." and "Copy Alarm..." to a menu of the window.
void AddCopySlotItems(const Bindings& bindings, QMenu& menu, QWidget& window);

}  // namespace ovl::ui
