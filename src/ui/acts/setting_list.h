// A list of settings in groups. Enter on a row leads to the control of the setting.
#pragma once

#include <QTreeWidget>
#include <functional>
#include <string>
#include <vector>

#include "ui/language/model_texts.h"

namespace ovl::ui {

// Where a row leads. Without a control it leads nowhere.
struct SettingGoal {
  int tab = 0;          // of the main form
  std::string control;  // to edit the setting
  std::string list;     // the list that first has to select the exception or alarm; may be empty
  int slot = 0;         // its number, counted from 1
};

struct SettingRow {
  QString group;  // rows of one group are together
  QString place;  // the caption of the tab, for a copy
  QStringList cells;
  SettingGoal goal;
};

// The text with visible signs in place of the control characters of a stored text.
QString PrintableText(const phrases::Words& words);

class SettingList : public QTreeWidget {
 public:
  explicit SettingList(const QStringList& headings, QWidget* parent = nullptr);

  // Enter or a double click on a row.
  std::function<void(const SettingGoal& goal)> opened;

  // The setting under the cursor keeps the cursor.
  void ShowRows(std::vector<SettingRow> rows);

  // The selected rows, one a line, with tabs between the cells of the visible columns. Ctrl+C copies it.
  QString SelectedText() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  // Fits the columns that neither stretch nor fit themselves.
  void FitColumns();

 private:
  QTreeWidgetItem* AddGroup(const QString& caption);
  void AddRow(QTreeWidgetItem& group, int at);
  const SettingRow* RowOf(const QTreeWidgetItem* item) const;
  void OpenRow(const QTreeWidgetItem* item);

  std::vector<SettingRow> rows_;
};

}  // namespace ovl::ui
