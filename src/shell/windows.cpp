#include "shell/windows.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QMenu>
#include <algorithm>

#include "shell/about_window.h"
#include "shell/link_windows.h"
#include "shell/manuals.h"
#include "shell/mnemonics.h"
#include "shell/register_windows.h"
#include "shell/status_strip.h"
#include "shell/text_windows.h"

namespace ovl {
namespace {

constexpr int kNesting = 12;  // layouts within layouts, at the most

// Layouts learn of a change from the inside out, one level in each round of events. Settled at once, no state
// on the way is painted.
void SettleLayouts() {
  for (int level = 0; level < kNesting; ++level) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  }
}

}  // namespace

Windows::Windows(Application& app, ActFunction act)
    : app_(app),
      bindings_(app, std::move(act), [this](const QString& hint) { main_->Status().ShowHint(hint); }),
      main_(std::make_unique<MainWindow>(bindings_)) {
  for (auto* build : {BuildPortSettingsWindow, BuildScanProgressWindow, BuildTransferEndWindow,
                      BuildTextEntryWindow, BuildRangeWindow}) {
    forms_.push_back({build(bindings_, main_.get()), false});
  }
  for (auto* build : {BuildMicrosWindow, BuildSubMenuWindow, BuildViewerWindow}) {
    forms_.push_back({build(bindings_, main_.get()), true});
    forms_.back().window->StandBeside();
  }
  forms_.push_back({BuildAboutWindow(bindings_, main_.get()), true});
  main_->held_back = [this] {
    if (auto* front = Front(); front != main_.get()) front->activateWindow();
  };
  FillHelpMenu();
}

void Windows::FillHelpMenu() {
  const auto folder = QFile::decodeName(app_.platform.program_folder.c_str());
  help_ = std::make_unique<HelpDesk>(*main_, folder);
  auto& menu = main_->HelpMenu();
  auto* contents = menu.addAction(QStringLiteral("Help"), help_.get(), &HelpDesk::OpenPageInFront);
  contents->setShortcut(QKeySequence::HelpContents);
  contents->setObjectName(QStringLiteral("menuHelp"));
  auto* manuals = menu.addMenu(QStringLiteral("Manual"));
  manuals->setObjectName(QStringLiteral("menuManual"));
  FillManualMenu(*manuals, ManualFolder(folder),
                 [this](const QString& problem) { main_->Status().ShowHint(problem); });
  menu.addSeparator();
  bindings_.Item(menu, app_.frmMain.menuAbout);
}

void Windows::Refresh() {
  const bool reshaped = bindings_.Refresh();
  if (reshaped) RenewMnemonics();
  ShowForms();
  if (reshaped) SettleLayouts();
}

void Windows::RenewMnemonics() {
  main_->RenewMnemonics();
  for (const auto& form : forms_) {
    if (form.window->isVisible()) AssignPageMnemonics(*form.window, {});
  }
}

void Windows::ShowForms() {
  main_->Follow();
  for (auto& form : forms_) {
    form.window->Follow();
    form.focus.Follow(bindings_, form.window->Shown());
  }
  main_focus_.Follow(bindings_, app_.frmMain.form);
}

bool Windows::FormsMoved() const {
  const auto moved = [](const QWidget& window, const Form& form) {
    return window.isVisible() != (form.loaded && form.visible);
  };
  return moved(*main_, app_.frmMain.form) || std::any_of(forms_.begin(), forms_.end(), [&](const auto& form) {
           return moved(*form.window, form.window->Shown());
         });
}

void Windows::HideAll() {
  for (const auto& form : forms_) form.window->hide();
  main_->hide();
}

QWidget* Windows::Front() const {
  for (const auto& form : forms_) {
    const bool in_front = !form.beside || form.window->isActiveWindow();
    if (form.window->isVisible() && in_front) return form.window;
  }
  return main_.get();
}

FormWindow* Windows::WindowOf(const Form& form) const {
  const auto found = std::find_if(forms_.begin(), forms_.end(),
                                  [&](const Follower& at) { return &at.window->Shown() == &form; });
  return found == forms_.end() ? nullptr : found->window;
}

}  // namespace ovl
