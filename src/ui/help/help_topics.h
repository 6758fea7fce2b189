// Finds the help page of a tab or a window.
#pragma once

#include <QString>

namespace ovl::ui {

// The page of a tab by its index, and of a window by its name. Empty if there is none.
QString HelpPageOfTab(int tab);
QString HelpPageOfWindow(const QString& name);

// The page of the message boxes, at the heading of the topic.
QString HelpPageOfBox(const QString& topic);

}  // namespace ovl::ui
