// The demonstration after power-up, the recorder that the unit feeds, and what an unknown family has.
#include "panels/acts.h"

namespace ovl::testing {
namespace {

using enum FieldId;

TEST(Demo, TheCheckMarkIsTheHighestBitAndShowsWhatTheFirmwareHas) {
  for (const auto& firmware : AllFirmware()) {
    SCOPED_TRACE(firmware.Joined());
    PanelProgram program(firmware);
    const bool more = !HasOldDemo(firmware);
    const auto expect_shown = [&](bool on) {
      EXPECT_EQ(program.app.frmMain.DemoMode.checked, on);
      EXPECT_EQ(program.Visible("CharacterList"), on);
      EXPECT_EQ(program.Visible("DemoType"), on && more && firmware.IsV1400());
      EXPECT_EQ(program.Visible("DemoSpeed"), on && more && !firmware.IsV1400());
    };
    expect_shown(false);
    program.Byte(DEMO_ENABLE) = "5A";
    for (const bool on : {true, false}) {
      ASSERT_EQ(program.Click("DemoMode"), Outcome::kDone);
      EXPECT_EQ(program.Byte(DEMO_ENABLE), on ? "DA" : "5A");
      expect_shown(on);
    }
    for (const auto& [byte, on] : {std::pair{"81", true}, {"01", false}, {"FF", true}, {"7F", false}}) {
      EXPECT_EQ(program.Load({{DEMO_ENABLE, byte}}), "");
      expect_shown(on);
    }
  }
}

TEST(Demo, AReleaseIsComparedNumberByNumber) {
  const std::pair<std::string, bool> releases[] = {{"R0", false}, {"R3", false},  {"R5", false},
                                                   {"R8", false}, {"R10", false}, {"R13", true},
                                                   {"R20", true}};
  for (const auto& [release, later] : releases) {
    SCOPED_TRACE(release);
    Harness program({"V1400", release});
    ASSERT_EQ(program.Start(), Outcome::kDone);
    ASSERT_EQ(program.Click("DemoMode"), Outcome::kDone);
    EXPECT_TRUE(program.Control("CharacterList").visible);
    EXPECT_EQ(program.Control("DemoType").visible, later);
    EXPECT_EQ(program.Control("DemoSpeed").visible, later);
    for (const char* name : {"CharacterList", "DemoType", "DemoSpeed"}) {
      program.app.image[DEMO_ENABLE] = "8F";
      program.Control(name).visible = true;
      ASSERT_EQ(program.Pick(name, 1), Outcome::kDone);
      EXPECT_EQ(program.app.image[DEMO_ENABLE] == "8F", release == "R0") << name;
    }
  }
}

TEST(Dvr, ARecorderEnablesItsPairAndALoadShowsTheIds) {
  const auto expect_pairs = [](PanelProgram& program, bool first, bool second) {
    for (int member = 0; member < 4; ++member) {
      EXPECT_EQ(program.Enabled(Member("ComboKLM4011", member)), member < 2 ? first : second) << member;
      EXPECT_EQ(program.Enabled(Member("Label1", 12 + member)), member < 2 ? first : second) << member;
    }
  };
  for (const auto& firmware : AllFirmware()) {
    SCOPED_TRACE(firmware.Joined());
    const bool two_pairs = !Before(firmware, 0, 27, 26);
    PanelProgram picked(firmware), loaded(firmware);
    for (const int recorder : {1, 2, 0, 2, 1, 1}) {
      const bool offered = recorder != 2 || two_pairs;
      EXPECT_EQ(picked.Effect("OpDVR", recorder), offered ? "HIST_REG=" + ByteToHex(recorder) : "refused");
      if (offered) expect_pairs(picked, recorder == 1, recorder == 2);
    }
    const int second_pair = loaded.At("ComboKLM4011(2)");
    int chosen = 0;
    for (const int recorder : {1, 255, 1, 0, 2, 255, 1}) {
      EXPECT_EQ(loaded.Load({{HIST_REG, ByteToHex(recorder)}, {HIST_DEST_ID, "03"}, {HIST_SRC_ID, "20"}}),
                "");
      EXPECT_EQ(loaded.At("ComboKLM4011(0)"), 2);
      EXPECT_EQ(loaded.At("ComboKLM4011(1)"), 31);
      EXPECT_EQ(loaded.At("ComboKLM4011(2)"), two_pairs ? 2 : second_pair);
      EXPECT_EQ(loaded.At("ComboKLM4011(3)"), two_pairs ? 31 : second_pair);
      if (recorder != 255) chosen = recorder;
      EXPECT_EQ(loaded.app.frmMain.OpDVR.chosen, chosen)
          << "a recorder that does not exist leaves the choice";
      const bool lone_pair_off = recorder == 255 && !two_pairs;
      expect_pairs(loaded, chosen == 1 && !lone_pair_off, chosen == 2);
    }
  }
}

TEST(UnknownFamily, ShowsItsRecorderAndItsCheckMarkAndKeepsTheRest) {
  Harness program({"V1500", "R1"});
  ASSERT_EQ(program.Start(), Outcome::kDone);
  auto& app = program.app;
  // No alarm and no slot was picked yet.
  app.image[DECIMAL_POINT_BAK] = "00";
  const auto untouched = app.image;
  for (const char* list : {"ComboALM(1)", "ComboALM(2)", "ComboALM(3)", "ComboTrigger(0)", "ComboTrigger(2)",
                           "ComboExcp(1)", "ComboExcp(5)"})
    ASSERT_EQ(program.Pick(list, 1), Outcome::kDone) << list;
  for (const char* button : {"cmdSetTrigger", "frmSetEXCPSTR.cmdSET", "cmdSetExcpstr", "frmSetEXCPSTR.cmdSET",
                             "cmdSetRange", "frmSetRange.cmdSetRange"}) {
    ASSERT_EQ(program.Click(button), Outcome::kDone) << button;
    app.frmSetEXCPSTR.Text1.text = "typed";
  }
  EXPECT_EQ(app.frmMain.TextException.text, "typed");
  EXPECT_TRUE(app.image == untouched);
  EXPECT_FALSE(app.ImageTouched);
  ASSERT_EQ(program.Pick("ComboALM(4)", 3), Outcome::kDone);
  EXPECT_EQ(app.image[ALMCFG_BAK], "03");
  EXPECT_TRUE(app.ImageTouched) << "the next register brings its own fields only";

  const std::pair<FieldId, const char*> bytes[] = {{HIST_REG, "01"},
                                                   {HIST_DEST_ID, "05"},
                                                   {DEMO_ENABLE, "81"},
                                                   {IOCFG_BAK, "1D"},
                                                   {ALMSTRUCT_BAK, "01FF00"}};
  for (const auto& [field, byte] : bytes) app.image[field] = byte;
  program.file_answers.emplace_back(program.folder.File("opened.bin"));
  WriteWhole(program.folder.File("opened.bin"), PatternStream({"V1400", "R12"}) + "\r\n");
  ASSERT_EQ(program.Click("OpenMenu"), Outcome::kDone);
  EXPECT_EQ(app.frmMain.OpDVR.chosen, 1);
  EXPECT_NE(app.frmMain.ComboKLM4011[0].position, 4);
  EXPECT_TRUE(app.frmMain.DemoMode.checked && app.frmMain.CharacterList.visible);
  EXPECT_NE(app.frmMain.CharacterList.position, 1);
  EXPECT_NE(app.frmMain.ComboCOMM[0].position, 1);
  const std::pair<const char*, int> picks[] = {
      {"ComboALM(0)", 0}, {"ComboALM(3)", 5}, {"ComboCOMM(0)", 2}, {"CharacterList", 1}};
  for (const auto& [list, position] : picks) ASSERT_EQ(program.Pick(list, position), Outcome::kDone) << list;
  for (const auto& [field, byte] : bytes) EXPECT_EQ(app.image[field], byte);
}

}  // namespace
}  // namespace ovl::testing
