#include "shell/platform/comports.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>

#include "shell/platform/posix_line.h"

namespace ovl {
namespace {

TEST(Comports, ALinkTakesThePlaceOfTheTable) {
  const QTemporaryDir folder;
  const auto links = folder.filePath("ports/com%1");
  QDir(folder.path()).mkpath("ports");
  ASSERT_TRUE(QFile::link("/dev/null", links.arg(3)) && QFile::link(links.arg(3), links.arg(4)) &&
              QFile::link("/dev/no-such-device", links.arg(5)));
  const std::pair<int, QString> devices[] = {
      {1, "/dev/ttyS0"}, {8, "/dev/ttyS7"}, {9, "/dev/ttyUSB0"},       {16, "/dev/ttyUSB7"},
      {3, "/dev/null"},  {4, "/dev/null"},  {5, "/dev/no-such-device"}};
  const auto comports = ListComports(folder.path());
  ASSERT_EQ(comports.size(), 16U);
  for (const auto& [number, device] : devices) {
    const auto& listed = comports[static_cast<std::size_t>(number) - 1];
    EXPECT_EQ(ComportDevice(folder.path(), number), device);
    EXPECT_TRUE(listed.number == number && listed.device == device) << number;
  }
  EXPECT_TRUE(comports[3].present);
  EXPECT_FALSE(comports[4].present);
}

TEST(Comports, OnlyARefusedPermissionNamesTheGroup) {
  const QTemporaryDir folder;
  const auto file = folder.filePath("device");
  ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
  const auto group = DeviceGroup(file);
  ASSERT_FALSE(group.isEmpty());
  EXPECT_EQ(
      ComportProblem(3, file, SystemText(EACCES)),
      QString("Comport 3, %1: Permission denied. The device belongs to the group %2.").arg(file, group));
  EXPECT_EQ(ComportProblem(9, file, SystemText(ENOENT)),
            QString("Comport 9, %1: No such file or directory.").arg(file));
  EXPECT_EQ(ComportProblem(9, "/dev/no-such-device", SystemText(EACCES)),
            "Comport 9, /dev/no-such-device: Permission denied.");
}

}  // namespace
}  // namespace ovl
