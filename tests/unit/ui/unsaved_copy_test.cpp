// The copy of unsaved changes that the next start finds when the program was killed.
#include "ui/app/unsaved_copy.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDeadlineTimer>
#include <QDir>
#include <filesystem>

#include "unit/ui/screen.h"

namespace ovl::testing {
namespace {

QStringList Copies(const QString& folder) {
  return QDir(folder).entryList({QStringLiteral("*.bin")}, QDir::Files);
}

// Longer than the time after which a change is written.
void WaitForTimer() {
  for (const QDeadlineTimer late(1500); !late.hasExpired();)
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
}

// Changes a setting and waits for the copy.
QString ChangeAndWait(Screen& screen) {
  auto& app = screen.App();
  screen.program->GuardUnsaved();
  const auto folder = QString::fromStdString(app.platform.program_folder);
  screen.Pick("ComboTD(2)", app.frmMain.ComboTD[2].position == 0 ? 1 : 0);
  for (const QDeadlineTimer late(10000); Copies(folder).isEmpty() && !late.hasExpired();) screen.Show();
  return folder;
}

// A complete download changes what the unit is known to contain, and not the image.
TEST(UnsavedCopy, GoesWhenTheUnitContainsTheChanges) {
  Screen screen({"V1400", "R12"});
  const auto folder = ChangeAndWait(screen);
  ASSERT_EQ(Copies(folder).size(), 1);
  screen.App().known_image = screen.App().image;
  screen.program->RefreshNow();
  WaitForTimer();
  EXPECT_EQ(Copies(folder), QStringList());
}

TEST(UnsavedCopy, ExistsUntilTheUserClosesAndOpensAgainAfterACrash) {
  Screen screen({"V1400", "R12"});
  auto& app = screen.App();
  const auto folder = ChangeAndWait(screen);
  ASSERT_EQ(Copies(folder).size(), 1);
  EXPECT_EQ(ui::RescueCopies(folder), QStringList()) << "the program that keeps the copy still runs";

  // As if another process had left it and ended.
  const QDir in(folder);
  ASSERT_TRUE(QFile::rename(in.filePath(Copies(folder).front()), in.filePath("unsaved V1400R12 9.bin")));
  EXPECT_EQ(ui::RescueCopies(folder), QStringList("rescued V1400R12 1.bin"));
  const auto rescued = in.filePath("rescued V1400R12 1.bin");
  const auto changed = app.image;
  app.image = app.known_image;
  app.platform.ask_file = [&](const core::FileDialog&) {
    return std::optional(core::FileAnswer{rescued.toStdString(), {}});
  };
  screen.Find<QAction>("OpenMenu").trigger();
  EXPECT_TRUE(app.image == changed);

  // A broken file ends the program. The last copy stays, and the change of the last moment is not added.
  screen.Pick("ComboTD(2)", app.frmMain.ComboTD[2].position == 0 ? 1 : 0);
  for (const QDeadlineTimer late(10000); Copies(folder).size() < 2 && !late.hasExpired();) screen.Show();
  const auto copy = in.filePath("unsaved V1400R12 1.bin").toStdString();
  const auto last = ReadFile(copy);
  WriteFile(rescued.toStdString(), "$2000");
  screen.Pick("ComboCOMM(3)", app.frmMain.ComboCOMM[3].position == 0 ? 1 : 0);
  screen.Find<QAction>("OpenMenu").trigger();
  ASSERT_TRUE(app.ended);
  WaitForTimer();
  EXPECT_EQ(ReadFile(copy), last);
  screen.program->Act(core::CloseEvent{&app.frmMain.form});
  EXPECT_EQ(ReadFile(copy), last) << "it has ended before";
}

TEST(UnsavedCopy, IsRemovedByAPickInTheVersionMenuAndNotWrittenAgain) {
  Screen screen({"V1400", "R12"});
  const auto folder = ChangeAndWait(screen);
  const auto copy = screen.folder.File("unsaved V1400R12 1.bin");
  const auto before = ReadFile(copy);
  screen.while_box = [&] {
    EXPECT_EQ(screen.App().firmware.release, "R4");
    WaitForTimer();
    EXPECT_EQ(ReadFile(copy), before);
  };
  screen.Pick("ComboCOMM(3)", screen.App().frmMain.ComboCOMM[3].position == 0 ? 1 : 0);
  screen.Find<QAction>("V1400R4mnu").trigger();
  EXPECT_EQ(screen.boxes.size(), 1U);
  WaitForTimer();
  EXPECT_EQ(Copies(folder), QStringList());
}

TEST(UnsavedCopy, StaysWhenTheSettingsDoNotKeepThePick) {
  Screen screen({"V1400", "R12"});
  const auto folder = ChangeAndWait(screen);
  const auto settings = screen.folder.File("ORB");
  std::filesystem::remove_all(settings);
  WriteFile(settings, "in the way");
  screen.Find<QAction>("V1400R4mnu").trigger();
  EXPECT_TRUE(screen.App().ended);
  EXPECT_EQ(Copies(folder), QStringList("unsaved V1400R12 1.bin"));
}

// Another process may have the number of the one that ended, so the lock and its owner count.
TEST(UnsavedCopy, OfAnotherFirmwareIsKeptEvenIfItsProcessNumberIsUsedAgain) {
  Screen screen({"V1400", "R12"});
  const auto file = [&](const char* name) { return screen.folder.File(name); };
  const auto left = PatternStream({"V1300", "R14"}) + "\r\n";
  WriteFile(file("unsaved V1300R14 1.bin"), left);
  WriteFile(file("unsaved V1300R14 1.bin.lock"),
            "1\nanother\n" + QSysInfo::machineHostName().toStdString() + "\n");
  WriteFile(file("unsaved V1300R26 1.bin"), left);
  WriteFile(file("rescued V1300R14 1.bin"), "older");
  screen.program->GuardUnsaved();
  EXPECT_EQ(screen.Note("StatusRescue").find("rescued V1300R14 2.bin contains "), 0U);
  EXPECT_EQ(ReadFile(file("rescued V1300R14 1.bin")), "older");
  EXPECT_EQ(ReadFile(file("rescued V1300R14 2.bin")), left);
  EXPECT_EQ(ReadFile(file("unsaved V1300R26 1.bin")), left) << "it would not open under this firmware";
}

TEST(UnsavedCopy, IsNoLongerAnnouncedOnceItWasOpened) {
  Screen screen;
  WriteFile(screen.folder.File("unsaved V1400R12 1.bin"), PatternStream({"V1400", "R12"}) + "\r\n");
  screen.program->GuardUnsaved();
  EXPECT_NE(screen.Note("StatusRescue"), "");
  std::optional<core::FileAnswer> answer;
  screen.App().platform.ask_file = [&](const core::FileDialog&) { return answer; };
  screen.Find<QAction>("OpenMenu").trigger();
  EXPECT_NE(screen.Note("StatusRescue"), "") << "cancelled";
  answer = core::FileAnswer{screen.folder.File("rescued V1400R12 1.bin")};
  screen.Find<QAction>("OpenMenu").trigger();
  EXPECT_EQ(screen.Note("StatusRescue"), "");
}

}  // namespace
}  // namespace ovl::testing
