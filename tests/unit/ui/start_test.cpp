// The first start, and its messages if there is no writable folder, no firmware or no image.
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

#include "core/failure.h"
#include "host/program_folder.h"
#include "screen.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

TEST(ProgramFolder, ShippedFilesAreLinkedIntoRealFamilyFolders) {
  const TemporaryFolder shipped, own;
  const auto link = [&](const std::string& folder) {
    host::LinkShipped(QString::fromStdString(shipped.Path().string()), QString::fromStdString(folder));
  };
  for (const char* folder : {"images/V1400/R12", "Manual"}) fs::create_directories(shipped.Path() / folder);
  WriteFile(shipped.File("images/V1400/R12/GENERIC.bin"), "x");
  fs::create_directories(own.Path() / "V1400");
  fs::create_directory_symlink("/nowhere/at/all", own.Path() / "V1400/R12");
  for (int start = 0; start < 2; ++start) link(own.Path().string());
  EXPECT_FALSE(fs::is_symlink(own.Path() / "V1400"));
  EXPECT_TRUE(fs::is_symlink(own.Path() / "V1400/R12"));
  EXPECT_EQ(ReadFile(own.File("V1400/R12/GENERIC.bin")), "x");
  EXPECT_TRUE(fs::is_directory(own.Path() / "Manual"));

  const auto blocked = own.File("V1400/R12/GENERIC.bin") + "/below";
  try {
    link(blocked);
    FAIL() << "a file is in the place of the folder";
  } catch (const core::Failure& failure) {
    EXPECT_EQ(failure.Subject(), blocked);
    EXPECT_STREQ(failure.what(), "Not a directory");
  }
}

// The message boxes during the start. Each is closed at once.
QString BoxesOf(const std::function<void()>& run) {
  // A program that ended earlier has asked the event loop to quit. Until that has happened, no message box
  // stays open.
  QTimer::singleShot(0, [] { QCoreApplication::exit(); });
  QApplication::exec();
  QStringList boxes;
  QTimer closing;
  closing.callOnTimeout([&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    boxes.append(box->text().trimmed() + '|' + box->informativeText());
    box->accept();
  });
  closing.start(1);
  run();
  return boxes.join('|');
}

TEST(Store, ItsErrorIsInTheMessageBox) {
  const TemporaryFolder site;
  const auto settings = site.File("ORB/OVL Software.conf");
  const auto folder = QString::fromStdString(site.Path().string());
  const auto start = [&] {
    ui::Program program(folder, folder);
    return BoxesOf([&] { program.Start(); });
  };
  EXPECT_EQ(start(), "Please ReInstall Ovalon PC Software|" + folder +
                         "/ORB/OVL Software.conf: No such file or directory\n"
                         "To set the firmware, run as root, for instance: ovl-setup V1400 R12");
  MakeSite(site, {"V1400", "R12"});
  fs::remove(site.File("V1400/R12/GENERIC.bin"));
  EXPECT_TRUE(start().endsWith(folder + "/V1400/R12/GENERIC.bin: No such file or directory"));

  MakeSite(site, {"V1400", "R12"});
  {
    ui::Program program(folder, folder);
    EXPECT_EQ(BoxesOf([&] { program.Start(); }), "");
    auto& list = program.Model().frmMain.ComboReg;
    EXPECT_TRUE(BoxesOf([&] {
                  program.Act(core::PickEvent{&list, 2});
                }).endsWith(folder + "/V1400/R12/ALOHA.bin: No such file or directory"));
  }
  ui::Program program(folder, folder);
  EXPECT_EQ(BoxesOf([&] { program.Start(); }), "");
  fs::remove(settings);
  fs::create_directory(settings);
  const auto item = program.Model().registry.Find("V1300R14mnu")->control;
  EXPECT_EQ(BoxesOf([&] { program.Act(core::ClickEvent{item}); }),
            "V1300R14 WILL TAKE EFFECT WHEN THE APPLICATION NEXT START|" + folder +
                "/ORB/OVL Software.conf: Is a directory\n"
                "The next start uses the same firmware as this one. To set the other one, run as root: "
                "ovl-setup V1300 R14");
}

TEST(MainWindow, OpensWithItsSizeAsFarAsTheScreenHasRoom) {
  Screen screen({"V1400", "R12"}, Pages::kFirst);
  const auto room = screen.Main().screen()->availableSize();
  EXPECT_EQ(screen.start_size, ui::MainWindow::StartSize().boundedTo(room));
}

}  // namespace
}  // namespace ovl::testing
