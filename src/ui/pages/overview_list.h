// A table that stands beside an editor of one of many: it shows all of them and picks. It reads the image and
// writes nothing; a pick is the same event as one in the editor's own list.
#pragma once

#include <QStringList>
#include <QTreeWidget>
#include <functional>
#include <vector>

#include "ui/kit/bindings.h"

namespace ovl::ui {

// One line of the table. What is not in use is shown muted.
struct OverviewLine {
  QStringList cells;
  bool used = false;

  bool operator==(const OverviewLine&) const = default;
};

struct OverviewColumn {
  QString head;
  QString widest;  // a text for which the column has room; the column without one takes what is left
};

class OverviewList : public QTreeWidget {
 public:
  explicit OverviewList(const std::vector<OverviewColumn>& columns, QWidget* parent = nullptr);

  // Arrows move; Enter or a click picks.
  std::function<void(int line)> picked;

  void Show(const std::vector<OverviewLine>& lines);

  // The line that the editor shows; -1: none.
  void SetMarked(int line);
  int Marked() const { return marked_; }

  // The cursor alone.
  void MoveTo(int line);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int CurrentLine() const { return indexOfTopLevelItem(currentItem()); }

  int marked_ = -1;
};

// An overview over the entries of a list of the model, with a muted legend below it. `lines` is asked at
// every refresh. Alongside the legend stands how many lines are in use.
struct Overview {
  QString name;    // as objectName
  QString called;  // as accessible name
  std::vector<OverviewColumn> columns;
  std::function<std::vector<OverviewLine>()> lines;
  std::function<QString()> legend;
};
QWidget* BuildOverview(Bindings& bindings, controls::List& list, Overview overview);

}  // namespace ovl::ui
