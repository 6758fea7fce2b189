// Copies of exceptions and alarms.
#include "acts/copy_slot.h"

#include <array>

#include "unit/panels/panel_program.h"

namespace ovl::testing {
namespace {

using acts::SlotCopy;
using acts::SlotKind;

bool Copy(PanelProgram& program, const SlotCopy& copy) {
  if (!acts::CanCopySlot(program.app, copy)) return false;
  return DispatchAct(program.app, [&] { acts::CopySlot(program.app, copy); }) == core::Outcome::kDone;
}

// Each byte has another value, among them some that no pick can store.
TEST(CopySlot, StoresTheRecordsOfTheSourceAndNothingElse) {
  constexpr std::array kAlarmFields = {ALMSTRUCT_BAK, TRIGGER_TEXT, TRIGGER_DELAY, ALM_MODE};
  for (const auto& firmware : EveryFirmware()) {
    PanelProgram program(firmware);
    auto& image = program.app.image;
    int byte = 0;
    const auto fill = [&](image::FieldId field) {
      for (int entry = 1; entry <= image::EntryCount(field); ++entry) {
        auto& record = image.at(field, entry);
        for (std::size_t digit = 0; digit < record.size(); digit += 2)
          record.replace(digit, 2, codecs::ByteToHex(++byte % 251));
      }
    };
    for (const auto field : kAlarmFields) fill(field);
    fill(EXCPSTRS);
    program.Byte(ALMNORMAL_BAK, 1) = "A5";
    auto expected = image;
    for (const int target : {4, 6, 7}) expected.at(EXCPSTRS, target) = image.at(EXCPSTRS, 5);
    for (const auto field : kAlarmFields) {
      for (const int target : {2, 4, 5, 6}) expected.at(field, target) = image.at(field, 3);
    }
    expected.at(ALMNORMAL_BAK, 1) = "BF";
    EXPECT_TRUE(Copy(program, {SlotKind::kException, 5, 4, 7}) && Copy(program, {SlotKind::kAlarm, 3, 2, 6}));
    EXPECT_TRUE(image == expected);
  }
}

TEST(CopySlot, ShowsATargetAgainAndLeavesTheNormalStateOfAlarmNine) {
  PanelProgram program(kLatest);
  program.ShowSlot(3);
  program.EnterText("cmdSetExcpstr", "REFUND");
  program.ShowSlot(5);
  Copy(program, {SlotKind::kException, 3, 4, 6});
  EXPECT_EQ(program.app.frmMain.TextException.text.substr(0, 7), "REFUND ");
  program.ShowAlarm(2);
  program.Pick("ComboALM(2)", 1);
  program.Byte(ALMNORMAL_BAK, 2) = "80";
  Copy(program, {SlotKind::kAlarm, 2, 9, 10});
  EXPECT_EQ(program.Byte(ALMNORMAL_BAK, 2), "82");
}

TEST(CopySlot, IsRefusedWithoutAChangeWhereAUserCouldNotPick) {
  PanelProgram program(kLatest);
  const auto before = program.app.image;
  for (const SlotCopy copy :
       {SlotCopy{SlotKind::kException, 0, 1, 1}, SlotCopy{SlotKind::kException, 1, 5, 4},
        SlotCopy{SlotKind::kException, 1, 24, 25}, SlotCopy{SlotKind::kAlarm, 17, 1, 1}})
    EXPECT_FALSE(Copy(program, copy));
  const SlotCopy fine{SlotKind::kAlarm, 1, 2, 3};
  program.Click("cmdConnect");
  ASSERT_FALSE(program.app.frmMain.form.enabled);
  EXPECT_FALSE(Copy(program, fine));
  EXPECT_TRUE(program.app.image == before);
}

TEST(CopySlot, SaysWhichTargetsAreInUse) {
  PanelProgram program(kLatest);
  auto& app = program.app;
  for (const int number : {2, 4, 7}) {
    program.ShowSlot(number);
    program.EnterText("cmdSetExcpstr", "X");
    program.ShowAlarm(number);
    program.Pick("ComboALM(1)", number);
  }
  EXPECT_EQ(acts::OverwriteWarning(app, {SlotKind::kException, 2, 1, 3}), "") << "the source is skipped";
  EXPECT_EQ(acts::OverwriteWarning(app, {SlotKind::kException, 2, 3, 5}), "This overwrites exception 4.");
  EXPECT_EQ(acts::OverwriteWarning(app, {SlotKind::kAlarm, 1, 2, 16}), "This overwrites alarms 2, 4 and 7.");
}

}  // namespace
}  // namespace ovl::testing
