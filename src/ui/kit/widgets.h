// The widgets that differ from those of Qt. None of them changes its state by itself: it reports the act of
// the user, and then it shows what the model says.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <functional>

namespace ovl::ui {

class TextValidator;

// True when the focus moves to another widget, and not just to another window or to a popup.
bool LosesFocusToWidget(const QFocusEvent& event);

// A drop-down list. The mouse wheel scrolls the page and never changes the list.
class PickList : public QComboBox {
 public:
  // The role of a muted text behind an entry in the open list.
  static constexpr int kDetailRole = Qt::UserRole + 1;

  explicit PickList(QWidget* parent = nullptr);

  // Shows the texts of kDetailRole behind the entries.
  void ShowDetails() { shows_details_ = true; }
  void showPopup() override;

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  bool shows_details_ = false;
  bool has_delegate_ = false;
};

// A list that is always open. Arrow keys and letters move the cursor. Enter or a click picks an entry, also
// the one that is already picked. A filter hides the entries that do not have all of its words; the others
// keep their positions.
class ListBox : public QListWidget {
 public:
  explicit ListBox(QWidget* parent = nullptr);

  std::function<void(int row)> picked;

  // The entry that the model has chosen; it is marked wherever the cursor is. -1: none.
  void SetMarked(int row);
  int Marked() const { return marked_; }

  void SetFilter(const QString& words);
  int ShownEntries() const;

  // Takes the focus. With a filter the cursor is on the first entry that it shows.
  void TakeFocus();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  bool IsShown(int row) const { return row >= 0 && row < count() && !isRowHidden(row); }
  void ApplyFilter();
  void MoveCursorToMark();

  int marked_ = -1;
  QStringList filter_;
};

// An element of an option array. The arrow keys pick its neighbours, as in other programs with Qt.
class OptionButton : public QRadioButton {
 public:
  explicit OptionButton(QWidget* parent = nullptr);

  std::function<void(int step)> step;  // an arrow was pressed: -1 back, 1 on

 protected:
  void nextCheckState() override {}
  void keyPressEvent(QKeyEvent* event) override;
};

class ModelCheckBox : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

 protected:
  void nextCheckState() override {}
};

// Accepts only characters of Windows-1252, and no more than its limit. Blanks at the end of a full text are
// removed when the user types in front of them. `refused` gets the reason when a character is not accepted.
class TextLine : public QLineEdit {
 public:
  explicit TextLine(QWidget* parent = nullptr);

  void SetLimit(int characters);  // 0: none
  void AcceptOnlyDigits();

  std::function<void(const QString& reason)> refused;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void MoveCaretOutOfPadding(qsizetype from);

  TextValidator* validator_;
};

// The room that the screen has for the window without its frame.
QSize RoomOnScreen(const QWidget& window);

// From now on a window that shows, grows or loses a part of its screen moves back onto the screen. It becomes
// smaller where the screen is. If the room on a screen changes while the window is visible, `room_changed` is
// called before the window moves.
void StayOnScreen(QWidget& window, std::function<void()> room_changed = {});

// Moves a window that covers a part of the screen beside it. Stays where it is if there is no room.
void MoveAside(QWidget& window, const QRect& shown);

// Scrolls what is around the widget until the widget is visible.
void ScrollTo(QWidget& widget);

}  // namespace ovl::ui
