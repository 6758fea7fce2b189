// The sixteen alarm outputs, the texts that they trigger, scroll matching and the title.
#include "panels/acts.h"

namespace ovl::testing {
namespace {

using enum FieldId;

// "1", "3" and so on to "240", and the pulse: what the unit counts from.
constexpr const char* kDurations[] = {"FF", "FD", "FB", "F6", "F1", "EC", "E2", "C4", "88", "4C", "10", "00"};

Outcome Show(PanelProgram& program, int alarm) {
  return program.Pick("ComboALM(0)", alarm - 1);
}

std::string Alarm(const FirmwareId& firmware, const std::string& three_bytes, const std::string& last) {
  return three_bytes + (firmware.IsV1400() ? last : "");
}

TEST(Alarms, TheTriggerIsTheFirstByteAndTellsAnException) {
  for (const auto& firmware : {FirmwareId{"V1400", "R12"}, {"V1300", "R14"}}) {
    PanelProgram program(firmware);
    for (int trigger = 0; trigger <= 28; ++trigger) {
      SCOPED_TRACE(firmware.Joined() + " " + std::to_string(trigger));
      const bool exception = trigger != 0 && trigger != 28;
      program.Byte(ALMSTRUCT_BAK, 2) = Alarm(firmware, "EEF603", "07");
      Show(program, 2);
      ASSERT_EQ(program.Pick("ComboALM(1)", trigger), Outcome::kDone);
      const auto stored = Alarm(firmware, ByteToHex(trigger) + "F603", "07");
      EXPECT_EQ(program.Byte(ALMSTRUCT_BAK, 2), stored);
      EXPECT_EQ(program.Visible("lbAlmTrig"), exception);
      Show(program, 1);
      EXPECT_FALSE(program.Visible("lbAlmTrig"));
      Show(program, 2);
      EXPECT_EQ(program.At("ComboALM(1)"), trigger);
      EXPECT_EQ(program.Visible("lbAlmTrig"), exception);
      EXPECT_EQ(program.Byte(ALMSTRUCT_BAK, 2), stored);
    }
    EXPECT_EQ(program.Pick("ComboALM(1)", 29), Outcome::kRefused);
    program.Byte(ALMSTRUCT_BAK, 3) = Alarm(firmware, "1DF603", "07");
    Show(program, 3);
    EXPECT_EQ(program.At("ComboALM(1)"), 28) << "what the list lacks leaves it";
    EXPECT_EQ(program.Byte(ALMSTRUCT_BAK, 3), Alarm(firmware, "1DF603", "07"));
  }
}

TEST(Alarms, ADurationIsStoredAsItsCounterAndItsPlace) {
  for (const auto& firmware :
       {FirmwareId{"V1400", "R1"}, {"V1324", "R26"}, {"V1310", "R1"}, {"V1334", "R1"}}) {
    SCOPED_TRACE(firmware.Joined());
    PanelProgram program(firmware);
    Show(program, 16);
    for (int place = 0; place < 12; ++place) {
      program.Byte(ALMSTRUCT_BAK, 16) = Alarm(firmware, "1BEEEE", "07");
      ASSERT_EQ(program.Pick("ComboALM(3)", place), Outcome::kDone);
      EXPECT_EQ(program.Byte(ALMSTRUCT_BAK, 16),
                Alarm(firmware, "1B" + std::string(kDurations[place]) + ByteToHex(place), "07"));
    }
    for (int counter = 0; counter < 256; ++counter) {
      const auto found = std::find(std::begin(kDurations), std::end(kDurations), ByteToHex(counter));
      program.Byte(ALMSTRUCT_BAK, 15) = Alarm(firmware, "00F101", "00");
      const auto record = Alarm(firmware, "00" + ByteToHex(counter) + "09", "00");
      program.Byte(ALMSTRUCT_BAK, 14) = record;
      Show(program, 15);
      Show(program, 14);
      const bool known = found != std::end(kDurations);
      EXPECT_EQ(program.At("ComboALM(3)"), known ? found - std::begin(kDurations) : 4) << counter;
      if (!known) {
        EXPECT_EQ(program.Byte(ALMSTRUCT_BAK, 14), record);
      }
    }
  }
}

TEST(Alarms, AnUnknownFamilyKeepsItsDuration) {
  Harness program({"V1500", "R1"});
  ASSERT_EQ(program.Start(), Outcome::kDone);
  program.app.image[ALMSTRUCT_BAK] = "01FF00";
  ASSERT_EQ(program.Pick("ComboALM(0)", 0), Outcome::kDone);
  ASSERT_EQ(program.Pick("ComboALM(3)", 5), Outcome::kDone);
  EXPECT_EQ(program.app.image[ALMSTRUCT_BAK], "01FF00");
}

TEST(Alarms, TheNormalStateIsABitOfTheAlarmButForTheNinth) {
  PanelProgram program({"V1300", "R26"});
  const auto states = [&] { return program.Byte(ALMNORMAL_BAK, 1) + program.Byte(ALMNORMAL_BAK, 2); };
  for (int alarm = 1; alarm <= 16; ++alarm) {
    SCOPED_TRACE(alarm);
    const int first = alarm <= 8 ? 1 << (alarm - 1) : 0;
    const int second = alarm >= 10 ? 1 << (alarm - 9) : 0;
    for (const bool closed : {true, false}) {
      program.Byte(ALMNORMAL_BAK, 1) = program.Byte(ALMNORMAL_BAK, 2) = closed ? "00" : "FF";
      Show(program, alarm);
      ASSERT_EQ(program.Pick("ComboALM(2)", closed ? 1 : 0), Outcome::kDone);
      EXPECT_EQ(states(), closed ? ByteToHex(first) + ByteToHex(second)
                                 : ByteToHex(255 - first) + ByteToHex(255 - second));
      EXPECT_EQ(program.At("ComboALM(2)"), closed ? 1 : 0);
    }
  }
  for (const auto& [first, second] : {std::pair{"A5", "3C"}, {"5A", "C3"}, {"00", "01"}, {"80", "FE"}}) {
    program.Byte(ALMNORMAL_BAK, 1) = first;
    program.Byte(ALMNORMAL_BAK, 2) = second;
    for (const int alarm : {9, 16, 1, 10, 8, 2, 15, 3, 14, 4, 13, 5, 12, 6, 11, 7, 9}) {
      ASSERT_EQ(Show(program, alarm), Outcome::kDone);
      const int bits = HexToInt(second) << 8 | HexToInt(first);
      EXPECT_EQ(program.At("ComboALM(2)"), bits >> (alarm - 1) & 1) << first << second << " alarm " << alarm;
    }
    EXPECT_EQ(states(), std::string(first) + second);
  }
}

TEST(Alarms, TheFlagHoldsForAllAlarms) {
  PanelProgram program({"V1310", "R1"});
  program.Byte(FLAGDWLVAL) = "5A";
  for (int type = 0; type < 5; ++type) {
    for (const int before : {0xF8, 0x00, 0xFF}) {
      program.Byte(ALMCFG_BAK) = ByteToHex(before);
      ASSERT_EQ(program.Pick("ComboALM(4)", type), Outcome::kDone);
      EXPECT_EQ(program.Byte(ALMCFG_BAK), ByteToHex((before & 0xF8) | type));
      EXPECT_TRUE(program.app.ImageTouched);
    }
  }
  for (int place = 0; place <= 120; ++place) {
    ASSERT_EQ(program.Pick("ComboALM(5)", place), Outcome::kDone);
    EXPECT_EQ(program.Byte(FLAGDWLIND), ByteToHex(2 * place));
  }
  EXPECT_EQ(program.Pick("ComboALM(5)", 121), Outcome::kRefused);
  EXPECT_EQ(program.Byte(FLAGDWLVAL), "5A");

  // Halved, an odd number goes to the even neighbour; 3 to the right is what stood there before.
  const std::pair<int, int> durations[] = {{0, 0},      {1, 0},    {2, 1},   {3, 2},  {4, 2},
                                           {5, 2},      {7, 4},    {9, 4},   {11, 6}, {0xF0, 120},
                                           {0xF1, 120}, {0xF2, 3}, {0xFF, 3}};
  for (const auto& [stored, shown] : durations) {
    SCOPED_TRACE(stored);
    program.Pick("ComboALM(4)", 3);
    program.Pick("ComboALM(5)", 3);
    program.Byte(FLAGDWLIND) = ByteToHex(stored);
    program.Byte(ALMCFG_BAK) = ByteToHex(0xF8 | stored % 8);
    ASSERT_EQ(program.Reload(), Outcome::kDone);
    EXPECT_EQ(program.At("ComboALM(5)"), shown);
    EXPECT_EQ(program.Byte(FLAGDWLIND), ByteToHex(shown == 3 ? stored : 2 * shown));
    EXPECT_EQ(program.At("ComboALM(4)"), stored % 8 < 5 ? stored % 8 : 3);
    EXPECT_EQ(program.Byte(ALMCFG_BAK), ByteToHex(0xF8 | stored % 8));
    EXPECT_EQ(program.At("ComboALM(0)"), 0);
  }
  program.Pick("ComboALM(5)", 2);
  program.Byte(FLAGDWLIND) = "05";
  ASSERT_EQ(program.Reload(), Outcome::kDone);
  EXPECT_EQ(program.Byte(FLAGDWLIND), "05") << "the list stood there already";
}

TEST(Alarms, WhatElseAnAlarmHasGoesByTheFirmware) {
  struct Row {
    FirmwareId firmware;
    bool loss_and_delay, type;
  };
  const Row rows[] = {
      {{"V1400", "R1"}, true, false},  {{"V1400", "R4"}, true, false},   {{"V1400", "R6"}, true, true},
      {{"V1400", "R12"}, true, true},  {{"V1300", "R14"}, false, false}, {{"V1300", "R23"}, false, false},
      {{"V1300", "R26"}, false, true}, {{"V1324", "R24"}, false, false}, {{"V1324", "R25"}, false, true},
      {{"V1310", "R1"}, false, true},  {{"V1334", "R1"}, false, true}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.firmware.Joined());
    PanelProgram program(row.firmware);
    const int loss = program.At("ComboALM(6)"), delay = program.At("ComboTrigger(2)"),
              type = program.At("ComboALM(7)");
    program.Byte(ALMSTRUCT_BAK, 2) = Alarm(row.firmware, "00FF00", "09");
    program.Byte(TRIGGER_DELAY, 2) = "08";
    program.Byte(ALM_MODE, 2) = "01";
    program.Mark();
    Show(program, 2);
    EXPECT_EQ(program.At("ComboALM(6)"), row.loss_and_delay ? 9 : loss);
    EXPECT_EQ(program.At("ComboTrigger(2)"), row.loss_and_delay ? 8 : delay);
    EXPECT_EQ(program.At("ComboALM(7)"), row.type ? 1 : type);
    EXPECT_EQ(program.Written(), "");

    EXPECT_EQ(program.Pick("ComboALM(6)", 4), row.loss_and_delay ? Outcome::kDone : Outcome::kRefused);
    EXPECT_EQ(program.Pick("ComboTrigger(2)", 4), row.loss_and_delay ? Outcome::kDone : Outcome::kRefused);
    EXPECT_EQ(program.Pick("ComboALM(7)", 0), row.type ? Outcome::kDone : Outcome::kRefused);
    EXPECT_EQ(program.Written(), std::string(row.loss_and_delay ? "ALMSTRUCT_BAK(2)=00FF0004" : "") +
                                     (row.loss_and_delay ? " TRIGGER_DELAY(2)=04" : "") +
                                     (row.loss_and_delay && row.type ? " " : "") +
                                     (row.type ? "ALM_MODE(2)=00" : ""));
    if (row.loss_and_delay) continue;
    program.Mark();
    program.Reveal("ComboALM(6)");
    program.Pick("ComboALM(6)", 5);
    EXPECT_EQ(program.Written(), "");
  }
}

TEST(Alarms, EverySelectionIsNotedAtTheEndOfAClick) {
  PanelProgram program({"V1400", "R12"});
  const int picks[] = {4, 27, 1, 11, 2, 120, 9, 1};
  for (int list = 0; list < 8; ++list)
    ASSERT_EQ(program.Pick(Member("ComboALM", list), picks[list]), Outcome::kDone);
  EXPECT_EQ(program.app.SavedIndexes["ComboALM"], std::vector<int>(std::begin(picks), std::end(picks)));
  for (int list = 0; list < 3; ++list)
    ASSERT_EQ(program.Pick(Member("ComboTrigger", list), 1), Outcome::kDone);
  EXPECT_EQ(program.app.SavedIndexes["ComboTrigger"], (std::vector<int>{1, 1, 1}));
  EXPECT_EQ(program.Written(),
            "ALMCFG_BAK=02 ALMNORMAL_BAK(1)=10 FLAGDWLIND=F0 ALMSTRUCT_BAK(5)=1B000B09 "
            "TRIGGER_TEXT(5)=03" +
                Repeat("0", 82) + " TRIGGER_DELAY(5)=01 ALM_MODE(5)=01");
}

TEST(Alarms, ALoadShowsTheFirstAnewWhicheverWasShown) {
  PanelProgram program({"V1400", "R12"});
  int trigger = 0;
  for (const bool upload : {false, true}) {
    for (const int before : {1, 2, 16}) {
      SCOPED_TRACE(before);
      ASSERT_EQ(Show(program, before), Outcome::kDone);
      program.Byte(ALMSTRUCT_BAK, 1) = ByteToHex(++trigger) + "FF0000";
      ASSERT_EQ(program.Reload(upload), Outcome::kDone);
      EXPECT_EQ(program.At("ComboALM(0)"), 0);
      EXPECT_EQ(program.At("ComboALM(1)"), trigger);
    }
  }
}

// A text by the rule of trigger texts and title: no blanks at the ends, no length, filled up with zeros.
std::string Filled(std::string text) {
  const auto first = text.find_first_not_of(' ');
  text = first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
  auto digits = Digits(text);
  digits.resize(82, '0');
  return digits;
}

std::vector<std::string> Texts() {
  std::vector<std::string> texts = {"A",
                                    "",
                                    " ",
                                    "  A B  ",
                                    " x",
                                    "x ",
                                    "What?",
                                    std::string(39, 'x'),
                                    std::string(40, 'x'),
                                    std::string(40, ' '),
                                    " " + std::string(38, 'y') + " ",
                                    std::string(39, ' ') + "."};
  for (int first = 1; first < 256; first += 40) texts.push_back(Characters(first, std::min(first + 39, 255)));
  return texts;
}

TEST(TriggeredText, IsTrimmedFilledUpAndKeepsItsFlags) {
  for (const auto& firmware : {FirmwareId{"V1400", "R12"}, {"V1324", "R17"}}) {
    PanelProgram program(firmware);
    Show(program, 12);
    for (const auto& text : Texts()) {
      SCOPED_TRACE(firmware.Joined() + " [" + text + "]");
      program.EnterText("cmdSetTrigger", "something else");
      program.Byte(TRIGGER_TEXT, 12).replace(0, 2, "AC");
      program.Mark();
      ASSERT_EQ(program.EnterText("cmdSetTrigger", text), Outcome::kDone);
      const auto stored = "AC" + Filled(text);
      EXPECT_EQ(program.Written(), "TRIGGER_TEXT(12)=" + stored);
      program.Byte(TRIGGER_TEXT, 13) = stored;
      Show(program, 13);
      EXPECT_EQ(Filled(program.app.frmMain.TextTrigger.text), Filled(text));
      EXPECT_EQ(program.app.frmMain.TextTrigger.text.find('\0'), std::string::npos);
      EXPECT_EQ(program.Byte(TRIGGER_TEXT, 13), stored);
      Show(program, 12);
    }
    program.Byte(TRIGGER_TEXT, 4) = "00" + Digits(std::string("AB\0CD", 5)) + Repeat("0", 72);
    Show(program, 4);
    EXPECT_EQ(program.app.frmMain.TextTrigger.text, "AB");
    EXPECT_EQ(program.Byte(TRIGGER_TEXT, 4).size(), 84U);
  }
}

TEST(TriggeredText, ItsTwoFlagsAreItsOwn) {
  PanelProgram program({"V1400", "R2"});
  const std::tuple<int, int, const char*, const char*> clicks[] = {
      {0, 1, "FC", "FD"}, {0, 0, "FF", "FE"}, {1, 1, "FC", "FE"}, {1, 0, "FF", "FD"}, {1, 1, "01", "03"}};
  for (const auto& [list, position, before, after] : clicks) {
    program.Byte(TRIGGER_TEXT, 1).replace(0, 2, before);
    ASSERT_EQ(program.Pick(Member("ComboTrigger", list), position), Outcome::kDone);
    EXPECT_EQ(program.Byte(TRIGGER_TEXT, 1), after + Repeat("0", 82));
  }
  for (int before = 0; before < 4; ++before) {
    for (int loaded = 0; loaded < 4; ++loaded) {
      program.Byte(TRIGGER_TEXT, 2).replace(0, 2, ByteToHex(before));
      program.Byte(TRIGGER_TEXT, 3).replace(0, 2, ByteToHex(0xF0 | loaded));
      Show(program, 2);
      Show(program, 3);
      EXPECT_EQ(program.At("ComboTrigger(0)"), loaded & 1);
      EXPECT_EQ(program.At("ComboTrigger(1)"), loaded >> 1);
      EXPECT_EQ(program.Byte(TRIGGER_TEXT, 3), ByteToHex(0xF0 | loaded) + Repeat("0", 82));
    }
  }
}

TEST(ScrollMatching, SwitchAndTimeoutGoTogether) {
  struct Row {
    int timeout, list, position;
    int after;
  };
  const Row rows[] = {{0, 0, 1, 1}, {0, 0, 0, 0}, {3, 0, 0, 0}, {3, 0, 1, 3}, {0, 1, 5, 5},
                      {3, 1, 0, 0}, {3, 1, 4, 4}, {1, 1, 1, 1}, {5, 0, 0, 0}, {0, 1, 0, 0}};
  PanelProgram program({"V1400", "R12"});
  for (const auto& row : rows) {
    SCOPED_TRACE(std::to_string(row.timeout) + ": " + Member("ComboScroll", row.list) + " " +
                 std::to_string(row.position));
    ASSERT_EQ(program.Pick("ComboScroll(1)", row.timeout), Outcome::kDone);
    ASSERT_EQ(program.Pick(Member("ComboScroll", row.list), row.position), Outcome::kDone);
    EXPECT_EQ(program.At("ComboScroll(0)"), row.after == 0 ? 0 : 1);
    EXPECT_EQ(program.At("ComboScroll(1)"), row.after);
    EXPECT_EQ(program.Byte(SCROLLMATCH_BAK), ByteToHex(row.after));
  }
  for (const auto& [stored, timeout] :
       {std::pair{4, 4}, {0, 0}, {1, 1}, {6, 1}, {5, 5}, {255, 5}, {0, 0}, {9, 0}}) {
    program.Byte(SCROLLMATCH_BAK) = ByteToHex(stored);
    ASSERT_EQ(program.Reload(), Outcome::kDone);
    EXPECT_EQ(program.At("ComboScroll(0)"), stored == 0 ? 0 : 1) << stored;
    EXPECT_EQ(program.At("ComboScroll(1)"), timeout) << stored;
    EXPECT_EQ(program.Byte(SCROLLMATCH_BAK), ByteToHex(stored));
  }
}

TEST(Title, IsTrimmedAndFilledUp) {
  for (const auto& firmware : {FirmwareId{"V1400", "R6"}, {"V1334", "R1"}}) {
    PanelProgram program(firmware);
    for (const auto& text : Texts()) {
      SCOPED_TRACE(firmware.Joined() + " [" + text + "]");
      program.EnterText("cmdTitle", "something else");
      program.Mark();
      ASSERT_EQ(program.EnterText("cmdTitle", text), Outcome::kDone);
      EXPECT_EQ(program.Written(), "ONSCRNTITL=" + Filled(text));
      program.EnterText("cmdTitle", "something else");
      program.Byte(ONSCRNTITL) = Filled(text);
      ASSERT_EQ(program.Reload(), Outcome::kDone);
      EXPECT_EQ(Filled(program.app.frmMain.Title_Text.text), Filled(text));
      EXPECT_EQ(program.Byte(ONSCRNTITL), Filled(text));
    }
  }
}

}  // namespace
}  // namespace ovl::testing
