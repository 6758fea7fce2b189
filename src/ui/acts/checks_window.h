// Shows what an installer should look at in the configuration. It writes nothing; a row leads to the control
// of its setting.
#pragma once

#include <QTimer>
#include <vector>

#include "checks/checks.h"
#include "ui/acts/setting_window.h"

namespace ovl::ui {

class ChecksWindow : public SettingWindow {
 public:
  // Adds to each refresh that it notices another configuration. The checks themselves wait until the program
  // is idle, and until `Begin`.
  ChecksWindow(Bindings& bindings, QWidget* parent);

  // A button with the number of errors and warnings. It opens the window and is hidden while there are none.
  QPushButton& Button() const { return *button_; }

  // The main window is on the screen, so that the checks delay no start.
  void Begin();

  // Checks the configuration now, if it is another one than that last checked.
  void CheckNow();

  void Refresh() override;

 private:
  void Build() override;
  void ShowCount();
  void Fill();

  QPushButton* button_;
  SettingList* list_ = nullptr;
  QTimer due_;
  bool begun_ = false, stale_ = true;
  ChangeDetector<image::ConfigImage> image_;
  std::vector<checks::Finding> findings_;
};

}  // namespace ovl::ui
