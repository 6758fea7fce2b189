// How text lies on the picture, and how the unit prints its clock.
#include "panels/acts.h"

namespace ovl::testing {
namespace {

using enum FieldId;

constexpr const char* kBlankTimes[] = {"FF", "FD", "FB", "F6", "F1", "EC", "E2",
                                       "C4", "88", "4C", "10", "00", "00"};
constexpr int kRts = 12;

std::vector<FirmwareId> WithRts() {
  return {{"V1400", "R11"}, {"V1400", "R12"}, {"V1300", "R26"},
          {"V1324", "R25"}, {"V1310", "R1"},  {"V1334", "R1"}};
}

TEST(Display, ABlankTimeIsStoredAndWipesItsFlags) {
  PanelProgram program({"V1334", "R1"});
  for (int time = 0; time <= kRts; ++time) {
    const int mask = time == 3 ? 0xFF : time >= 11 ? 0xF0 : 0xF1;
    for (const int flags : {0xFF, 0x0E, 0x00, 0xAB}) {
      SCOPED_TRACE(std::to_string(time) + " " + ByteToHex(flags));
      program.Fill("EE");
      program.Byte(DSPCFG_BAK) = ByteToHex(flags);
      ASSERT_EQ(program.Pick("ComboDIP(0)", time), Outcome::kDone);
      EXPECT_EQ(program.Written(), "DSPCFG_BAK=" + ByteToHex(flags & mask) + " BLNKVAL=" + kBlankTimes[time] +
                                       " BLNKIND=" + ByteToHex(time) +
                                       " BLNKRTS_BAK=" + (time == kRts ? "01" : "00"));
    }
  }
  EXPECT_EQ(program.Pick("ComboDIP(0)", 13), Outcome::kRefused);
}

TEST(Display, WhatABlankTimeWipesIsStillShownAndComesBackWithItsClick) {
  PanelProgram program({"V1400", "R1"});
  for (const int list : {2, 3, 5}) ASSERT_EQ(program.Pick(Member("ComboDIP", list), 1), Outcome::kDone);
  ASSERT_EQ(program.Byte(DSPCFG_BAK), "2E");
  program.Pick("ComboDIP(0)", 3);
  EXPECT_EQ(program.Byte(DSPCFG_BAK), "2E");
  program.Pick("ComboDIP(0)", 2);
  EXPECT_EQ(program.Byte(DSPCFG_BAK), "20");
  for (const int list : {2, 3, 5}) EXPECT_EQ(program.At(Member("ComboDIP", list)), 1);
  program.Pick("ComboDIP(3)", 1);
  EXPECT_EQ(program.Byte(DSPCFG_BAK), "24");
}

TEST(Display, TheBlankTimeIsReadFromItsCounterAlone) {
  PanelProgram program({"V1300", "R26"});
  for (int counter = 0; counter < 256; ++counter) {
    SCOPED_TRACE(counter);
    program.Pick("ComboDIP(0)", 5);
    program.Byte(BLNKVAL) = ByteToHex(counter);
    program.Byte(BLNKIND) = ByteToHex(counter % 12);
    program.Byte(BLNKRTS_BAK) = "00";
    ASSERT_EQ(program.Reload(), Outcome::kDone);
    const auto found = std::find(std::begin(kBlankTimes), std::end(kBlankTimes), ByteToHex(counter));
    EXPECT_EQ(program.At("ComboDIP(0)"),
              found == std::end(kBlankTimes) ? 5 : found - std::begin(kBlankTimes));
    EXPECT_EQ(program.Byte(BLNKVAL) + program.Byte(BLNKIND), ByteToHex(counter) + ByteToHex(counter % 12));
  }
}

TEST(Display, RtsShowsWhereTheFirmwareHasIt) {
  for (const auto& firmware : WithRts()) {
    SCOPED_TRACE(firmware.Joined());
    PanelProgram program(firmware);
    const std::tuple<const char*, const char*, int> rows[] = {{"00", "01", kRts}, {"00", "00", 11},
                                                              {"FF", "01", kRts}, {"FF", "02", 0},
                                                              {"F2", "01", kRts}, {"F2", "00", kRts}};
    for (const auto& [counter, flag, shown] : rows) {
      program.Byte(BLNKVAL) = counter;
      program.Byte(BLNKRTS_BAK) = flag;
      ASSERT_EQ(program.Reload(), Outcome::kDone);
      EXPECT_EQ(program.At("ComboDIP(0)"), shown) << counter << flag;
      EXPECT_EQ(program.Byte(BLNKRTS_BAK), flag);
    }
  }
  for (const auto& firmware : {FirmwareId{"V1400", "R6"}, {"V1324", "R24"}}) {
    PanelProgram program(firmware);
    program.Byte(BLNKVAL) = "00";
    program.Byte(BLNKRTS_BAK) = "01";
    ASSERT_EQ(program.Reload(), Outcome::kDone);
    EXPECT_EQ(program.At("ComboDIP(0)"), 11);
    EXPECT_EQ(program.Pick("ComboDIP(0)", kRts), Outcome::kRefused);
  }
}

TEST(Display, EveryFlagHasItsBit) {
  const std::pair<const char*, int> rows[] = {{"ComboDIP(2)", 1}, {"ComboDIP(3)", 2}, {"ComboDIP(4)", 6},
                                              {"ComboDIP(5)", 3}, {"ComboDIP(6)", 5}, {"ComboTD(5)", 4},
                                              {"ComboTD(0)", 7}};
  PanelProgram program({"V1300", "R14"});
  program.Pick("ComboDIP(1)", 10);
  for (const auto& [name, bit] : rows) {
    SCOPED_TRACE(name);
    for (const int position : {1, 0}) {
      for (const int before : {0x00, 0xFF}) {
        program.Byte(DSPCFG_BAK) = ByteToHex(before);
        program.Mark();
        ASSERT_EQ(program.Pick(name, position), Outcome::kDone);
        EXPECT_EQ(program.Byte(DSPCFG_BAK),
                  ByteToHex(position == 1 ? before | 1 << bit : before & ~(1 << bit)));
        EXPECT_LE(program.Written().size(), std::string("DSPCFG_BAK=00").size());
      }
    }
  }
  for (int flags = 0; flags < 256; flags += 2) {
    program.Byte(DSPCFG_BAK) = ByteToHex(flags);
    ASSERT_EQ(program.Reload(), Outcome::kDone);
    for (const auto& [name, bit] : rows) EXPECT_EQ(program.At(name), flags >> bit & 1) << flags << name;
    EXPECT_EQ(program.Byte(DSPCFG_BAK), ByteToHex(flags));
  }
}

TEST(Display, NumbersAreStoredWithTheirOffset) {
  struct Row {
    const char* name;
    FieldId field;
    const char* text;
    int entries, offset;
  };
  const Row rows[] = {{"ComboDIP(1)", DSPLINES_BAK, "DSPLINES_BAK", 11, 1},
                      {"ComboDIP(7)", SPCOMPRES_BAK, "SPCOMPRES_BAK", 6, 0},
                      {"ComboDIP(8)", DSPCHARS_BAK, "DSPCHARS_BAK", 31, 10}};
  PanelProgram program({"V1400", "R4"});
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    for (int position = 0; position < row.entries; ++position) {
      const auto byte = ByteToHex(position + row.offset);
      program.Byte(row.field) = "EE";
      program.Mark();
      ASSERT_EQ(program.Pick(row.name, position), Outcome::kDone);
      EXPECT_EQ(program.Written(), std::string(row.text) + "=" + byte);
      program.Pick(row.name, position == 0 ? 1 : 0);
      program.Byte(row.field) = byte;
      ASSERT_EQ(program.Reload(), Outcome::kDone);
      EXPECT_EQ(program.At(row.name), position);
      EXPECT_EQ(program.Byte(row.field), byte);
    }
    for (const int odd : {row.entries + row.offset, 255, row.offset - 1}) {
      if (odd < 0) continue;
      program.Pick(row.name, 2);
      program.Byte(row.field) = ByteToHex(odd);
      ASSERT_EQ(program.Reload(), Outcome::kDone);
      EXPECT_EQ(program.At(row.name), 2) << odd;
      EXPECT_EQ(program.Byte(row.field), ByteToHex(odd));
    }
  }
  EXPECT_EQ(program.app.SavedIndexes["ComboDIP"].size(), 9U);
}

TEST(Display, ClockAndTitleEachNeedALine) {
  PanelProgram program({"V1400", "R7"});
  for (const int clock : {0, 1}) {
    for (const int title : {0, 1}) {
      const int least = clock + title;
      for (int lines = 0; lines < 11; ++lines) {
        SCOPED_TRACE(std::to_string(clock) + std::to_string(title) + " lines " + std::to_string(lines));
        program.Pick("ComboTD(0)", clock);
        program.Pick("ComboTD(5)", title);
        ASSERT_EQ(program.Pick("ComboDIP(1)", lines), Outcome::kDone);
        EXPECT_EQ(program.At("ComboDIP(1)"), std::max(lines, least));
        EXPECT_EQ(program.Byte(DSPLINES_BAK), ByteToHex(std::max(lines, least) + 1));

        for (const auto& [first, second] :
             {std::pair{"ComboTD(0)", "ComboTD(5)"}, {"ComboTD(5)", "ComboTD(0)"}}) {
          program.Pick("ComboTD(0)", 0);
          program.Pick("ComboTD(5)", 0);
          program.Pick("ComboDIP(1)", lines);
          const bool clock_first = std::string_view(first) == "ComboTD(0)";
          program.Pick(first, clock_first ? clock : title);
          program.Pick(second, clock_first ? title : clock);
          EXPECT_EQ(program.At("ComboDIP(1)"), std::max(lines, least));
          EXPECT_EQ(program.Byte(DSPLINES_BAK), ByteToHex(std::max(lines, least) + 1));
          EXPECT_EQ(program.Byte(DSPCFG_BAK), ByteToHex(0x20 | clock << 7 | title << 4));
        }
        program.Pick("ComboTD(0)", 0);
        program.Pick("ComboTD(5)", 0);
        EXPECT_EQ(program.At("ComboDIP(1)"), std::max(lines, least)) << "never lowered again";
      }
    }
  }
  program.Byte(DSPLINES_BAK) = "01";
  program.Byte(DSPCFG_BAK) = "B0";
  ASSERT_EQ(program.Reload(), Outcome::kDone);
  EXPECT_EQ(program.At("ComboDIP(1)"), 0) << "what is loaded stays as it is";
  EXPECT_EQ(program.Byte(DSPLINES_BAK), "01");
}

TEST(TimeDate, FormatsAreStoredAsTheirPlaces) {
  struct Row {
    const char* name;
    FieldId field;
    const char* text;
    int entries;
  };
  const Row rows[] = {{"ComboTD(1)", TIME_FORMAT_BAK, "TIME_FORMAT_BAK", 2},
                      {"ComboTD(2)", DATE_FORMAT_BAK, "DATE_FORMAT_BAK", 3},
                      {"ComboTD(4)", TD_LOCKING_BAK, "TD_LOCKING_BAK", 2},
                      {"ComboLang", LANGUAGE_BAK, "LANGUAGE_BAK", 3}};
  PanelProgram program({"V1400", "R12"});
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    for (int position = 0; position < row.entries; ++position) {
      program.Byte(row.field) = "EE";
      program.Mark();
      ASSERT_EQ(program.Pick(row.name, position), Outcome::kDone);
      EXPECT_EQ(program.Written(), std::string(row.text) + "=" + ByteToHex(position));
      program.Pick(row.name, position == 0 ? 1 : 0);
      program.Byte(row.field) = ByteToHex(position);
      ASSERT_EQ(program.Reload(), Outcome::kDone);
      EXPECT_EQ(program.At(row.name), position);
    }
    for (const int odd : {row.entries, 255}) {
      program.Pick(row.name, 1);
      program.Byte(row.field) = ByteToHex(odd);
      ASSERT_EQ(program.Reload(), Outcome::kDone);
      EXPECT_EQ(program.At(row.name), 1);
      EXPECT_EQ(program.Byte(row.field), ByteToHex(odd));
    }
    program.Pick(row.name, 0);
  }
  EXPECT_EQ(program.app.SavedIndexes["ComboTD"].size(), 6U);
}

TEST(TimeDate, DaylightSavingHasCodesOfItsOwn) {
  PanelProgram program({"V1300", "R14"});
  const char* codes[] = {"01", "02", "04", "06", "08", "0A"};
  for (int position = 0; position < 6; ++position) {
    program.Byte(DAYLIGHT_BAK) = "EE";
    ASSERT_EQ(program.Pick("ComboTD(3)", position), Outcome::kDone);
    EXPECT_EQ(program.Byte(DAYLIGHT_BAK), codes[position]);
  }
  // Halved, an odd code goes to the even neighbour.
  const std::pair<int, int> stored[] = {{0, 0}, {1, 0}, {2, 1}, {3, 2},  {4, 2},  {5, 2},  {6, 3},
                                        {7, 4}, {8, 4}, {9, 4}, {10, 5}, {11, 1}, {12, 1}, {255, 1}};
  for (const auto& [code, shown] : stored) {
    program.Pick("ComboTD(3)", 1);
    program.Byte(DAYLIGHT_BAK) = ByteToHex(code);
    ASSERT_EQ(program.Reload(), Outcome::kDone);
    EXPECT_EQ(program.At("ComboTD(3)"), shown) << code;
    EXPECT_EQ(program.Byte(DAYLIGHT_BAK), ByteToHex(code));
  }
  program.Byte(DAYLIGHT_BAK) = "00";
  ASSERT_EQ(program.Reload(), Outcome::kDone);
  ASSERT_EQ(program.Pick("ComboTD(3)", 0), Outcome::kDone);
  EXPECT_EQ(program.Byte(DAYLIGHT_BAK), "01");
  program.ListOf("ComboTD(3)").items.pop_back();
  program.Byte(DAYLIGHT_BAK) = "0A";
  program.Reload();
  EXPECT_EQ(program.At("ComboTD(3)"), 0);
}

}  // namespace
}  // namespace ovl::testing
