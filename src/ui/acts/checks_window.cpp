#include "ui/acts/checks_window.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

namespace ovl::ui {
namespace {

constexpr int kIdleTime = 200;

QString GroupOf(checks::Severity severity) {
  switch (severity) {
    case checks::Severity::kError:
      return QStringLiteral("Errors");
    case checks::Severity::kWarning:
      return QStringLiteral("Warnings");
    default:
      return QStringLiteral("Notes");
  }
}

SettingRow RowOf(const checks::Finding& finding) {
  return {GroupOf(finding.severity),
          PrintableText(finding.place),
          {PrintableText(finding.caption), PrintableText(finding.words)},
          {finding.tab, finding.control, finding.list, finding.slot}};
}

// "1 error, 2 warnings"; kinds without a finding are left out.
QString WordsOf(const std::vector<std::pair<std::size_t, QString>>& counts) {
  QStringList words;
  for (const auto& [count, one] : counts) {
    if (count > 0) words.append(CountOf(count, one));
  }
  return words.join(QStringLiteral(", "));
}

}  // namespace

ChecksWindow::ChecksWindow(Bindings& bindings, QWidget* parent)
    : SettingWindow(bindings, QStringLiteral("Checks"), parent),
      button_(StatusButton(*this, QStringLiteral("StatusChecks"),
                           QStringLiteral("Shows what to look at in the configuration (Ctrl+K)"))) {
  button_->hide();
  due_.setSingleShot(true);
  due_.setInterval(kIdleTime);
  due_.callOnTimeout(this, &ChecksWindow::CheckNow);
  bindings.OnRefresh([this] {
    if (!image_.Update(Form().Model().image)) return false;
    stale_ = true;
    if (begun_) due_.start();
    return false;
  });
}

void ChecksWindow::Build() {
  list_ = new SettingList({QStringLiteral("Setting"), QStringLiteral("Finding")});
  list_->setAccessibleName(QStringLiteral("Findings"));
  list_->header()->setSectionResizeMode(1, QHeaderView::Stretch);
  BuildAround(*list_);
}

void ChecksWindow::Begin() {
  begun_ = true;
  if (stale_) due_.start();
}

void ChecksWindow::CheckNow() {
  due_.stop();
  const auto& app = Form().Model();
  if (!stale_ || app.ended) return;
  stale_ = false;
  findings_ = checks::FindingsOf(app, app.image);
  ShowCount();
  if (isVisible()) Fill();
}

void ChecksWindow::Refresh() {
  if (!isVisible()) return;
  CheckNow();
  Fill();
}

void ChecksWindow::ShowCount() {
  const auto count = checks::CountOf(findings_);
  button_->setText(
      WordsOf({{count.errors, QStringLiteral("error")}, {count.warnings, QStringLiteral("warning")}}));
  button_->setAccessibleName(button_->text());
  button_->setVisible(count.errors + count.warnings > 0);
}

void ChecksWindow::Fill() {
  const auto count = checks::CountOf(findings_);
  const auto words = WordsOf({{count.errors, QStringLiteral("error")},
                              {count.warnings, QStringLiteral("warning")},
                              {count.notes, QStringLiteral("note")}});
  Summary().setText(words.isEmpty()
                        ? QStringLiteral("The checks found nothing to look at in this configuration.")
                        : QStringLiteral("The checks found %1 in this configuration.").arg(words));
  std::vector<SettingRow> rows;
  for (const auto& finding : findings_) rows.push_back(RowOf(finding));
  list_->ShowRows(std::move(rows));
}

}  // namespace ovl::ui
