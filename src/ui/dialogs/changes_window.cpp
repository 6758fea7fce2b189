#include "ui/dialogs/changes_window.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <set>

#include "image/report.h"
#include "ui/acts/changes_list.h"

namespace ovl::ui {
namespace {

std::size_t FieldsIn(const std::vector<changes::SettingChange>& rows) {
  std::set<std::string> fields;
  for (const auto& row : rows) {
    for (const auto& bytes : row.bytes) fields.insert(bytes.field);
  }
  return fields.size();
}

}  // namespace

ChangesWindow::ChangesWindow(Bindings& bindings, QWidget* parent)
    : SettingWindow(bindings, QStringLiteral("Changes"), parent) {}

void ChangesWindow::Build() {
  list_ = new ChangesList;
  list_->setAccessibleName(QStringLiteral("Changed settings"));
  auto* bytes = new QCheckBox(QStringLiteral("Show bytes"));
  bytes->setObjectName(QStringLiteral("ChangesBytes"));
  connect(bytes, &QCheckBox::toggled, list_, &ChangesList::ShowBytes);
  BuildAround(*list_, bytes);
}

void ChangesWindow::Open() {
  other_.reset();
  ShowNow();
}

void ChangesWindow::OpenComparison(const QString& file, const image::ConfigImage& other) {
  other_ = Other{file, other};
  ShowNow();
}

void ChangesWindow::ShowNow() {
  setWindowTitle(other_ ? QStringLiteral("Changes: ") + other_->file : QStringLiteral("Changes"));
  known_.Forget();
  image_.Forget();
  SettingWindow::Open();
}

void ChangesWindow::Refresh() {
  if (!isVisible()) return;
  const auto& app = Form().Model();
  const bool other_known = known_.Update(app.known_image), other_image = image_.Update(app.image);
  if (!other_known && !other_image) return;
  Fill(other_ ? changes::ReadableChanges(app, app.image, other_->image) : changes::ReadableChanges(app));
}

QString ChangesWindow::SummaryOf(const std::vector<changes::SettingChange>& rows) const {
  const auto count = CountOf(rows.size(), QStringLiteral("setting"));
  if (other_ && rows.empty()) return QStringLiteral("%1 has the same settings.").arg(other_->file);
  if (other_) return QStringLiteral("%1 differs from the tabs in %2.").arg(other_->file, count);
  const auto unit = QStringLiteral("in a unit that holds the configuration last loaded or sent");
  if (rows.empty()) return QStringLiteral("A download would change nothing %1.").arg(unit);
  return QStringLiteral("What a download would change %1: %2 in %3.")
      .arg(unit, count, CountOf(FieldsIn(rows), QStringLiteral("field")));
}

void ChangesWindow::Fill(const std::vector<changes::SettingChange>& rows) {
  list_->SetSides(other_ ? QStringLiteral("Here") : QStringLiteral("Before"),
                  other_ ? QStringLiteral("In the file") : QStringLiteral("Now"));
  Summary().setText(SummaryOf(rows));
  list_->Show(rows);
}

QPushButton* BuildChangesButton(Bindings& bindings, ChangesWindow& window) {
  auto* button = StatusButton(
      window, QStringLiteral("StatusChanges"),
      QStringLiteral("Shows what a download would change in the unit: what has changed since the last "
                     "load or download (Ctrl+D)"));
  bindings.OnRefresh([&app = bindings.Model(), button, &window, known = ChangeDetector<image::ConfigImage>(),
                      image = ChangeDetector<image::ConfigImage>()]() mutable {
    window.Refresh();
    const bool other_known = known.Update(app.known_image), other_image = image.Update(app.image);
    if (!other_known && !other_image) return false;
    const auto count = image::Differences(app.known_image, app.image, app.image_firmware).size();
    button->setText(CountOf(count, QStringLiteral("field")) + QStringLiteral(" changed"));
    button->setAccessibleName(button->text());
    const bool comes_or_goes = button->isHidden() != (count == 0);
    button->setVisible(count != 0);
    return comes_or_goes;
  });
  return button;
}

}  // namespace ovl::ui
