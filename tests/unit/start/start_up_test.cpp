#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "core/actions.h"
#include "support/control_characters.h"
#include "support/firmware_facts.h"
#include "support/harness.h"
#include "support/state_table.h"

namespace ovl::testing {
namespace {

// The firmware of the next start.
std::string Stored(Harness& program) {
  return std::get<std::string>(program.settings["Version"]) +
         std::get<std::string>(program.settings["Release"]);
}

TEST(StartUp, LoadsTheWholeFirstRegisterAndWaits) {
  Harness program({"V1400", "R12"});
  ASSERT_EQ(program.Start(), core::Outcome::kDone);
  const auto& app = program.app;
  EXPECT_EQ(app.frmMain.ComboReg.Text(), "GENERIC");
  EXPECT_EQ(app.image[image::FieldId::COMMCFG_BAK], "08");
  EXPECT_TRUE(app.ImageTouched);
  EXPECT_TRUE(app.PanelsReady);
  EXPECT_EQ(app.LinkMode, 255);
  EXPECT_EQ(DifferenceFrom(State::kClosed, app), "");
  for (const auto& days : app.frmMain.ComboDay) EXPECT_EQ(days.visible, days.index == 0);
  EXPECT_TRUE(program.Control("V1400R12mnu").enabled);
  EXPECT_TRUE(app.frmMain.version_items.at(6).checked);
  EXPECT_EQ(program.Control("lbVersionID(6)").caption, "V1400R12");
  EXPECT_TRUE(program.NoBoxLeft());

  program.OpenAndHold();
  EXPECT_EQ(program.Click("menuExit"), core::Outcome::kEnded);
  program.Unit(kAck);
  EXPECT_EQ(program.Click("CmdUpDow(0)"), core::Outcome::kEnded);
  EXPECT_EQ(program.TakeSent(), "");
}

TEST(StartUp, EndsWithoutAFirmware) {
  const std::string too_long(255, 'V');
  const std::vector<std::pair<core::SettingValue, core::SettingValue>> stores = {
      {"", "R12"}, {"V1400", ""}, {too_long, "R12"}, {"V1400", too_long}};
  for (const auto& [version, release] : stores) {
    Harness program({"V1400", "R12"});
    program.settings["Version"] = version;
    program.settings["Release"] = release;
    EXPECT_EQ(program.Start(), core::Outcome::kEnded);
    const auto box = program.TakeBox();
    EXPECT_EQ(box.title, "Registry Error.");
    EXPECT_EQ(box.text, "Please ReInstall Ovalon PC Software");
    EXPECT_EQ(box.icon, core::BoxIcon::kInformation);
    EXPECT_EQ(program.Click("CmdUpDow(4)"), core::Outcome::kEnded);
  }
}

TEST(StartUp, ANumberInTheSettingsIsAFirmwareName) {
  Harness program({"V1400", "R12"});
  program.settings["Version"] = std::uint32_t{1400};
  EXPECT_EQ(program.Start(), core::Outcome::kDone);
  EXPECT_EQ(program.app.firmware.version, "1400");
  EXPECT_TRUE(program.app.frmMain.ComboReg.items.empty());
  EXPECT_TRUE(program.app.PanelsReady);
  program.Click("menuSave");
  EXPECT_EQ(program.TakeBox().text, "NoFile Save. !!!        ");
  EXPECT_TRUE(program.dialogs.empty());
}

TEST(Timers, HaveTheirIntervalsAndStartOnceUntilTheyAreStopped) {
  core::Application app;
  auto& main = app.frmMain;
  const int intervals[] = {main.Timer.interval, main.General_timer.interval, main.Time_handcheck.interval,
                           main.Timer_Operating.interval, app.frmSettSR.BaudRateScan.interval};
  EXPECT_TRUE(std::ranges::equal(intervals, std::array{100, 300, 1000, 1000, 1000}));
  auto& timer = main.General_timer;
  const auto before = timer.starts;
  for (const bool enabled : {true, true, false, false, true}) core::EnableTimer(timer, enabled);
  EXPECT_EQ(timer.starts, before + 2);
}

TEST(StartUp, ADefaultImageThatCannotBeReadEndsTheProgram) {
  for (const auto* reason : {"No such file or directory", "Is a directory"}) {
    Harness program({"V1400", "R12"});
    const auto image = program.folder.File("V1400/R12/GENERIC.bin");
    std::filesystem::remove(image);
    if (std::string(reason) == "Is a directory") std::filesystem::create_directory(image);
    EXPECT_EQ(program.Start(), core::Outcome::kEnded);
    EXPECT_EQ(program.TakeBox().text,
              "                   " + std::string(reason) + "\nPlease ReInstall Ovalon PC Software !!");
  }
}

TEST(StartUp, TheCompactFirmwareRunsAsAnotherAndKeepsItsCaptions) {
  Harness program({"V1410", "R1"});
  std::filesystem::create_directories(program.folder.File("V1400/R7"));
  WriteFile(program.folder.File("V1400/R7/GENERIC.bin"), PatternStream({"V1400", "R7"}));
  ASSERT_EQ(program.Start(), core::Outcome::kDone);
  EXPECT_EQ(program.app.firmware.Joined(), "V1400R7");
  EXPECT_EQ(program.Control("lbVersionID(0)").caption, "V1410R1");
  for (const auto& item : program.app.frmMain.version_items) EXPECT_FALSE(item.checked);
  EXPECT_EQ(program.Click("V1400R7mnu"), core::Outcome::kEnded);
  EXPECT_EQ(Stored(program), "V1400R7");
}

TEST(VersionMenu, EveryFirmwareIsInTheMenuOfItsFamily) {
  Harness program({"V1400", "R12"});
  ASSERT_EQ(program.Start(), core::Outcome::kDone);
  std::vector<std::string> families, expected;
  for (const auto& family : program.app.frmMain.version_families)
    families.insert(families.end(), family.items.size(), family.parent.caption);
  for (const auto& firmware : EveryFirmware()) expected.push_back(firmware.version);
  EXPECT_EQ(families, expected);
}

}  // namespace
}  // namespace ovl::testing
