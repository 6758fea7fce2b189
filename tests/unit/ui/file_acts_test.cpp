// Backups, and the ways to open a file without the dialog of Open.
#include <gtest/gtest.h>

#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "acts/backup.h"
#include "support/firmware_facts.h"
#include "ui/dialogs/boxes.h"
#include "unit/ui/screen.h"

namespace ovl::testing {
namespace {

class FileActsTest : public ScreenTest {
 protected:
  FileActsTest() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  QString Path(const std::string& name) const { return QString::fromStdString(folder.File(name)); }

  // A file of this firmware with another configuration than the one on the screen.
  QString FileOf(const firmware::FirmwareId& firmware, const std::string& name) const {
    WriteFile(folder.File(name), PatternStream(firmware, 77) + "\r\n");
    return Path(name);
  }

  // Answers the next modal window of this kind. `answer` must close it.
  template <class Window>
  void OnNext(std::function<void(Window&)> answer) {
    auto* timer = new QTimer(&Main());
    timer->callOnTimeout([timer, answer = std::move(answer)] {
      auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
      if (window == nullptr) return;
      timer->stop();
      timer->deleteLater();
      answer(*window);
    });
    timer->start(10);
  }

  static void Accept(QDialog& dialog) { dialog.accept(); }

  void Drop(const QStringList& paths) {
    QMimeData data;
    QList<QUrl> urls;
    for (const auto& path : paths) urls.append(QUrl::fromLocalFile(path));
    data.setUrls(urls);
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Main(), &enter);
    if (!enter.isAccepted()) return;
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Main(), &drop);
    Show();
  }

  QStringList Recent() {
    auto& menu = Find<QMenu>("menuRecent");
    emit menu.aboutToShow();
    QStringList items;
    for (const auto* item : menu.actions()) {
      if (item->isEnabled() && !item->isSeparator()) items.append(item->text().section(QLatin1Char('/'), -1));
    }
    return items;
  }
};

TEST_F(FileActsTest, ABackupIsOfferedByItsNameAndOpensAgain) {
  App().platform.clock = [] { return core::ClockTime{2026, 3, 5, 1, 2, 3}; };
  Pick("ComboTD(2)", App().frmMain.ComboTD[2].position == 0 ? 1 : 0);
  const auto backed_up = App().image;
  QString offered;
  OnNext<QFileDialog>([&](QFileDialog& dialog) {
    offered = dialog.findChild<QLineEdit*>("fileNameEdit")->text();
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText("mine");
    Accept(dialog);
  });
  auto& item = Find<QAction>("menuBackup");
  EXPECT_EQ(item.shortcut().toString(), "Ctrl+Shift+S");
  item.trigger();
  Show();
  EXPECT_EQ(offered, "V1400R12 GENERIC 2026-03-05.bin");
  EXPECT_EQ(Note("StatusFile"), "Backup written: " + folder.File("mine.bin"));
  EXPECT_EQ(Recent(), QStringList({"mine.bin", "&Clear this list"}));

  Pick("ComboTD(2)", App().frmMain.ComboTD[2].position == 0 ? 1 : 0);
  program->OpenFile(Path("mine.bin"));
  EXPECT_TRUE(App().image == backed_up);
}

TEST_F(FileActsTest, SaveStartsWithoutANameAddsTheSuffixAndSaysWhere) {
  QString start;
  OnNext<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters().join("|"), "Text Files (*.txt)|All Files (*)");
    auto& name = *dialog.findChild<QLineEdit*>("fileNameEdit");
    start = name.text();
    Press(name, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible()) << "Enter in the empty field saved something";
    name.setText("shop12");
    Accept(dialog);
  });
  Find<QAction>("menuSave").trigger();
  Show();
  EXPECT_EQ(start, "");
  EXPECT_TRUE(QFileInfo::exists(Path("shop12.bin")));
  EXPECT_FALSE(QFileInfo::exists(Path("*.Bin")));
  EXPECT_EQ(Note("StatusFile"), "Saved: " + folder.File("shop12.bin"));
  OnNext<QFileDialog>([](QFileDialog& dialog) { dialog.close(); });
  Find<QAction>("menuSave").trigger();
  Show();
  EXPECT_EQ(Note(), folder.File("*.Bin: Operation canceled")) << "beside the file that was saved before";
  Pick("ComboTD(2)", App().frmMain.ComboTD[2].position == 0 ? 1 : 0);
  EXPECT_EQ(Note() + Note("StatusFile"), "") << "both are outdated";
}

TEST_F(FileActsTest, AFileIsOpenedByADropByTheListAndByItsName) {
  const auto first = FileOf(kLatest, "first.bin"), second = FileOf(kLatest, "second & last.bin");
  const auto start = App().image;
  Drop({first, second});
  EXPECT_TRUE(App().image == start) << "two files at once";
  Drop({first});
  const auto opened = App().image;
  EXPECT_FALSE(opened == start);
  EXPECT_FALSE(App().UploadApplying);
  program->OpenFile(second);
  EXPECT_EQ(Recent(), QStringList({"second && last.bin", "first.bin", "&Clear this list"}));

  App().image = start;
  QFile::remove(second);
  EXPECT_EQ(Recent(), QStringList({"first.bin", "&Clear this list"}));
  Find<QMenu>("menuRecent").actions().at(1)->trigger();
  Show();
  EXPECT_TRUE(App().image == opened);
  Find<QMenu>("menuRecent").actions().back()->trigger();
  EXPECT_EQ(Recent(), QStringList());
  EXPECT_TRUE(boxes.empty());
}

TEST_F(FileActsTest, TheListKeepsTheLastEightFiles) {
  for (int number = 1; number <= 10; ++number)
    program->OpenFile(FileOf(kLatest, "shop" + std::to_string(number) + ".bin"));
  program->OpenFile(Path("shop5.bin"));
  EXPECT_EQ(Recent(), QStringList({"shop5.bin", "shop10.bin", "shop9.bin", "shop8.bin", "shop7.bin",
                                   "shop6.bin", "shop4.bin", "shop3.bin", "&Clear this list"}));
}

TEST_F(FileActsTest, AFileThatCannotBeReadIsNotOpened) {
  program->OpenFile(Path("missing.bin"));
  Show();
  EXPECT_EQ(Note("StatusFile"), "Not opened: " + folder.File("missing.bin") + ": No such file or directory");
  EXPECT_FALSE(App().UploadApplying) << "the next pick of a register would do nothing";
  Select("ADS");
  EXPECT_EQ(App().frmMain.ComboReg.Text(), "ADS");
  EXPECT_NE(Note("StatusFile"), "") << "nobody may have read it yet";
  program->OpenFile(FileOf(kLatest, "good.bin"));
  Show();
  EXPECT_EQ(Note("StatusFile"), "");
  // While a small window holds the main window, nothing is opened.
  Main().Tabs().setCurrentIndex(kRemoteTab);
  Click("cmdConnect");
  const auto image = App().image;
  program->OpenFile(FileOf(kLatest, "shop.bin"));
  EXPECT_TRUE(App().image == image);
}

TEST_F(FileActsTest, AFileThatDoesNotFitIsOpenedOnlyAfterAQuestion) {
  const auto shifts = FileOf({"V1400", "R6"}, "shifts.bin"), ends = FileOf({"V1400", "R4"}, "ends.bin");
  const auto image = App().image;
  std::vector<std::string> questions;
  const auto answer_with = [&](const char* label) {
    OnNext<QMessageBox>([&, label](QMessageBox& box) {
      questions.push_back(box.text().toStdString());
      EXPECT_TRUE(box.property(ui::kBoxTopic).toString() == "A file does not fit");
      if (label == nullptr) return Press(box, Qt::Key_Return);
      for (auto* button : box.buttons()) {
        if (button->text().remove('&') == QLatin1String(label)) return button->click();
      }
      box.reject();
      ADD_FAILURE() << "no button " << label;
    });
  };
  for (const auto* answer : {static_cast<const char*>(nullptr), "Cancel"}) {
    answer_with(answer);
    program->OpenFile(ends);
    EXPECT_TRUE(App().image == image && !App().ended && !App().UploadApplying);
  }
  // In the dialog of Open, too.
  OnNext<QFileDialog>([&](QFileDialog& dialog) {
    answer_with("Cancel");
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(shifts);
    Accept(dialog);
  });
  Find<QAction>("OpenMenu").trigger();
  EXPECT_TRUE(App().image == image && boxes.empty());
  EXPECT_EQ(Recent(), QStringList());

  answer_with("Open anyway");
  Drop({shifts});
  EXPECT_FALSE(App().image == image);
  EXPECT_EQ(questions, (std::vector<std::string>{"Opening ends.bin ends the program.",
                                                 "Opening ends.bin ends the program.",
                                                 "Opening shifts.bin puts settings in the wrong place.",
                                                 "Opening shifts.bin puts settings in the wrong place."}));
}

}  // namespace
}  // namespace ovl::testing
