// The texts of the windows in another language, and the choice of one.
#include <QFile>
#include <QMenu>
#include <QRegularExpression>
#include <QTreeWidget>
#include <QXmlStreamReader>

#include "core/messages.h"
#include "screen.h"
#include "ui/dialogs/changes_window.h"
#include "ui/language/language.h"
#include "ui/language/model_texts.h"
#include "ui/window/view_menu.h"

namespace ovl::testing {
namespace {

QStringList PlaceholdersOf(const QString& text) {
  static const QRegularExpression pattern(QStringLiteral("%[0-9n]"));
  QStringList found;
  for (const auto& match : pattern.globalMatch(text)) found.append(match.captured());
  found.sort();
  found.removeDuplicates();
  return found;
}

TEST(Translation, HasThePlaceholdersOfTheSource) {
  QFile file(QStringLiteral(OVL_SOURCE_FOLDER "/translations/ovl_de.ts"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&file);
  QString source;
  int texts = 0;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.name() == QLatin1String("source")) source = xml.readElementText();
    if (xml.name() != QLatin1String("translation") && xml.name() != QLatin1String("numerusform")) continue;
    const auto text = xml.readElementText(QXmlStreamReader::SkipChildElements);
    if (text.trimmed().isEmpty()) continue;
    EXPECT_EQ(PlaceholdersOf(text), PlaceholdersOf(source)) << source.toStdString();
    ++texts;
  }
  EXPECT_GT(texts, 500);
}

// A text of the user can be the same as a caption of the program.
TEST(German, IsForTheTextsOfTheProgramAndNotForThoseOfTheUser) {
  ui::UseLanguage("de");
  {
    Screen screen;
    screen.App().frmMain.Title_Text.text = "OFF";
    screen.Pick("ComboCOMM(3)", 2);
    EXPECT_EQ(screen.App().frmMain.ComboCOMM[3].Text(), "ODD");
    EXPECT_EQ(screen.Find<QComboBox>("ComboCOMM(3)").currentText(), QStringLiteral("UNGERADE"));
    EXPECT_EQ(screen.Find<QAction>("menuUndo").text().remove('&'), QStringLiteral("Rückgängig: PARITÄT"));
    EXPECT_EQ(screen.Find<QLineEdit>("Title_Text").text(), "OFF");
    screen.Main().Changes().Open();
    screen.Show();
    const auto& row = *screen.Find<QTreeWidget>("ChangesList").topLevelItem(0)->child(0);
    EXPECT_EQ(row.text(0) + '|' + row.text(2), QStringLiteral("PARITÄT|UNGERADE"));
    const core::MessageBox box = core::BoxOf(core::Box::kFirmwareChosen, "%1 OFF");
    EXPECT_EQ(ui::TextsOf(box).text, QStringLiteral("%1 OFF WIRD BEIM NÄCHSTEN START DES PROGRAMMS WIRKSAM"));
  }
  ui::UseLanguage("en");
}

using LanguageMenu = ScreenTest;

TEST_F(LanguageMenu, KeepsTheChoiceBesideThatOfTheTheme) {
  const auto path = QString::fromStdString(folder.Path().string());
  Find<QAction>("menuDark").trigger();
  EXPECT_EQ(ui::ChosenLanguage(path), "");
  Find<QAction>("language_de").trigger();
  EXPECT_EQ(Note(), "The language changes at the next start.");
  EXPECT_EQ(ui::ChosenLanguage(path), "de");
  EXPECT_EQ(ui::ChosenTheme(path), ui::Theme::kDark);
  emit Find<QMenu>("LanguageMenu").aboutToShow();
  EXPECT_TRUE(Find<QAction>("language_de").isChecked());
}

}  // namespace
}  // namespace ovl::testing
