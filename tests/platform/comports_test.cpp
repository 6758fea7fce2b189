#include "shell/platform/comports.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>

#include "platform/pseudo_terminal.h"
#include "shell/platform/posix_line.h"

namespace ovl {
namespace {

class Comports : public testing::Test {
 protected:
  void Link(int number, const QString& target) const {
    QDir(folder_.path()).mkpath("ports");
    ASSERT_TRUE(QFile::link(target, folder_.filePath(QString("ports/com%1").arg(number))));
  }
  QString Device(int number) const { return ComportDevice(folder_.path(), number); }

  QTemporaryDir folder_;
};

TEST_F(Comports, NumbersWithoutALinkMeanTheTable) {
  EXPECT_EQ(Device(1), "/dev/ttyS0");
  EXPECT_EQ(Device(8), "/dev/ttyS7");
  EXPECT_EQ(Device(9), "/dev/ttyUSB0");
  EXPECT_EQ(Device(16), "/dev/ttyUSB7");
}

TEST_F(Comports, ALinkTakesThePlaceOfTheTable) {
  const PseudoTerminal terminal;
  const auto device = QString::fromStdString(terminal.Device());
  Link(3, device);
  Link(4, folder_.filePath("ports/com3"));
  Link(5, "/dev/no-such-device");
  EXPECT_EQ(Device(3), device);
  EXPECT_EQ(Device(4), device);
  EXPECT_EQ(Device(5), "/dev/no-such-device");

  const auto comports = ListComports(folder_.path());
  ASSERT_EQ(comports.size(), 16U);
  EXPECT_EQ(comports[2].number, 3);
  EXPECT_EQ(comports[2].device, device);
  EXPECT_TRUE(comports[2].present);
  EXPECT_FALSE(comports[4].present);
  EXPECT_EQ(comports[15].device, "/dev/ttyUSB7");
}

TEST_F(Comports, OnlyARefusedPermissionNamesTheGroup) {
  const auto file = folder_.filePath("device");
  ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
  const auto denied = ComportProblem(3, file, SystemText(EACCES));
  const auto group = DeviceGroup(file);
  ASSERT_FALSE(group.isEmpty());
  EXPECT_EQ(
      denied,
      QString("Comport 3, %1: Permission denied. The device belongs to the group %2.").arg(file, group));

  EXPECT_EQ(ComportProblem(9, "/dev/ttyUSB0", SystemText(ENOENT)),
            "Comport 9, /dev/ttyUSB0: No such file or directory.");
  EXPECT_EQ(ComportProblem(9, "/dev/no-such-device", SystemText(EACCES)),
            "Comport 9, /dev/no-such-device: Permission denied.");
}

}  // namespace
}  // namespace ovl
