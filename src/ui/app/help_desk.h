// F1 anywhere, and the Help menu: which page is wanted, and the window that shows it.
#pragma once

#include <QObject>
#include <QPointer>

#include "ui/help/help_pages.h"
#include "ui/help/help_window.h"

namespace ovl::ui {

class MainWindow;

class HelpDesk : public QObject {
 public:
  // A folder "Help" in the program folder takes the place of the pages in the program.
  HelpDesk(MainWindow& main, const QString& program_folder);

  // The page of what is in front: a tab, a window, a message box.
  QString PageInFront() const;
  void OpenPageInFront();

  const HelpPages& Pages() const { return pages_; }

  // None before help was first asked for, and after it was closed.
  HelpWindow* Window() const { return window_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  MainWindow& main_;
  HelpPages pages_;
  QPointer<HelpWindow> window_;
};

}  // namespace ovl::ui
