// Shows what a download would change in the unit, in the words of the form. It compares the image with the
// one that was last uploaded, opened, loaded at the start or downloaded. It writes nothing; a row leads to
// the control of its setting.
#pragma once

#include <vector>

#include "changes/readable.h"
#include "ui/acts/setting_window.h"

namespace ovl::ui {

class ChangesList;

class ChangesWindow : public SettingWindow {
 public:
  explicit ChangesWindow(Bindings& bindings, QWidget* parent);

  void Refresh() override;

 private:
  void Build() override;
  void Fill(const std::vector<changes::SettingChange>& rows);

  ChangesList* list_ = nullptr;
  ChangeDetector<image::ConfigImage> known_, image_;
};

// A button with the number of fields that differ. It opens the window and is hidden while the number is zero.
QPushButton* BuildChangesButton(Bindings& bindings, ChangesWindow& window);

}  // namespace ovl::ui
