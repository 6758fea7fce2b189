// All settings panels of all firmware: what is set comes back, and nothing else is touched.
#include <random>
#include <set>

#include "catalogue/firmware.h"
#include "panels/acts.h"

namespace ovl::testing {
namespace {

using enum FieldId;

struct Selection {
  const char* name;
  const char* frame;
  std::string_view fields;  // all that a pick may write
  // Of a record of digits only these, from the first on.
  std::size_t first_digit = 0, digits = std::string::npos;
};

// In an order in which a later pick takes nothing from an earlier one.
constexpr Selection kGlobal[] = {
    {"ComboDIP(0)", "Frame3", "DSPCFG_BAK BLNKVAL BLNKIND BLNKRTS_BAK"},
    {"ComboDIP(2)", "Frame3", "DSPCFG_BAK"},
    {"ComboDIP(3)", "Frame3", "DSPCFG_BAK"},
    {"ComboDIP(4)", "Frame3", "DSPCFG_BAK"},
    {"ComboDIP(5)", "Frame3", "DSPCFG_BAK"},
    {"ComboDIP(6)", "Frame3", "DSPCFG_BAK"},
    {"ComboDIP(7)", "Frame3", "SPCOMPRES_BAK"},
    {"ComboDIP(8)", "Frame3", "DSPCHARS_BAK"},
    {"ComboTD(0)", "Frame2", "DSPCFG_BAK DSPLINES_BAK"},
    {"ComboTD(1)", "Frame2", "TIME_FORMAT_BAK"},
    {"ComboTD(2)", "Frame2", "DATE_FORMAT_BAK"},
    {"ComboTD(3)", "Frame2", "DAYLIGHT_BAK"},
    {"ComboTD(4)", "Frame2", "TD_LOCKING_BAK"},
    {"ComboTD(5)", "Frame2", "DSPCFG_BAK DSPLINES_BAK"},
    {"ComboDIP(1)", "Frame3", "DSPLINES_BAK"},
    {"ComboLang", "Frame12", "LANGUAGE_BAK"},
    {"ComboExcepRe(0)", "Frame7", "COMMCFG_BAK"},
    {"ComboExcepRe(1)", "Frame7", "TIMESTAMP_ENA"},
    {"ComboExcepRe(2)", "Frame7", "DUPLINE_BAK"},
    {"ComboScroll(1)", "Frame14", "SCROLLMATCH_BAK"},
    {"ComboScroll(0)", "Frame14", "SCROLLMATCH_BAK"},
    {"ComboALM(4)", "Frame8", "ALMCFG_BAK"},
    {"ComboALM(5)", "Frame8", "FLAGDWLIND"},
    {"CharacterList", "FrameDemo", "DEMO_ENABLE"},
    {"DemoType", "FrameDemo", "DEMO_ENABLE"},
    {"DemoSpeed", "FrameDemo", "DEMO_ENABLE"},
    {"ComboKLM4011(0)", "Frame5", "HIST_DEST_ID"},
    {"ComboKLM4011(1)", "Frame5", "HIST_SRC_ID"},
    {"ComboKLM4011(2)", "Frame5", "HIST_DEST_ID"},
    {"ComboKLM4011(3)", "Frame5", "HIST_SRC_ID"},
};
constexpr Selection kAlarm[] = {
    {"ComboALM(1)", "Frame8", "ALMSTRUCT_BAK", 0, 2},
    {"ComboALM(2)", "Frame8", "ALMNORMAL_BAK"},
    {"ComboALM(3)", "Frame8", "ALMSTRUCT_BAK", 2, 4},
    {"ComboALM(6)", "Frame8", "ALMSTRUCT_BAK", 6, 2},
    {"ComboALM(7)", "Frame8", "ALM_MODE"},
    {"ComboTrigger(0)", "Frame15", "TRIGGER_TEXT", 0, 2},
    {"ComboTrigger(1)", "Frame15", "TRIGGER_TEXT", 0, 2},
    {"ComboTrigger(2)", "Frame15", "TRIGGER_DELAY"},
};
constexpr Selection kSlot[] = {
    {"ComboExcp(4)", "Frame6", "EXCPSTRS", 0, 2}, {"ComboExcp(1)", "Frame6", "EXCPSTRS", 0, 2},
    {"ComboExcp(2)", "Frame6", "EXCPSTRS", 0, 2}, {"ComboExcp(3)", "Frame6", "EXCPSTRS", 0, 2},
    {"ComboExcp(5)", "Frame6", "EXCPSTRS", 0, 2},
};

bool OnScreen(PanelProgram& program, const Selection& selection) {
  return program.Visible(selection.name) && program.Visible(selection.frame);
}

bool Offered(PanelProgram& program, const Selection& selection) {
  return OnScreen(program, selection) && program.Enabled(selection.name);
}

// One program in which everything is set, one into which it is loaded.
class EveryPosition {
 public:
  explicit EveryPosition(const FirmwareId& firmware) : firmware_(firmware), writer_(firmware) {}

  void Run() {
    constexpr int kLongestList = 121, kRoundsOfRecords = 3;
    for (int round = 0; round < kLongestList; ++round) {
      SCOPED_TRACE("round " + std::to_string(round));
      set_.clear();
      if (round < kRoundsOfRecords) SetRecords(round);
      SetGlobals(round);
      if (round < kRoundsOfRecords || round % 40 == 0) reader_ = std::make_unique<PanelProgram>(firmware_);
      ASSERT_EQ(reader_->Open(Composed()), Outcome::kDone);
      ExpectShown();
    }
    ExpectAllCovered();
    EXPECT_TRUE(writer_.NoBoxLeft() && reader_->NoBoxLeft());
  }

 private:
  void Set(const Selection& selection, int number, const std::string& record = {}) {
    if (!Offered(writer_, selection)) return;
    const auto entries = static_cast<int>(writer_.ListOf(selection.name).items.size());
    ASSERT_EQ(writer_.Pick(selection.name, number % entries), Outcome::kDone) << selection.name;
    set_[record + selection.name] = number % entries;
  }

  void SetRecords(int round) {
    for (int slot = 0; slot < kExceptions; ++slot) {
      const auto record = "ComboExcp(0)=" + std::to_string(slot) + " ";
      const int number = slot + round;
      writer_.Pick("ComboExcp(0)", slot);
      Set(kSlot[0], number % 4 == 0 ? 1 : 0, record);
      for (int list = 1; list < 4; ++list) Set(kSlot[list], number >> (list - 1), record);
      Set(kSlot[4], number, record);
    }
    for (int alarm = 0; alarm < kAlarms; ++alarm) {
      const auto record = "ComboALM(0)=" + std::to_string(alarm) + " ";
      writer_.Pick("ComboALM(0)", alarm);
      for (const auto& selection : kAlarm) Set(selection, alarm + round + (round % 2) * 15, record);
      // The normal state of the ninth alarm is bit 0 of the second byte, which no click reaches.
      if (alarm == 8) set_[record + "ComboALM(2)"] = 0;
    }
  }

  void SetGlobals(int round) {
    auto& recorders = writer_.ArrayOf("OpDVR");
    const int recorder = round % 3 % (recorders.elements[2].visible ? 3 : 2);
    ASSERT_EQ(writer_.Pick("OpDVR", recorder), Outcome::kDone);
    if (!writer_.app.frmMain.DemoMode.checked) writer_.Click("DemoMode");
    constexpr int kTimeouts = 6;
    for (const auto& selection : kGlobal) {
      const bool scroll_switch = std::string_view(selection.name) == "ComboScroll(0)";
      Set(selection, scroll_switch ? 1 + round / kTimeouts : round);
    }
    if (round % 3 != 0) writer_.Click("DemoMode");

    // Where the demonstration counts its lists from 1, a running one always shows the second.
    const bool old_demo = (HexToInt(writer_.Byte(DEMO_ENABLE)) & 0x40) == 0 && OldDemo();
    if (old_demo && writer_.app.frmMain.DemoMode.checked) set_.erase("CharacterList");
    // Clock and title each need a line of the picture.
    const int least = set_["ComboTD(0)"] + set_["ComboTD(5)"];
    set_["ComboDIP(1)"] = std::max(set_["ComboDIP(1)"], least);
    // The switch of scroll matching follows the timeout; switched off it stops the timeout, switched on it
    // starts one.
    if (set_.count("ComboScroll(0)") != 0) {
      auto& timeout = set_["ComboScroll(1)"];
      timeout = set_["ComboScroll(0)"] == 0 ? 0 : std::max(timeout, 1);
    }
  }

  bool OldDemo() const {
    const int number = firmware_.Number();
    return (firmware_.version == "V1400" && number == 1) || (firmware_.version == "V1300" && number < 27) ||
           (firmware_.version == "V1324" && number < 26);
  }

  // V1400 R7 does not read the flag of the blank time that a download writes for it: all strings stand a byte
  // further on.
  std::string Composed() {
    const auto stream = SectionsToStream(writer_.app);
    if (firmware_.Joined() != "V1400R7") return stream;
    writer_.Byte(BLNKRTS_BAK).clear();
    const auto readable = SectionsToStream(writer_.app);
    EXPECT_EQ(stream.size(), readable.size() + 2);
    return readable;
  }

  void ExpectShown() {
    std::string before;
    for (const auto& [key, position] : set_) {
      auto name = key;
      if (const auto blank = key.find(' '); blank != std::string::npos) {
        const auto record = key.substr(0, blank);
        name = key.substr(blank + 1);
        const auto sign = record.find('=');
        if (record != before) reader_->Pick(record.substr(0, sign), std::stoi(record.substr(sign + 1)));
        before = record;
      }
      EXPECT_EQ(reader_->At(name), position) << key;
      covered_[name].insert(position);
    }
    EXPECT_EQ(reader_->app.frmMain.OpDVR.chosen, writer_.app.frmMain.OpDVR.chosen);
    EXPECT_EQ(reader_->app.frmMain.DemoMode.checked, writer_.app.frmMain.DemoMode.checked);
  }

  void ExpectAllCovered() {
    if (!writer_.app.frmMain.DemoMode.checked) writer_.Click("DemoMode");
    const auto expect = [&](const Selection& selection) {
      if (!OnScreen(writer_, selection)) return;
      EXPECT_EQ(covered_[selection.name].size(), writer_.ListOf(selection.name).items.size())
          << selection.name;
    };
    for (const auto& selection : kGlobal) expect(selection);
    for (const auto& selection : kAlarm) expect(selection);
    for (const auto& selection : kSlot) expect(selection);
  }

  FirmwareId firmware_;
  PanelProgram writer_;
  std::unique_ptr<PanelProgram> reader_;
  std::map<std::string, int> set_;
  std::map<std::string, std::set<int>> covered_;
};

TEST(SettingsWalk, EverySelectionComesBackAtEveryPosition) {
  for (const auto& entry : FirmwareTable()) {
    if (!entry.in_menu) continue;
    const FirmwareId firmware{std::string(entry.version), std::string(entry.release)};
    SCOPED_TRACE(firmware.Joined());
    EveryPosition(firmware).Run();
    if (HasFatalFailure()) return;
  }
}

// Picks and texts by chance, each watched for what it writes.
class RandomWalk {
 public:
  RandomWalk(const FirmwareId& firmware, unsigned seed)
      : program_(firmware), chance_(seed), before_(program_.app.image) {}

  void Run(int steps) {
    for (int step = 0; step < steps && !::testing::Test::HasFailure(); ++step) Step();
  }
  PanelProgram& Program() { return program_; }

 private:
  int Below(int limit) { return static_cast<int>(chance_() % static_cast<unsigned>(limit)); }

  std::string Text() {
    std::string text(static_cast<std::size_t>(Below(41)), ' ');
    for (char& character : text) {
      const int kind = Below(4);
      if (kind > 0) character = static_cast<char>(kind == 1 ? 1 + Below(255) : 'A' + Below(26));
    }
    return text;
  }

  void Step() {
    switch (Below(12)) {
      case 0:
        return PickRecord("ComboALM(0)", kAlarms);
      case 1:
        return PickRecord("ComboExcp(0)", kExceptions);
      case 2:
        return EnterText("cmdSetTrigger", "TRIGGER_TEXT");
      case 3:
        return EnterText("cmdSetExcpstr", "EXCPSTRS");
      case 4:
        return EnterText("cmdTitle", "ONSCRNTITL");
      case 5:
        return EditRange();
      case 6:
        program_.Click("DemoMode");
        return ExpectWritten("DemoMode", "DEMO_ENABLE");
      case 7:
        program_.Pick("OpDVR", Below(3));
        return ExpectWritten("OpDVR", "HIST_REG");
      case 8:
        return Choose(kAlarm[Below(std::size(kAlarm))]);
      case 9:
        return Choose(kSlot[Below(std::size(kSlot))]);
      default:
        return Choose(kGlobal[Below(std::size(kGlobal))]);
    }
  }

  void PickRecord(const char* list, int count) {
    EXPECT_EQ(program_.Pick(list, Below(count)), Outcome::kDone);
    ExpectWritten(list, "");
  }

  void Choose(const Selection& selection) {
    if (!Offered(program_, selection)) return;
    const auto entries = static_cast<int>(program_.ListOf(selection.name).items.size());
    const int position = Below(entries + 2) - 1;
    const bool exists = position >= 0 && position < entries;
    EXPECT_EQ(program_.Pick(selection.name, position), exists ? Outcome::kDone : Outcome::kRefused);
    ExpectWritten(selection.name, exists ? selection.fields : "", selection.first_digit, selection.digits);
  }

  void EnterText(const char* button, std::string_view field) {
    auto& dialog = program_.app.frmSetEXCPSTR;
    const int slot = program_.At("ComboExcp(0)") + 1;
    const auto text_before = program_.Byte(EXCPSTRS, slot);
    const std::size_t range = program_.app.firmware.IsV1400() ? 20 : 12;
    EXPECT_EQ(program_.Click(button), Outcome::kDone);
    EXPECT_EQ(program_.Type(dialog.Text1, Text()), Outcome::kDone);
    if (Below(8) == 0) program_.Click("frmSetEXCPSTR.cmdClr");
    const bool set = Below(4) != 0;
    EXPECT_EQ(program_.Press(dialog.form, set ? Key::kEnter : Key::kEscape), Outcome::kDone);
    ExpectWritten(button, set ? field : "");
    if (text_before.empty() || field != "EXCPSTRS") return;
    const auto& text_after = program_.Byte(EXCPSTRS, slot);
    EXPECT_EQ(text_after.substr(2, range), text_before.substr(2, range)) << "the range under a new text";
  }

  void EditRange() {
    auto& dialog = program_.app.frmSetRange;
    EXPECT_EQ(program_.Click("cmdSetRange"), Outcome::kDone);
    for (auto* box : {&dialog.Range_Hi, &dialog.SubRange_Hi, &dialog.Range_Low, &dialog.SubRange_Low}) {
      program_.Type(*box, std::to_string(Below(Below(2) == 0 ? 100 : 100000000)));
      if (Below(2) == 0) program_.Leave(*box);
    }
    if (Below(3) == 0) program_.Pick("ComboDec", Below(2));
    if (Below(8) == 0) program_.Click("frmSetRange.cmdClr");
    const bool set = Below(4) != 0;
    EXPECT_EQ(set ? program_.Click("frmSetRange.cmdSetRange") : program_.Close(dialog.form), Outcome::kDone);
    ExpectWritten("cmdSetRange", set ? "EXCPSTRS DECIMAL_POINT_BAK" : "DECIMAL_POINT_BAK");
  }

  // Only the fields named may have changed, in the record that is shown, and to the length that they had.
  void ExpectWritten(const char* act, std::string_view fields, std::size_t first_digit = 0,
                     std::size_t digits = std::string::npos) {
    bool changed = false;
    for (const auto& row : FieldTable()) {
      for (int entry = 1; entry <= EntryCount(row.id); ++entry) {
        const auto &was = before_.at(row.id, entry), &is = program_.app.image.at(row.id, entry);
        if (was == is) continue;
        changed = true;
        EXPECT_NE((" " + std::string(fields) + " ").find(" " + std::string(row.name) + " "),
                  std::string::npos)
            << act << " wrote " << row.name << " " << was << " " << is;
        EXPECT_TRUE(is.size() == was.size() || (row.id == BLNKRTS_BAK && was.empty()))
            << act << " " << row.name;
        if (digits != std::string::npos) {
          EXPECT_EQ(std::string(was).replace(first_digit, digits, is, first_digit, digits), is) << act;
        }
        if (EntryCount(row.id) == kAlarms) {
          EXPECT_EQ(entry, program_.At("ComboALM(0)") + 1) << act;
        }
        if (EntryCount(row.id) == kExceptions) {
          EXPECT_EQ(entry, program_.At("ComboExcp(0)") + 1) << act;
        }
      }
    }
    if (changed) before_ = program_.app.image;
  }

  PanelProgram program_;
  std::mt19937 chance_;
  ConfigImage before_;
};

TEST(SettingsWalk, ByChanceNothingElseIsTouchedAndASeedGivesOneImage) {
  constexpr int kSteps = 10000;
  constexpr unsigned kSeed = 20240229;
  for (const auto& firmware : {FirmwareId{"V1400", "R12"}, {"V1324", "R17"}, {"V1334", "R1"}}) {
    SCOPED_TRACE(firmware.Joined());
    RandomWalk first(firmware, kSeed), second(firmware, kSeed);
    const auto length = SectionsToStream(first.Program().app).size();
    first.Run(kSteps);
    second.Run(kSteps);
    auto& app = first.Program().app;
    const auto stream = SectionsToStream(app);
    EXPECT_EQ(stream.size(), length);
    EXPECT_EQ(stream, SectionsToStream(second.Program().app));
    EXPECT_TRUE(app.image == second.Program().app.image);
    EXPECT_TRUE(first.Program().NoBoxLeft());

    PanelProgram reader(firmware);
    ASSERT_EQ(reader.Open(stream), Outcome::kDone);
    for (int slot = 0; slot < kExceptions; ++slot) reader.Pick("ComboExcp(0)", slot);
    for (int alarm = 0; alarm < kAlarms; ++alarm) reader.Pick("ComboALM(0)", alarm);
    EXPECT_EQ(SectionsToStream(reader.app), stream);
  }
}

}  // namespace
}  // namespace ovl::testing
