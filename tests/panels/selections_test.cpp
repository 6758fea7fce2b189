// The selections that stand for a number or for some bits: what a pick stores, and how that is shown again.
#include "panels/acts.h"

namespace ovl::testing {
namespace {

using enum FieldId;

std::vector<int> From(int first, int count, int step = 1) {
  std::vector<int> numbers;
  for (int at = 0; at < count; ++at) numbers.push_back(first + at * step);
  return numbers;
}

struct Selection {
  const char* list;
  FieldId field;
  std::vector<int> stored;  // by position
  int mask = 0xFF;
  // What has to be picked first.
  const char* before = nullptr;
  int position_before = 0;
};

std::vector<Selection> Numbers() {
  return {{"ComboCOMM(1)", RX_BAUDRATE, From(0, 11)},
          {"ComboCOMM(2)", TX_BAUDRATE, From(0, 11)},
          {"ComboCOMM(8)", SW_HANDSHAKE, From(0, 3)},
          {"ComboCOMM(12)", NET_BAUDRATE, From(0, 10)},
          {"ComboCOMM(7)", TX_PROTOCOL, From(0, 5), 0xFF, "ComboCOMM(9)", 1},
          {"ComboCOMM(10)", NET_ADDRESS, From(0, 17), 0xFF, "ComboCOMM(9)", 2},
          {"ComboDIP(1)", DSPLINES_BAK, From(1, 11)},
          {"ComboDIP(7)", SPCOMPRES_BAK, From(0, 6)},
          {"ComboDIP(8)", DSPCHARS_BAK, From(10, 31)},
          {"ComboTD(1)", TIME_FORMAT_BAK, From(0, 2)},
          {"ComboTD(2)", DATE_FORMAT_BAK, From(0, 3)},
          {"ComboTD(4)", TD_LOCKING_BAK, From(0, 2)},
          {"ComboLang", LANGUAGE_BAK, From(0, 3)},
          {"ComboExcepRe(1)", TIMESTAMP_ENA, From(0, 2)},
          {"ComboExcepRe(2)", DUPLINE_BAK, From(0, 2)},
          {"ComboScroll(1)", SCROLLMATCH_BAK, From(0, 6)},
          {"ComboALM(5)", FLAGDWLIND, From(0, 121, 2)},
          {"OpDVR", HIST_REG, From(0, 3)},
          {"ComboKLM4011(0)", HIST_DEST_ID, From(1, 32), 0xFF, "OpDVR", 1},
          {"ComboKLM4011(1)", HIST_SRC_ID, From(1, 32), 0xFF, "OpDVR", 1},
          {"ComboKLM4011(2)", HIST_DEST_ID, From(1, 32), 0xFF, "OpDVR", 2},
          {"ComboKLM4011(3)", HIST_SRC_ID, From(1, 32), 0xFF, "OpDVR", 2}};
}

std::vector<Selection> Flags() {
  return {{"ComboCOMM(3)", COMMCFG_BAK, {0x00, 0x03, 0x02}, 0x03},
          {"ComboCOMM(4)", COMMCFG_BAK, {0x00, 0x04}, 0x04},
          {"ComboCOMM(5)", COMMCFG_BAK, {0x20, 0x00}, 0x20},
          {"ComboExcepRe(0)", COMMCFG_BAK, {0x00, 0x10}, 0x10},
          {"ComboDIP(2)", DSPCFG_BAK, {0x00, 0x02}, 0x02, "ComboDIP(1)", 10},
          {"ComboDIP(3)", DSPCFG_BAK, {0x00, 0x04}, 0x04},
          {"ComboDIP(4)", DSPCFG_BAK, {0x00, 0x40}, 0x40},
          {"ComboDIP(5)", DSPCFG_BAK, {0x00, 0x08}, 0x08},
          {"ComboDIP(6)", DSPCFG_BAK, {0x00, 0x20}, 0x20},
          {"ComboTD(5)", DSPCFG_BAK, {0x00, 0x10}, 0x10},
          {"ComboTD(0)", DSPCFG_BAK, {0x00, 0x80}, 0x80},
          {"ComboALM(4)", ALMCFG_BAK, From(0, 5), 0x07}};
}

std::vector<Selection> FlagsOfRecords() {
  return {{"ComboTrigger(0)", TRIGGER_TEXT, {0x00, 0x01}, 0x01},
          {"ComboTrigger(1)", TRIGGER_TEXT, {0x00, 0x02}, 0x02},
          {"ComboExcp(1)", EXCPSTRS, {0x00, 0x01}, 0x01},
          {"ComboExcp(2)", EXCPSTRS, {0x00, 0x02}, 0x02},
          {"ComboExcp(3)", EXCPSTRS, {0x00, 0x20}, 0x20},
          {"ComboExcp(5)", EXCPSTRS, {0x00, 0x04, 0x08}, 0x0C},
          {"ComboExcp(4)", EXCPSTRS, {0x00, 0x40}, 0x40}};
}

// The field and no other. OUTPUT of the exception report stores the time stamp's selection as well, and
// DISPLAY LINE follows the clock and the title.
void ExpectStored(PanelProgram& program, const Selection& row) {
  SCOPED_TRACE(row.list);
  for (int position = static_cast<int>(row.stored.size()) - 1; position >= 0; --position) {
    for (const int before : {0x00, 0xFF, 0x5B}) {
      const int after = (before & ~row.mask) | row.stored[static_cast<std::size_t>(position)];
      const auto written =
          program.Effect(row.list, position, {{TIMESTAMP_ENA, "00"}, {row.field, ByteToHex(before)}});
      EXPECT_EQ(program.Byte(row.field), ByteToHex(after)) << position << " over " << before;
      EXPECT_EQ(std::count(written.begin(), written.end(), '='), after == before ? 0 : 1) << written;
    }
  }
  EXPECT_EQ(program.Pick(row.list, static_cast<int>(row.stored.size())), Outcome::kRefused);
}

void ExpectShown(PanelProgram& program, const Selection& row) {
  SCOPED_TRACE(row.list);
  const auto& stored = row.stored;
  for (const auto number : stored) {
    for (const int others : {0x00, 0xFF & ~row.mask}) {
      EXPECT_EQ(program.Load({{row.field, ByteToHex(number | others)}}), "");
      EXPECT_EQ(program.Selected(row.list), std::find(stored.begin(), stored.end(), number) - stored.begin());
    }
  }
  for (const int odd : {stored.front() - 1, stored.back() + 1, 255}) {
    if (odd < 0 || std::find(stored.begin(), stored.end(), odd & row.mask) != stored.end()) continue;
    EXPECT_EQ(program.Load({{row.field, ByteToHex(odd)}}), "");
    EXPECT_EQ(program.Selected(row.list), static_cast<int>(stored.size()) - 1)
        << "what the list lacks leaves it";
  }
}

TEST(Selections, EveryOneHasItsFieldOrItsBits) {
  PanelProgram picked({"V1400", "R12"}), loaded({"V1400", "R12"});
  picked.Reveal("ComboExcp(4)");
  for (const auto& rows : {Numbers(), Flags(), FlagsOfRecords()}) {
    for (const auto& row : rows) {
      if (row.before != nullptr) {
        for (auto* program : {&picked, &loaded}) program->Pick(row.before, row.position_before);
      }
      ExpectStored(picked, row);
      if (EntryCount(row.field) == 1) ExpectShown(loaded, row);
    }
  }
  EXPECT_EQ(loaded.Load({{COMMCFG_BAK, "01"}}), "");
  EXPECT_EQ(loaded.At("ComboCOMM(3)"), 0) << "no parity, whatever kind";
  ExpectShown(loaded, {"ComboCOMM(6)", COMMCFG_BAK, {0x08, 0x00}, 0x08});
  for (const int handshake : {0, 1}) {
    SCOPED_TRACE("the line feed is stored by the handshake");
    picked.Pick("ComboCOMM(5)", handshake);
    ExpectStored(picked, {"ComboCOMM(6)", COMMCFG_BAK, {8 * handshake, 8 * handshake}, 0x08});
  }
}

TEST(Selections, ANumberThatIsHalvedGoesToTheEvenNeighbour) {
  const std::pair<int, int> halves[] = {{0, 0},  {1, 0},  {2, 1},     {3, 2},     {4, 2},     {5, 2},
                                        {6, 3},  {7, 4},  {8, 4},     {9, 4},     {10, 5},    {11, 6},
                                        {12, 6}, {13, 6}, {240, 120}, {241, 120}, {242, 121}, {255, 128}};
  PanelProgram program({"V1300", "R26"});
  for (const bool daylight : {false, true}) {
    const std::string list = daylight ? "ComboTD(3)" : "ComboALM(5)";
    for (const auto& [stored, half] : halves) {
      SCOPED_TRACE(list + " " + std::to_string(stored));
      program.Pick(list, 3);
      const bool known = half <= (daylight ? 5 : 120);
      // The duration of the flag is stored anew by the list that moves.
      const bool anew = !daylight && known && half != 3 && stored != 2 * half;
      EXPECT_EQ(program.Load({{daylight ? DAYLIGHT_BAK : FLAGDWLIND, ByteToHex(stored)}}),
                anew ? "FLAGDWLIND=" + ByteToHex(2 * half) : "");
      EXPECT_EQ(program.At(list), known ? half : 3);
    }
  }
  ExpectStored(program, {"ComboTD(3)", DAYLIGHT_BAK, {1, 2, 4, 6, 8, 10}});
}

TEST(Selections, TheDemosBitsGoByTheFirmware) {
  for (const auto& firmware : AllFirmware()) {
    SCOPED_TRACE(firmware.Joined());
    PanelProgram program(firmware);
    const auto expect_stored = [&](const char* list, int mask, std::vector<int> stored) {
      program.Reveal(list);
      ExpectStored(program, {list, DEMO_ENABLE, std::move(stored), mask});
    };
    const bool old = HasOldDemo(firmware), v1400 = firmware.IsV1400();
    expect_stored("CharacterList", old ? 0x7F : 0x40, old ? From(1, 2) : From(0, 2, 0x40));
    if (!old) expect_stored("DemoSpeed", 0x30, From(0, 4, 0x10));
    if (old) expect_stored("DemoSpeed", v1400 ? 0x3F : 0, v1400 ? From(1, 4) : From(0, 4, 0));
    expect_stored("DemoType", v1400 ? (old ? 0x3F : 0x0F) : 0, From(0, 6, v1400 ? 1 : 0));
  }
}

TEST(Selections, EveryPickIsNoted) {
  PanelProgram program({"V1400", "R12"});
  program.Click("OpDVR(1)");
  const std::tuple<const char*, int, int> rows[] = {
      {"ComboCOMM", 13, 4}, {"ComboDIP", 9, 2},     {"ComboTD", 6, 1},   {"ComboKLM4011", 4, 1},
      {"ComboALM", 8, 4},   {"ComboTrigger", 3, 1}, {"ComboExcp", 6, 3}, {"ComboExcepRe", 3, 0}};
  for (const auto& [family, members, picked] : rows) {
    ASSERT_EQ(program.Pick(Member(family, picked), 1), Outcome::kDone) << family;
    std::vector<int> positions;
    for (int member = 0; member < members; ++member) positions.push_back(program.At(Member(family, member)));
    EXPECT_EQ(program.app.SavedIndexes[family], positions) << family;
  }
}

}  // namespace
}  // namespace ovl::testing
