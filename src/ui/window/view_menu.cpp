#include "ui/window/view_menu.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <array>

#include "ui/language/language.h"
#include "ui/language/model_texts.h"
#include "ui/print/document_file.h"

namespace ovl::ui {
namespace {

struct ThemeItem {
  Theme theme;
  const char* word;  // in the file that keeps the choice
  const char* text;
  const char* name;
};
constexpr std::array kThemes = {
    ThemeItem{Theme::kLight, "light", QT_TRANSLATE_NOOP("ViewMenu", "Light"), "menuLight"},
    ThemeItem{Theme::kDark, "dark", QT_TRANSLATE_NOOP("ViewMenu", "Dark"), "menuDark"},
    ThemeItem{Theme::kDesktop, "system", QT_TRANSLATE_NOOP("ViewMenu", "As the system"), "menuAsSystem"}};

constexpr const char* kTheme = "theme";
constexpr const char* kLanguage = "language";

QString ChoicesFile(const QString& program_folder) {
  return program_folder + QStringLiteral("/window.ini");
}

QByteArrayList LinesOf(const QString& program_folder) {
  QFile file(ChoicesFile(program_folder));
  return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().split('\n') : QByteArrayList();
}

bool IsOf(const QByteArray& line, const char* key) {
  return line.startsWith(QByteArray(key) + '=');
}

// Empty before a first choice.
QByteArray Choice(const QString& program_folder, const char* key) {
  for (const auto& line : LinesOf(program_folder)) {
    if (IsOf(line, key)) return line.mid(line.indexOf('=') + 1).trimmed();
  }
  return {};
}

core::Result KeepChoice(const QString& program_folder, const char* key, const char* word) {
  QByteArrayList kept;
  for (const auto& line : LinesOf(program_folder)) {
    if (!IsOf(line, key) && line.contains('=')) kept.append(line.trimmed());
  }
  kept.append(QByteArray(key) + '=' + word);
  return ReplaceFile(ChoicesFile(program_folder), kept.join('\n') + '\n');
}

using Report = std::function<void(const QString&)>;

void ReportProblem(const core::Result& kept, const Report& report) {
  if (!kept.Ok())
    report(QCoreApplication::translate("ViewMenu", "The program could not save your pick. %1")
               .arg(FailureText(kept.Problem())));
}

// The items of a group check the one that is chosen.
QAction* AddChoice(QMenu& menu, QActionGroup& group, const QString& text, std::function<bool()> chosen) {
  auto* action = menu.addAction(text);
  action->setCheckable(true);
  group.addAction(action);
  QObject::connect(&menu, &QMenu::aboutToShow, action,
                   [action, chosen = std::move(chosen)] { action->setChecked(chosen()); });
  return action;
}

// What is already on the screen keeps its language.
void AddLanguages(QMenu& view, const QString& program_folder, const Report& report) {
  auto* menu = view.addMenu(QCoreApplication::translate("ViewMenu", "Language"));
  menu->setObjectName(QStringLiteral("LanguageMenu"));
  auto* group = new QActionGroup(menu);
  for (const auto& language : kLanguages) {
    const bool of_system = *language.code == '\0';
    const auto text = of_system ? QCoreApplication::translate("ViewMenu", "As the system")
                                : QString::fromUtf8(language.name);
    auto* action = AddChoice(*menu, *group, text, [program_folder, code = language.code] {
      return ChosenLanguage(program_folder) == QLatin1String(code);
    });
    action->setObjectName(QStringLiteral("language_") + QLatin1String(language.code));
    QObject::connect(action, &QAction::triggered, menu, [program_folder, report, code = language.code] {
      const auto kept = KeepChoice(program_folder, kLanguage, code);
      if (!kept.Ok()) return ReportProblem(kept, report);
      report(QCoreApplication::translate("ViewMenu", "The language changes at the next start."));
    });
  }
}

}  // namespace

Theme ChosenTheme(const QString& program_folder) {
  const auto word = Choice(program_folder, kTheme);
  const auto found =
      std::find_if(kThemes.begin(), kThemes.end(), [&](const ThemeItem& item) { return word == item.word; });
  return found == kThemes.end() ? Theme::kDesktop : found->theme;
}

core::Result KeepTheme(const QString& program_folder, Theme theme) {
  const auto item = std::find_if(kThemes.begin(), kThemes.end(),
                                 [theme](const ThemeItem& at) { return at.theme == theme; });
  return KeepChoice(program_folder, kTheme, item->word);
}

QString ChosenLanguage(const QString& program_folder) {
  return QString::fromLatin1(Choice(program_folder, kLanguage));
}

void BuildViewMenu(QMenuBar& bar, const QString& program_folder, Report report) {
  auto* view = bar.addMenu(QCoreApplication::translate("ViewMenu", "Vie&w"));
  view->setObjectName(QStringLiteral("ViewMenu"));
  auto* themes = new QActionGroup(view);
  for (const auto& item : kThemes) {
    auto* action =
        AddChoice(*view, *themes, QCoreApplication::translate("ViewMenu", item.text),
                  [program_folder, theme = item.theme] { return ChosenTheme(program_folder) == theme; });
    action->setObjectName(QString::fromLatin1(item.name));
    QObject::connect(action, &QAction::triggered, view, [program_folder, report, theme = item.theme] {
      ApplyTheme(theme);
      ReportProblem(KeepTheme(program_folder, theme), report);
    });
  }
  view->addSeparator();
  AddLanguages(*view, program_folder, report);
}

}  // namespace ovl::ui
