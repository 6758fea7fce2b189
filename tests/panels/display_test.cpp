// When the overlay blanks, and the lines that clock and title take.
#include "panels/acts.h"

namespace ovl::testing {
namespace {

using enum FieldId;

constexpr const char* kBlankTimes[] = {"FF", "FD", "FB", "F6", "F1", "EC", "E2",
                                       "C4", "88", "4C", "10", "00", "00"};
constexpr int kRts = 12;

TEST(Display, ABlankTimeIsStoredAndWipesFlagsThatAreStillShown) {
  PanelProgram program({"V1334", "R1"});
  for (const int list : {2, 3, 5}) program.Pick(Member("ComboDIP", list), 1);
  for (int time = 0; time <= kRts; ++time) {
    const int mask = time == 3 ? 0xFF : time >= 11 ? 0xF0 : 0xF1;
    for (const int flags : {0xFF, 0x0E, 0x00, 0xAB}) {
      const auto wiped = (flags & mask) == flags ? "" : "DSPCFG_BAK=" + ByteToHex(flags & mask) + " ";
      EXPECT_EQ(program.Effect("ComboDIP(0)", time, {{DSPCFG_BAK, ByteToHex(flags)}}),
                wiped + "BLNKVAL=" + kBlankTimes[time] + " BLNKIND=" + ByteToHex(time) +
                    " BLNKRTS_BAK=" + (time == kRts ? "01" : "00"));
    }
    for (const int list : {2, 3, 5}) EXPECT_EQ(program.At(Member("ComboDIP", list)), 1);
  }
  EXPECT_EQ(program.Pick("ComboDIP(0)", 13), Outcome::kRefused);
}

TEST(Display, CounterAndFlagShowTheBlankTimeAndItsPlaceDoesNot) {
  struct Row {
    const char *counter, *flag;
    int shown, shown_without;
  };
  const Row rows[] = {{"00", "01", kRts, 11}, {"00", "00", 11, 11},  {"FF", "01", kRts, 0},
                      {"FF", "02", 0, 0},     {"F2", "01", kRts, 0}, {"F2", "00", kRts, 0}};
  for (const auto& firmware : AllFirmware()) {
    PanelProgram program(firmware);
    const bool has = !Before(firmware, 11, 26, 25);
    for (const auto& row : rows) {
      SCOPED_TRACE(firmware.Joined() + " " + row.counter + row.flag);
      // One release does not take the flag in again, and all that stands behind it moves.
      EXPECT_EQ(program.Load({{BLNKVAL, row.counter}, {BLNKIND, "05"}, {BLNKRTS_BAK, row.flag}}).empty(),
                firmware.Joined() != "V1400R7");
      EXPECT_EQ(program.At("ComboDIP(0)"), has ? row.shown : row.shown_without);
    }
  }
}

TEST(Display, ClockAndTitleEachNeedALine) {
  PanelProgram program({"V1400", "R7"});
  const std::vector<const char*> orders[] = {{"ComboTD(0)", "ComboTD(5)", "ComboDIP(1)"},
                                             {"ComboDIP(1)", "ComboTD(0)", "ComboTD(5)"},
                                             {"ComboDIP(1)", "ComboTD(5)", "ComboTD(0)"}};
  for (const auto& order : orders) {
    for (int number = 0; number < 44; ++number) {
      std::map<std::string_view, int> positions = {
          {"ComboTD(0)", number & 1}, {"ComboTD(5)", number >> 1 & 1}, {"ComboDIP(1)", number >> 2}};
      const int clock = number & 1, title = number >> 1 & 1, lines = std::max(number >> 2, clock + title);
      SCOPED_TRACE(order.front() + (" " + std::to_string(number)));
      for (const auto* list : order) program.Pick(list, positions[list]);
      EXPECT_EQ(program.Byte(DSPCFG_BAK), ByteToHex(0x20 | clock << 7 | title << 4));
      for (const bool later : {false, true}) {
        EXPECT_EQ(program.At("ComboDIP(1)"), lines);
        EXPECT_EQ(program.Byte(DSPLINES_BAK), ByteToHex(lines + 1));
        if (later) continue;
        // Neither takes its line away again.
        program.Pick("ComboTD(0)", 0);
        program.Pick("ComboTD(5)", 0);
      }
    }
  }
  EXPECT_EQ(program.Load({{DSPLINES_BAK, "01"}, {DSPCFG_BAK, "B0"}}), "");
  EXPECT_EQ(program.At("ComboDIP(1)"), 0) << "what is loaded stays as it is";
}

}  // namespace
}  // namespace ovl::testing
