// Handles F1 and the Help menu: chooses the help page and opens the help window.
#pragma once

#include <QObject>
#include <QPointer>

#include "ui/help/help_pages.h"
#include "ui/help/help_window.h"

namespace ovl::ui {

class MainWindow;

class HelpDesk : public QObject {
 public:
  // The pages of a folder "Help" in the program folder replace the pages of the program.
  HelpDesk(MainWindow& main, const QString& program_folder);

  // The page for the current tab, window or message box.
  QString PageInFront() const;
  void OpenPageInFront();

  const HelpPages& Pages() const { return pages_; }

  // Null until the user opens the help, and after the user has closed it.
  HelpWindow* Window() const { return window_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  MainWindow& main_;
  HelpPages pages_;
  QPointer<HelpWindow> window_;
};

}  // namespace ovl::ui
