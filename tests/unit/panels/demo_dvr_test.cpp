// The demonstration after power-up, the recorder, and the panels of an unknown family.
#include "unit/panels/panel_program.h"

namespace ovl::testing {
namespace {

TEST(Demo, TheCheckMarkIsTheHighestBitAndShowsWhatTheFirmwareHas) {
  for (const auto& firmware : EveryFirmware()) {
    PanelProgram program(firmware);
    const bool more = !FactsOf(firmware).Has(Feature::kOldDemo), v1400 = firmware.IsV1400();
    const auto expect_shown = [&](bool on) {
      EXPECT_EQ(program.app.frmMain.DemoMode.checked, on);
      EXPECT_EQ(program.Visible("CharacterList"), on);
      EXPECT_EQ(program.Visible("DemoType"), on && more && v1400);
      EXPECT_EQ(program.Visible("DemoSpeed"), on && more && (!v1400 || firmware.Number() >= 13));
    };
    expect_shown(false);
    program.Byte(DEMO_ENABLE) = "5A";
    for (const bool on : {true, false}) {
      ASSERT_EQ(program.Click("DemoMode"), core::Outcome::kDone);
      EXPECT_EQ(program.Byte(DEMO_ENABLE), on ? "DA" : "5A");
      expect_shown(on);
    }
    for (const auto& [byte, on] : {std::pair{"81", true}, {"01", false}, {"FF", true}, {"7F", false}}) {
      EXPECT_EQ(program.Load({{DEMO_ENABLE, byte}}), "");
      expect_shown(on);
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
  for (const auto& firmware : EveryFirmware()) {
    const bool two_pairs = !FactsOf(firmware).Has(Feature::kOnePairOfIds);
    PanelProgram picked(firmware), loaded(firmware);
    for (const int recorder : {1, 2, 0, 2, 1, 1}) {
      const bool offered = recorder != 2 || two_pairs;
      EXPECT_EQ(picked.Effect("OpDVR", recorder),
                offered ? "HIST_REG=" + codecs::ByteToHex(recorder) : "refused");
      if (offered) expect_pairs(picked, recorder == 1, recorder == 2);
    }
    const int second_pair = loaded.At("ComboKLM4011(2)");
    int chosen = 0;
    for (const int recorder : {1, 255, 1, 0, 2, 255, 1}) {
      EXPECT_EQ(
          loaded.Load({{HIST_REG, codecs::ByteToHex(recorder)}, {HIST_DEST_ID, "03"}, {HIST_SRC_ID, "20"}}),
          "");
      const int ids[] = {2, 31, two_pairs ? 2 : second_pair, two_pairs ? 31 : second_pair};
      for (int member = 0; member < 4; ++member)
        EXPECT_EQ(loaded.At(Member("ComboKLM4011", member)), ids[member]) << member;
      if (recorder != 255) chosen = recorder;
      EXPECT_EQ(loaded.app.frmMain.OpDVR.chosen, chosen) << "one that does not exist leaves the choice";
      expect_pairs(loaded, chosen == 1 && (recorder != 255 || two_pairs), chosen == 2);
    }
  }
}

TEST(UnknownFamily, ShowsOnlyItsRecorderAndItsCheckMarkAndKeepsItsBytes) {
  Installed program({"V1500", "R1"}, Images::kFirstRegister);
  auto& app = program.app;
  auto& main = app.frmMain;
  // So far no alarm and no slot has been picked.
  app.image[DECIMAL_POINT_BAK] = "00";
  program.Mark();
  for (const char* list : {"ComboALM(1)", "ComboALM(2)", "ComboALM(3)", "ComboTrigger(0)", "ComboTrigger(2)",
                           "ComboExcp(1)", "ComboExcp(5)"})
    ASSERT_EQ(program.Pick(list, 1), core::Outcome::kDone) << list;
  for (const char* button : {"cmdSetTrigger", "frmSetEXCPSTR.cmdSET", "cmdSetExcpstr", "frmSetEXCPSTR.cmdSET",
                             "cmdSetRange", "frmSetRange.cmdSetRange"}) {
    ASSERT_EQ(program.Click(button), core::Outcome::kDone) << button;
    app.frmSetEXCPSTR.Text1.text = "typed";
  }
  EXPECT_EQ(main.TextException.text, "typed");
  EXPECT_EQ(program.Written(), "");
  EXPECT_FALSE(app.ImageTouched);
  ASSERT_EQ(program.Pick("ComboALM(4)", 3), core::Outcome::kDone);
  EXPECT_EQ(program.Written(), "ALMCFG_BAK=03");
  EXPECT_TRUE(app.ImageTouched) << "the next register brings its own fields only";

  const std::pair<image::FieldId, const char*> bytes[] = {{HIST_REG, "01"},
                                                          {HIST_DEST_ID, "05"},
                                                          {DEMO_ENABLE, "81"},
                                                          {IOCFG_BAK, "1D"},
                                                          {ALMSTRUCT_BAK, "01FF00"}};
  for (const auto& [field, byte] : bytes) app.image[field] = byte;
  const auto file = program.folder.File("opened.bin");
  WriteFile(file, PatternStream(kLatest) + "\r\n");
  ASSERT_EQ(program.Open(file), core::Outcome::kDone);
  EXPECT_EQ(main.OpDVR.chosen, 1);
  EXPECT_TRUE(main.DemoMode.checked && main.CharacterList.visible);
  EXPECT_NE(main.ComboKLM4011[0].position, 4);
  EXPECT_NE(main.CharacterList.position, 1);
  EXPECT_NE(main.ComboCOMM[0].position, 1);
  for (const auto& [list, position] :
       {std::pair{"ComboALM(0)", 0}, {"ComboALM(3)", 5}, {"ComboCOMM(0)", 2}, {"CharacterList", 1}})
    ASSERT_EQ(program.Pick(list, position), core::Outcome::kDone) << list;
  for (const auto& [field, byte] : bytes) EXPECT_EQ(app.image[field], byte);
}

}  // namespace
}  // namespace ovl::testing
