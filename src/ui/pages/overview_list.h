// A table beside an editor that shows one of many entries: it lists all of them, and the user can pick one.
// It only reads the image; a pick is the same event as a pick in the list of the editor.
#pragma once

#include <QStringList>
#include <QTreeWidget>
#include <functional>
#include <vector>

#include "ui/kit/bindings.h"

namespace ovl::ui {

// One line of the table. A line that is not in use is muted.
struct OverviewLine {
  QStringList cells;
  bool used = false;
  QStringList tips = {};  // of the cells; a cell without one shows its text there

  bool operator==(const OverviewLine&) const = default;
};

struct OverviewColumn {
  QString head;
  QString widest;     // the widest text of the column; the column without one takes the remaining width
  bool fits = false;  // grows to the widest text that it shows now
};

class OverviewList : public QTreeWidget {
 public:
  explicit OverviewList(const std::vector<OverviewColumn>& columns, QWidget* parent = nullptr);

  // The arrow keys move the cursor; Enter or a click picks.
  std::function<void(int line)> picked;

  void Show(const std::vector<OverviewLine>& lines);

  // The line that the editor shows; -1: none.
  void SetMarked(int line);
  int Marked() const { return marked_; }

  // Moves the cursor but not the mark.
  void SetCursor(int line);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void SetColumnWidth(int column, const QString& widest);
  int CurrentLine() const { return indexOfTopLevelItem(currentItem()); }

  std::vector<OverviewColumn> columns_;
  int marked_ = -1;
};

// An overview of the entries of a list of the model. Below it there are a muted legend and the number of
// lines in use. Every refresh calls `lines`.
struct Overview {
  QString object_name;
  QString accessible_name;
  std::vector<OverviewColumn> columns;
  std::function<std::vector<OverviewLine>()> lines;
  std::function<QString()> legend;
  QWidget* button = nullptr;  // at the right of the legend; may be null
};
QWidget* BuildOverview(Bindings& bindings, controls::List& list, Overview overview);

}  // namespace ovl::ui
