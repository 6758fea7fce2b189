// All windows of the program for one model.
#pragma once

#include <QTabWidget>
#include <QTimer>
#include <memory>
#include <vector>

#include "ui/app/help_desk.h"
#include "ui/dialogs/form_window.h"
#include "ui/kit/bindings.h"
#include "ui/window/main_window.h"

namespace ovl::ui {

class Windows {
 public:
  // The model must be started already, so that menus and lists are complete.
  Windows(core::Application& app, ActFunction act, OwnActs own_acts);

  // Updates everything on the screen from the model.
  void Refresh();

  // True when a window must be shown or hidden; then a refresh must not wait.
  bool HasFormsToShowOrHide() const;

  void HideAll();

  // The window that a message box belongs to.
  QWidget* Front() const;

  // Builds all pages and small windows that are still missing.
  void BuildAll();

  MainWindow& Main() const { return *main_; }

  // The window of a form; builds it if it is missing. Null for the main form.
  FormWindow* WindowOf(const controls::Form& form);
  HelpDesk& Help() const { return *help_; }
  const Bindings& Controls() const { return bindings_; }
  void SetOwnActs(OwnActFunction own_act) { bindings_.SetOwnActs(std::move(own_act)); }

  // The line below the current tab about the last act. The next refresh shows it.
  void SetAlsoStored(const QString& words) { bindings_.SetAlsoStored(words, main_->Tabs().currentIndex()); }

 private:
  using Builder = FormWindow* (*)(Bindings& bindings, QWidget* parent);

  // A small window. It is built when its form is first shown, or before that when the program is idle.
  struct SmallWindow {
    const controls::Form& form;
    Builder build;
    bool modeless;  // opens beside the main window, which the user can still work in
    FormWindow* window = nullptr;
    FocusMover focus = {};

    bool Wanted() const { return form.loaded && form.visible; }
  };

  void Build(SmallWindow& form);
  bool BuildNext();
  void ShowForms();

  void RenewMnemonics();
  void FillHelpMenu();

  core::Application& app_;
  Bindings bindings_;
  std::unique_ptr<HelpDesk> help_;  // must outlive the help window, which the main window owns
  std::unique_ptr<MainWindow> main_;
  FocusMover main_focus_;
  std::vector<SmallWindow> forms_;
  QTimer idle_;
  bool building_ = false;  // events of widgets during the build of their window must not cause a refresh
};

}  // namespace ovl::ui
