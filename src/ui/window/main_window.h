// The main window: menus, seven tabs, status bar. The page of a tab is built when the user first opens it, or
// before that when the program is idle. Building all pages at once would delay every start.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <vector>

#include "ui/kit/bindings.h"
#include "ui/kit/mnemonics.h"
#include "ui/window/edit_menu.h"

class QPushButton;
class QTabWidget;

namespace ovl::ui {

class ChangesWindow;
class ChecksWindow;
class StatusStrip;

class MainWindow : public QMainWindow {
 public:
  // The size on a screen that has room for it.
  static QSize StartSize();

  MainWindow(Bindings& bindings, OwnActs own_acts);

  QTabWidget& Tabs() const { return *tabs_; }
  StatusStrip& Status() const { return *status_; }
  ChangesWindow& Changes() const { return *changes_; }
  ChecksWindow& Checks() const { return *checks_; }
  const OwnActs& Acts() const { return own_acts_; }
  QMenu& HelpMenu() const { return *help_menu_; }

  // Opens the tab of the control and gives it the focus. Nothing happens for a control without a widget here.
  void GoTo(const controls::ControlState& control);

  // Opens the Version menu.
  void OpenVersionMenu();

  // Builds the next missing page; false when there is none.
  bool BuildNextPage();

  // Shows, hides, enables or disables the window as the model says. True when it was shown or hidden.
  bool ShowAsModelSays();

  // Chooses the underlined letters again, after something was shown, hidden or renamed.
  void RenewMnemonics();

  // Called when the user activates this window while another one blocks it.
  std::function<void()> activated_while_blocked;

  // Called when a page was built for the tab that is about to show: it must be refreshed at once.
  std::function<void()> page_built;

  // Called after another tab was shown.
  std::function<void()> tab_shown;

  // Called once, after the window was first painted.
  std::function<void()> first_painted;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildTabs();
  bool BuildPage(int tab);
  void AddStatusButton(QPushButton* button);
  void BindTabs();
  void BuildMenus();
  void BindTitle();
  void BuildVersionMenu();
  void EnableAsModelSays();

  Bindings& bindings_;
  OwnActs own_acts_;
  QTabWidget* tabs_;
  StatusStrip* status_;
  ChangesWindow* changes_;
  ChecksWindow* checks_;
  std::vector<QPushButton*> status_buttons_;  // from left to right
  QMenu* version_menu_ = nullptr;
  QMenu* help_menu_ = nullptr;
  QPointer<QWidget> focus_before_;  // this refresh, which may hide or disable its widget
  QPointer<QWidget> last_focus_;    // before another window blocked this one
  ChangeDetector<bool> enabled_;
  Letters menu_letters_;
};

}  // namespace ovl::ui
