#include "ui/window/edit_menu.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>

#include "ui/kit/mnemonics.h"
#include "ui/language/model_texts.h"

namespace ovl::ui {
namespace {

// Shows the name of the act that the item takes back or repeats; null: there is none now.
void BindItem(Bindings& bindings, QAction& item, const QString& verb, const QString& verb_with_name,
              const std::function<const phrases::Words*()>& name) {
  bindings.OnRefresh([&item, verb, verb_with_name, name, shown = ChangeDetector<QString>()]() mutable {
    const auto* act = name();
    item.setEnabled(act != nullptr);
    // A "&" of a name is not the mark of a mnemonic.
    const auto words = act == nullptr ? QString() : Shown(*act).replace('&', QLatin1String("&&"));
    const auto text = words.isEmpty() ? verb : verb_with_name.arg(words);
    if (shown.Update(text)) item.setText(text);
    return false;
  });
}

}  // namespace

QMenu* BuildEditMenu(QMenuBar& bar, Bindings& bindings, const OwnActs& acts) {
  auto* menu = bar.addMenu(QCoreApplication::translate("EditMenu", "Edit"));
  menu->setObjectName(QStringLiteral("menuEdit"));
  auto* history = acts.history;
  auto* undo = menu->addAction(QCoreApplication::translate("EditMenu", "Undo"), acts.undo);
  undo->setObjectName(QStringLiteral("menuUndo"));
  undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
  BindItem(bindings, *undo, undo->text(),
           QCoreApplication::translate("EditMenu", "Undo %1", "such as: Undo ALARM DURATION"),
           [history] { return history->NextUndo(); });
  auto* redo = menu->addAction(QCoreApplication::translate("EditMenu", "Redo"), acts.redo);
  redo->setObjectName(QStringLiteral("menuRedo"));
  redo->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
  BindItem(bindings, *redo, redo->text(), QCoreApplication::translate("EditMenu", "Redo %1"),
           [history] { return history->NextRedo(); });
  // An act changes the text of an item, and a new text has no underlined letter.
  QObject::connect(menu, &QMenu::aboutToShow, menu, [menu] { AssignItemMnemonics(*menu); });
  return menu;
}

}  // namespace ovl::ui
