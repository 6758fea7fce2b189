#include "host/settings_store.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <map>
#include <string>

namespace ovl {
namespace {

using namespace std::string_literals;

const core::SettingValue kNone = "(none)";
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

  core::SettingValue At(const char* value) const { return store_.Read(kKey, value).value_or("(none)"); }

  QTemporaryDir folder_;
  host::SettingsStore store_{folder_.path()};
};

TEST_F(Settings, TheNextStartReadsWhatWasWritten) {
  EXPECT_EQ(store_.WhyNotRead(), File().toStdString() + ": No such file or directory");
  // Content that is no settings file is replaced.
  for (const auto& before : {QByteArray(), QByteArray("\0\xFF[[[\x80 no settings\n\xFE\0=", 21)}) {
    if (!before.isEmpty()) Content(before);
    EXPECT_EQ(At("Version"), kNone);
    for (const auto& text : {"V1400"s, std::string(300, '\xE4'), "a, b;\"=\\\x01\x80"s}) {
      EXPECT_TRUE(store_.Write(kKey, "Version", text).Ok());
      EXPECT_EQ(At("Version"), core::SettingValue(text));
    }
    EXPECT_TRUE(QFile::remove(File()));
  }
}

TEST_F(Settings, OfAnEditedFileOnlyTextsInTheCharactersOfTheProgramAreRead) {
  Content(
      "Version=V1300\nRelease=14\nEmpty=\nList=a, b\nForeign=\"\xD0\xB9\"\n"
      "Number=@Variant(\\0\\0\\0\\x2\\0\\0\\x5x)\n\n[Group]\nInside=x\n");
  const std::map<const char*, core::SettingValue> rows = {
      {"Version", "V1300"}, {"Release", "14"},      {"Empty", ""},
      {"List", "a, b"},     {"Foreign", kNone},     {"Number", std::uint32_t{1400}},
      {"Missing", kNone},   {"Group/Inside", kNone}};
  for (const auto& [value, found] : rows) EXPECT_EQ(At(value), found) << value;
  EXPECT_EQ(store_.Read("SOFTWARE\\ORB", "Version"), std::nullopt);
  EXPECT_FALSE(store_.Write("SOFTWARE\\ORB", "Version", "V1400").Ok());
}

// A list with a size of two thousand million entries, and the same with its name written in other ways.
TEST_F(Settings, AFileWithOtherTypesIsReportedAndRenamedByTheNextWrite) {
  for (const QByteArray name : {"@Variant", "\\x40Variant", "\\100Variant", "\\x10040Variant",
                                "\"@\"Vari\\\nant", "@Var\\qi\\x61nt", "@DateTime"}) {
    const auto content = "Release=R12\nVersion=" + name + "(\\0\\0\\0\\x9\\0\\x7f\\xff\\xff\\xff)\n";
    Content(content);
    EXPECT_EQ(At("Release"), kNone);
    EXPECT_EQ(store_.WhyNotRead(), File().toStdString() + ": a value is neither text nor number");
    EXPECT_TRUE(store_.Write(kKey, "Version", "V1400").Ok());
    EXPECT_EQ(At("Version"), core::SettingValue("V1400"));
    QFile aside(File() + ".unsound");
    EXPECT_TRUE(aside.open(QIODevice::ReadOnly) && aside.readAll() == content);
  }
  for (const auto& text : {"@V1400"s, "@Variant("s, "\\x40Variant("s, "a\0b"s}) {
    EXPECT_TRUE(store_.Write(kKey, "Version", text).Ok());
    EXPECT_EQ(At("Version"), core::SettingValue(text));
  }
}

TEST_F(Settings, SomethingElseInThePlaceOfTheFileIsNeitherReadNorWritten) {
  ASSERT_TRUE(QFile(folder_.filePath("ORB")).open(QIODevice::WriteOnly));
  EXPECT_EQ(store_.Write(kKey, "Version", "V1400").Problem().Text(),
            folder_.filePath("ORB").toStdString() + ": Not a directory");
  EXPECT_EQ(At("Version"), kNone);

  ASSERT_TRUE(QFile::remove(folder_.filePath("ORB")));
  QDir(folder_.path()).mkpath("ORB/OVL Software.conf");
  EXPECT_EQ(At("Version"), kNone);
  EXPECT_FALSE(store_.Write(kKey, "Version", "V1400").Ok());
}

// Some desktops have folders of their own before the system-wide one.
TEST_F(Settings, TheSystemWideFileIsFoundAfterOtherPlaces) {
  Content("Version=V1300\n");
  const QTemporaryDir ahead;
  const auto before = qgetenv("XDG_CONFIG_DIRS");
  qputenv("XDG_CONFIG_DIRS", ahead.path().toLocal8Bit() + ':' + folder_.path().toLocal8Bit());
  const host::SettingsStore machine;
  EXPECT_EQ(machine.Read(kKey, "Version"), core::SettingValue("V1300"));
  EXPECT_TRUE(machine.Write(kKey, "Version", "V1400").Ok());
  qputenv("XDG_CONFIG_DIRS", before);
  EXPECT_EQ(At("Version"), core::SettingValue("V1400"));
}

}  // namespace
}  // namespace ovl
