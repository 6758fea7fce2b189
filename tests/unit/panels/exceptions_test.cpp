// The 24 exception slots: flags and ranges, and the options of the report.
#include "unit/panels/panel_program.h"

#include <algorithm>

namespace ovl::testing {
namespace {

TEST(Exceptions, TheSlotShownBeforeChangesTheFlagsThatAreLoaded) {
  struct Row {
    int before;                                                // the flags of the slot that is shown first
    int loaded;                                                // those of the slot under test
    int after;                                                 // the same when that slot was shown
    int display, output, history, scroll_matching, operation;  // the positions shown
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
    const auto slot = [&](int flags, const char* text) { return Slot(flags, RangeOf(firmware), text); };
    for (const auto& row : rows) {
      SCOPED_TRACE(codecs::ByteToHex(row.before) + " " + codecs::ByteToHex(row.loaded));
      program.Byte(EXCPSTRS, 1) = slot(0x00, "neutral");
      program.Byte(EXCPSTRS, 2) = slot(row.before, "before");
      program.Byte(EXCPSTRS, 3) = slot(row.loaded, "loaded");
      for (const int number : {1, 2, 3}) program.ShowSlot(number);
      EXPECT_EQ(program.Byte(EXCPSTRS, 2), slot(row.before, "before"));
      EXPECT_EQ(program.Byte(EXCPSTRS, 3), slot(row.after, "loaded"));
      const int positions[] = {row.display, row.output, row.history, row.scroll_matching, row.operation};
      for (int list = 1; list <= 5; ++list) {
        EXPECT_EQ(program.At(Member("ComboExcp", list)), positions[list - 1]) << list;
        EXPECT_EQ(program.Enabled(Member("ComboExcp", list)), list > 3 || row.scroll_matching == 0) << list;
      }
    }
  }
}

TEST(Exceptions, ASlotIsPutInOrderWhenItIsShown) {
  PanelProgram program(kFamilies[1]);
  const auto range = RangeOf(kFamilies[1]);
  const auto full = Slot(0, range, "FULL"), free = Slot(0x10, range, ""), unmarked = Slot(0, range, "");
  const auto miscounted = full.substr(0, 14) + "28" + full.substr(16);
  const std::string rows[][3] = {{free, Slot(0x10, range, "FULL"), full},
                                 {full, unmarked, free},
                                 {free, unmarked, unmarked},  // the same text: nothing is set
                                 {free, miscounted, full}};
  for (const auto& [before, loaded, after] : rows) {
    program.Byte(EXCPSTRS, 11) = before;
    program.Byte(EXCPSTRS, 12) = loaded;
    program.ShowSlot(11);
    program.ShowSlot(12);
    EXPECT_EQ(program.Byte(EXCPSTRS, 12), after);
  }
}

TEST(Exceptions, ScrollMatchingDisablesTheOtherActions) {
  PanelProgram program({"V1334", "R1"});
  for (const int list : {1, 2, 3, 5}) program.Pick(Member("ComboExcp", list), 1);
  for (const int matching : {1, 0}) {
    ASSERT_EQ(program.Pick("ComboExcp(4)", matching), core::Outcome::kDone);
    EXPECT_EQ(program.Byte(EXCPSTRS).substr(0, 2), matching == 1 ? "54" : "14");
    for (const int list : {1, 2, 3}) {
      EXPECT_EQ(program.At(Member("ComboExcp", list)), 0);
      EXPECT_EQ(program.Enabled(Member("ComboExcp", list)), matching == 0);
    }
  }
}

TEST(ExceptionReport, EveryPickStoresOutputAndTimeStampToo) {
  PanelProgram program(kLatest);
  for (const char* stamp : {"80", "00", "FF", "00", "02"}) {
    EXPECT_EQ(program.Load({{COMMCFG_BAK, "14"}, {TIMESTAMP_ENA, stamp}}), "");
    EXPECT_EQ(program.At("ComboExcepRe(1)"), stamp == std::string("00") ? 0 : 1) << stamp;
  }
  struct Row {
    const char* list;
    int position;
    const char* written;
  };
  const Row rows[] = {
      {"ComboExcepRe(2)", 1, "COMMCFG_BAK=FE TIMESTAMP_ENA=01 DUPLINE_BAK=01"},
      {"ComboExcepRe(0)", 0, "TIMESTAMP_ENA=01"},
      {"ComboExcepRe(1)", 0, "TIMESTAMP_ENA=00"},
      {"ComboExcepRe(0)", 1, "COMMCFG_BAK=FE TIMESTAMP_ENA=00"},
      {"ComboExcepRe(2)", 0, "COMMCFG_BAK=FE TIMESTAMP_ENA=00 DUPLINE_BAK=00"},
      {"ComboExcepRe(1)", 1, "COMMCFG_BAK=FE TIMESTAMP_ENA=01"},
  };
  for (const auto& row : rows) EXPECT_EQ(program.Effect(row.list, row.position), row.written);
}

// The texts of the fields in the window, and its separator.
std::string Fields(const controls::RangeForm& form) {
  return form.Range_Hi.text + " " + form.SubRange_Hi.text + " " + form.Range_Low.text + " " +
         form.SubRange_Low.text + " " + form.lbDec.caption;
}

std::string Shown(const PanelProgram& program) {
  const auto& captions = program.app.frmMain.TextRANGE;
  return captions[0].caption + " " + captions[1].caption;
}

TEST(Range, ThePanelShowsEachDigitAndTheWindowIsFilledFromTheSlot) {
  for (const auto& firmware : kFamilies) {
    const bool wide = firmware.IsV1400();
    PanelProgram program(firmware);
    auto& form = program.app.frmSetRange;
    program.Byte(EXCPSTRS, 3) = Slot(0, wide ? "ABCDEF09F0000000A00F" : "ABCDF0000A0F", "y");
    for (const std::string point : {"00", "01", "02"}) {
      SCOPED_TRACE(point);
      const auto signed_text = [&](std::string text) {
        if (point != "00") std::replace(text.begin(), text.end(), '.', ',');
        return text;
      };
      program.Byte(DECIMAL_POINT_BAK) = point;
      program.Byte(EXCPSTRS, 2) = Slot(0, RangeOf(firmware), "x");
      program.ShowSlot(3);
      EXPECT_EQ(Shown(program), signed_text(wide ? "ABCDEF09.F0 000000A0.0F" : "ABCD.F0 000A.0F"));
      program.ShowSlot(2);
      EXPECT_EQ(Shown(program), signed_text(wide ? "01234567.89 98765432.10" : "0123.45 6789.87"));
      program.Byte(EXCPSTRS, 2).replace(2, 4, "4321");  // the window shows the slot and not the panel
      ASSERT_EQ(program.Click("cmdSetRange"), core::Outcome::kDone);
      EXPECT_EQ(Fields(form), signed_text(wide ? "43214567 89 98765432 10 ." : "4321 45 6789 87 ."));
      EXPECT_EQ(form.ComboDec.Text(), signed_text("."));
      EXPECT_EQ(program.Pick("ComboExcp(0)", 4), core::Outcome::kRefused);
      program.Close(form.form);
      EXPECT_TRUE(program.app.frmMain.form.enabled);
    }
  }
}

TEST(Range, AFieldKeepsOnlyItsDigitsWhenItIsLeft) {
  struct Row {
    std::string typed;
    // The text of a field before or behind the separator when it was left.
    std::string whole, decimal;
  };
  const Row rows[] = {
      {"7", "0007", "07"},   {"12AB", "0012", "12"}, {"AB", "0000", "00"},   {"", "0000", "00"},
      {"1.5", "0001", "01"}, {"-5", "0000", "00"},   {"9999", "9999", "99"}, {"0", "0000", "00"},
      {"99", "0099", "99"},  {"2x", "0002", "02"},
  };
  for (const auto& firmware : kFamilies) {
    const std::string zeros(firmware.IsV1400() ? 4 : 0, '0');
    PanelProgram program(firmware);
    auto& form = program.app.frmSetRange;
    program.Click("cmdSetRange");
    for (const auto& row : rows) {
      SCOPED_TRACE(row.typed);
      for (auto* box : {&form.Range_Hi, &form.SubRange_Hi, &form.Range_Low, &form.SubRange_Low}) {
        const bool decimal = box == &form.SubRange_Hi || box == &form.SubRange_Low;
        const bool fits = !decimal || row.typed.size() <= 2;
        const auto left = !fits ? box->text : decimal ? row.decimal : zeros + row.whole;
        EXPECT_EQ(program.Type(*box, row.typed), fits ? core::Outcome::kDone : core::Outcome::kRefused);
        EXPECT_EQ(program.Leave(*box), core::Outcome::kDone);
        EXPECT_EQ(box->text, left);
      }
    }
    for (auto* box : {&form.Range_Hi, &form.Range_Low}) {
      EXPECT_EQ(program.Type(*box, zeros + "12345"), core::Outcome::kRefused);
      EXPECT_EQ(program.Type(*box, zeros + "1234"), core::Outcome::kDone);
    }
  }
}

TEST(Range, AnUnknownFamilyTakesTheRangeOfThePanelAndKeepsWhatIsTyped) {
  Installed program({"V1500", "R1"}, Images::kFirstRegister);
  auto& form = program.app.frmSetRange;
  auto& slot = program.app.image.at(EXCPSTRS, 2);
  slot = Slot(0, "012345678987", "x");
  program.Pick("ComboExcp(0)", 1);
  slot.replace(2, 4, "4321");
  ASSERT_EQ(program.Click("cmdSetRange"), core::Outcome::kDone);
  EXPECT_EQ(Fields(form), "0123 45 6789 87 .");
  for (auto* box : {&form.Range_Hi, &form.SubRange_Hi, &form.Range_Low}) {
    program.Type(*box, "7");
    program.Leave(*box);
  }
  EXPECT_EQ(Fields(form), "7 07 7 87 .");
}

TEST(Range, SetReplacesOnlyTheDigitsAndTheSeparatorIsStoredAtOnce) {
  for (const auto& firmware : kFamilies) {
    const bool wide = firmware.IsV1400();
    PanelProgram program(firmware);
    auto& form = program.app.frmSetRange;
    const auto slot = [](const std::string& range) { return Slot(0xAF, range, " keep? "); };
    program.Byte(EXCPSTRS, 6) = slot(RangeOf(firmware));
    program.ShowSlot(6);
    program.Mark();
    program.Click("cmdSetRange");
    program.Type(form.Range_Hi, "100");
    program.Type(form.SubRange_Hi, "");
    program.Type(form.Range_Low, "5x");
    program.Type(form.SubRange_Low, "3");
    program.Pick("ComboDec", 1);
    EXPECT_EQ(program.Written(), "DECIMAL_POINT_BAK=01");
    program.Click("frmSetRange.cmdSetRange");
    EXPECT_TRUE(program.app.frmMain.form.enabled && !form.form.visible);
    const auto set = "EXCPSTRS(6)=" + slot(wide ? "00000100000000000503" : "010000000503");
    EXPECT_TRUE(program.Written().ends_with(set) || program.Written().starts_with(set)) << program.Written();
    EXPECT_EQ(std::ranges::count(program.Written(), '='), 2) << program.Written();
    EXPECT_EQ(Shown(program), wide ? "00000100,00 00000005,03" : "0100,00 0005,03");

    for (const bool closed : {true, false}) {
      program.Click("cmdSetRange");
      program.Pick("ComboDec", 1);
      EXPECT_EQ(form.lbDec.caption, ",");
      program.Click("frmSetRange.cmdClr");
      EXPECT_EQ(Fields(form), wide ? "00000000 00 00000000 00 ." : "0000 00 0000 00 .");
      EXPECT_EQ(form.ComboDec.position, 0);
      EXPECT_EQ(program.Written(), set);
      EXPECT_EQ(Shown(program)[wide ? 8 : 4], closed ? ',' : '.')
          << "the sign is shown from the next load on";
      if (!closed) continue;
      program.Close(form.form);
      program.ShowSlot(6);
    }
    ASSERT_EQ(program.Click("frmSetRange.cmdSetRange"), core::Outcome::kDone);
    EXPECT_EQ(program.Byte(EXCPSTRS, 6), slot(std::string(wide ? 20 : 12, '0')));
  }
}

}  // namespace
}  // namespace ovl::testing
