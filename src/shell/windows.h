// All windows of the program over one model.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "shell/bindings.h"
#include "shell/form_window.h"
#include "shell/help_desk.h"
#include "shell/main_window.h"

namespace ovl {

class Windows {
 public:
  // The model must have been started: menus and lists are complete.
  Windows(Application& app, ActFunction act);

  // Brings everything on the screen up to the model.
  void Refresh();

  // Whether a window is to come or go; then a refresh must not wait.
  bool FormsMoved() const;

  void HideAll();

  // The window over which a message belongs.
  QWidget* Front() const;

  MainWindow& Main() const { return *main_; }
  FormWindow* WindowOf(const Form& form) const;
  HelpDesk& Help() const { return *help_; }
  const Bindings& Controls() const { return bindings_; }

  // What the page in front says of the last act, from the next refresh on.
  void SetQuietLine(const QString& words) { bindings_.SetQuietLine(words); }

 private:
  struct Follower {
    FormWindow* window;
    bool beside;  // stands beside the main window, which can be worked in meanwhile
    FocusFollower focus = {};
  };

  void ShowForms();

  void RenewMnemonics();
  void FillHelpMenu();

  Application& app_;
  Bindings bindings_;
  std::unique_ptr<HelpDesk> help_;  // outlives the help window, which the main window owns
  std::unique_ptr<MainWindow> main_;
  FocusFollower main_focus_;
  std::vector<Follower> forms_;
};

}  // namespace ovl
