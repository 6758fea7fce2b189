// The program and the unit in software, connected to each other, under every firmware.
#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "image/report.h"
#include "images/default_images.h"
#include "support/firmware_facts.h"
#include "support/harness.h"
#include "support/simulated_unit.h"

namespace ovl::testing {
namespace {

// Carries characters in both directions until there are none.
void Exchange(Harness& program, SimulatedUnit& device) {
  for (auto sent = program.TakeSent(); !sent.empty(); sent = program.TakeSent()) {
    program.Unit(device.Answer(sent));
    program.Drain(1);
  }
}

void HoldRemoteMode(Harness& program, SimulatedUnit& device) {
  ASSERT_EQ(program.Click("CmdUpDow(4)"), core::Outcome::kDone);
  Exchange(program, device);
  program.Tick(program.app.frmMain.General_timer);
  ASSERT_TRUE(program.app.RemoteHeld);
}

void Transfer(Harness& program, SimulatedUnit& device, const char* button, const char* end) {
  HoldRemoteMode(program, device);
  program.Click(button);
  Exchange(program, device);
  ASSERT_TRUE(program.app.frmOK_buttom.form.visible);
  EXPECT_EQ(program.app.frmOK_buttom.Label1.caption, end);
  program.Click("frmOK_buttom.Command1");
}

void ChangeEveryTab(const firmware::FirmwareId& firmware) {
  Harness program(firmware);
  images::WriteDefaultImages(program.folder.Path().string(), firmware);
  ASSERT_EQ(program.Start(), core::Outcome::kDone);
  const int names = static_cast<int>(program.app.frmMain.ComboReg.items.size());
  for (int position = 0; position < names; ++position) {
    ASSERT_EQ(program.Pick("ComboReg", position), core::Outcome::kDone);
  }
  SimulatedUnit device({.firmware = firmware.Joined(), .speed = 0});
  program.Click("cmdConnect");
  program.Click("frmSettSR.cmdSET");
  Transfer(program, device, "CmdUpDow(0)", "Upload Completed.");
  const auto uploaded = program.app.image;
  Transfer(program, device, "CmdUpDow(1)", "Download Completed.");
  const auto untouched = device.program->Image();
  EXPECT_TRUE(image::Differences(uploaded, program.app.image, firmware).empty());

  const std::vector<std::tuple<const char*, int, std::string>> picks = {
      {"ComboDIP(1)", 4, "DSPLINES_BAK"},        {"ComboALM(4)", 3, "ALMCFG_BAK"},
      {"ComboTrigger(0)", 1, "TRIGGER_TEXT(1)"}, {"ComboCOMM(2)", 6, "TX_BAUDRATE"},
      {"ComboExcp(2)", 1, "EXCPSTRS(1)"},        {"ComboExcepRe(1)", 1, "TIMESTAMP_ENA"},
      {"ComboTD(2)", 2, "DATE_FORMAT_BAK"},      {"OpDVR", 1, "HIST_REG"}};
  std::set<std::string> expected, changed;
  for (const auto& [control, position, field] : picks) {
    ASSERT_EQ(program.Pick(control, position), core::Outcome::kDone) << control;
    expected.insert(field);
  }
  for (const auto& difference : image::Differences(uploaded, program.app.image, firmware))
    changed.insert(difference.name);
  EXPECT_EQ(changed, expected);

  Transfer(program, device, "CmdUpDow(1)", "Download Completed.");
  EXPECT_TRUE(device.complaints.empty()) << device.complaints.front();
  std::size_t bytes = 0;
  for (std::size_t place = 0; place < untouched.size(); place += 2) {
    if (device.program->Image().compare(place, 2, untouched, place, 2) != 0) ++bytes;
  }
  EXPECT_EQ(device.program->Image().size(), untouched.size());
  EXPECT_EQ(bytes, expected.size());
  EXPECT_TRUE(program.NoBoxLeft());
}

TEST(EveryFirmware, AChangeOnEveryTabReachesTheUnitAndNothingElse) {
  for (const auto& firmware : testing::EveryFirmware()) {
    SCOPED_TRACE(firmware.Joined());
    ChangeEveryTab(firmware);
  }
}

}  // namespace
}  // namespace ovl::testing
