#include "ui/acts/checks_window.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

namespace ovl::ui {
namespace {

constexpr int kIdleTime = 200;

QString GroupOf(checks::Severity severity) {
  switch (severity) {
    case checks::Severity::kError:
      return QCoreApplication::translate("ChecksWindow", "Errors");
    case checks::Severity::kWarning:
      return QCoreApplication::translate("ChecksWindow", "Warnings");
    default:
      return QCoreApplication::translate("ChecksWindow", "Notes");
  }
}

SettingRow RowOf(const checks::Finding& finding) {
  return {GroupOf(finding.severity),
          PrintableText(finding.place),
          {PrintableText(finding.caption), PrintableText(finding.words)},
          {finding.tab, finding.control, finding.list, finding.slot}};
}

QString CountText(checks::Severity severity, std::size_t findings) {
  const int count = static_cast<int>(findings);
  switch (severity) {
    case checks::Severity::kError:
      return count == 1 ? QCoreApplication::translate("ChecksWindow", "%n error", nullptr, count)
                        : QCoreApplication::translate("ChecksWindow", "%n errors", nullptr, count);
    case checks::Severity::kWarning:
      return count == 1 ? QCoreApplication::translate("ChecksWindow", "%n warning", nullptr, count)
                        : QCoreApplication::translate("ChecksWindow", "%n warnings", nullptr, count);
    default:
      return count == 1 ? QCoreApplication::translate("ChecksWindow", "%n note", nullptr, count)
                        : QCoreApplication::translate("ChecksWindow", "%n notes", nullptr, count);
  }
}

// "1 error, 2 warnings"; kinds without a finding are left out.
QString WordsOf(const std::vector<std::pair<std::size_t, checks::Severity>>& counts) {
  QStringList words;
  for (const auto& [count, severity] : counts) {
    if (count > 0) words.append(CountText(severity, count));
  }
  return words.join(QStringLiteral(", "));
}

}  // namespace

ChecksWindow::ChecksWindow(Bindings& bindings, QWidget* parent)
    : SettingWindow(bindings, QStringLiteral("Checks"), QCoreApplication::translate("ChecksWindow", "Checks"),
                    parent),
      button_(StatusButton(
          *this, QStringLiteral("StatusChecks"),
          QCoreApplication::translate("ChecksWindow", "Shows the findings of the checks (Ctrl+K)"))) {
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
  list_ = new SettingList({QCoreApplication::translate("ChecksWindow", "Setting"),
                           QCoreApplication::translate("ChecksWindow", "Finding")});
  list_->setAccessibleName(QCoreApplication::translate("ChecksWindow", "Findings"));
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
  const bool only_notes = count.errors + count.warnings == 0;
  button_->setText(only_notes ? WordsOf({{count.notes, checks::Severity::kNote}})
                              : WordsOf({{count.errors, checks::Severity::kError},
                                         {count.warnings, checks::Severity::kWarning}}));
  button_->setVisible(!findings_.empty());
}

void ChecksWindow::Fill() {
  const auto count = checks::CountOf(findings_);
  const auto words = WordsOf({{count.errors, checks::Severity::kError},
                              {count.warnings, checks::Severity::kWarning},
                              {count.notes, checks::Severity::kNote}});
  Summary().setText(
      words.isEmpty()
          ? QCoreApplication::translate("ChecksWindow", "The checks found nothing in this configuration.")
          : QCoreApplication::translate("ChecksWindow", "The checks found %1 in this configuration.")
                .arg(words));
  std::vector<SettingRow> rows;
  for (const auto& finding : findings_) rows.push_back(RowOf(finding));
  list_->ShowRows(std::move(rows));
}

}  // namespace ovl::ui
