// The demonstration after power-up, and the recorder that the unit feeds.
#include "panels/acts.h"

namespace ovl::testing {
namespace {

using enum FieldId;

struct DemoForm {
  FirmwareId firmware;
  bool old_form, type_shown, speed_shown;
};

std::vector<DemoForm> DemoForms() {
  return {{{"V1400", "R1"}, true, false, false},  {{"V1400", "R2"}, false, true, false},
          {{"V1400", "R7"}, false, true, false},  {{"V1400", "R12"}, false, true, false},
          {{"V1300", "R14"}, true, false, false}, {{"V1300", "R26"}, true, false, false},
          {{"V1300", "R27"}, false, false, true}, {{"V1324", "R25"}, true, false, false},
          {{"V1324", "R26"}, false, false, true}, {{"V1310", "R1"}, false, false, true},
          {{"V1334", "R1"}, false, false, true}};
}

void ExpectDemoShown(PanelProgram& program, const DemoForm& form, bool on) {
  EXPECT_EQ(program.app.frmMain.DemoMode.checked, on);
  EXPECT_EQ(program.Visible("CharacterList"), on);
  EXPECT_EQ(program.Visible("DemoType"), on && form.type_shown);
  EXPECT_EQ(program.Visible("DemoSpeed"), on && form.speed_shown);
}

TEST(Demo, TheCheckMarkIsTheHighestBitAndShowsWhatTheFirmwareHas) {
  for (const auto& form : DemoForms()) {
    SCOPED_TRACE(form.firmware.Joined());
    PanelProgram program(form.firmware);
    ExpectDemoShown(program, form, false);
    program.Byte(DEMO_ENABLE) = "5A";
    program.Mark();
    for (int round = 0; round < 2; ++round) {
      ASSERT_EQ(program.Click("DemoMode"), Outcome::kDone);
      EXPECT_EQ(program.Written(), "DEMO_ENABLE=DA");
      ExpectDemoShown(program, form, true);
      ASSERT_EQ(program.Click("DemoMode"), Outcome::kDone);
      EXPECT_EQ(program.Written(), "");
      ExpectDemoShown(program, form, false);
    }
    for (const auto& [byte, on] : {std::pair{"81", true}, {"01", false}, {"FF", true}, {"7F", false}}) {
      program.Byte(DEMO_ENABLE) = byte;
      ASSERT_EQ(program.Reload(), Outcome::kDone);
      ExpectDemoShown(program, form, on);
      EXPECT_EQ(program.Byte(DEMO_ENABLE), byte);
    }
  }
}

TEST(Demo, AReleaseIsComparedNumberByNumber) {
  const std::tuple<const char*, bool, bool> releases[] = {{"R3", false, false}, {"R5", false, false},
                                                          {"R8", false, false}, {"R10", false, false},
                                                          {"R13", true, true},  {"R20", true, true}};
  for (const auto& [release, type, speed] : releases) {
    SCOPED_TRACE(release);
    Harness program({"V1400", release});
    ASSERT_EQ(program.Start(), Outcome::kDone);
    ASSERT_EQ(program.Click("DemoMode"), Outcome::kDone);
    EXPECT_TRUE(program.Control("CharacterList").visible);
    EXPECT_EQ(program.Control("DemoType").visible, type);
    EXPECT_EQ(program.Control("DemoSpeed").visible, speed);
  }
  Harness program({"V1400", "R0"});
  ASSERT_EQ(program.Start(), Outcome::kDone);
  program.app.image[DEMO_ENABLE] = "5A";
  for (const char* name : {"CharacterList", "DemoType", "DemoSpeed"}) {
    program.Control(name).visible = true;
    ASSERT_EQ(program.Pick(name, 1), Outcome::kDone);
  }
  EXPECT_EQ(program.app.image[DEMO_ENABLE], "5A");
}

TEST(Demo, EachSelectionHasItsBitsInTheFormOfTheFirmware) {
  struct Row {
    const char* name;
    int position;
    int before, after;
  };
  const std::vector<Row> new_form = {{"CharacterList", 0, 0xFF, 0xBF}, {"CharacterList", 1, 0x80, 0xC0},
                                     {"DemoSpeed", 0, 0xFF, 0xCF},     {"DemoSpeed", 1, 0x00, 0x10},
                                     {"DemoSpeed", 2, 0xFF, 0xEF},     {"DemoSpeed", 3, 0x80, 0xB0}};
  const std::vector<Row> types = {
      {"DemoType", 0, 0xFF, 0xF0}, {"DemoType", 2, 0x40, 0x42}, {"DemoType", 5, 0xFA, 0xF5}};
  const std::vector<Row> no_types = {{"DemoType", 0, 0xFF, 0xFF}, {"DemoType", 5, 0x40, 0x40}};
  const std::vector<Row> no_speed = {{"DemoSpeed", 0, 0xFF, 0xFF}, {"DemoSpeed", 3, 0x40, 0x40}};
  const std::vector<Row> old_list = {{"CharacterList", 0, 0x82, 0x81},
                                     {"CharacterList", 1, 0x01, 0x02},
                                     {"CharacterList", 0, 0x02, 0x01},
                                     {"CharacterList", 1, 0x81, 0x82}};
  const std::vector<Row> old_list_alone = {{"CharacterList", 0, 0xFF, 0x81},
                                           {"CharacterList", 1, 0x7F, 0x02}};
  const std::vector<Row> first_v1400 = {{"DemoSpeed", 0, 0xFF, 0xC1},
                                        {"DemoSpeed", 3, 0x3F, 0x04},
                                        {"DemoType", 0, 0xFF, 0xC0},
                                        {"DemoType", 5, 0x7F, 0x45}};
  for (const auto& form : DemoForms()) {
    PanelProgram program(form.firmware);
    const auto expect_stored = [&](const std::vector<Row>& rows) {
      for (const auto& row : rows) {
        SCOPED_TRACE(form.firmware.Joined() + " " + row.name + " " + std::to_string(row.position));
        program.Reveal(row.name);
        program.Byte(DEMO_ENABLE) = ByteToHex(row.before);
        ASSERT_EQ(program.Pick(row.name, row.position), Outcome::kDone);
        EXPECT_EQ(program.Byte(DEMO_ENABLE), ByteToHex(row.after));
      }
    };
    const bool v1400 = form.firmware.IsV1400();
    expect_stored(form.old_form ? old_list : new_form);
    if (v1400) expect_stored(form.old_form ? first_v1400 : types);
    if (!v1400) expect_stored(no_types);
    if (!v1400 && form.old_form) expect_stored(old_list_alone);
    if (!v1400 && form.old_form) expect_stored(no_speed);
  }
}

TEST(Demo, TheByteIsShownInTheFormOfTheFirmware) {
  struct Row {
    int byte;
    int characters, speed, type;  // in the new form
    int old_characters;
  };
  const Row rows[] = {{0x01, 0, 0, 1, 0}, {0x81, 0, 0, 1, 1}, {0x02, 0, 0, 2, 1}, {0xC2, 1, 0, 2, 1},
                      {0x41, 1, 0, 1, 0}, {0x00, 0, 0, 0, 1}, {0x35, 0, 3, 5, 1}, {0xE4, 1, 2, 4, 1},
                      {0x16, 0, 1, 4, 1}, {0xC1, 1, 0, 1, 1}};
  for (const auto& form : DemoForms()) {
    PanelProgram program(form.firmware);
    const int type = program.At("DemoType"), speed = program.At("DemoSpeed");
    for (const auto& row : rows) {
      // With bit 6 set and the rest at 1 the old form's mask still reads 1.
      SCOPED_TRACE(form.firmware.Joined() + " " + ByteToHex(row.byte));
      program.Byte(DEMO_ENABLE) = ByteToHex(row.byte);
      ASSERT_EQ(program.Reload(), Outcome::kDone);
      EXPECT_EQ(program.At("CharacterList"), form.old_form ? row.old_characters : row.characters);
      EXPECT_EQ(program.At("DemoSpeed"), form.old_form ? speed : row.speed);
      EXPECT_EQ(program.At("DemoType"), !form.old_form && form.firmware.IsV1400() ? row.type : type);
      EXPECT_EQ(program.Byte(DEMO_ENABLE), ByteToHex(row.byte));
    }
  }
}

struct DvrForm {
  FirmwareId firmware;
  bool second_pair;
};

std::vector<DvrForm> DvrForms() {
  return {{{"V1400", "R1"}, true},   {{"V1400", "R12"}, true},  {{"V1310", "R1"}, true},
          {{"V1334", "R1"}, true},   {{"V1300", "R27"}, true},  {{"V1324", "R26"}, true},
          {{"V1300", "R26"}, false}, {{"V1300", "R14"}, false}, {{"V1324", "R25"}, false}};
}

void ExpectPairs(PanelProgram& program, bool first, bool second) {
  for (int member = 0; member < 4; ++member) {
    const bool enabled = member < 2 ? first : second;
    EXPECT_EQ(program.Enabled(Member("ComboKLM4011", member)), enabled) << member;
    EXPECT_EQ(program.Enabled(Member("Label1", 12 + member)), enabled) << member;
  }
}

TEST(Dvr, TheRecorderEnablesItsPair) {
  for (const auto& form : DvrForms()) {
    SCOPED_TRACE(form.firmware.Joined());
    PanelProgram program(form.firmware);
    program.Byte(HIST_DEST_ID) = "05";
    program.Byte(HIST_SRC_ID) = "20";
    for (const int recorder : {1, 2, 0, 2, 1, 1}) {
      program.Byte(HIST_REG) = "EE";
      program.Mark();
      const bool offered = recorder != 2 || form.second_pair;
      ASSERT_EQ(program.Click(Member("OpDVR", recorder)), offered ? Outcome::kDone : Outcome::kRefused);
      if (!offered) continue;
      EXPECT_EQ(program.Written(), "HIST_REG=" + ByteToHex(recorder));
      ExpectPairs(program, recorder == 1, recorder == 2);
    }
  }
}

TEST(Dvr, AnIdIsStoredByThePairThatIsEnabled) {
  PanelProgram program({"V1400", "R12"});
  for (const int recorder : {1, 2}) {
    ASSERT_EQ(program.Click(Member("OpDVR", recorder)), Outcome::kDone);
    for (int place = 0; place < 32; ++place) {
      for (const int side : {0, 1}) {
        const auto name = Member("ComboKLM4011", 2 * (recorder - 1) + side);
        const auto other = Member("ComboKLM4011", 2 * (2 - recorder) + side);
        const int shown = program.At(other);
        program.Byte(side == 0 ? HIST_DEST_ID : HIST_SRC_ID) = "EE";
        program.Mark();
        ASSERT_EQ(program.Pick(name, place), Outcome::kDone);
        EXPECT_EQ(program.Written(), (side == 0 ? "HIST_DEST_ID=" : "HIST_SRC_ID=") + ByteToHex(place + 1));
        EXPECT_EQ(program.At(other), shown);
        EXPECT_EQ(program.Pick(other, place), Outcome::kRefused);
      }
    }
    EXPECT_EQ(program.app.SavedIndexes["ComboKLM4011"].size(), 4U);
  }
  program.Pick("ComboKLM4011(2)", 6);
  ASSERT_EQ(program.Reload(), Outcome::kDone);
  for (int member = 0; member < 4; ++member)
    EXPECT_EQ(program.At(Member("ComboKLM4011", member)), member % 2 == 0 ? 6 : 31);
}

TEST(Dvr, ALoadShowsRecorderAndIds) {
  for (const auto& form : DvrForms()) {
    SCOPED_TRACE(form.firmware.Joined());
    PanelProgram program(form.firmware);
    int dest = 0, src = 0;
    const int second_dest = program.At("ComboKLM4011(2)");
    const std::tuple<int, int, int> rows[] = {{1, 3, 32}, {1, 3, 32},  {0, 7, 8}, {2, 9, 10},
                                              {2, 0, 33}, {1, 255, 1}, {0, 32, 0}};
    for (const auto& [recorder, stored_dest, stored_src] : rows) {
      SCOPED_TRACE(std::to_string(recorder) + " " + std::to_string(stored_dest) + " " +
                   std::to_string(stored_src));
      program.Byte(HIST_REG) = ByteToHex(recorder);
      program.Byte(HIST_DEST_ID) = ByteToHex(stored_dest);
      program.Byte(HIST_SRC_ID) = ByteToHex(stored_src);
      program.Mark();
      ASSERT_EQ(program.Reload(), Outcome::kDone);
      if (stored_dest >= 1 && stored_dest <= 32) dest = stored_dest - 1;
      if (stored_src >= 1 && stored_src <= 32) src = stored_src - 1;
      EXPECT_EQ(program.app.frmMain.OpDVR.chosen, recorder);
      EXPECT_EQ(program.At("ComboKLM4011(0)"), dest);
      EXPECT_EQ(program.At("ComboKLM4011(1)"), src);
      EXPECT_EQ(program.At("ComboKLM4011(2)"), form.second_pair ? dest : second_dest);
      if (form.second_pair) {
        EXPECT_EQ(program.At("ComboKLM4011(3)"), src);
        ExpectPairs(program, recorder == 1, recorder == 2);
      } else {
        EXPECT_EQ(program.Enabled("ComboKLM4011(0)"), recorder == 1);
        EXPECT_EQ(program.Enabled("ComboKLM4011(1)"), recorder == 1);
      }
      EXPECT_EQ(program.Written(), "");
    }
  }
}

}  // namespace
}  // namespace ovl::testing
