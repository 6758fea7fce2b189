// A window with a list of settings, whose rows lead to their controls in the main window. It stays open
// beside the main window.
#pragma once

#include <QDialog>
#include <functional>

#include "ui/acts/setting_list.h"
#include "ui/kit/bindings.h"

class QLabel;
class QPushButton;

namespace ovl::ui {

class SettingWindow : public QDialog {
 public:
  // Opens a tab of the main window.
  std::function<void(int tab)> open_tab;

  // Shows the window; builds its content the first time.
  virtual void Open();

  // Updates the list while the window is visible.
  virtual void Refresh() = 0;

 protected:
  SettingWindow(Bindings& bindings, const QString& name, const QString& title, QWidget* parent);

  // Makes the list, which must come to BuildAround, with a widget that changes what it shows or none.
  virtual void Build() = 0;
  void BuildAround(SettingList& list, QWidget* beside = nullptr);

  Bindings& Form() const { return bindings_; }
  QLabel& Summary() const { return *summary_; }

 private:
  void GoTo(const SettingGoal& goal);
  QWidget* WidgetFor(const std::string& control) const;

  Bindings& bindings_;
  QLabel* summary_ = nullptr;
  SettingList* list_ = nullptr;
};

// A button of the status bar that opens the window.
QPushButton* StatusButton(SettingWindow& window, const QString& name, const QString& tip);

}  // namespace ovl::ui
