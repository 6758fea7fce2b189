#include "ui/print/print_item.h"

#include <QAction>
#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <utility>

#include "acts/unsaved_changes.h"
#include "ui/print/printer.h"
#include "ui/print/site_sheet.h"

namespace ovl::ui {
namespace {

// The sheet is that of the configuration when the item was picked: while the dialog is open, the unit can
// send another one.
void Print(const core::Application& app, const PrintHooks& hooks) {
  if (app.ended || app.handling || !app.frmMain.form.enabled) return;
  const auto changes = acts::HasUnsavedChanges(app) ? sheet::Changes::kNotDownloaded : sheet::Changes::kNone;
  const auto sheet = SiteSheetOf(app, app.image, changes);
  const auto printed = PrintWithDialog(hooks.front(), kSiteSheetTitle,
                                       [&](QPagedPaintDevice& device) { PrintSiteSheet(sheet, device); });
  if (app.ended || printed == Printed::kCancelled) return;
  if (printed == Printed::kDone)
    return hooks.show_done(QCoreApplication::translate("PrintItem", "Site sheet printed"));
  hooks.show_failure(QCoreApplication::translate("PrintItem", "The site sheet was not printed"));
}

}  // namespace

void AddPrintItem(const core::Application& app, QMainWindow& main, PrintHooks hooks) {
  if (!HasPrinting()) return;
  auto* file = main.findChild<QMenu*>(QStringLiteral("FileMenu"));
  auto* item = new QAction(QCoreApplication::translate("PrintItem", "Print Site Sheet..."), file);
  item->setObjectName(QStringLiteral("menuPrintSheet"));
  item->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_P));
  QObject::connect(item, &QAction::triggered, &main, [&app, hooks = std::move(hooks)] { Print(app, hooks); });
  file->insertAction(main.findChild<QAction*>(QStringLiteral("OpenHistory_menu")), item);
}

}  // namespace ovl::ui
