#include "ui/dialogs/changes_window.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

#include "ui/acts/changes_list.h"

namespace ovl::ui {
namespace {

QString CountText(const std::vector<changes::SettingChange>& rows) {
  const int count = static_cast<int>(rows.size());
  return count == 1 ? QCoreApplication::translate("ChangesWindow", "%n setting", nullptr, count)
                    : QCoreApplication::translate("ChangesWindow", "%n settings", nullptr, count);
}

}  // namespace

ChangesWindow::ChangesWindow(Bindings& bindings, QWidget* parent)
    : SettingWindow(bindings, QStringLiteral("Changes"),
                    QCoreApplication::translate("ChangesWindow", "Changes"), parent) {}

void ChangesWindow::Build() {
  list_ = new ChangesList;
  list_->setAccessibleName(QCoreApplication::translate("ChangesWindow", "Changed settings"));
  auto* bytes = new QCheckBox(QCoreApplication::translate("ChangesWindow", "Show bytes"));
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
  setWindowTitle(other_ ? QCoreApplication::translate("ChangesWindow", "Changes: %1").arg(other_->file)
                        : QCoreApplication::translate("ChangesWindow", "Changes"));
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
  if (other_ && rows.empty())
    return QCoreApplication::translate("ChangesWindow", "%1 has the same settings.").arg(other_->file);
  if (other_)
    return QCoreApplication::translate("ChangesWindow", "%1 differs from the tabs in %2.",
                                       "a file, \"3 settings\"")
        .arg(other_->file, CountText(rows));
  if (rows.empty())
    return QCoreApplication::translate(
        "ChangesWindow", "Nothing has changed since the start or the last upload, download or Open.");
  return QCoreApplication::translate(
             "ChangesWindow",
             "Since the start or the last upload, download or Open, %1 changed. A download writes all "
             "settings into the unit, not only the changed ones.",
             "\"3 settings\"")
      .arg(CountText(rows));
}

void ChangesWindow::Fill(const std::vector<changes::SettingChange>& rows) {
  list_->SetSides(other_ ? QCoreApplication::translate("ChangesWindow", "Here")
                         : QCoreApplication::translate("ChangesWindow", "Before"),
                  other_ ? QCoreApplication::translate("ChangesWindow", "In the file")
                         : QCoreApplication::translate("ChangesWindow", "Now"));
  Summary().setText(SummaryOf(rows));
  list_->Show(rows);
}

QPushButton* BuildChangesButton(Bindings& bindings, ChangesWindow& window) {
  auto* button = StatusButton(
      window, QStringLiteral("StatusChanges"),
      QCoreApplication::translate(
          "ChangesWindow",
          "Shows what has changed since the start or the last upload, download or Open (Ctrl+D)"));
  bindings.OnRefresh([&app = bindings.Model(), button, &window, known = ChangeDetector<image::ConfigImage>(),
                      image = ChangeDetector<image::ConfigImage>()]() mutable {
    window.Refresh();
    const bool other_known = known.Update(app.known_image), other_image = image.Update(app.image);
    if (!other_known && !other_image) return false;
    const auto rows = changes::ReadableChanges(app);
    button->setText(
        QCoreApplication::translate("ChangesWindow", "%1 changed", "\"3 settings\"").arg(CountText(rows)));
    const bool comes_or_goes = button->isHidden() != rows.empty();
    button->setVisible(!rows.empty());
    return comes_or_goes;
  });
  return button;
}

}  // namespace ovl::ui
