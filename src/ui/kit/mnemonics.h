// Underlined letters for the keyboard. They are given out over what is on the screen, so that none stands
// twice.
#pragma once

#include <QSet>

class QMenu;
class QMenuBar;
class QWidget;

namespace ovl::ui {

// Letters that a window uses everywhere, in lower case.
using Letters = QSet<QChar>;

// Gives a letter to each menu of the bar and, menu by menu, to each item. Returns the letters of the bar
// itself.
Letters AssignMenuMnemonics(QMenuBar& bar);

// Gives a letter to each button, check box and labelled field that shows on the page. Elements of option
// arrays get none: arrows reach them. Digits are left to the tabs.
void AssignPageMnemonics(QWidget& page, const Letters& taken);

}  // namespace ovl::ui
