#include "shell/platform/settings_store.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string>

namespace ovl {
namespace {

constexpr auto kKey = "SOFTWARE\\ORB\\OVL Software";

class Settings : public testing::Test {
 protected:
  QString File() const { return folder_.filePath("ORB/OVL Software.conf"); }

  void Content(const QByteArray& bytes) const {
    QDir(folder_.path()).mkpath("ORB");
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
  }

  std::string Text(const char* value) const {
    const auto found = store_.Read(kKey, value);
    if (!found) return "(none)";
    const auto* text = std::get_if<std::string>(&*found);
    return text == nullptr ? "(number)" : *text;
  }

  QTemporaryDir folder_;
  SettingsStore store_{folder_.path()};
};

TEST_F(Settings, WhatIsWrittenIsFoundByTheNextStart) {
  EXPECT_TRUE(store_.Write(kKey, "Version", "V1400"));
  EXPECT_TRUE(store_.Write(kKey, "Release", std::string(300, '\xE4')));
  EXPECT_TRUE(store_.Write(kKey, "Other", "a, b;\"=\\\x01\x80"));
  EXPECT_TRUE(QFile::exists(File()));
  EXPECT_EQ(Text("Version"), "V1400");
  EXPECT_EQ(Text("Release"), std::string(300, '\xE4'));
  EXPECT_EQ(Text("Other"), "a, b;\"=\\\x01\x80");
}

TEST_F(Settings, AFileWrittenByHandIsRead) {
  Content("Version=V1300\nRelease=14\nEmpty=\nList=a, b\n\n[Group]\nInside=x\n");
  EXPECT_EQ(Text("Version"), "V1300");
  EXPECT_EQ(Text("Release"), "14");
  EXPECT_EQ(Text("Empty"), "");
  EXPECT_EQ(Text("List"), "a, b");
  EXPECT_EQ(Text("Missing"), "(none)");
  EXPECT_EQ(Text("Group/Inside"), "(none)");
  EXPECT_EQ(store_.Read("SOFTWARE\\ORB", "Version"), std::nullopt);
  EXPECT_FALSE(store_.Write("SOFTWARE\\ORB", "Version", "V1400"));
}

TEST_F(Settings, ANumberKeepsItsKind) {
  Content("Version=@Variant(\\0\\0\\0\\x2\\0\\0\\x5x)\n");
  EXPECT_EQ(store_.Read(kKey, "Version"), SettingValue(std::uint32_t{1400}));
}

TEST_F(Settings, WithoutAFileThereIsNothing) {
  EXPECT_EQ(Text("Version"), "(none)");
  EXPECT_EQ(store_.WhyNotRead(), File().toStdString() + ": No such file or directory");
}

TEST_F(Settings, AFolderInTheFilesPlaceHoldsNothing) {
  QDir(folder_.path()).mkpath("ORB/OVL Software.conf");
  EXPECT_EQ(Text("Version"), "(none)");
  EXPECT_FALSE(store_.Write(kKey, "Version", "V1400"));
}

TEST_F(Settings, AFileInTheFoldersPlaceRefusesToBeWritten) {
  ASSERT_TRUE(QFile(folder_.filePath("ORB")).open(QIODevice::WriteOnly));
  EXPECT_FALSE(store_.Write(kKey, "Version", "V1400"));
  EXPECT_EQ(Text("Version"), "(none)");
  EXPECT_EQ(store_.WhyNotWritten(), folder_.filePath("ORB").toStdString() + ": Not a directory");
}

// As on desktops that put folders of their own ahead.
TEST_F(Settings, TheMachinesFileIsFoundBehindOtherPlaces) {
  Content("Version=V1300\n");
  const QTemporaryDir ahead;
  const auto before = qgetenv("XDG_CONFIG_DIRS");
  qputenv("XDG_CONFIG_DIRS", ahead.path().toLocal8Bit() + ':' + folder_.path().toLocal8Bit());
  const SettingsStore machine;
  EXPECT_EQ(machine.Read(kKey, "Version"), SettingValue("V1300"));
  EXPECT_TRUE(machine.Write(kKey, "Version", "V1400"));
  qputenv("XDG_CONFIG_DIRS", before);
  EXPECT_EQ(Text("Version"), "V1400");
}

TEST_F(Settings, ContentThatIsNoSettingsFileIsReplaced) {
  Content(QByteArray("\0\xFF[[[\x80 no settings\n\xFE\0=", 21));
  EXPECT_EQ(Text("Version"), "(none)");
  EXPECT_TRUE(store_.Write(kKey, "Version", "V1400"));
  EXPECT_EQ(Text("Version"), "V1400");
}

TEST_F(Settings, ATextBeyondTheProgramsCharactersIsNoValue) {
  Content("Version=\"\xD0\xB9\"\n");
  EXPECT_EQ(Text("Version"), "(none)");
}

}  // namespace
}  // namespace ovl
