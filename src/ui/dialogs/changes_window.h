// Shows what a download would change in the unit, in the words of the form. It compares the image with the
// one that was last uploaded, opened, loaded at the start or downloaded. It writes nothing; a row leads to
// the control of its setting.
#pragma once

#include <QDialog>
#include <functional>
#include <optional>
#include <vector>

#include "changes/readable.h"
#include "ui/kit/bindings.h"

class QLabel;
class QPushButton;

namespace ovl::ui {

class ChangesList;

class ChangesWindow : public QDialog {
 public:
  explicit ChangesWindow(Bindings& bindings, QWidget* parent);

  // Opens a tab of the main window.
  std::function<void(int tab)> open_tab;

  // Updates the list while the window is visible.
  void Refresh();
  // Shows the window; builds its content the first time.
  void Open();
  // Shows what a file has otherwise than the image, until Open is called.
  void OpenComparison(const QString& file, const image::ConfigImage& other);

 private:
  // The file that the image is compared with.
  struct Other {
    QString file;
    image::ConfigImage image;
  };

  void Build();
  void ShowNow();
  QString SummaryOf(const std::vector<changes::SettingChange>& rows) const;
  void Fill(std::vector<changes::SettingChange> rows);
  void GoTo(const changes::SettingChange& row);
  QWidget* WidgetFor(const std::string& control) const;

  Bindings& bindings_;
  QLabel* summary_ = nullptr;
  ChangesList* list_ = nullptr;
  ChangeDetector<image::ConfigImage> known_, image_;
  std::optional<Other> other_;
};

// A button with the number of fields that differ. It opens the window and is hidden while the number is zero.
QPushButton* BuildChangesButton(Bindings& bindings, ChangesWindow& window);

}  // namespace ovl::ui
