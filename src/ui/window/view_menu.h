// The View menu: light, dark, or as the desktop, and the language. The choices are kept in the program
// folder.
#pragma once

#include <QString>
#include <functional>

#include "core/failure.h"
#include "ui/kit/theme.h"

class QMenuBar;

namespace ovl::ui {

// The theme that the user has chosen in this program folder; that of the desktop before a first choice.
Theme ChosenTheme(const QString& program_folder);
core::Result KeepTheme(const QString& program_folder, Theme theme);

// The code of the language that the user has chosen, such as "de"; empty: that of the system.
QString ChosenLanguage(const QString& program_folder);

// `report` shows the problem when a choice cannot be kept.
void BuildViewMenu(QMenuBar& bar, const QString& program_folder, std::function<void(const QString&)> report);

}  // namespace ovl::ui
