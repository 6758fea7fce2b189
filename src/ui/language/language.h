// The language of the windows. The choice is kept in the program folder, beside that of the theme.
#pragma once

#include <QString>
#include <array>

namespace ovl::ui {

// A language that the program can show, with the name that its speakers give it. The system's own choice has
// no code.
struct Language {
  const char* code;
  const char* name;
};
inline constexpr std::array kLanguages = {Language{"", "As the system"}, Language{"en", "English"},
                                          Language{"de", "Deutsch"}};

// Shows all windows that are made from now on in this language. English is the language of the texts
// themselves, and of all for which there is no translation.
void UseLanguage(const QString& code);

}  // namespace ovl::ui
