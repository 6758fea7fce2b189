// Configurations as text in the File menu, and the comparison with a file.
#include <QAction>
#include <QFileDialog>
#include <QPlainTextEdit>
#include <QTimer>
#include <QTreeWidget>

#include "acts/backup.h"
#include "unit/ui/screen.h"

namespace ovl::testing {
namespace {

class TextActsTest : public ScreenTest {
 protected:
  TextActsTest() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  // Clicks the item and answers its file dialog. `behind` gets the window that comes then.
  void Choose(const char* item, const std::string& name, std::function<void(QDialog&)> behind = {}) {
    QTimer timer;
    timer.callOnTimeout([&, behind] {
      auto* window = QApplication::activeModalWidget();
      if (auto* dialog = qobject_cast<QFileDialog*>(window)) {
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(folder.File(name)));
        static_cast<QDialog&>(*dialog).accept();
      } else if (auto* lines = qobject_cast<QDialog*>(window); lines != nullptr && behind) {
        behind(*lines);
      }
    });
    timer.start(10);
    Find<QAction>(item).trigger();
    timer.stop();
    Show();
  }
  void PressIn(QDialog& window, const char* label) {
    for (auto* button : window.findChildren<QAbstractButton*>()) {
      if (button->text().remove('&') == QLatin1String(label)) return button->click();
    }
    ADD_FAILURE() << "no button " << label;
    window.reject();
  }
};

TEST_F(TextActsTest, AnExportedTextComesBackAndIsOneActToUndo) {
  const auto exported = App().image;
  Choose("menuExport", "shop.toml");
  EXPECT_EQ(Note("StatusFile"), "Text written: " + folder.File("shop.toml"));
  Pick("ComboCOMM(3)", App().frmMain.ComboCOMM[3].position == 0 ? 1 : 0);
  const auto changed = App().image;
  EXPECT_FALSE(changed == exported);
  EXPECT_EQ(Note("StatusFile"), "") << "the text is not that of the tabs any more";
  Choose("menuImport", "shop.toml");
  EXPECT_TRUE(App().image == exported);
  EXPECT_EQ(Note("StatusFile"), "Text imported: " + folder.File("shop.toml"));
  auto& undo = Find<QAction>("menuUndo");
  EXPECT_EQ(undo.text().remove('&').toStdString(), "Undo Import shop.toml");
  undo.trigger();
  EXPECT_TRUE(App().image == changed);
  Choose("menuExport", "other.toml");
  EXPECT_NE(Note("StatusFile"), "");
  App().frmMain.MSComm1.PortOpen = App().frmMain.Picture1[3].visible = true;
  App().LinkMode = core::kLinkUpload;
  Show();
  EXPECT_EQ(Note("StatusFile"), "") << "the transfer reports itself";
}

TEST_F(TextActsTest, ATextWithErrorsChangesNothingAndNamesThem) {
  const auto image = App().image;
  WriteFile(
      folder.File("wrong.toml"),
      "format = 1\n[COMMUNICATION]\nPARITY = \"ODD\"\n\"DATA BITS\" = 9\n[\"Exception 1\"]\ntxt = \"A\"\n");
  std::string said;
  Choose("menuImport", "wrong.toml", [&](QDialog& window) {
    said = window.findChild<QPlainTextEdit*>()->toPlainText().toStdString();
    PressIn(window, "Close");
  });
  EXPECT_EQ(said,
            "Line 4, column 15: \"9\" is not allowed for \"DATA BITS\"; allowed: \"7\", \"8\"\n"
            "Line 6, column 1: \"txt\" is not a setting of [Exception 1]. Did you mean \"text\"?");
  EXPECT_TRUE(App().image == image);
}

TEST_F(TextActsTest, TheRestOfATextOfAnotherFirmwareIsTakenAfterAQuestion) {
  const auto image = App().image;
  WriteFile(folder.File("old.toml"),
            "format = 1\nfirmware = \"V1300 R14\"\n[TIME]\nTITLE = \"SHOP 12\"\n"
            "[\"REGISTER SELECT\"]\nRegister = \"IBM RDS\"\n");
  Choose("menuImport", "old.toml", [&](QDialog& window) { PressIn(window, "Cancel"); });
  EXPECT_TRUE(App().image == image);
  Choose("menuImport", "old.toml", [&](QDialog& window) { PressIn(window, "Import the Rest"); });
  EXPECT_EQ(App().frmMain.Title_Text.text, "SHOP 12");
}

TEST_F(TextActsTest, AFileIsComparedInTheWindowOfTheChanges) {
  EXPECT_TRUE(acts::SaveBackup(App(), folder.File("other.bin")).Ok());
  WriteFile(folder.File("part.toml"), "format = 1\n[\"TIME / LANGUAGE\"]\nTITLE = \"SHOP 12\"\n");
  Choose("menuCompare", "part.toml");
  auto& list = Find<QTreeWidget>("ChangesList");
  ASSERT_EQ(list.topLevelItemCount(), 1);
  EXPECT_EQ(list.topLevelItem(0)->child(0)->text(0).toStdString(), "TITLE");
  EXPECT_EQ(list.topLevelItem(0)->child(0)->text(2).toStdString(), "SHOP 12");
  EXPECT_EQ(list.window()->windowTitle().toStdString(), "Changes: part.toml");
  // The list follows the form, and "Changes" shows the changes again.
  Choose("menuCompare", "other.bin");
  EXPECT_EQ(list.topLevelItemCount(), 0);
  Pick("ComboCOMM(3)", App().frmMain.ComboCOMM[3].position == 0 ? 1 : 0);
  EXPECT_EQ(list.topLevelItemCount(), 1);
  WriteFile(folder.File("noise.bin"), "noise");
  Choose("menuCompare", "noise.bin");
  EXPECT_EQ(Note("StatusFile"), "Not compared: noise.bin is not a configuration of V1400R12");
}

TEST_F(TextActsTest, NoDialogOpensWhileAnotherWindowBlocksTheMainWindow) {
  int dialogs = 0;
  QTimer closing;
  closing.callOnTimeout([&] {
    auto* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) return;
    ++dialogs;
    dialog->close();
  });
  closing.start(1);
  for (const bool enabled : {true, false}) {
    App().frmMain.form.enabled = enabled;
    for (const char* item : {"menuExport", "menuImport", "menuCompare", "menuBackup"}) {
      Find<QAction>(item).trigger();
      EXPECT_EQ(std::exchange(dialogs, 0), enabled ? 1 : 0) << item;
    }
  }
}

}  // namespace
}  // namespace ovl::testing
