// Shows what a download would change in the unit. It compares the image with the one that was last uploaded,
// opened, loaded at the start or downloaded. It only reads.
#pragma once

#include <QDialog>
#include <vector>

#include "image/report.h"
#include "ui/kit/bindings.h"

class QLabel;
class QPushButton;

namespace ovl::ui {

class OverviewList;

class ChangesWindow : public QDialog {
 public:
  explicit ChangesWindow(const core::Application& app, QWidget* parent);

  // Updates the list while the window is visible.
  void Refresh();
  // Shows the window; builds its content the first time.
  void Open();

 private:
  void Build();
  void Fill(const std::vector<image::FieldDifference>& differences);

  const core::Application& app_;
  QLabel* summary_ = nullptr;
  OverviewList* list_ = nullptr;
  ChangeDetector<image::ConfigImage> known_, image_;
};

// A button with the number of fields that differ. It opens the window and is hidden while the number is zero.
QPushButton* BuildChangesButton(Bindings& bindings, ChangesWindow& window);

}  // namespace ovl::ui
