#include "ui/window/edit_menu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "host/text_codec.h"

namespace ovl::ui {
namespace {

// Shows the name of the act that the item takes back or repeats; null: there is none now.
void BindItem(Bindings& bindings, QAction& item, const QString& verb,
              const std::function<const std::string*()>& name) {
  bindings.OnRefresh([&item, verb, name] {
    const auto* act = name();
    item.setEnabled(act != nullptr);
    // A "&" of a name is not the mark of a mnemonic.
    const auto words =
        act == nullptr ? QString() : host::FromWindows1252(*act).replace('&', QLatin1String("&&"));
    item.setText(words.isEmpty() ? verb : verb + QLatin1Char(' ') + words);
    return false;
  });
}

}  // namespace

QMenu* BuildEditMenu(QMenuBar& bar, Bindings& bindings, const OwnActs& acts) {
  auto* menu = bar.addMenu(QStringLiteral("Edit"));
  menu->setObjectName(QStringLiteral("menuEdit"));
  auto* history = acts.history;
  auto* undo = menu->addAction(QStringLiteral("Undo"), acts.undo);
  undo->setObjectName(QStringLiteral("menuUndo"));
  undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
  BindItem(bindings, *undo, QStringLiteral("Undo"), [history] { return history->NextUndo(); });
  auto* redo = menu->addAction(QStringLiteral("Redo"), acts.redo);
  redo->setObjectName(QStringLiteral("menuRedo"));
  redo->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
  BindItem(bindings, *redo, QStringLiteral("Redo"), [history] { return history->NextRedo(); });
  return menu;
}

}  // namespace ovl::ui
