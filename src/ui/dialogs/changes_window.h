// Shows what has changed since the last load or download, in the words of the form. It compares the image
// with the one that was last uploaded, opened, loaded at the start or downloaded. It writes nothing; a row
// leads to the control of its setting.
#pragma once

#include <optional>
#include <vector>

#include "changes/readable.h"
#include "ui/acts/setting_window.h"

namespace ovl::ui {

class ChangesList;

class ChangesWindow : public SettingWindow {
 public:
  explicit ChangesWindow(Bindings& bindings, QWidget* parent);

  // Shows the changes.
  void Open() override;
  // Shows how a file differs from the image, until Open is called.
  void OpenComparison(const QString& file, const image::ConfigImage& other);
  void Refresh() override;

 private:
  // The file that the image is compared with.
  struct Other {
    QString file;
    image::ConfigImage image;
  };

  void Build() override;
  void ShowNow();
  QString SummaryOf(const std::vector<changes::SettingChange>& rows) const;
  void Fill(const std::vector<changes::SettingChange>& rows);

  ChangesList* list_ = nullptr;
  ChangeDetector<image::ConfigImage> known_, image_;
  std::optional<Other> other_;
};

// A button with the number of settings that differ. It opens the window and is hidden while the number is
// zero.
QPushButton* BuildChangesButton(Bindings& bindings, ChangesWindow& window);

}  // namespace ovl::ui
