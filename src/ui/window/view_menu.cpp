#include "ui/window/view_menu.h"

#include <QActionGroup>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <array>

#include "host/text_codec.h"
#include "ui/print/document_file.h"

namespace ovl::ui {
namespace {

struct ThemeItem {
  Theme theme;
  const char* text;
  const char* name;
};
constexpr std::array kThemes = {ThemeItem{Theme::kLight, "Light", "menuLight"},
                                ThemeItem{Theme::kDark, "Dark", "menuDark"},
                                ThemeItem{Theme::kDesktop, "As the system", "menuAsSystem"}};

// The words of the file that keeps the choice.
struct ThemeWord {
  Theme theme;
  const char* text;
};
constexpr std::array kThemeWords = {ThemeWord{Theme::kDesktop, "theme=system"},
                                    ThemeWord{Theme::kLight, "theme=light"},
                                    ThemeWord{Theme::kDark, "theme=dark"}};

QString ThemeFile(const QString& program_folder) {
  return program_folder + QStringLiteral("/window.ini");
}

}  // namespace

Theme ChosenTheme(const QString& program_folder) {
  QFile file(ThemeFile(program_folder));
  const auto text = file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
  const auto found = std::find_if(kThemeWords.begin(), kThemeWords.end(),
                                  [&](const ThemeWord& word) { return text == word.text; });
  return found == kThemeWords.end() ? Theme::kDesktop : found->theme;
}

core::Result KeepTheme(const QString& program_folder, Theme theme) {
  const auto word = std::find_if(kThemeWords.begin(), kThemeWords.end(),
                                 [theme](const ThemeWord& at) { return at.theme == theme; });
  return ReplaceFile(ThemeFile(program_folder), QByteArray(word->text) + '\n');
}

void BuildViewMenu(QMenuBar& bar, const QString& program_folder, std::function<void(const QString&)> report) {
  auto* view = bar.addMenu(QStringLiteral("Vie&w"));
  view->setObjectName(QStringLiteral("ViewMenu"));
  auto* themes = new QActionGroup(view);
  for (const auto& item : kThemes) {
    auto* action = view->addAction(QString::fromLatin1(item.text));
    action->setObjectName(QString::fromLatin1(item.name));
    action->setCheckable(true);
    themes->addAction(action);
    QObject::connect(action, &QAction::triggered, view, [program_folder, report, theme = item.theme] {
      ApplyTheme(theme);
      const auto kept = KeepTheme(program_folder, theme);
      if (!kept.Ok())
        report(QStringLiteral("The program could not save the choice. ") +
               host::FromSystem(kept.Problem().Text()));
    });
    QObject::connect(view, &QMenu::aboutToShow, action, [action, program_folder, theme = item.theme] {
      action->setChecked(ChosenTheme(program_folder) == theme);
    });
  }
}

}  // namespace ovl::ui
