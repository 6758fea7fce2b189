// The files that were last opened or backed up, and the menu that offers them.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QMenu;

namespace ovl::ui {

class RecentFiles {
 public:
  // The list is kept in this folder, for the next start.
  explicit RecentFiles(const QString& folder);

  // The newest first, at most eight.
  QStringList Paths() const;
  // Puts a file in front.
  void Add(const QString& path);
  void Clear();

  // Fills the menu each time it opens. A file that is gone is disabled. This object must outlive the menu.
  void FillWhenOpened(QMenu& menu, std::function<void(const QString& path)> open);

 private:
  void Fill(QMenu& menu, const std::function<void(const QString& path)>& open);

  QString store_;
};

}  // namespace ovl::ui
