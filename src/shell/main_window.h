// The main window: menus, seven tabs, status bar.
#pragma once

#include <QMainWindow>
#include <QPointer>

#include "shell/bindings.h"
#include "shell/mnemonics.h"

class QTabWidget;

namespace ovl {

class ChangesWindow;
class StatusStrip;

class MainWindow : public QMainWindow {
 public:
  explicit MainWindow(Bindings& bindings);

  QTabWidget& Tabs() const { return *tabs_; }
  StatusStrip& Status() const { return *status_; }
  ChangesWindow& Changes() const { return *changes_; }
  QMenu& HelpMenu() const { return *help_menu_; }

  // Shows, hides, enables the window as the model says. True when it came or went.
  bool Follow();

  // Gives out the underlined letters anew, after something was shown, hidden or renamed.
  void RenewMnemonics();

  // What a person should look at while this window is held back by another one.
  std::function<void()> held_back;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildTabs();
  void BuildMenus();
  void BuildVersionMenu();
  void FollowEnabled();

  Bindings& bindings_;
  QTabWidget* tabs_;
  StatusStrip* status_;
  ChangesWindow* changes_;
  QMenu* help_menu_ = nullptr;
  QPointer<QWidget> last_focus_;
  Shadow<bool> enabled_;
  Letters menu_letters_;
};

}  // namespace ovl
