// All windows of the program over one model.
#pragma once

#include <QTimer>
#include <memory>
#include <utility>
#include <vector>

#include "ui/app/help_desk.h"
#include "ui/app/main_window.h"
#include "ui/dialogs/form_window.h"
#include "ui/kit/bindings.h"

namespace ovl::ui {

class Windows {
 public:
  // The model must have been started: menus and lists are complete.
  Windows(core::Application& app, ActFunction act);

  // Brings everything on the screen up to the model.
  void Refresh();

  // Whether a window is to come or go; then a refresh must not wait.
  bool FormsMoved() const;

  void HideAll();

  // The window over which a message belongs.
  QWidget* Front() const;

  // Builds what does not stand yet of pages and small windows.
  void BuildAll();

  MainWindow& Main() const { return *main_; }

  // The window of a form, built if need be; none for the main form.
  FormWindow* WindowOf(const controls::Form& form);
  HelpDesk& Help() const { return *help_; }
  const Bindings& Controls() const { return bindings_; }

  // What the page in front says of the last act, from the next refresh on.
  void SetQuietLine(const QString& words) { bindings_.SetQuietLine(words); }

 private:
  using Builder = FormWindow* (*)(Bindings& bindings, QWidget* parent);

  // A small window, built when its form is first shown or, before that, when there is nothing else to do.
  struct Follower {
    const controls::Form& form;
    Builder build;
    bool beside;  // stands beside the main window, which can be worked in meanwhile
    FormWindow* window = nullptr;
    FocusFollower focus = {};

    bool Wanted() const { return form.loaded && form.visible; }
  };

  void Build(Follower& form);
  bool BuildNext();
  void ShowForms();

  void RenewMnemonics();
  void FillHelpMenu();

  core::Application& app_;
  Bindings bindings_;
  std::unique_ptr<HelpDesk> help_;  // outlives the help window, which the main window owns
  std::unique_ptr<MainWindow> main_;
  FocusFollower main_focus_;
  std::vector<Follower> forms_;
  QTimer idle_;
  bool building_ = false;  // what a widget tells while its window is built comes too early
};

}  // namespace ovl::ui
