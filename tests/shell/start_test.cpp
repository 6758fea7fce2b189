// The first start, and what is told when it finds no place, no firmware or no images.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "core/failure.h"
#include "image/files.h"
#include "shell/program.h"
#include "shell/program_folder.h"
#include "support/harness.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

TEST(ProgramFolder, WhatIsShippedIsLinkedIntoRealFamilyFolders) {
  const TemporaryFolder shipped, own;
  fs::create_directories(shipped.Path() / "images" / "V1400" / "R12");
  fs::create_directories(shipped.Path() / "Manual");
  WriteWhole(shipped.File("images/V1400/R12/GENERIC.bin"), "x");
  fs::create_directories(own.Path() / "V1400");
  fs::create_directory_symlink("/nowhere/at/all", own.Path() / "V1400" / "R12");
  const auto link = [&](const std::string& folder) {
    LinkShipped(QString::fromStdString(shipped.Path().string()), QString::fromStdString(folder));
  };
  link(own.Path().string());
  link(own.Path().string());
  EXPECT_FALSE(fs::is_symlink(own.Path() / "V1400"));
  EXPECT_TRUE(fs::is_symlink(own.Path() / "V1400" / "R12"));
  EXPECT_EQ(ReadWhole(own.File("V1400/R12/GENERIC.bin")), "x");
  EXPECT_TRUE(fs::is_directory(own.Path() / "Manual"));

  const auto blocked = own.File("V1400/R12/GENERIC.bin") + "/below";
  try {
    link(blocked);
    FAIL() << "a file stands in the folder's place";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Subject(), blocked);
    EXPECT_STREQ(failure.what(), "Not a directory");
  }
}

// The boxes that come up while it runs, each closed at once.
QString BoxesOf(const std::function<void()>& run) {
  QStringList boxes;
  QTimer closing;
  closing.callOnTimeout([&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    boxes.append(box->text().trimmed() + QLatin1Char('|') + box->informativeText());
    box->accept();
  });
  closing.start(1);
  run();
  return boxes.join(QLatin1Char('|'));
}

TEST(Store, WhatIsWrongWithItStandsInTheBox) {
  const TemporaryFolder site;
  fs::create_directories(site.Path() / "V1400" / "R12");
  fs::create_directories(site.Path() / "ORB");
  const auto settings = site.File("ORB/OVL Software.conf");
  const auto folder = QString::fromStdString(site.Path().string());
  const auto start = [](Program& program) { return BoxesOf([&] { program.Start(); }); };

  Program unknown(folder, folder);
  EXPECT_EQ(start(unknown),
            QStringLiteral("Please ReInstall Ovalon PC Software|%1/ORB/OVL Software.conf: No such file or "
                           "directory\nRoot sets the firmware, for instance: ovl-setup V1400 R12")
                .arg(folder));

  WriteWhole(settings, "[General]\nVersion=V1400\nRelease=R12\n");
  Program without_images(folder, folder);
  EXPECT_TRUE(start(without_images).endsWith(folder + "/V1400/R12/GENERIC.bin: No such file or directory"));

  WriteWhole(site.File("V1400/R12/GENERIC.bin"), PatternStream({"V1400", "R12"}) + "\r\n");
  Program program(folder, folder);
  EXPECT_EQ(start(program), QString());
  fs::remove(settings);
  fs::create_directory(settings);
  const auto item = program.Model().registry.Find("V1300R14mnu")->control;
  EXPECT_EQ(
      BoxesOf([&] { program.Act(ClickEvent{item}); }),
      QStringLiteral("V1300R14 WILL TAKE EFFECT WHEN THE APPLICATION NEXT START|%1/ORB/OVL Software.conf: "
                     "Filename refers to a directory\nThe next start serves the same firmware as this one. "
                     "Root sets another: ovl-setup V1300 R14")
          .arg(folder));
}

}  // namespace
}  // namespace ovl::testing
