// Names of ports, code pages of texts, and marks of parity errors as the system has them.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string>

#include "host/comports.h"
#include "host/parity_marks.h"
#include "host/system/device.h"
#include "host/text_codec.h"

namespace ovl {
namespace {

TEST(Comports, ALinkReplacesTheEntryOfTheTable) {
  const QTemporaryDir folder;
  const auto links = folder.filePath("ports/com%1");
  QDir(folder.path()).mkpath("ports");
  ASSERT_TRUE(QFile::link("/dev/null", links.arg(3)) && QFile::link(links.arg(3), links.arg(4)) &&
              QFile::link("/dev/no-such-device", links.arg(5)));
  const std::pair<int, QString> devices[] = {
      {1, "/dev/ttyS0"}, {8, "/dev/ttyS7"}, {9, "/dev/ttyUSB0"},       {16, "/dev/ttyUSB7"},
      {3, "/dev/null"},  {4, "/dev/null"},  {5, "/dev/no-such-device"}};
  const auto comports = host::ListComports(folder.path());
  ASSERT_EQ(comports.size(), 16U);
  for (const auto& [number, device] : devices) {
    const auto& listed = comports[static_cast<std::size_t>(number) - 1];
    EXPECT_EQ(host::ComportDevice(folder.path(), number), device);
    EXPECT_TRUE(listed.number == number && listed.device == device) << number;
  }
  EXPECT_TRUE(comports[3].present);
  EXPECT_FALSE(comports[4].present);
}

TEST(Comports, OnlyADeniedPermissionNamesTheGroup) {
  const QTemporaryDir folder;
  const auto file = folder.filePath("device");
  ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
  const auto group = host::DeviceGroup(file);
  ASSERT_FALSE(group.isEmpty());
  const auto problem = [](int number, const QString& device, std::errc reason) {
    return host::ComportProblem(number, {device.toStdString(), std::make_error_code(reason)});
  };
  EXPECT_EQ(
      problem(3, file, std::errc::permission_denied),
      QString("Comport 3, %1: Permission denied. The device belongs to the group %2.").arg(file, group));
  EXPECT_EQ(problem(9, file, std::errc::no_such_file_or_directory),
            QString("Comport 9, %1: No such file or directory.").arg(file));
  EXPECT_EQ(problem(9, "/dev/no-such-device", std::errc::permission_denied),
            "Comport 9, /dev/no-such-device: Permission denied.");
}

TEST(TextCodec, EveryByteOfTheWindowsCodePageIsOneCharacter) {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  EXPECT_EQ(host::FromWindows1252(bytes).size(), 256);
  EXPECT_EQ(host::ToWindows1252(host::FromWindows1252(bytes)), bytes);
  EXPECT_EQ(host::ToWindows1252(u"\u20AC \u017D \u0178 \u00E4"), "\x80 \x8E \x9F \xE4");
  EXPECT_EQ(host::FromWindows1252("\x81\x8D\x8F\x90\x9D"), QStringView(u"\u0081\u008D\u008F\u0090\u009D"));
  for (const char16_t* text : {u"a\u0080b", u"\u0100", u"\u00E4\u0439", u"\U0001F600"}) {
    EXPECT_EQ(host::ToWindows1252(text), std::nullopt) << QString::fromUtf16(text).toStdString();
  }
}

TEST(TextCodec, ASystemTextIsReadAsUtf8IfItIsValid) {
  EXPECT_EQ(host::FromSystem("/tmp/\xC3\xA4: denied"), QStringView(u"/tmp/\u00E4: denied"));
  EXPECT_EQ(host::FromSystem("/tmp/\xE4"), QStringView(u"/tmp/\u00E4"));
}

TEST(ParityMarks, TheCharactersDoNotDependOnHowTheReadsAreSplit) {
  using namespace std::string_literals;
  // The last FF comes from a driver that does not double it.
  const auto marked = "a\xFF\0b\xFF\xFF\xFF\0\xFF\xFF\0\0\0z\xFF\xFF\xFF\xFF?\xFFy"s;
  const auto expected = "a?\xFF??\0z\xFF\xFF?\xFFy"s;
  for (std::size_t first = 0; first <= marked.size(); ++first) {
    for (std::size_t second = first; second <= marked.size(); ++second) {
      host::ParityMarks marks;
      auto text = marks.Decode(marked.substr(0, first));
      text += marks.Decode(marked.substr(first, second - first));
      text += marks.Decode(marked.substr(second));
      ASSERT_EQ(text, expected) << first << " " << second;
    }
  }
}

}  // namespace
}  // namespace ovl
