// What a download would change in the unit: the image beside what was last uploaded, opened, loaded at the
// start, or left in the unit by a download. It compares and writes nothing.
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

  // Brings the list up to the model while the window is shown.
  void Follow();
  // Shows the window; its content is built at the first time.
  void Open();

 private:
  void Build();
  void Fill(const std::vector<image::FieldDifference>& differences);

  const core::Application& app_;
  QLabel* told_ = nullptr;
  OverviewList* list_ = nullptr;
  ChangeDetector<image::ConfigImage> known_, image_;
};

// The number of fields that differ, as a button that opens the window; hidden while there is none.
QPushButton* BuildChangesButton(Bindings& bindings, ChangesWindow& window);

}  // namespace ovl::ui
