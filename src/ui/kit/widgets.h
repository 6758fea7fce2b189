// The few widgets that differ from the toolkit's own: none of them changes its state by itself. A person's
// act is reported, and what then shows is the model's answer.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <functional>

namespace ovl::ui {

class TextRule;

// A pick-only list. The wheel scrolls the page behind it and never changes it.
class PickList : public QComboBox {
 public:
  // Text that stands muted behind an entry in the opened list.
  static constexpr int kDetailRole = Qt::UserRole + 1;

  explicit PickList(QWidget* parent = nullptr);

  // Shows kDetailRole behind the entries.
  void ShowDetails();
  void showPopup() override;

 protected:
  void wheelEvent(QWheelEvent* event) override;
};

// A list that is always open. Arrows and letters move in it; Enter or a click picks, also what is picked
// already.
class TallList : public QListWidget {
 public:
  explicit TallList(QWidget* parent = nullptr);

  std::function<void(int row)> picked;

  // The entry that counts, marked wherever the cursor stands; -1: none.
  void SetMarked(int row);
  int Marked() const { return marked_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int marked_ = -1;
};

// An element of an option array. Arrows pick its neighbours, as they do where the toolkit decides itself.
class OptionButton : public QRadioButton {
 public:
  explicit OptionButton(QWidget* parent = nullptr);

  std::function<void(int step)> step;  // an arrow was pressed: -1 back, 1 on

 protected:
  void nextCheckState() override {}
  void keyPressEvent(QKeyEvent* event) override;
};

class TurnBox : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

 protected:
  void nextCheckState() override {}
};

// Takes characters of Windows-1252 only, and no more than its limit. The blanks that fill a text up give way
// to what is typed in front of them. `refused` is told the reason when something is turned away.
class TextLine : public QLineEdit {
 public:
  explicit TextLine(QWidget* parent = nullptr);

  void SetLimit(int characters);  // 0: none

  std::function<void(const QString& reason)> refused;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void LeaveBlanks(qsizetype from);

  TextRule* rule_;
};

}  // namespace ovl::ui
