// The texts of title, alarms and exceptions, and the dialog that edits them.
#include "unit/panels/panel_program.h"

#include <algorithm>

namespace ovl::testing {
namespace {

// They contain every character except NUL.
std::vector<std::string> Texts() {
  const std::string y(37, 'y');
  std::vector<std::string> texts = {"A", "",     " ", " x",     "x ",      "  A B  ",     "What?",
                                    "?", "\x7F", y,   y + "yy", y + "yyy", " " + y + " ", " " + y + "y "};
  texts.insert(texts.end(), {std::string(40, ' '), std::string(40, '?'), std::string(39, ' ') + "."});
  for (int code = 1; code < 256; ++code) {
    if (code % 40 == 1) texts.emplace_back();
    texts.back() += static_cast<char>(code);
  }
  return texts;
}

const std::string kCut("AB\0CD", 5);

// A triggered text or a title in the image: without blanks at its ends, filled up with zeros.
std::string Filled(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  auto digits = first == std::string::npos
                    ? ""
                    : codecs::TextToHex(text.substr(first, text.find_last_not_of(' ') - first + 1));
  digits.resize(82, '0');
  return digits;
}

TEST(Texts, TriggeredTextAndTitleAreTrimmedAndFilledUp) {
  for (const auto& firmware : {kLatest, firmware::FirmwareId{"V1324", "R17"}}) {
    PanelProgram program(firmware);
    auto& main = program.app.frmMain;
    int flags = 0;
    for (const auto& text : Texts()) {
      SCOPED_TRACE("[" + text + "]");
      const auto filled = Filled(text);
      const auto record = codecs::ByteToHex(0xF0 | ++flags % 4) + filled;
      program.ShowAlarm(12);
      program.EnterText("cmdSetTrigger", "else");
      program.Byte(TRIGGER_TEXT, 12).replace(0, 2, record, 0, 2);
      program.Mark();
      program.EnterText("cmdSetTrigger", text);
      EXPECT_EQ(program.Written(), "TRIGGER_TEXT(12)=" + record);
      program.Byte(TRIGGER_TEXT, 13) = record;
      program.ShowAlarm(13);
      EXPECT_EQ(Filled(main.TextTrigger.text), filled);
      EXPECT_EQ(main.TextTrigger.text.find('\0'), std::string::npos);
      EXPECT_EQ(program.At("ComboTrigger(0)"), flags & 1);
      EXPECT_EQ(program.At("ComboTrigger(1)"), flags >> 1 & 1);
      EXPECT_EQ(program.Byte(TRIGGER_TEXT, 13), record);

      program.EnterText("cmdTitle", "else");
      program.EnterText("cmdTitle", text);
      EXPECT_EQ(program.Byte(ONSCRNTITL), filled);
      program.EnterText("cmdTitle", "else");
      EXPECT_EQ(program.Load({{ONSCRNTITL, filled}}), "");
      EXPECT_EQ(Filled(main.Title_Text.text), filled);
    }
    program.Byte(TRIGGER_TEXT, 4) = "00" + codecs::TextToHex(kCut) + std::string(72, '0');
    program.ShowAlarm(4);
    EXPECT_EQ(main.TextTrigger.text, "AB");
    EXPECT_EQ(program.Byte(TRIGGER_TEXT, 4).size(), 84U);
  }
}

TEST(Texts, AnExceptionIsPaddedCountedAndMarkedFreeWhenBlank) {
  for (const auto& firmware : kFamilies) {
    PanelProgram program(firmware);
    const auto range = RangeOf(firmware);
    const auto& shown = program.app.frmMain.TextException.text;
    for (const auto& text : Texts()) {
      SCOPED_TRACE("[" + text + "]");
      const bool blank = text.find_first_not_of(' ') == std::string::npos;
      const auto stored = Slot(blank ? 0xB3 : 0xA3, range, text);
      auto padded = text;
      std::replace(padded.begin(), padded.end(), '\x7F', '?');
      padded.resize(40, ' ');
      for (const int flags : {0xA3, 0xB3}) {
        program.Byte(EXCPSTRS, 7) = Slot(flags, range, "before");
        program.ShowSlot(8);
        program.ShowSlot(7);
        ASSERT_EQ(program.EnterText("cmdSetExcpstr", text), core::Outcome::kDone);
        EXPECT_EQ(program.Byte(EXCPSTRS, 7), stored);
        program.ShowSlot(8);
        program.ShowSlot(7);
        EXPECT_EQ(shown, padded);
        EXPECT_EQ(program.Byte(EXCPSTRS, 7), stored);
      }
    }
    program.Byte(EXCPSTRS, 6) = Slot(0, range, kCut);
    program.ShowSlot(6);
    EXPECT_EQ(shown, "AB");
    EXPECT_EQ(program.Byte(EXCPSTRS, 6), Slot(0, range, "AB"));
    program.EnterText("cmdSetExcpstr", "else");
    ASSERT_EQ(program.EnterText("cmdSetExcpstr", kCut), core::Outcome::kDone);
    EXPECT_EQ(program.Byte(EXCPSTRS, 6), Slot(0, range, "AB")) << "a typed text ends there too";
  }
}

TEST(TextDialog, HasTheTitleOfItsTextAndStoresNothingUntilItIsSet) {
  PanelProgram program({"V1400", "R7"});
  auto& dialog = program.app.frmSetEXCPSTR;
  auto& main = program.app.frmMain;
  const std::tuple<const char*, const char*, controls::TextBox*> rows[] = {
      {"cmdSetTrigger", "ALARM TRIGGER SETUP", &main.TextTrigger},
      {"cmdSetExcpstr", "EXCEPTION SETUP", &main.TextException},
      {"cmdTitle", "TITLE SETUP", &main.Title_Text}};
  for (const auto& [button, title, target] : rows) {
    program.EnterText(button, "FIRST");
    program.Mark();
    program.Click(button);
    EXPECT_EQ(dialog.form.caption + ": " + dialog.Text1.text, title + std::string(": FIRST"));
    program.Type(dialog.Text1, "SECOND");
    program.Close(dialog.form);
    EXPECT_EQ(target->text + program.Written(), "FIRST");
    EXPECT_EQ(program.Type(*target, "typed"), core::Outcome::kRefused);
  }
}

}  // namespace
}  // namespace ovl::testing
