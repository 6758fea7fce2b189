// The 24 exception slots: flags, texts and ranges, the options of the report, and the two dialogs.
#include "panels/acts.h"

namespace ovl::testing {
namespace {

using enum FieldId;

const FirmwareId kFamilies[] = {{"V1400", "R12"}, {"V1300", "R14"}};

// Ten or six bytes that no two places share.
std::string RangeOf(const FirmwareId& firmware) {
  return firmware.IsV1400() ? "01234567899876543210" : "012345678987";
}

// A slot as the unit has to get it.
std::string Slot(int flags, const std::string& range, std::string text) {
  text.resize(40, ' ');
  const auto last = text.find_last_not_of(' ', 38);
  std::string slot =
      ByteToHex(flags) + range + ByteToHex(last == std::string::npos ? 0 : static_cast<int>(last) + 1);
  for (char& character : text) {
    if (character == '?') character = '\x7F';
  }
  return slot + Digits(text) + "00";
}

std::string Padded(std::string text) {
  for (char& character : text) {
    if (character == '\x7F') character = '?';
  }
  text.resize(40, ' ');
  return text;
}

Outcome Show(PanelProgram& program, int slot) {
  return program.Pick("ComboExcp(0)", slot - 1);
}

TEST(Exceptions, EveryEntryOfASlotStandsInItsPlace) {
  for (const auto& firmware : kFamilies) {
    SCOPED_TRACE(firmware.Joined());
    PanelProgram program(firmware);
    ASSERT_EQ(Show(program, 24), Outcome::kDone);
    ASSERT_EQ(program.Pick("ComboExcp(1)", 1), Outcome::kDone);
    ASSERT_EQ(program.Pick("ComboExcp(3)", 1), Outcome::kDone);
    ASSERT_EQ(program.Pick("ComboExcp(5)", 2), Outcome::kDone);
    ASSERT_EQ(program.EnterText("cmdSetExcpstr", "TOTAL"), Outcome::kDone);
    ASSERT_EQ(program.Click("cmdSetRange"), Outcome::kDone);
    auto& range = program.app.frmSetRange;
    program.Type(range.Range_Hi, "1234");
    program.Type(range.SubRange_Hi, "56");
    program.Type(range.Range_Low, "789");
    program.Type(range.SubRange_Low, "1");
    ASSERT_EQ(program.Click("frmSetRange.cmdSetRange"), Outcome::kDone);
    const std::string slot = std::string("29") +
                             (firmware.IsV1400() ? "00001234560000078901" : "123456078901") + "05544F54414C" +
                             Repeat("20", 35) + "00";
    EXPECT_EQ(slot.size(), firmware.IsV1400() ? 106U : 98U);
    EXPECT_EQ(program.Written(), "EXCPSTRS(24)=" + slot);
    EXPECT_EQ(program.app.SavedIndexes["ComboExcp"], (std::vector<int>{23, 1, 0, 1, 0, 2}));
  }
}

TEST(Exceptions, ATextIsPaddedCountedAndMarkedFreeWhenBlank) {
  const std::string texts[] = {"A",
                               "",
                               " ",
                               " A",
                               "A ",
                               "  A  ",
                               "A?C",
                               "?",
                               "\x7F",
                               std::string(39, 'x'),
                               std::string(40, 'x'),
                               std::string(39, ' '),
                               std::string(40, ' '),
                               std::string(39, ' ') + ".",
                               " " + std::string(38, 'y') + " ",
                               " " + std::string(37, 'y') + " ",
                               std::string(40, '?')};
  for (const auto& firmware : kFamilies) {
    PanelProgram program(firmware);
    for (const auto& text : texts) {
      SCOPED_TRACE(firmware.Joined() + " [" + text + "]");
      const bool blank = text.find_first_not_of(' ') == std::string::npos;
      for (const int flags : {0xA3, 0xB3}) {
        program.Byte(EXCPSTRS, 7) = Slot(flags, RangeOf(firmware), "before");
        Show(program, 8);
        Show(program, 7);
        ASSERT_EQ(program.EnterText("cmdSetExcpstr", text), Outcome::kDone);
        const auto stored = Slot(blank ? 0xB3 : 0xA3, RangeOf(firmware), text);
        EXPECT_EQ(program.Byte(EXCPSTRS, 7), stored);
        Show(program, 8);
        Show(program, 7);
        EXPECT_EQ(program.app.frmMain.TextException.text, Padded(text));
        EXPECT_EQ(program.Byte(EXCPSTRS, 7), stored);
      }
    }
  }
}

TEST(Exceptions, EveryCharacterMakesTheRoundTrip) {
  for (const auto& firmware : kFamilies) {
    PanelProgram program(firmware);
    for (int first = 1; first < 256; first += 40) {
      const auto text = Characters(first, std::min(first + 39, 255));
      SCOPED_TRACE(firmware.Joined() + " from " + std::to_string(first));
      Show(program, 2);
      ASSERT_EQ(program.EnterText("cmdSetExcpstr", text), Outcome::kDone);
      const auto stored = Slot(0, Repeat("0", firmware.IsV1400() ? 20 : 12), text);
      EXPECT_EQ(program.Byte(EXCPSTRS, 2), stored);
      program.Byte(EXCPSTRS, 5) = stored;
      Show(program, 1);
      Show(program, 5);
      EXPECT_EQ(program.app.frmMain.TextException.text, Padded(text));
      EXPECT_EQ(program.Byte(EXCPSTRS, 5), stored);
    }
    const std::string cut("AB\0CD", 5);
    program.Byte(EXCPSTRS, 6) = Slot(0, RangeOf(firmware), cut);
    Show(program, 6);
    EXPECT_EQ(program.app.frmMain.TextException.text, "AB");
    EXPECT_EQ(program.Byte(EXCPSTRS, 6), Slot(0, RangeOf(firmware), "AB"));
    program.Byte(EXCPSTRS, 4) = Slot(0, RangeOf(firmware), "CD");
    Show(program, 4);
    ASSERT_EQ(program.EnterText("cmdSetExcpstr", cut), Outcome::kDone);
    EXPECT_EQ(program.Byte(EXCPSTRS, 4), Slot(0, RangeOf(firmware), "AB")) << "a typed text ends there too";
  }
}

TEST(Exceptions, FlagsAreLoadedOverWhatTheSlotBeforeShowed) {
  struct Row {
    int before, loaded, after;
    int display, output, history, scroll, op;
  };
  const Row rows[] = {
      {0x00, 0x00, 0x00, 0, 0, 0, 0, 0}, {0x00, 0x43, 0x40, 0, 0, 0, 1, 0}, {0x40, 0x43, 0x43, 1, 1, 0, 1, 0},
      {0x00, 0x63, 0x40, 0, 0, 0, 1, 0}, {0x40, 0x63, 0x63, 1, 1, 1, 1, 0}, {0x23, 0x40, 0x40, 0, 0, 0, 1, 0},
      {0x40, 0x23, 0x23, 1, 1, 1, 0, 0}, {0x23, 0x00, 0x00, 0, 0, 0, 0, 0}, {0x00, 0x01, 0x01, 1, 0, 0, 0, 0},
      {0x00, 0x02, 0x02, 0, 1, 0, 0, 0}, {0x00, 0x20, 0x20, 0, 0, 1, 0, 0}, {0x00, 0x04, 0x04, 0, 0, 0, 0, 1},
      {0x04, 0x08, 0x08, 0, 0, 0, 0, 2}, {0x04, 0x0C, 0x0C, 0, 0, 0, 0, 1}, {0x08, 0x0C, 0x0C, 0, 0, 0, 0, 2},
      {0x00, 0x0C, 0x0C, 0, 0, 0, 0, 0}, {0x00, 0x80, 0x80, 0, 0, 0, 0, 0}, {0x2B, 0xEF, 0xCC, 0, 0, 0, 1, 2},
  };
  for (const auto& firmware : kFamilies) {
    PanelProgram program(firmware);
    for (const auto& row : rows) {
      SCOPED_TRACE(firmware.Joined() + " " + ByteToHex(row.loaded) + " after " + ByteToHex(row.before));
      program.Byte(EXCPSTRS, 1) = Slot(0, RangeOf(firmware), "neutral");
      program.Byte(EXCPSTRS, 2) = Slot(row.before, RangeOf(firmware), "before");
      program.Byte(EXCPSTRS, 3) = Slot(row.loaded, RangeOf(firmware), "loaded");
      for (const int slot : {1, 2, 3}) ASSERT_EQ(Show(program, slot), Outcome::kDone);
      EXPECT_EQ(program.Byte(EXCPSTRS, 2), Slot(row.before, RangeOf(firmware), "before"));
      EXPECT_EQ(program.Byte(EXCPSTRS, 3), Slot(row.after, RangeOf(firmware), "loaded"));
      const int shown[] = {row.display, row.output, row.history, row.scroll, row.op};
      for (int list = 1; list <= 5; ++list) {
        EXPECT_EQ(program.At(Member("ComboExcp", list)), shown[list - 1]) << list;
        EXPECT_EQ(program.Enabled(Member("ComboExcp", list)), list > 3 || row.scroll == 0) << list;
      }
    }
  }
}

TEST(Exceptions, ASlotIsTidiedByBeingLookedAtAndASoundOneStays) {
  const FirmwareId firmware = kFamilies[1];
  const auto range = RangeOf(firmware);
  const auto full = Slot(0, range, "FULL"), free = Slot(0x10, range, "");
  auto miscounted = full;
  miscounted.replace(14, 2, "28");
  struct Row {
    std::string before, loaded, after;
  };
  const Row rows[] = {{free, Slot(0x10, range, "FULL"), full},
                      {full, Slot(0, range, ""), free},
                      {free, Slot(0, range, ""), Slot(0, range, "")},  // the same text: nothing is set
                      {free, miscounted, full}};
  PanelProgram program(firmware);
  for (const auto& row : rows) {
    program.Byte(EXCPSTRS, 11) = row.before;
    program.Byte(EXCPSTRS, 12) = row.loaded;
    Show(program, 11);
    Show(program, 12);
    EXPECT_EQ(program.Byte(EXCPSTRS, 12), row.after);
  }
  for (int slot = 1; slot <= 24; ++slot) {
    const int scroll = slot % 3 == 0 ? 0x40 : (slot % 4) | (slot % 2) << 5;
    program.Byte(EXCPSTRS, slot) = Slot(scroll | (slot % 5 % 3) << 2 | (slot % 7 == 0 ? 0x10 : 0), range,
                                        slot % 7 == 0 ? "" : " text " + std::to_string(slot % 6));
  }
  Show(program, 1);
  program.Mark();
  for (int look = 0; look < 1000; ++look) Show(program, 1 + look * 7 % 24);
  EXPECT_EQ(program.Written(), "");
}

TEST(Exceptions, ALoadShowsTheFirstAnewWhicheverWasShown) {
  PanelProgram program(kFamilies[0]);
  int length = 0;
  for (const bool upload : {false, true}) {
    for (const int before : {1, 2, 24}) {
      SCOPED_TRACE(before);
      ASSERT_EQ(Show(program, before), Outcome::kDone);
      const std::string text(static_cast<std::size_t>(++length), 'x');
      program.Byte(EXCPSTRS, 1) = Slot(0, RangeOf(kFamilies[0]), text);
      ASSERT_EQ(program.Reload(upload), Outcome::kDone);
      EXPECT_EQ(program.At("ComboExcp(0)"), 0);
      EXPECT_EQ(program.app.frmMain.TextException.text, Padded(text));
    }
  }
}

TEST(Exceptions, AClickStoresItsOwnFlagsAlone) {
  const std::tuple<int, int, const char*, const char*> rows[] = {
      {1, 1, "80", "81"}, {1, 0, "FF", "FE"}, {2, 1, "80", "82"}, {2, 0, "FF", "FD"}, {3, 1, "80", "A0"},
      {3, 0, "FF", "DF"}, {5, 0, "FF", "F3"}, {5, 1, "FF", "F7"}, {5, 2, "FF", "FB"}, {5, 1, "00", "04"},
      {5, 2, "00", "08"}, {4, 0, "FF", "BF"}, {4, 1, "80", "C0"},
  };
  PanelProgram program({"V1334", "R1"});
  Show(program, 9);
  for (const auto& [member, position, before, after] : rows) {
    SCOPED_TRACE(Member("ComboExcp", member) + " " + before);
    for (const int list : {1, 2, 3, 5}) program.Pick(Member("ComboExcp", list), 0);
    auto expected = program.Byte(EXCPSTRS, 9).replace(0, 2, before);
    program.Mark();
    ASSERT_EQ(program.Pick(Member("ComboExcp", member), position), Outcome::kDone);
    EXPECT_EQ(program.Written(), "EXCPSTRS(9)=" + expected.replace(0, 2, after));
  }
  EXPECT_EQ(program.Pick("ComboExcp(0)", 24), Outcome::kRefused);
}

TEST(Exceptions, ScrollMatchingTakesTheOtherActionsAway) {
  for (const auto& firmware : kFamilies) {
    SCOPED_TRACE(firmware.Joined());
    PanelProgram program(firmware);
    if (firmware.IsV1400()) {
      ASSERT_EQ(program.Pick("ComboExcp(4)", 1), Outcome::kRefused);
      program.Reveal("ComboExcp(4)");
    }
    for (const int list : {1, 2, 3, 5}) ASSERT_EQ(program.Pick(Member("ComboExcp", list), 1), Outcome::kDone);
    ASSERT_EQ(program.Pick("ComboExcp(4)", 1), Outcome::kDone);
    EXPECT_EQ(program.Byte(EXCPSTRS).substr(0, 2), "54");
    for (const int list : {1, 2, 3}) {
      EXPECT_EQ(program.At(Member("ComboExcp", list)), 0);
      EXPECT_EQ(program.Pick(Member("ComboExcp", list), 1), Outcome::kRefused);
    }
    ASSERT_EQ(program.Pick("ComboExcp(4)", 0), Outcome::kDone);
    EXPECT_EQ(program.Byte(EXCPSTRS).substr(0, 2), "14");
    for (const int list : {1, 2, 3}) {
      EXPECT_EQ(program.At(Member("ComboExcp", list)), 0);
      EXPECT_TRUE(program.Enabled(Member("ComboExcp", list)));
    }
  }
}

TEST(ExceptionReport, ALoadEchoesNothingAndAClickRewritesTheTimeStamp) {
  PanelProgram program({"V1400", "R12"});
  const auto bytes = [&] {
    return program.Byte(COMMCFG_BAK) + program.Byte(TIMESTAMP_ENA) + program.Byte(DUPLINE_BAK);
  };
  struct Row {
    const char *line, *stamp, *duplicate;
    int output, time_stamp, duplicate_line;
  };
  const Row rows[] = {{"14", "00", "01", 1, 0, 1}, {"04", "01", "00", 0, 1, 0}, {"FF", "02", "01", 1, 1, 1},
                      {"EF", "FF", "02", 0, 1, 1}, {"00", "00", "00", 0, 0, 0}, {"00", "80", "FF", 0, 1, 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.line) + row.stamp + row.duplicate);
    program.Byte(COMMCFG_BAK) = row.line;
    program.Byte(TIMESTAMP_ENA) = row.stamp;
    program.Byte(DUPLINE_BAK) = row.duplicate;
    ASSERT_EQ(program.Reload(), Outcome::kDone);
    EXPECT_EQ(program.At("ComboExcepRe(0)"), row.output);
    EXPECT_EQ(program.At("ComboExcepRe(1)"), row.time_stamp);
    EXPECT_EQ(program.At("ComboExcepRe(2)"), row.duplicate_line) << "what the list lacks leaves it";
    EXPECT_EQ(bytes(), std::string(row.line) + row.stamp + row.duplicate);

    const std::string stamp = row.time_stamp == 1 ? "01" : "00";
    const auto line = [&](bool on) { return ByteToHex((HexToInt(row.line) & 0xEF) | (on ? 0x10 : 0)); };
    ASSERT_EQ(program.Pick("ComboExcepRe(0)", 1 - row.output), Outcome::kDone);
    EXPECT_EQ(bytes(), line(row.output == 0) + stamp + row.duplicate);
    ASSERT_EQ(program.Pick("ComboExcepRe(0)", row.output), Outcome::kDone);
    ASSERT_EQ(program.Pick("ComboExcepRe(2)", 1 - row.duplicate_line), Outcome::kDone);
    EXPECT_EQ(bytes(), line(row.output == 1) + stamp + (row.duplicate_line == 1 ? "00" : "01"));
    ASSERT_EQ(program.Pick("ComboExcepRe(1)", 1 - row.time_stamp), Outcome::kDone);
    EXPECT_EQ(program.Byte(TIMESTAMP_ENA), row.time_stamp == 1 ? "00" : "01");
    program.Pick("ComboExcepRe(1)", row.time_stamp);
    program.Pick("ComboExcepRe(2)", row.duplicate_line);
  }
  for (const char* other : {"ComboExcepRe(1)", "ComboExcepRe(2)"}) {
    program.Byte(COMMCFG_BAK) = "00";
    program.Byte(TIMESTAMP_ENA) = "02";
    ASSERT_EQ(program.Reload(), Outcome::kDone);
    program.Byte(COMMCFG_BAK) = "FF";
    ASSERT_EQ(program.Pick(other, 1), Outcome::kDone);
    EXPECT_EQ(program.Byte(COMMCFG_BAK) + program.Byte(TIMESTAMP_ENA), "EF01") << other;
  }
  program.Pick("ComboExcepRe(2)", 0);
  EXPECT_EQ(program.app.SavedIndexes["ComboExcepRe"], (std::vector<int>{0, 1, 0}));
}

TEST(TextDialog, HoldsOneTextAndGivesItBackOnlyWhenSet) {
  PanelProgram program({"V1400", "R7"});
  auto& dialog = program.app.frmSetEXCPSTR;
  auto& main = program.app.frmMain;
  struct Row {
    const char *button, *title;
    TextBox* target;
    int mode;
  };
  const Row rows[] = {{"cmdSetTrigger", "ALARM TRIGGER SETUP", &main.TextTrigger, 0},
                      {"cmdSetExcpstr", "EXCEPTION SETUP", &main.TextException, 1},
                      {"cmdTitle", "TITLE SETUP", &main.Title_Text, 2}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.button);
    ASSERT_EQ(program.EnterText(row.button, "FIRST"), Outcome::kDone);
    program.Mark();
    const auto expect_open = [&] {
      ASSERT_EQ(program.Click(row.button), Outcome::kDone);
      EXPECT_EQ(program.app.TextEntryMode, row.mode);
      EXPECT_EQ(dialog.form.caption, row.title);
      EXPECT_EQ(dialog.Text1.text, "FIRST");
      EXPECT_TRUE(dialog.form.visible);
      EXPECT_EQ(program.Pick("ComboExcp(0)", 3), Outcome::kRefused) << "the main form is held back";
      EXPECT_EQ(program.Click(row.button), Outcome::kRefused);
      ASSERT_EQ(program.Type(dialog.Text1, "SECOND"), Outcome::kDone);
    };
    const auto expect_closed = [&] {
      EXPECT_FALSE(dialog.form.visible);
      EXPECT_TRUE(main.form.enabled);
    };
    expect_open();
    ASSERT_EQ(program.Press(dialog.form, Key::kEscape), Outcome::kDone);
    expect_closed();
    expect_open();
    ASSERT_EQ(program.Close(dialog.form), Outcome::kDone);
    expect_closed();
    expect_open();
    ASSERT_EQ(program.Click("frmSetEXCPSTR.cmdClr"), Outcome::kDone);
    EXPECT_EQ(dialog.Text1.text, "");
    EXPECT_TRUE(dialog.form.visible);
    EXPECT_EQ(program.Type(dialog.Text1, std::string(41, 'x')), Outcome::kRefused);
    EXPECT_EQ(program.Written(), "");
    EXPECT_EQ(row.target->text, "FIRST");
    program.Type(dialog.Text1, "SECOND");
    ASSERT_EQ(program.Click("frmSetEXCPSTR.cmdSET"), Outcome::kDone);
    expect_closed();
    EXPECT_EQ(row.target->text, "SECOND");
    EXPECT_NE(program.Written(), "");
    EXPECT_EQ(program.Written().find(' '), std::string::npos) << "one record and no more";
    EXPECT_EQ(program.Type(*row.target, "typed"), Outcome::kRefused);
    EXPECT_TRUE(program.NoBoxLeft());
  }
}

TEST(Range, IsShownDigitByDigitAndFilledFromTheSlot) {
  for (const auto& firmware : kFamilies) {
    SCOPED_TRACE(firmware.Joined());
    const bool wide = firmware.IsV1400();
    PanelProgram program(firmware);
    auto& main = program.app.frmMain;
    auto& form = program.app.frmSetRange;
    program.Byte(EXCPSTRS, 2) = Slot(0, RangeOf(firmware), "x");
    program.Byte(EXCPSTRS, 3) = Slot(0, wide ? "ABCDEF09F0000000A00F" : "ABCDF0000A0F", "y");
    for (const char* point : {"00", "01", "02"}) {
      program.Byte(DECIMAL_POINT_BAK) = point;
      const std::string sign = std::string(point) == "00" ? "." : ",";
      Show(program, 2);
      EXPECT_EQ(main.TextRANGE[0].caption, wide ? "01234567" + sign + "89" : "0123" + sign + "45");
      EXPECT_EQ(main.TextRANGE[1].caption, wide ? "98765432" + sign + "10" : "6789" + sign + "87");
      Show(program, 3);
      EXPECT_EQ(main.TextRANGE[0].caption, wide ? "ABCDEF09" + sign + "F0" : "ABCD" + sign + "F0");
      EXPECT_EQ(main.TextRANGE[1].caption, wide ? "000000A0" + sign + "0F" : "000A" + sign + "0F");
      Show(program, 2);
      program.Byte(EXCPSTRS, 2).replace(2, 4, "4321");  // the slot wins over what is shown
      ASSERT_EQ(program.Click("cmdSetRange"), Outcome::kDone);
      EXPECT_EQ(form.Range_Hi.text, wide ? "43214567" : "4321");
      EXPECT_EQ(form.SubRange_Hi.text, wide ? "89" : "45");
      EXPECT_EQ(form.Range_Low.text, wide ? "98765432" : "6789");
      EXPECT_EQ(form.SubRange_Low.text, wide ? "10" : "87");
      EXPECT_EQ(form.lbDec.caption, sign);
      EXPECT_EQ(form.ComboDec.Text(), sign);
      EXPECT_EQ(program.Pick("ComboExcp(0)", 4), Outcome::kRefused);
      ASSERT_EQ(program.Close(form.form), Outcome::kDone);
      EXPECT_TRUE(main.form.enabled);
      program.Byte(EXCPSTRS, 2) = Slot(0, RangeOf(firmware), "x");
    }
  }
}

TEST(Range, AFieldTakesItsDigitsAndIsPutInFormWhenLeft) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"7", "0007", "07"},  {"12AB", "0012", ""}, {"AB", "0000", "00"}, {"", "0000", "00"},
      {"1.5", "0001", ""},  {"-5", "0000", "00"}, {"9999", "9999", ""}, {"0", "0000", "00"},
      {"99", "0099", "99"}, {"2x", "0002", "02"}};
  for (const auto& firmware : kFamilies) {
    const bool wide = firmware.IsV1400();
    PanelProgram program(firmware);
    auto& form = program.app.frmSetRange;
    ASSERT_EQ(program.Click("cmdSetRange"), Outcome::kDone);
    for (const auto& [typed, integers, decimals] : rows) {
      SCOPED_TRACE(firmware.Joined() + " " + typed);
      for (auto* box : {&form.Range_Hi, &form.Range_Low}) {
        ASSERT_EQ(program.Type(*box, typed), Outcome::kDone);
        ASSERT_EQ(program.Leave(*box), Outcome::kDone);
        EXPECT_EQ(box->text, (wide ? "0000" : "") + std::string(integers));
      }
      for (auto* box : {&form.SubRange_Hi, &form.SubRange_Low}) {
        if (*decimals == '\0') continue;
        ASSERT_EQ(program.Type(*box, typed), Outcome::kDone);
        ASSERT_EQ(program.Leave(*box), Outcome::kDone);
        EXPECT_EQ(box->text, decimals);
      }
    }
    EXPECT_EQ(program.Type(form.Range_Hi, std::string(wide ? 9 : 5, '1')), Outcome::kRefused);
    EXPECT_EQ(program.Type(form.Range_Low, std::string(wide ? 8 : 4, '1')), Outcome::kDone);
    EXPECT_EQ(program.Type(form.SubRange_Low, "123"), Outcome::kRefused);
  }
}

TEST(Range, SetReplacesTheDigitsAlone) {
  for (const auto& firmware : kFamilies) {
    SCOPED_TRACE(firmware.Joined());
    const bool wide = firmware.IsV1400();
    PanelProgram program(firmware);
    auto& main = program.app.frmMain;
    auto& form = program.app.frmSetRange;
    program.Byte(EXCPSTRS, 6) = Slot(0xAF, RangeOf(firmware), " keep? ");
    Show(program, 6);
    program.Mark();
    program.Click("cmdSetRange");
    program.Type(form.Range_Hi, "100");
    program.Type(form.SubRange_Hi, "");
    program.Type(form.Range_Low, "5x");
    program.Type(form.SubRange_Low, "3");
    ASSERT_EQ(program.Click("frmSetRange.cmdSetRange"), Outcome::kDone);
    EXPECT_FALSE(form.form.visible);
    EXPECT_TRUE(main.form.enabled);
    EXPECT_EQ(program.Written(),
              "EXCPSTRS(6)=" + Slot(0xAF, wide ? "00000100000000000503" : "010000000503", " keep? "));
    EXPECT_EQ(main.TextRANGE[0].caption, wide ? "00000100.00" : "0100.00");
    EXPECT_EQ(main.TextRANGE[1].caption, wide ? "00000005.03" : "0005.03");

    program.Click("cmdSetRange");
    ASSERT_EQ(program.Click("frmSetRange.cmdClr"), Outcome::kDone);
    EXPECT_TRUE(form.form.visible);
    for (auto* box : {&form.Range_Hi, &form.Range_Low}) EXPECT_EQ(box->text, wide ? "00000000" : "0000");
    for (auto* box : {&form.SubRange_Hi, &form.SubRange_Low}) EXPECT_EQ(box->text, "00");
    EXPECT_NE(program.Byte(EXCPSTRS, 6).substr(2, 12), Repeat("0", 12)) << "not before it is set";
    ASSERT_EQ(program.Click("frmSetRange.cmdSetRange"), Outcome::kDone);
    EXPECT_EQ(program.Byte(EXCPSTRS, 6), Slot(0xAF, Repeat("0", wide ? 20 : 12), " keep? "));
  }
}

TEST(Range, TheSeparatorHoldsForAllSlotsAndIsStoredAtOnce) {
  PanelProgram program({"V1310", "R1"});
  auto& form = program.app.frmSetRange;
  program.Click("cmdSetRange");
  ASSERT_EQ(program.Pick("ComboDec", 1), Outcome::kDone);
  EXPECT_EQ(program.Written(), "DECIMAL_POINT_BAK=01");
  EXPECT_EQ(form.lbDec.caption, ",");
  program.Close(form.form);
  EXPECT_EQ(program.Written(), "DECIMAL_POINT_BAK=01");
  EXPECT_EQ(program.app.frmMain.TextRANGE[0].caption, "0000.00") << "shown from the next load on";
  Show(program, 2);
  EXPECT_EQ(program.app.frmMain.TextRANGE[0].caption, "0000,00");
  program.Click("cmdSetRange");
  EXPECT_EQ(form.lbDec.caption, ",");
  program.Click("frmSetRange.cmdClr");
  EXPECT_EQ(form.ComboDec.position, 0);
  EXPECT_EQ(form.lbDec.caption, ".");
  EXPECT_EQ(program.Written(), "");
  program.Pick("ComboDec", 1);
  ASSERT_EQ(program.Click("frmSetRange.cmdSetRange"), Outcome::kDone);
  EXPECT_EQ(program.app.frmMain.TextRANGE[1].caption, "0000,00");
}

}  // namespace
}  // namespace ovl::testing
