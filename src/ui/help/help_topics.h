// Which help page belongs to which tab and window.
#pragma once

#include <QString>

namespace ovl::ui {

// The page of a tab, by its place; of a window, by its name. Empty for one without a page.
QString HelpPageOfTab(int tab);
QString HelpPageOfWindow(const QString& name);

// The page of the messages, at what it says about the topic.
QString HelpPageOfBox(const QString& topic);

}  // namespace ovl::ui
