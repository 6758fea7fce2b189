// The windows of our own acts: the changes, the checks, and copies of exceptions and alarms.
#include <QCheckBox>
#include <QClipboard>
#include <QDeadlineTimer>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTreeWidget>

#include "acts/copy_slot.h"
#include "changes/option_controls.h"
#include "link/transfer.h"
#include "screen.h"

namespace ovl::testing {
namespace {

class ChangesTest : public ScreenTest {
 protected:
  QTreeWidget& List() { return Find<QTreeWidget>("ChangesList"); }

  // "TAB|SETTING: BEFORE -> NOW|..."
  std::string Listed() {
    QStringList lines;
    for (int group = 0; group < List().topLevelItemCount(); ++group) {
      const auto* tab = List().topLevelItem(group);
      lines.append(tab->text(0));
      for (int row = 0; row < tab->childCount(); ++row) {
        const auto* item = tab->child(row);
        lines.append(item->text(0) + ": " + item->text(1) + " -> " + item->text(2));
      }
    }
    return lines.join('|').toStdString();
  }

  void OpenRow(int group, int row) {
    List().setCurrentItem(List().topLevelItem(group)->child(row));
    Press(List(), Qt::Key_Return);
    Show();
  }
};

TEST_F(ChangesTest, AreGroupedByTabAndFollowPicksAndDownloads) {
  auto& app = App();
  const auto& button = Find<QPushButton>("StatusChanges");
  EXPECT_FALSE(button.isVisible());
  const auto pick_other = [&](const std::string& name, const controls::List& list) {
    const auto before = list.Text();
    Pick(name, list.position == 0 ? 1 : 0);
    return before + " -> " + list.Text();
  };
  const auto parity = "COMMUNICATION|PARITY: " + pick_other("ComboCOMM(3)", app.frmMain.ComboCOMM[3]);
  EXPECT_EQ(button.text(), "1 setting changed");
  Click("StatusChanges");
  EXPECT_EQ(Listed(), parity);
  auto& window = *List().window();
  EXPECT_EQ(window.windowTitle(), "Changes");
  window.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Close)->click();
  EXPECT_FALSE(window.isVisible());
  Click("StatusChanges");
  const auto format = "|TIME / LANGUAGE|DATE FORMAT: " + pick_other("ComboTD(2)", app.frmMain.ComboTD[2]);
  EXPECT_EQ(Listed(), parity + format);

  link::StartDownload(app);
  const auto sent = app.image;
  const auto language = "TIME / LANGUAGE|LANGUAGE: " + pick_other("ComboLang", app.frmMain.ComboLang);
  app.PendingOutput.clear();
  link::FinishDownload(app);
  EXPECT_TRUE(app.known_image != sent) << "the unit has not confirmed it";
  link::ConfirmDownload(app);
  Show();
  EXPECT_EQ(Listed(), language) << "the unit holds what was sent, not what was picked meanwhile";
  EXPECT_TRUE(app.known_image == sent);
}

TEST_F(ChangesTest, LeadToTheControlAndPickItsExceptionOrAlarm) {
  auto& app = App();
  app.image.at(image::FieldId::EXCPSTRS, 7).replace(0, 2, "10");
  app.image.at(image::FieldId::EXCPSTRS, 7).replace(2, 2, "FF");
  app.image.at(image::FieldId::ALMSTRUCT_BAK, 4).replace(0, 2, "1C");
  Pick("ComboCOMM(3)", app.frmMain.ComboCOMM[3].position == 0 ? 1 : 0);
  Click("StatusChanges");
  ASSERT_EQ(List().topLevelItemCount(), 3) << Listed();
  struct Row {
    int group, tab;
    const char* focus;
  };
  for (const auto& [group, tab, focus] :
       {Row{0, kAlarmTab, "ComboALM(1)"}, Row{1, kLineTab, "ComboCOMM(3)"}}) {
    OpenRow(group, 0);
    EXPECT_EQ(Main().Tabs().currentIndex(), tab);
    EXPECT_EQ(Main().focusWidget()->objectName(), focus);
  }
  EXPECT_EQ(app.frmMain.ComboALM[0].position, 3);
  const auto* exceptions = List().topLevelItem(2);
  for (int row = 0; row < exceptions->childCount(); ++row) {
    if (exceptions->child(row)->text(0) == "Exception 7, RANGE") OpenRow(2, row);
  }
  EXPECT_EQ(app.frmMain.ComboExcp[0].position, 6);
  EXPECT_EQ(Main().focusWidget()->objectName(), "cmdSetRange");

  auto& window = *List().window();
  const auto& parity = Find("ComboCOMM(3)");
  window.resize(window.minimumSizeHint());
  window.move(parity.mapToGlobal(QPoint(1, 1)));
  OpenRow(1, 0);
  const QRect place(parity.mapToGlobal(QPoint()), parity.size());
  EXPECT_FALSE(window.frameGeometry().intersects(place)) << "the window covers what it leads to";
  OpenRow(2, 0);

  app.frmMain.form.enabled = false;
  OpenRow(1, 0);
  EXPECT_EQ(Main().Tabs().currentIndex(), kExceptionTab) << "another window blocks the main window";
}

TEST_F(ChangesTest, KeepTheRowThatTheUserChose) {
  const auto chosen = [this] { return List().currentItem()->text(0).toStdString(); };
  Pick("ComboLang", 2);
  Click("StatusChanges");
  Pick("ComboTD(2)", 2);
  Pick("ComboTD(3)", 1);
  EXPECT_EQ(chosen(), "LANGUAGE") << "the first row, although the others come before it";
  Press(List(), Qt::Key_Up);
  EXPECT_EQ(chosen(), "DAYLIGHT SAVING");
  Pick("ComboCOMM(3)", 2);
  EXPECT_EQ(chosen(), "DAYLIGHT SAVING");
  Find<QAction>("menuUndo").trigger();
  Find<QAction>("menuUndo").trigger();
  Show();
  EXPECT_EQ(chosen(), "DATE FORMAT") << "the chosen row has gone";
  Press(List(), Qt::Key_Left);
  EXPECT_EQ(List().currentItem(), List().topLevelItem(0));
  Press(List(), Qt::Key_Left);
  EXPECT_TRUE(List().topLevelItem(0)->isExpanded()) << "nothing would open it again";
}

TEST_F(ChangesTest, CopyWholeRowsWithTheBytesThatAreShown) {
  auto& app = App();
  Pick("ComboCOMM(3)", app.frmMain.ComboCOMM[3].position == 0 ? 1 : 0);
  app.image[image::FieldId::EXECENTRY] = app.known_image[image::FieldId::EXECENTRY] == "01" ? "02" : "01";
  Show();
  Click("StatusChanges");
  const auto copied = [&] {
    List().selectAll();
    QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
    QCoreApplication::sendEvent(&List(), &copy);
    return QGuiApplication::clipboard()->text();
  };
  const auto lines = copied().split('\n', Qt::SkipEmptyParts);
  ASSERT_EQ(lines.size(), 2);
  const auto* first = List().topLevelItem(0)->child(0);
  for (int cell = 0; cell < 3; ++cell)
    EXPECT_EQ(first->toolTip(cell), first->text(cell)) << "a column can cut it";
  EXPECT_TRUE(lines[0].startsWith("COMMUNICATION\tPARITY\t")) << lines[0].toStdString();
  EXPECT_EQ(lines[0].count('\t'), 3);
  EXPECT_TRUE(List().isColumnHidden(3));
  Find<QCheckBox>("ChangesBytes").click();
  const auto& list = Find<QTreeWidget>("ChangesList");
  for (int column = 1; column < list.columnCount(); ++column) {
    const auto text = list.topLevelItem(0)->child(0)->text(column);
    EXPECT_GE(list.columnWidth(column), list.fontMetrics().horizontalAdvance(text)) << column;
  }
  const auto with_bytes = copied().split('\n').value(0).split('\t');
  ASSERT_EQ(with_bytes.size(), 7);
  EXPECT_EQ(with_bytes[4], "COMMCFG_BAK, SYSCFG 1");
  EXPECT_EQ(with_bytes[6].toStdString(), app.image[image::FieldId::COMMCFG_BAK]);
}

class ChecksTest : public ScreenTest {
 protected:
  // The program is idle until the count has these words.
  std::string CountWhenIdle(const QString& wanted) {
    const auto& button = Find<QPushButton>("StatusChecks");
    for (const QDeadlineTimer late(10000); button.text() != wanted && !late.hasExpired();) Show();
    return button.isVisible() ? button.text().toStdString() : "hidden";
  }
  std::string Cell(int group, int column) {
    const auto* first = Find<QTreeWidget>("ChecksList").topLevelItem(group)->child(0);
    return first->text(column).toStdString();
  }
  void OpenFirst(int group) {
    auto& list = Find<QTreeWidget>("ChecksList");
    list.setCurrentItem(list.topLevelItem(group)->child(0));
    Press(list, Qt::Key_Return);
    Show();
  }
};

TEST_F(ChecksTest, AreCountedWhenTheProgramIsIdleAndLeadToTheirControls) {
  Select("GENERIC");
  App().image = images::FactoryImage(App().firmware);
  Show();
  EXPECT_EQ(CountWhenIdle(""), "hidden");
  Pick("ComboALM(0)", 4);
  Pick("ComboALM(1)", 9);
  Pick("ComboTD(4)", 1);
  App().image[image::FieldId::NET_TYPE] = "02";
  App().image[image::FieldId::NET_BAUDRATE] = "03";
  Show();
  EXPECT_EQ(CountWhenIdle("1 error, 1 warning"), "1 error, 1 warning");
  Click("StatusChecks");
  EXPECT_EQ(Cell(0, 0), "Network Settings, ADDRESS");
  EXPECT_EQ(Cell(1, 1), "Only free exceptions trigger alarm 5 (EX. 9), so nothing triggers it.");
  EXPECT_EQ(Cell(2, 1), "T/D LOCKING is ON, but T/D DISPLAY is OFF.");
  Pick("ComboALM(0)", 0);
  OpenFirst(1);
  EXPECT_EQ(Main().Tabs().currentIndex(), kAlarmTab);
  EXPECT_EQ(App().frmMain.ComboALM[0].position, 4);
  EXPECT_EQ(Main().focusWidget()->objectName(), "ComboALM(1)");

  Pick("ComboALM(1)", 0);
  EXPECT_EQ(CountWhenIdle("1 error"), "1 error");
  EXPECT_EQ(Find<QTreeWidget>("ChecksList").topLevelItemCount(), 2) << "the open window follows";
}

class CopySlotTest : public ScreenTest {
 protected:
  QDialog& OpenWindow(const std::string& button, const std::string& name) {
    Click(button);
    auto& window = Find<QDialog>(name);
    EXPECT_TRUE(window.isVisible());
    ExpectRoom(window);
    return window;
  }
};

TEST_F(CopySlotTest, SaysWhatItOverwritesAndShowsTheCopy) {
  auto& app = App();
  Main().Tabs().setCurrentIndex(kExceptionTab);
  Pick("ComboExcp(0)", 1);
  Pick("ComboExcp(1)", 1 - app.frmMain.ComboExcp[1].position);
  const auto slot = app.image.at(image::FieldId::EXCPSTRS, 2);
  auto& window = OpenWindow("CopyExceptionTo", "CopyException");
  auto& first = *window.findChild<QSpinBox*>("CopyFirst");
  auto& last = *window.findChild<QSpinBox*>("CopyLast");
  auto& effect = *window.findChild<QLabel*>("CopyEffect");
  auto& copy = *window.findChild<QPushButton*>("CopyNow");
  EXPECT_EQ(first.value(), 3);
  EXPECT_EQ(last.value(), 3);
  EXPECT_EQ(first.minimum(), 1);
  EXPECT_EQ(last.maximum(), image::kExceptions);
  first.setValue(2);
  last.setValue(2);
  EXPECT_FALSE(copy.isEnabled()) << effect.text().toStdString();
  last.setValue(4);
  EXPECT_EQ(effect.text().toStdString(),
            acts::OverwriteWarning(app, {acts::SlotKind::kException, 2, 2, 4}).empty()
                ? "No exception in use is overwritten."
                : acts::OverwriteWarning(app, {acts::SlotKind::kException, 2, 2, 4}).English());
  Press(last, Qt::Key_Return);
  Show();
  EXPECT_EQ(app.image.at(image::FieldId::EXCPSTRS, 3), slot);
  EXPECT_EQ(app.image.at(image::FieldId::EXCPSTRS, 4), slot);
  EXPECT_TRUE(Main().isWindowModified());
  program->Undo();
  EXPECT_FALSE(app.image.at(image::FieldId::EXCPSTRS, 3) == slot);
  program->Redo();
  Show();
  const auto& overview = Find<QTreeWidget>("ExceptionOverview");
  EXPECT_EQ(overview.topLevelItem(2)->text(1), overview.topLevelItem(1)->text(1));
}

TEST_F(CopySlotTest, IsClosedByEscapeWithoutACopy) {
  Main().Tabs().setCurrentIndex(kAlarmTab);
  const auto before = App().image;
  auto& window = OpenWindow("CopyAlarmTo", "CopyAlarm");
  Press(window, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(App().image == before);
  App().frmMain.form.enabled = false;
  Show();
  Find<QAbstractButton>("CopyAlarmTo").click();
  for (const auto* opened : Main().findChildren<QDialog*>("CopyAlarm"))
    EXPECT_FALSE(opened->isVisible()) << "another window blocks the main window";
}

}  // namespace
}  // namespace ovl::testing
