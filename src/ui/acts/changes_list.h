// The list of changed settings, grouped by tab.
#pragma once

#include <QTreeWidget>
#include <functional>
#include <vector>

#include "changes/readable.h"

namespace ovl::ui {

class ChangesList : public QTreeWidget {
 public:
  explicit ChangesList(QWidget* parent = nullptr);

  // Enter or a double click on a row.
  std::function<void(const changes::SettingChange& row)> opened;

  // The setting under the cursor keeps the cursor.
  void Show(std::vector<changes::SettingChange> rows);
  void ShowBytes(bool shown);
  // The heads of the two columns of values.
  void SetSides(const QString& before, const QString& now);

  // The selected rows, one a line, with tabs between the cells of the visible columns. Ctrl+C copies it.
  QString SelectedText() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void FitColumns();
  QTreeWidgetItem* AddGroup(const changes::SettingChange& first);
  void AddRow(QTreeWidgetItem& group, int at);
  const changes::SettingChange* RowOf(const QTreeWidgetItem* item) const;
  void OpenRow(const QTreeWidgetItem* item);

  std::vector<changes::SettingChange> rows_;
};

}  // namespace ovl::ui
