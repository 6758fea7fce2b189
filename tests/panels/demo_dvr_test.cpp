// The demonstration after power-up, and the recorder that the unit feeds.
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
  const std::pair<const char*, bool> releases[] = {{"R3", false},  {"R5", false}, {"R8", false},
                                                   {"R10", false}, {"R13", true}, {"R20", true}};
  for (const auto& [release, later] : releases) {
    SCOPED_TRACE(release);
    Harness program({"V1400", release});
    ASSERT_EQ(program.Start(), Outcome::kDone);
    ASSERT_EQ(program.Click("DemoMode"), Outcome::kDone);
    EXPECT_TRUE(program.Control("CharacterList").visible);
    EXPECT_EQ(program.Control("DemoType").visible, later);
    EXPECT_EQ(program.Control("DemoSpeed").visible, later);
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

TEST(Demo, TheByteIsShownInTheFormOfTheFirmware) {
  struct Row {
    int byte;
    int characters, speed, type;  // in the new form
    int old_characters;
  };
  // With bit 6 set and the rest at 1 the old form's mask still reads 1.
  const Row rows[] = {{0x01, 0, 0, 1, 0}, {0x81, 0, 0, 1, 1}, {0x02, 0, 0, 2, 1}, {0xC2, 1, 0, 2, 1},
                      {0x41, 1, 0, 1, 0}, {0x00, 0, 0, 0, 1}, {0x35, 0, 3, 5, 1}, {0xE4, 1, 2, 4, 1},
                      {0x16, 0, 1, 4, 1}, {0xC1, 1, 0, 1, 1}};
  for (const auto& firmware : AllFirmware()) {
    PanelProgram program(firmware);
    const bool old = HasOldDemo(firmware);
    const int type = program.At("DemoType"), speed = program.At("DemoSpeed");
    for (const auto& row : rows) {
      SCOPED_TRACE(firmware.Joined() + " " + ByteToHex(row.byte));
      EXPECT_EQ(program.Load({{DEMO_ENABLE, ByteToHex(row.byte)}}), "");
      EXPECT_EQ(program.At("CharacterList"), old ? row.old_characters : row.characters);
      EXPECT_EQ(program.At("DemoSpeed"), old ? speed : row.speed);
      EXPECT_EQ(program.At("DemoType"), !old && firmware.IsV1400() ? row.type : type);
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
    const int second_dest = loaded.At("ComboKLM4011(2)"), second_src = loaded.At("ComboKLM4011(3)");
    int chosen = 0;
    const std::tuple<int, int, int> rows[] = {{1, 3, 32}, {255, 3, 32}, {1, 4, 31}, {0, 7, 8},
                                              {2, 9, 10}, {255, 1, 2},  {1, 5, 6}};
    for (const auto& [recorder, dest, src] : rows) {
      EXPECT_EQ(loaded.Load({{HIST_REG, ByteToHex(recorder)},
                             {HIST_DEST_ID, ByteToHex(dest)},
                             {HIST_SRC_ID, ByteToHex(src)}}),
                "");
      if (recorder != 255) chosen = recorder;
      EXPECT_EQ(loaded.app.frmMain.OpDVR.chosen, chosen);
      EXPECT_EQ(loaded.At("ComboKLM4011(0)"), dest - 1);
      EXPECT_EQ(loaded.At("ComboKLM4011(1)"), src - 1);
      EXPECT_EQ(loaded.At("ComboKLM4011(2)"), two_pairs ? dest - 1 : second_dest);
      EXPECT_EQ(loaded.At("ComboKLM4011(3)"), two_pairs ? src - 1 : second_src);
      // A recorder that does not exist leaves the choice, and disables the pair where there is one alone.
      if (recorder == 255 && !two_pairs) {
        EXPECT_FALSE(loaded.Enabled("ComboKLM4011(0)"));
      } else {
        expect_pairs(loaded, chosen == 1, chosen == 2);
      }
    }
  }
}

}  // namespace
}  // namespace ovl::testing
