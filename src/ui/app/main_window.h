// The main window: menus, seven tabs, status bar. A tab's page is built when it is first looked at or, before
// that, when the program has nothing else to do: all of them at once would hold up every start.
#pragma once

#include <QMainWindow>
#include <QPointer>

#include "ui/kit/bindings.h"
#include "ui/kit/mnemonics.h"

class QPushButton;
class QTabWidget;

namespace ovl::ui {

class ChangesWindow;
class StatusStrip;

class MainWindow : public QMainWindow {
 public:
  // What it takes of a screen that has the room.
  static constexpr QSize kStartSize{1040, 700};

  explicit MainWindow(Bindings& bindings);

  QTabWidget& Tabs() const { return *tabs_; }
  StatusStrip& Status() const { return *status_; }
  ChangesWindow& Changes() const { return *changes_; }
  QMenu& HelpMenu() const { return *help_menu_; }

  // Builds the next page that does not stand yet; false when all stand.
  bool BuildNextPage();

  // Shows, hides, enables the window as the model says. True when it came or went.
  bool Follow();

  // Gives out the underlined letters anew, after something was shown, hidden or renamed.
  void RenewMnemonics();

  // What a person should look at while this window is held back by another one.
  std::function<void()> held_back;

  // A page was built because somebody looks at it: it must be brought up to the model at once.
  std::function<void()> page_added;

  // Runs once, after the window has been on the screen for the first time.
  std::function<void()> seen;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildTabs();
  bool BuildPage(int tab);
  void FollowTabs();
  void BuildMenus();
  void BuildVersionMenu();
  void FollowEnabled();

  Bindings& bindings_;
  QTabWidget* tabs_;
  StatusStrip* status_;
  ChangesWindow* changes_;
  QPushButton* changes_button_ = nullptr;
  QMenu* help_menu_ = nullptr;
  QPointer<QWidget> last_focus_;
  ChangeDetector<bool> enabled_;
  Letters menu_letters_;
};

}  // namespace ovl::ui
