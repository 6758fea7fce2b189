// The sixteen alarm outputs, and scroll matching.
#include "unit/panels/panel_program.h"

namespace ovl::testing {
namespace {

// A record of trigger, duration, index of the duration and, for V1400 only, video loss.
std::string Alarm(const firmware::FirmwareId& firmware, const std::string& four_bytes) {
  return four_bytes.substr(0, firmware.IsV1400() ? 8 : 6);
}

TEST(Alarms, ARecordHasItsTriggerItsDurationAndItsVideoLoss) {
  for (const auto& firmware : kFamilies) {
    PanelProgram program(firmware);
    const auto expect = [&](const char* list, int position, const std::string& stored,
                            bool exception = true) {
      SCOPED_TRACE(Member(list, position));
      program.Byte(ALMSTRUCT_BAK, 2) = Alarm(firmware, "EEF60307");
      program.ShowAlarm(2);
      ASSERT_EQ(program.Pick(list, position), core::Outcome::kDone);
      for (const bool again : {false, true}) {
        if (again) program.ShowAlarm(2);
        EXPECT_EQ(program.Byte(ALMSTRUCT_BAK, 2), Alarm(firmware, stored));
        EXPECT_EQ(program.At(list), position);
        EXPECT_EQ(program.Visible("lbAlmTrig"), exception);
        program.ShowAlarm(1);
        EXPECT_FALSE(program.Visible("lbAlmTrig"));
      }
    };
    for (int at = 0; at <= 28; ++at)
      expect("ComboALM(1)", at, codecs::ByteToHex(at) + "F60307", at != 0 && at != 28);
    for (int at = 0; at < 12; ++at)
      expect("ComboALM(3)", at, "EE" + (kDurations[at] + codecs::ByteToHex(at)) + "07");
    for (int at = 0; firmware.IsV1400() && at < 10; ++at)
      expect("ComboALM(6)", at, "EEF603" + codecs::ByteToHex(at));
    EXPECT_EQ(program.Pick("ComboALM(1)", 29), core::Outcome::kRefused);
    program.Byte(ALMSTRUCT_BAK, 3) = Alarm(firmware, "1CF10407");
    for (const char* unknown : {"1DF20407", "FFF30407", "1E040407"}) {
      program.Byte(ALMSTRUCT_BAK, 4) = Alarm(firmware, unknown);
      program.ShowAlarm(3);
      program.ShowAlarm(4);
      EXPECT_EQ(program.At("ComboALM(1)"), 28) << "values that the lists lack do not move them";
      EXPECT_TRUE(program.Visible("lbAlmTrig"));
      EXPECT_EQ(program.At("ComboALM(3)"), 4);
      EXPECT_EQ(program.Byte(ALMSTRUCT_BAK, 4), Alarm(firmware, unknown));
    }
  }
}

TEST(Alarms, TheNormalStateIsOneBitForEachAlarmExceptTheNinth) {
  PanelProgram program({"V1300", "R26"});
  auto &lower = program.Byte(ALMNORMAL_BAK, 1), &upper = program.Byte(ALMNORMAL_BAK, 2);
  for (int alarm = 1; alarm <= 16; ++alarm) {
    const int bit = alarm == 9 ? 0 : 1 << (alarm - 1);
    for (const int closed : {1, 0}) {
      lower = upper = closed == 1 ? "00" : "FF";
      program.ShowAlarm(alarm);
      ASSERT_EQ(program.Pick("ComboALM(2)", closed), core::Outcome::kDone);
      EXPECT_EQ(program.At("ComboALM(2)"), closed);
      const int states = closed == 1 ? bit : 0xFFFF - bit;
      for (const int shown : {9, 16, 1, 10, 8, 2, 15, 3, 14, 4, 13, 5, 12, 6, 11, 7, 9}) {
        program.ShowAlarm(shown);
        EXPECT_EQ(program.At("ComboALM(2)"), states >> (shown - 1) & 1) << alarm << ", shown " << shown;
      }
      EXPECT_EQ(upper + lower, codecs::ByteToHex(states >> 8) + codecs::ByteToHex(states & 0xFF)) << alarm;
    }
  }
}

TEST(Alarms, TheOtherSettingsOfAnAlarmDependOnTheFirmware) {
  for (const auto& firmware : EveryFirmware()) {
    const bool v1400 = firmware.IsV1400(), type = FactsOf(firmware).Has(Feature::kAlarmType);
    PanelProgram program(firmware);
    program.Byte(ALMSTRUCT_BAK, 5) = Alarm(firmware, "00FF0009");
    program.Byte(TRIGGER_DELAY, 5) = "08";
    program.Byte(ALM_MODE, 5) = "01";
    program.Mark();
    program.ShowAlarm(5);
    EXPECT_EQ(program.Written(), "");
    const std::tuple<const char*, bool, int, const char*> rows[] = {
        {"ComboALM(6)", v1400, 9, "ALMSTRUCT_BAK(5)=00FF0004"},
        {"ComboTrigger(2)", v1400, 8, "TRIGGER_DELAY(5)=04"},
        {"ComboALM(7)", type, 1, "ALM_MODE(5)=00"}};
    for (const auto& [list, has, shown, written] : rows) {
      SCOPED_TRACE(list);
      EXPECT_EQ(program.At(list) == shown, has);
      program.Mark();
      EXPECT_EQ(program.Pick(list, shown == 1 ? 0 : 4), has ? core::Outcome::kDone : core::Outcome::kRefused);
      EXPECT_EQ(program.Written(), has ? written : "");
    }
  }
}

TEST(Alarms, ALoadAlwaysShowsTheFirstAlarmAndTheFirstSlot) {
  PanelProgram program(kLatest);
  int trigger = 0;
  for (const bool upload : {false, true}) {
    for (const int before : {1, 2, 16}) {
      SCOPED_TRACE(before);
      program.ShowAlarm(before);
      program.ShowSlot(before);
      program.Byte(ALMSTRUCT_BAK, 1) = codecs::ByteToHex(++trigger) + "FF0000";
      program.Byte(EXCPSTRS, 1) = codecs::ByteToHex(trigger % 2) + program.Byte(EXCPSTRS, 3).substr(2);
      ASSERT_EQ(program.Reload(upload), core::Outcome::kDone);
      EXPECT_EQ(program.At("ComboALM(0)"), 0);
      EXPECT_EQ(program.At("ComboALM(1)"), trigger);
      EXPECT_EQ(program.At("ComboExcp(0)"), 0);
      EXPECT_EQ(program.At("ComboExcp(1)"), trigger % 2);
    }
  }
}

TEST(ScrollMatching, SwitchAndTimeoutGoTogether) {
  enum List { kSwitch, kTimeout };
  struct Row {
    int timeout;  // before the pick
    List list;    // that is picked
    int position;
    int timeout_after;  // 0: scroll matching is off
  };
  const Row rows[] = {
      {0, kSwitch, 1, 1},  {0, kSwitch, 0, 0},  {3, kSwitch, 0, 0},  {3, kSwitch, 1, 3}, {0, kTimeout, 5, 5},
      {3, kTimeout, 0, 0}, {3, kTimeout, 4, 4}, {1, kTimeout, 1, 1}, {5, kSwitch, 0, 0}, {0, kTimeout, 0, 0},
  };
  PanelProgram program(kLatest);
  for (const auto& [timeout, list, position, after] : rows) {
    SCOPED_TRACE(std::to_string(timeout) + ": " + std::to_string(list) + " " + std::to_string(position));
    program.Pick("ComboScroll(1)", timeout);
    ASSERT_EQ(program.Pick(Member("ComboScroll", list), position), core::Outcome::kDone);
    EXPECT_EQ(program.At("ComboScroll(0)"), after == 0 ? 0 : 1);
    EXPECT_EQ(program.At("ComboScroll(1)"), after);
    EXPECT_EQ(program.Byte(SCROLLMATCH_BAK), codecs::ByteToHex(after));
  }
  // A timeout that the list lacks switches scroll matching on and does not move the list.
  for (const auto& [stored, timeout] : {std::pair{"04", 4}, {"00", 0}, {"06", 0}, {"05", 5}, {"FF", 5}}) {
    EXPECT_EQ(program.Load({{SCROLLMATCH_BAK, stored}}), "");
    EXPECT_EQ(program.At("ComboScroll(0)"), stored == std::string("00") ? 0 : 1) << stored;
    EXPECT_EQ(program.At("ComboScroll(1)"), timeout) << stored;
  }
}

}  // namespace
}  // namespace ovl::testing
