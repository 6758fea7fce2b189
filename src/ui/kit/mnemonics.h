// Chooses the underlined letters for the keyboard, so that no letter is used twice in a window. They are
// searched for and are not written as "&" into the captions, because the captions are fixed texts of the
// model without "&" and the controls that share a page change with firmware, register and settings. Searching
// for the first free letter is not enough: on a full page the last captions would get none, so captions that
// can use another letter must move.
#pragma once

#include <QSet>

class QMenu;
class QMenuBar;
class QWidget;

namespace ovl::ui {

// Letters that are already in use in a window, in lower case.
using Letters = QSet<QChar>;

// Chooses a letter for each menu of the bar and for each item within its menu. Returns the letters of the
// menus.
Letters AssignMenuMnemonics(QMenuBar& bar);

// The same for one menu, after an item was added or renamed.
void AssignItemMnemonics(const QMenu& menu);

// The property of a button whose act is also a menu item. It gets no letter, because letters are scarce.
inline constexpr const char* kReachedByMenu = "ReachedByMenu";

// Chooses a letter for each visible button, check box and labelled field of the page. Elements of option
// arrays get none: the arrow keys reach them. Digits are kept for the tabs.
void AssignPageMnemonics(QWidget& page, const Letters& taken);

}  // namespace ovl::ui
