// The changes in the words of the form.
#include "changes/readable.h"

#include <algorithm>
#include <random>

#include "changes/option_controls.h"
#include "codecs/bytes.h"
#include "firmware/traits.h"
#include "image/slot_records.h"
#include "script/inspection.h"
#include "support/digest.h"
#include "support/register_facts.h"
#include "unit/panels/panel_program.h"
#include "unit/registers/register_program.h"

namespace ovl::testing {
namespace {

using changes::SettingChange;

std::string LineOf(const SettingChange& row) {
  return row.place.English() + ": " + row.caption.English() + ": " + row.before.English() + " -> " +
         row.after.English();
}

std::vector<std::string> Lines(const std::vector<SettingChange>& rows) {
  std::vector<std::string> lines;
  std::transform(rows.begin(), rows.end(), std::back_inserter(lines), LineOf);
  return lines;
}

std::string StateOf(const core::Application& app) {
  Digest digest;
  digest.AddState(app);
  return digest.Text();
}

using ChangedLines = std::vector<std::string>;

TEST(ReadableChanges, HaveOneRowForEachPickInTheWordsOfTheForm) {
  PanelProgram program(kLatest);
  EXPECT_EQ(Lines(changes::ReadableChanges(program.app)), ChangedLines());
  program.Pick("ComboCOMM(3)", 1);
  program.Pick("ComboCOMM(9)", 1);
  program.Pick("ComboDIP(0)", 6);
  program.ShowAlarm(2);
  program.Pick("ComboALM(1)", 3);
  program.Pick("ComboALM(2)", 1);
  program.Pick("ComboALM(3)", 4);
  program.EnterText("cmdSetTrigger", "SAFE OPEN");
  program.ShowSlot(3);
  program.EnterText("cmdSetExcpstr", "REFUND");
  program.Pick("ComboExcp(1)", 1);
  program.Pick("ComboExcp(5)", 2);
  program.Click("cmdSetRange");
  program.Type(program.app.frmSetRange.Range_Hi, "12");
  program.Type(program.app.frmSetRange.SubRange_Hi, "50");
  program.Pick("frmSetRange.ComboDec", 1);
  program.Click("frmSetRange.cmdSetRange");
  program.Pick("OpDVR", 2);
  program.Pick("ComboKLM4011(2)", 4);
  program.EnterText("cmdTitle", "TILL 4");
  EXPECT_EQ(
      Lines(changes::ReadableChanges(program.app)),
      (ChangedLines{"TEXT SETUP: SCREEN BLANK: NONE -> 30", "ALARM OUTPUTS: Alarm 2, NORMAL STATE: NO -> NC",
                    "ALARM OUTPUTS: Alarm 2, ALARM TRIGGER: NONE -> EX. 3",
                    "ALARM OUTPUTS: Alarm 2, ALARM DURATION: 1 -> 15",
                    "ALARM OUTPUTS: Alarm 2, text: empty -> SAFE OPEN", "COMMUNICATION: PARITY: NONE -> EVEN",
                    "COMMUNICATION: Network Settings, TYPE: OFF -> MASTER",
                    "COMMUNICATION: Network Settings, BAUD RATE: 1200 -> 9600",
                    "EXCEPTION REPORT: DVR Selection: KLM-4001 -> TRVX3000/TRVX5000",
                    "EXCEPTION REPORT: DEST ID: 1 -> 5", "EXCEPTION REPORT: RANGE, Decimal separator: . -> ,",
                    "EXCEPTION REPORT: Exception 3, text: free -> REFUND",
                    "EXCEPTION REPORT: Exception 3, RANGE: 0.00 - 0.00 -> 12,50 - 0,00",
                    "EXCEPTION REPORT: Exception 3, DISPLAY: OFF -> ON",
                    "EXCEPTION REPORT: Exception 3, OPERATOR: NONE -> OUT",
                    "TIME / LANGUAGE: TITLE: empty -> TILL 4"}));
}

TEST(ReadableChanges, NameTheBytesThatHaveNoWords) {
  struct Row {
    image::FieldId field;
    int entry;
    const char *before, *after;
    ChangedLines lines;
  };
  const auto text = Slot(0, RangeOf(kLatest), "VOID");
  const auto free = Slot(0x10, RangeOf(kLatest), ""), unmarked = Slot(0, RangeOf(kLatest), "");
  const auto miscounted = text.substr(0, 22) + "28" + text.substr(24);
  const Row rows[] = {
      {EXECENTRY, 1, "00", "7F", {"No control: EXECENTRY: byte 00 -> byte 7F"}},
      {IOCFG_BAK, 1, "7F", "7E", {"COMMUNICATION: INTERFACE TYPE: byte 7F -> byte 7E"}},
      {REGTYPE, 1, "00", "FA", {"REGISTER SELECT: Register: GENERIC -> byte FA"}},
      {REGTYPE_EXT2, 1, "00", "05", {"No control: REGTYPE_EXT2: byte 00 -> byte 05"}},
      {DEVICE_INDEX_BAK, 1, "00", "01", {"No control: DEVICE_INDEX_BAK: byte 00 -> byte 01"}},
      {TIMESTAMP_ENA, 1, "01", "02", {"EXCEPTION REPORT: TIME STAMP: ON (byte 01) -> ON (byte 02)"}},
      {ALMSTRUCT_BAK, 4, "00FF0000", "00AA0000", {"ALARM OUTPUTS: Alarm 4, ALARM DURATION: 1 -> byte AA"}},
      {ALMSTRUCT_BAK,
       4,
       "00FF0000",
       "00FF0100",
       {"ALARM OUTPUTS: Alarm 4, ALARM DURATION: 1 (byte 00) -> 1 (byte 01)"}},
      {TRIGGER_TEXT, 1, "00", "84", {"No control: TRIGGER_TEXT(1): byte 00 -> byte 84"}},
      {EXCPSTRS,
       6,
       free.c_str(),
       unmarked.c_str(),
       {"EXCEPTION REPORT: Exception 6, text: free (byte 10) -> free (byte 00)"}},
      {EXCPSTRS,
       5,
       text.c_str(),
       miscounted.c_str(),
       {"EXCEPTION REPORT: Exception 5, text: VOID (byte 04) -> VOID (byte 28)"}},
  };
  PanelProgram program(kLatest);
  for (const auto& row : rows) {
    SCOPED_TRACE(row.after);
    auto before = program.app.image, after = before;
    before.at(row.field, row.entry) = row.before;
    after.at(row.field, row.entry) = row.after;
    EXPECT_EQ(Lines(changes::ReadableChanges(program.app, before, after)), row.lines);
  }
}

TEST(ReadableChanges, OfAnotherRegisterShowTheOptionsOfBoth) {
  Installed program(kLatest);
  program.Mark();
  program.Register("IBM");
  program.Pick("IBMOP", 4);
  const auto ibm = program.app.image;
  program.Register("NORAND 1200");
  const auto lines = Lines(changes::ReadableChanges(program.app, ibm, program.app.image));
  EXPECT_EQ(lines.at(0), "REGISTER SELECT: Register: IBM -> NORAND 1200");
  EXPECT_NE(std::find(lines.begin(), lines.end(), "REGISTER SELECT: IBM, Model: RDS -> not shown (byte 00)"),
            lines.end());
  EXPECT_NE(std::find(lines.begin(), lines.end(),
                      "REGISTER SELECT: NORAND 1200, Wiring: not shown (byte 04) -> TAP"),
            lines.end());
}

// The byte of every option in turn, against the register panel itself.
TEST(ReadableChanges, OfEveryRegisterOptionHaveItsEntriesAndLeadToIt) {
  int tried = 0;
  ProgramForRows programs;
  for (const auto& row : OptionControls()) {
    const auto& [firmware, register_name, plain_choices] = row.example;
    if (firmware.version.empty() || register_name.empty() || row.fields.empty()) continue;
    auto& program = programs.Of(firmware);
    SCOPED_TRACE(row.name + " of " + register_name);
    program.Register(register_name);
    const auto frame = "frmAddress(" + std::to_string(row.frame) + ")";
    const bool inner = row.inner_frame.empty() || program.Control(row.inner_frame).visible;
    if (!inner || !program.Control(frame).visible) continue;
    ++tried;
    const auto before = program.app.image;
    const bool is_list =
        std::holds_alternative<controls::List*>(program.app.registry.Find(row.name)->control);
    const int shown = program.Selected(row.name);
    const int other = shown == 0 ? 1 : 0;
    auto after = before;
    after[row.fields.at(0)] = codecs::ByteToHex(other);
    const auto entry = [&](int position) {
      const auto at = static_cast<std::size_t>(position);
      return is_list ? program.ListOf(row.name).items.at(at)
                     : program.ArrayOf(row.name).elements.at(at).caption;
    };
    const auto rows = changes::ReadableChanges(program.app, before, after);
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const SettingChange& at) { return at.control == row.name; });
    ASSERT_NE(found, rows.end());
    EXPECT_EQ(found->before, entry(shown));
    EXPECT_EQ(found->after, entry(other));
    EXPECT_TRUE(found->caption.English().starts_with(register_name + ", ")) << found->caption;
    ASSERT_EQ(found->bytes.size(), 1U);
    EXPECT_EQ(found->bytes[0].after, codecs::ByteToHex(other));
  }
  EXPECT_GT(tried, 60);
}

// Most bytes are within the lists, so that the registers show their options.
image::ConfigImage RandomImage(const firmware::FirmwareId& firmware, int seed, int register_code) {
  std::mt19937 random(static_cast<unsigned>(seed));
  image::ConfigImage image;
  for (const auto& row : image::FieldTable()) {
    for (int entry = 1; entry <= image::EntryCount(row.id); ++entry) {
      auto& digits = image.at(row.id, entry);
      while (static_cast<int>(digits.size()) < image::DigitsOf(row, firmware::LayoutOf(firmware)))
        digits += codecs::ByteToHex(static_cast<int>(random() % (random() % 4 == 0 ? 256 : 5)));
    }
  }
  image[REGTYPE] = codecs::ByteToHex(register_code);
  return image;
}

// Every byte that a download would change is in a row, in every firmware and for images that no panel has
// written. The program itself does not change.
TEST(ReadableChanges, CoverEveryDifferentByteAndChangeNothing) {
  for (const auto& firmware : EveryFirmware()) {
    Harness harness(firmware);
    ASSERT_EQ(harness.Start(), core::Outcome::kDone);
    const auto state = StateOf(harness.app);
    for (int seed = 1; seed <= 12; ++seed) {
      SCOPED_TRACE(firmware.Joined() + " seed " + std::to_string(seed));
      const auto before = RandomImage(firmware, seed, 0), after = RandomImage(firmware, -seed, 7 * seed);
      std::map<std::pair<std::string, std::size_t>, std::string> expected, found;
      for (const auto& difference : image::Differences(before, after, firmware)) {
        const auto section = difference.field->section;
        const std::string name = section == image::Section::kSyscfg     ? "SYSCFG"
                                 : section == image::Section::kSysfixed ? "SYSFIXED"
                                                                        : "SYSSTR";
        for (std::size_t digit = 0; digit < difference.after.size(); digit += 2) {
          const auto byte = difference.after.substr(digit, 2);
          if (difference.before.substr(digit, 2) != byte)
            expected[{name, difference.byte + digit / 2}] = byte;
        }
      }
      for (const auto& row : changes::ReadableChanges(harness.app, before, after)) {
        EXPECT_FALSE(row.bytes.empty()) << LineOf(row);
        EXPECT_NE(row.before, row.after) << LineOf(row);
        EXPECT_TRUE(row.control.empty() == (row.tab == SettingChange::kNoTab)) << LineOf(row);
        EXPECT_TRUE(row.control.empty() || harness.app.registry.Find(row.control) != nullptr) << row.control;
        for (const auto& bytes : row.bytes) {
          for (std::size_t digit = 0; digit < bytes.after.size(); digit += 2) {
            if (bytes.before.substr(digit, 2) != bytes.after.substr(digit, 2))
              found[{bytes.section, bytes.byte + digit / 2}] = bytes.after.substr(digit, 2);
          }
        }
      }
      EXPECT_EQ(found, expected);
    }
    EXPECT_EQ(StateOf(harness.app), state);
  }
}

// The words of a row are what the panels of the program show after a load.
TEST(ReadableChanges, HaveTheWordsThatTheProgramShowsAfterALoad) {
  int compared = 0;
  for (const auto& firmware : EveryFirmware()) {
    PanelProgram program(firmware);
    const auto before = program.app.image;
    program.Open(PatternStream(firmware, 3));
    for (const auto& row : changes::ReadableChanges(program.app, before, program.app.image)) {
      SCOPED_TRACE(firmware.Joined() + " " + LineOf(row));
      if (row.control.empty() || row.after.English().find("byte") != std::string::npos) continue;
      const auto control = program.app.registry.Find(row.control)->control;
      if (std::holds_alternative<controls::Button*>(control)) continue;
      // Scroll matching shows the other acts as OFF, whatever is stored.
      const bool scrolls =
          row.list == "ComboExcp(0)" &&
          codecs::HasBit(codecs::HexToInt(program.Byte(EXCPSTRS, row.slot)), image::kScrollBit);
      if (scrolls && row.control != "ComboExcp(4)") continue;
      if (!row.list.empty()) program.Pick(row.list, row.slot - 1);
      const auto mark = row.control == "ComboALM(1)" && program.Visible("lbAlmTrig") ? "EX. " : "";
      if (const auto checked = script::CheckedOf(control)) {
        EXPECT_EQ(row.after, *checked ? "ON" : "OFF");
      } else {
        EXPECT_EQ(row.after, mark + script::TextOf(control));
      }
      ++compared;
    }
  }
  EXPECT_GT(compared, 29 * 60);
}

// A new field of the register options or of the MICROS window needs a row in the table of option controls.
TEST(ReadableChanges, KnowTheControlsOfEveryOptionField) {
  for (const auto& row : OptionControls()) {
    if (row.fields.empty() || row.name.find("cmd") != std::string::npos || row.name == "ComboReg" ||
        row.name.find("CMD") != std::string::npos) {
      continue;
    }
    const auto is_row = [&](const registers::OptionRow* option) {
      return (option->control == row.name || option->control.starts_with(row.name + "(")) &&
             (row.frame == kNoFrame || static_cast<int>(option->frame) == row.frame);
    };
    const auto is_listed = [&](image::FieldId field) {
      bool listed = false;
      for (int entry = 1; entry <= image::EntryCount(field); ++entry) {
        const auto options = changes::OptionsThatShow(field, entry);
        listed = listed || std::any_of(options.begin(), options.end(), is_row);
      }
      return listed;
    };
    EXPECT_TRUE(std::any_of(row.fields.begin(), row.fields.end(), is_listed)) << row.name;
  }
}

}  // namespace
}  // namespace ovl::testing
