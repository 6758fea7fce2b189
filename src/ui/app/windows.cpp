#include "ui/app/windows.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QMenu>
#include <algorithm>

#include "ui/dialogs/about_window.h"
#include "ui/dialogs/boxes.h"
#include "ui/dialogs/link_windows.h"
#include "ui/dialogs/register_windows.h"
#include "ui/dialogs/text_windows.h"
#include "ui/help/manuals.h"
#include "ui/kit/mnemonics.h"
#include "ui/window/status_strip.h"

namespace ovl::ui {
namespace {

constexpr int kNesting = 12;    // the largest depth of nested layouts
constexpr int kAskAgain = 500;  // in milliseconds

// A layout passes a change on to the layout around it, one level for each round of events. All rounds run
// here, so that no state in between is painted.
void ApplyLayoutRequests() {
  for (int level = 0; level < kNesting; ++level) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  }
}

}  // namespace

Windows::Windows(core::Application& app, ActFunction act, OwnActs own_acts)
    : app_(app),
      bindings_(app, std::move(act), [this](const QString& hint) { main_->Status().ShowHint(hint); }),
      main_(std::make_unique<MainWindow>(bindings_, std::move(own_acts))),
      forms_({{app.frmSettSR.form, BuildPortSettingsWindow, false},
              {app.frmScanBProgress.form, BuildScanProgressWindow, false},
              {app.frmOK_buttom.form, BuildTransferEndWindow, false},
              {app.frmSetEXCPSTR.form, BuildTextEntryWindow, false},
              {app.frmSetRange.form, BuildRangeWindow, false},
              {app.frmMicros.form, BuildMicrosWindow, true},
              {app.FrmSubMenu.form, BuildSubMenuWindow, true},
              {app.frmView.form, BuildViewerWindow, true},
              {app.frmAbout.form, BuildAboutWindow, true}}) {
  // To build a page takes the time of many characters, so a stream comes first.
  idle_.callOnTimeout([this] {
    const bool streams = main_->Acts().history->IsHeldByTransfer();
    idle_.setInterval(streams ? kAskAgain : 0);
    if (streams) return;
    if (app_.ended || !BuildNext()) return idle_.stop();
    Refresh();
  });
  main_->page_built = [this] { Refresh(); };
  // While a tab is hidden its layouts do not pass on what has changed in them. They do it now.
  main_->tab_shown = [] { ApplyLayoutRequests(); };
  main_->first_painted = [this] { idle_.start(0); };
  main_->activated_while_blocked = [this] {
    if (auto* front = Front(); front != main_.get()) front->activateWindow();
  };
  FillHelpMenu();
}

void Windows::FillHelpMenu() {
  const auto folder = QFile::decodeName(app_.platform.program_folder.c_str());
  help_ = std::make_unique<HelpDesk>(*main_, folder);
  auto& menu = main_->HelpMenu();
  auto* contents = menu.addAction(QCoreApplication::translate("HelpMenu", "Help"), help_.get(),
                                  &HelpDesk::OpenPageInFront);
  contents->setShortcut(QKeySequence::HelpContents);
  contents->setObjectName(QStringLiteral("menuHelp"));
  auto* manuals = menu.addMenu(QCoreApplication::translate("HelpMenu", "Manual"));
  manuals->setObjectName(QStringLiteral("menuManual"));
  FillManualMenu(*manuals, ManualFolder(folder), [this](const QString& problem) {
    ShowBox(main_.get(),
            {{}, problem.toStdString(), core::BoxIcon::kNone, "The manual folder cannot be opened"});
  });
  menu.addSeparator();
  bindings_.Item(menu, app_.frmMain.menuAbout);
}

void Windows::Build(SmallWindow& form) {
  building_ = true;
  form.window = form.build(bindings_, main_.get());
  building_ = false;
  if (form.modeless) form.window->OpenBesideParent();
}

bool Windows::BuildNext() {
  if (main_->BuildNextPage()) return true;
  const auto missing = std::find_if(forms_.begin(), forms_.end(),
                                    [](const SmallWindow& form) { return form.window == nullptr; });
  if (missing == forms_.end()) return false;
  Build(*missing);
  return true;
}

void Windows::BuildAll() {
  while (BuildNext()) continue;
  Refresh();
}

void Windows::Refresh() {
  if (building_) return;
  for (auto& form : forms_) {
    if (form.window == nullptr && form.Wanted()) Build(form);
  }
  // Comparing all settings takes a share of the line's time, and a stream changes none before its end.
  if (!main_->Acts().history->IsHeldByTransfer()) main_->Acts().history->Observe();
  const bool reshaped = bindings_.Refresh();
  if (reshaped) RenewMnemonics();
  ShowForms();
  if (reshaped) ApplyLayoutRequests();
}

void Windows::RenewMnemonics() {
  main_->RenewMnemonics();
  for (const auto& form : forms_) {
    if (form.window != nullptr && form.window->isVisible()) AssignPageMnemonics(*form.window, {});
  }
}

void Windows::ShowForms() {
  main_->ShowAsModelSays();
  for (auto& form : forms_) {
    if (form.window == nullptr) continue;
    form.window->ShowAsModelSays();
    form.focus.MoveFocusAsAsked(bindings_, form.form);
  }
  main_focus_.MoveFocusAsAsked(bindings_, app_.frmMain.form);
}

bool Windows::HasFormsToShowOrHide() const {
  const auto moved = [](const QWidget* window, const controls::Form& form) {
    return (window != nullptr && window->isVisible()) != (form.loaded && form.visible);
  };
  return moved(main_.get(), app_.frmMain.form) ||
         std::any_of(forms_.begin(), forms_.end(),
                     [&](const SmallWindow& form) { return moved(form.window, form.form); });
}

void Windows::HideAll() {
  for (const auto& form : forms_) {
    if (form.window != nullptr) form.window->hide();
  }
  main_->hide();
}

QWidget* Windows::Front() const {
  for (const auto& form : forms_) {
    if (form.window == nullptr || !form.window->isVisible()) continue;
    if (!form.modeless || form.window->isActiveWindow()) return form.window;
  }
  return main_.get();
}

FormWindow* Windows::WindowOf(const controls::Form& form) {
  const auto found =
      std::find_if(forms_.begin(), forms_.end(), [&](const SmallWindow& at) { return &at.form == &form; });
  if (found == forms_.end()) return nullptr;
  if (found->window == nullptr) {
    Build(*found);
    Refresh();
  }
  return found->window;
}

}  // namespace ovl::ui
