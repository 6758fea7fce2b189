#include "shell/changes_window.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <array>

#include "image/editors.h"
#include "shell/platform/text_codec.h"
#include "shell/status_strip.h"
#include "shell/theme.h"

namespace ovl {
namespace {

constexpr QSize kStartSize(940, 420);
constexpr int kValueWidth = 130;
constexpr std::array kSections = {"SYSCFG", "SYSFIXED", "SYSSTR"};

QString PlaceOf(const FieldDifference& difference) {
  const auto section = static_cast<std::size_t>(difference.field->section);
  return QStringLiteral("%1 %2").arg(QLatin1String(kSections.at(section))).arg(difference.byte);
}

QString EditorsOf(const Application& app, const FieldDifference& difference) {
  const auto words = EditedBy(app, difference.field->id, "options", difference.before, difference.after);
  return words.empty() ? QStringLiteral("shown nowhere") : FromWindows1252(words);
}

QString CountOf(std::size_t count) {
  return count == 1 ? QStringLiteral("1 change") : QStringLiteral("%1 changes").arg(count);
}

}  // namespace

ChangesWindow::ChangesWindow(const Application& app, QWidget* parent) : QDialog(parent), app_(app) {
  setObjectName(QStringLiteral("Changes"));
  setWindowTitle(QStringLiteral("Changes"));
  resize(kStartSize);
}

void ChangesWindow::Build() {
  told_ = MutedLabel({});
  list_ = new QTreeWidget;
  list_->setObjectName(QStringLiteral("ChangesList"));
  list_->setAccessibleName(QStringLiteral("Changed fields"));
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAlternatingRowColors(true);
  list_->setTextElideMode(Qt::ElideRight);
  list_->setHeaderLabels({QStringLiteral("Field"), QStringLiteral("Byte"), QStringLiteral("Panel and label"),
                          QStringLiteral("Was"), QStringLiteral("Is")});
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  list_->header()->setSectionResizeMode(2, QHeaderView::Stretch);
  for (const int value : {3, 4}) {
    list_->header()->setSectionResizeMode(value, QHeaderView::Interactive);
    list_->header()->resizeSection(value, kValueWidth);
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
  auto* down = new QVBoxLayout(this);
  down->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  down->setSpacing(kFieldGap);
  down->addWidget(told_);
  down->addWidget(list_);
  down->addWidget(buttons);
}

void ChangesWindow::Open() {
  if (list_ == nullptr) Build();
  show();
  raise();
  activateWindow();
  Follow();
  list_->setFocus();
}

void ChangesWindow::Follow() {
  if (!isVisible()) return;
  const bool other_known = known_.Update(app_.known_image), other_image = image_.Update(app_.image);
  if (other_known || other_image) Fill(Differences(app_.known_image, app_.image, app_.firmware));
}

void ChangesWindow::Fill(const std::vector<FieldDifference>& differences) {
  told_->setText(
      differences.empty()
          ? QStringLiteral("A download would change nothing in a unit that holds the configuration "
                           "last loaded.")
          : QStringLiteral("What a download would change in a unit that holds the configuration "
                           "last loaded: %1.")
                .arg(CountOf(differences.size())));
  list_->clear();
  for (const auto& difference : differences) {
    const QStringList cells = {FromWindows1252(difference.name), PlaceOf(difference),
                               EditorsOf(app_, difference), FromWindows1252(difference.before),
                               FromWindows1252(difference.after)};
    auto* line = new QTreeWidgetItem(list_, cells);
    for (int column = 0; column < cells.size(); ++column) line->setToolTip(column, cells.at(column));
  }
  if (list_->topLevelItemCount() > 0) list_->setCurrentItem(list_->topLevelItem(0));
}

QPushButton* BuildChangesButton(Bindings& bindings, ChangesWindow& window) {
  auto* button = new QPushButton;
  button->setObjectName(QStringLiteral("StatusChanges"));
  button->setFlat(true);
  button->setAutoDefault(false);
  button->setFixedHeight(StatusStrip::LineHeight(*button));
  button->setToolTip(QStringLiteral("Shows what a download would change in the unit (Ctrl+D)"));
  QObject::connect(button, &QPushButton::clicked, &window, &ChangesWindow::Open);
  bindings.Follow([&app = bindings.Model(), button, &window, known = Shadow<ConfigImage>(),
                   image = Shadow<ConfigImage>()]() mutable {
    window.Follow();
    const bool other_known = known.Update(app.known_image), other_image = image.Update(app.image);
    if (!other_known && !other_image) return false;
    const auto count = Differences(app.known_image, app.image, app.firmware).size();
    button->setText(CountOf(count));
    button->setAccessibleName(button->text());
    const bool comes_or_goes = button->isHidden() != (count == 0);
    button->setVisible(count != 0);
    return comes_or_goes;
  });
  return button;
}

}  // namespace ovl
