#include "ui/dialogs/changes_window.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>
#include <set>

#include "image/report.h"
#include "ui/acts/changes_list.h"
#include "ui/kit/mnemonics.h"
#include "ui/kit/theme.h"
#include "ui/kit/widgets.h"

namespace ovl::ui {
namespace {

constexpr Em kStartWidth(75), kStartHeight(38.33);

QString CountOf(std::size_t count, const QString& one) {
  return QStringLiteral("%1 %2%3").arg(count).arg(one, count == 1 ? QString() : QStringLiteral("s"));
}

std::size_t FieldsIn(const std::vector<changes::SettingChange>& rows) {
  std::set<std::string> fields;
  for (const auto& row : rows) {
    for (const auto& bytes : row.bytes) fields.insert(bytes.field);
  }
  return fields.size();
}

void ScrollTo(QWidget& widget) {
  for (auto* around = widget.parentWidget(); around != nullptr; around = around->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(around)) area->ensureWidgetVisible(&widget);
  }
}

}  // namespace

ChangesWindow::ChangesWindow(Bindings& bindings, QWidget* parent) : QDialog(parent), bindings_(bindings) {
  setObjectName(QStringLiteral("Changes"));
  setWindowTitle(QStringLiteral("Changes"));
  resize(QSize(kStartWidth, kStartHeight).boundedTo(screen()->availableSize()));
  StayOnScreen(*this);
}

void ChangesWindow::Build() {
  summary_ = MutedLabel({});
  summary_->setWordWrap(true);
  list_ = new ChangesList;
  list_->setObjectName(QStringLiteral("ChangesList"));
  list_->setAccessibleName(QStringLiteral("Changed settings"));
  list_->setAccessibleDescription(QStringLiteral("Enter goes to the control. Ctrl+C copies the rows."));
  list_->opened = [this](const changes::SettingChange& row) { GoTo(row); };
  auto* bytes = new QCheckBox(QStringLiteral("Show bytes"));
  bytes->setObjectName(QStringLiteral("ChangesBytes"));
  connect(bytes, &QCheckBox::toggled, list_, &ChangesList::ShowBytes);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  for (auto* button : buttons->buttons()) static_cast<QPushButton*>(button)->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
  auto* below = new QHBoxLayout;
  below->addWidget(bytes);
  below->addWidget(MutedLabel(QStringLiteral("Enter goes to the setting. Ctrl+C copies rows.")));
  below->addStretch(1);
  below->addWidget(buttons);
  below->setSpacing(kSectionGap);
  auto* down = new QVBoxLayout(this);
  down->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  down->setSpacing(kFieldGap);
  down->addWidget(summary_);
  down->addWidget(list_);
  down->addLayout(below);
  AssignPageMnemonics(*this, {});
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
  if (list_ == nullptr) Build();
  setWindowTitle(other_ ? QStringLiteral("Changes: ") + other_->file : QStringLiteral("Changes"));
  list_->SetSides(other_ ? QStringLiteral("Here") : QStringLiteral("Before"),
                  other_ ? QStringLiteral("In the file") : QStringLiteral("Now"));
  show();
  raise();
  activateWindow();
  known_.Forget();
  image_.Forget();
  Refresh();
  list_->setFocus();
}

void ChangesWindow::Refresh() {
  if (!isVisible()) return;
  const auto& app = bindings_.Model();
  const bool other_known = known_.Update(app.known_image), other_image = image_.Update(app.image);
  if (!other_known && !other_image) return;
  Fill(other_ ? changes::ReadableChanges(app, app.image, other_->image) : changes::ReadableChanges(app));
}

QString ChangesWindow::SummaryOf(const std::vector<changes::SettingChange>& rows) const {
  const auto count = CountOf(rows.size(), QStringLiteral("setting"));
  if (other_ && rows.empty()) return QStringLiteral("%1 has the same settings.").arg(other_->file);
  if (other_) return QStringLiteral("%1 has %2 otherwise than the tabs show.").arg(other_->file, count);
  const auto unit = QStringLiteral("in a unit that holds the configuration last loaded or sent");
  if (rows.empty()) return QStringLiteral("A download would change nothing %1.").arg(unit);
  return QStringLiteral("What a download would change %1: %2 in %3.")
      .arg(unit, count, CountOf(FieldsIn(rows), QStringLiteral("field")));
}

void ChangesWindow::Fill(std::vector<changes::SettingChange> rows) {
  summary_->setText(SummaryOf(rows));
  list_->Show(std::move(rows));
}

// The widget of a control; of an option array, that of the chosen option.
QWidget* ChangesWindow::WidgetFor(const std::string& control) const {
  const auto* named = bindings_.Model().registry.Find(control);
  if (named == nullptr) return nullptr;
  if (auto* const* array = std::get_if<controls::OptionArray*>(&named->control)) {
    const int chosen = std::max((*array)->chosen, 0);
    return bindings_.WidgetOf((*array)->elements.at(static_cast<std::size_t>(chosen)));
  }
  return bindings_.WidgetOf(controls::StateOf(named->control));
}

// While another window blocks the main one, nothing can be picked there.
void ChangesWindow::GoTo(const changes::SettingChange& row) {
  if (row.tab == changes::SettingChange::kNoTab || !bindings_.Model().frmMain.form.enabled) return;
  if (open_tab) open_tab(row.tab);
  const auto* named = bindings_.Model().registry.Find(row.list);
  if (auto* const* list = named == nullptr ? nullptr : std::get_if<controls::List*>(&named->control)) {
    if ((*list)->position != row.slot - 1) bindings_.Act(core::PickEvent{*list, row.slot - 1});
  }
  parentWidget()->activateWindow();
  auto* widget = WidgetFor(row.control);
  if (widget == nullptr || !widget->isVisibleTo(parentWidget())) return;
  widget->setFocus(Qt::ShortcutFocusReason);
  ScrollTo(*widget);
}

QPushButton* BuildChangesButton(Bindings& bindings, ChangesWindow& window) {
  auto* button = new QPushButton;
  button->setObjectName(QStringLiteral("StatusChanges"));
  button->setFlat(true);
  button->setAutoDefault(false);
  button->setToolTip(QStringLiteral("Shows what a download would change in the unit (Ctrl+D)"));
  QObject::connect(button, &QPushButton::clicked, &window, &ChangesWindow::Open);
  bindings.OnRefresh([&app = bindings.Model(), button, &window, known = ChangeDetector<image::ConfigImage>(),
                      image = ChangeDetector<image::ConfigImage>()]() mutable {
    window.Refresh();
    const bool other_known = known.Update(app.known_image), other_image = image.Update(app.image);
    if (!other_known && !other_image) return false;
    const auto count = image::Differences(app.known_image, app.image, app.image_firmware).size();
    button->setText(CountOf(count, QStringLiteral("field")) +
                    QStringLiteral(" changed since the last load or download"));
    button->setAccessibleName(button->text());
    const bool comes_or_goes = button->isHidden() != (count == 0);
    button->setVisible(count != 0);
    return comes_or_goes;
  });
  return button;
}

}  // namespace ovl::ui
