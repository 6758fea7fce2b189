#include "ui/dialogs/changes_window.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "changes/editors.h"
#include "host/text_codec.h"
#include "ui/kit/mnemonics.h"
#include "ui/kit/theme.h"
#include "ui/pages/overview_list.h"

namespace ovl::ui {
namespace {

constexpr QSize kStartSize(1100, 460);
constexpr qsizetype kShownDigits = 16;
constexpr int kWas = 3, kIs = 4;
constexpr std::array kSections = {"SYSCFG", "SYSFIXED", "SYSSTR"};

QString PlaceOf(const image::FieldDifference& difference) {
  const auto section = static_cast<std::size_t>(difference.field->section);
  return QStringLiteral("%1 %2").arg(QLatin1String(kSections.at(section))).arg(difference.byte);
}

QString EditorsOf(const core::Application& app, const image::FieldDifference& difference) {
  const auto words =
      changes::EditedBy(app, difference.field->id, "options", difference.before, difference.after);
  return words.empty() ? QStringLiteral("shown nowhere") : host::FromWindows1252(words);
}

// Cuts a long value so that it begins with the first byte that differs.
QString FromDifference(const QString& value, const QString& other) {
  if (value.size() <= kShownDigits) return value;
  qsizetype at = 0;
  while (at < std::min(value.size(), other.size()) && value[at] == other[at]) ++at;
  at -= at % 2;
  return (at == 0 ? QString() : QString(QChar(0x2026))) + value.mid(at);
}

QString CountOf(std::size_t count) {
  return count == 1 ? QStringLiteral("1 change") : QStringLiteral("%1 changes").arg(count);
}

}  // namespace

ChangesWindow::ChangesWindow(const core::Application& app, QWidget* parent) : QDialog(parent), app_(app) {
  setObjectName(QStringLiteral("Changes"));
  setWindowTitle(QStringLiteral("Changes"));
  resize(kStartSize.boundedTo(screen()->availableSize()));
}

void ChangesWindow::Build() {
  summary_ = MutedLabel({});
  summary_->setWordWrap(true);
  list_ = new OverviewList({{QStringLiteral("Field"), QStringLiteral("DEVICE_INDEX_BAK")},
                            {QStringLiteral("Byte"), QStringLiteral("SYSFIXED 112")},
                            {QStringLiteral("Panel and label"), {}},
                            {QStringLiteral("Was"), QString(kShownDigits + 3, QLatin1Char('0'))},
                            {QStringLiteral("Is"), QString(kShownDigits + 3, QLatin1Char('0'))}});
  list_->setObjectName(QStringLiteral("ChangesList"));
  list_->setAccessibleName(QStringLiteral("Changed fields"));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
  auto* down = new QVBoxLayout(this);
  down->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  down->setSpacing(kFieldGap);
  down->addWidget(summary_);
  down->addWidget(list_);
  down->addWidget(buttons);
  AssignPageMnemonics(*this, {});
}

void ChangesWindow::Open() {
  if (list_ == nullptr) Build();
  show();
  raise();
  activateWindow();
  Refresh();
  list_->setFocus();
}

void ChangesWindow::Refresh() {
  if (!isVisible()) return;
  const bool other_known = known_.Update(app_.known_image), other_image = image_.Update(app_.image);
  if (other_known || other_image) Fill(image::Differences(app_.known_image, app_.image, app_.firmware));
}

void ChangesWindow::Fill(const std::vector<image::FieldDifference>& differences) {
  summary_->setText(
      differences.empty()
          ? QStringLiteral("A download would change nothing in a unit that holds the configuration "
                           "last loaded or sent.")
          : QStringLiteral("What a download would change in a unit that holds the configuration "
                           "last loaded or sent: %1.")
                .arg(CountOf(differences.size())));
  std::vector<OverviewLine> lines;
  for (const auto& difference : differences) {
    const auto was = host::FromWindows1252(difference.before), is = host::FromWindows1252(difference.after);
    const QStringList cells = {host::FromWindows1252(difference.name), PlaceOf(difference),
                               EditorsOf(app_, difference), FromDifference(was, is), FromDifference(is, was)};
    lines.push_back({cells, true});
  }
  list_->Show(lines);
  for (int line = 0; line < list_->topLevelItemCount(); ++line) {
    const auto& difference = differences[static_cast<std::size_t>(line)];
    list_->topLevelItem(line)->setToolTip(kWas, host::FromWindows1252(difference.before));
    list_->topLevelItem(line)->setToolTip(kIs, host::FromWindows1252(difference.after));
  }
  if (!lines.empty()) list_->SetCursor(0);
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
    const auto count = image::Differences(app.known_image, app.image, app.firmware).size();
    button->setText(CountOf(count) + QStringLiteral(" since the last load or download"));
    button->setAccessibleName(button->text());
    const bool comes_or_goes = button->isHidden() != (count == 0);
    button->setVisible(count != 0);
    return comes_or_goes;
  });
  return button;
}

}  // namespace ovl::ui
