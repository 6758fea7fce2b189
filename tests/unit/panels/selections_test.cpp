// The selections that mean a number or some bits of a byte: what a pick stores, and what a load shows.
#include "unit/panels/panel_program.h"

#include <algorithm>

namespace ovl::testing {
namespace {

std::vector<int> StoredBy(const Selection& row) {
  std::vector<int> stored;
  for (int at = 0; at < row.entries; ++at) stored.push_back(row.first + at * row.step);
  return stored;
}

// A pick stores in its field only. OUTPUT of the exception report stores the time stamp as well.
void ExpectStored(PanelProgram& program, const Selection& row, const std::vector<int>& stored) {
  SCOPED_TRACE(row.list);
  program.Reveal(row.list);
  for (int position = row.entries - 1; position >= 0; --position) {
    for (const int before : {0x00, 0xFF, 0x5B}) {
      const int after = (before & ~row.mask) | stored[static_cast<std::size_t>(position)];
      const auto written =
          program.Effect(row.list, position, {{TIMESTAMP_ENA, "00"}, {row.field, codecs::ByteToHex(before)}});
      EXPECT_EQ(program.Byte(row.field), codecs::ByteToHex(after)) << position << " over " << before;
      EXPECT_EQ(std::count(written.begin(), written.end(), '='), after == before ? 0 : 1) << written;
    }
  }
  EXPECT_EQ(program.Pick(row.list, row.entries), core::Outcome::kRefused);
}

void ExpectShown(PanelProgram& program, const Selection& row, const std::vector<int>& stored) {
  SCOPED_TRACE(row.list);
  for (int position = 0; position < row.entries; ++position) {
    for (const int others : {0x00, 0xFF & ~row.mask}) {
      const auto byte = codecs::ByteToHex(stored[static_cast<std::size_t>(position)] | others);
      EXPECT_EQ(program.Load({{row.field, byte}}), "");
      EXPECT_EQ(program.Selected(row.list), position) << byte;
    }
  }
  for (const int odd : {row.first - 1, stored.back() + 1, 255}) {
    if (odd < 0 || std::find(stored.begin(), stored.end(), odd & row.mask) != stored.end()) continue;
    EXPECT_EQ(program.Load({{row.field, codecs::ByteToHex(odd)}}), "");
    EXPECT_EQ(program.Selected(row.list), row.entries - 1) << "a value that the list lacks does not move it";
  }
}

TEST(Selections, APickStoresOnlyItsFieldOrItsBitsAndALoadShowsThem) {
  PanelProgram picked(kLatest), loaded(kLatest);
  picked.Pick("ComboDIP(1)", 10);  // otherwise clock and title change it
  for (const auto& row : Selections()) {
    ExpectStored(picked, row, StoredBy(row));
    // The load of the others needs more than one byte.
    if (row.group == Group::kPanel) ExpectShown(loaded, row, StoredBy(row));
  }

  const Selection parity{"ComboCOMM(3)", COMMCFG_BAK, 0x03, 0, 0, 3};
  ExpectStored(picked, parity, {0, 3, 2});
  ExpectShown(loaded, parity, {0, 3, 2});
  EXPECT_EQ(loaded.Load({{COMMCFG_BAK, "01"}}), "");
  EXPECT_EQ(loaded.At(parity.list), 0) << "no parity, whatever kind";
  const Selection linefeed{"ComboCOMM(6)", COMMCFG_BAK, 0x08, 0, 0, 2};
  ExpectShown(loaded, linefeed, {8, 0});
  for (const int handshake : {0, 1}) {
    SCOPED_TRACE("the line feed is stored by the handshake");
    picked.Pick("ComboCOMM(5)", handshake);
    ExpectStored(picked, linefeed, {8 * handshake, 8 * handshake});
  }
  ExpectStored(picked, {"ComboTD(3)", DAYLIGHT_BAK, 0xFF, 0, 0, 6}, {1, 2, 4, 6, 8, 10});
}

TEST(Selections, HalvingRoundsToTheEvenNumber) {
  const std::pair<int, int> halves[] = {{0, 0},  {1, 0},  {2, 1},     {3, 2},     {4, 2},     {5, 2},
                                        {6, 3},  {7, 4},  {8, 4},     {9, 4},     {10, 5},    {11, 6},
                                        {12, 6}, {13, 6}, {240, 120}, {241, 120}, {242, 121}, {255, 128}};
  PanelProgram program({"V1300", "R26"});
  for (const auto& [stored, half] : halves) {
    SCOPED_TRACE(stored);
    program.Pick("ComboTD(3)", 3);
    program.Pick("ComboALM(5)", 3);
    const auto byte = codecs::ByteToHex(stored);
    // A list that changes its position stores the duration of the flag again.
    const bool anew = half <= 120 && half != 3 && stored != 2 * half;
    EXPECT_EQ(program.Load({{DAYLIGHT_BAK, byte}, {FLAGDWLIND, byte}}),
              anew ? "FLAGDWLIND=" + codecs::ByteToHex(2 * half) : "");
    EXPECT_EQ(program.At("ComboTD(3)"), half <= 5 ? half : 3);
    EXPECT_EQ(program.At("ComboALM(5)"), half <= 120 ? half : 3);
  }
}

TEST(Selections, TheBitsOfTheDemonstrationDependOnTheFirmware) {
  for (const auto& firmware : EveryFirmware()) {
    PanelProgram picked(firmware), loaded(firmware);
    const bool old = FactsOf(firmware).Has(Feature::kOldDemo), v1400 = firmware.IsV1400();
    const int step = v1400 ? 1 : 0;
    const auto expect = [&](const Selection& row, bool shown) {
      ExpectStored(picked, row, StoredBy(row));
      if (shown) ExpectShown(loaded, row, StoredBy(row));
    };
    expect({"CharacterList", DEMO_ENABLE, old ? 0x7F : 0x40, old ? 1 : 0, old ? 1 : 0x40, 2}, !old);
    expect({"DemoType", DEMO_ENABLE, !v1400 ? 0x00 : old ? 0x3F : 0x0F, 0, step, 6}, v1400 && !old);
    expect({"DemoSpeed", DEMO_ENABLE, !old ? 0x30 : 0x3F * step, old ? step : 0, old ? step : 0x10, 4}, !old);
    if (!old) continue;
    const int type = loaded.At("DemoType"), speed = loaded.At("DemoSpeed");
    for (const auto& [byte, characters] :
         {std::pair{"01", 0}, {"81", 1}, {"41", 0}, {"02", 1}, {"C1", 1}, {"01", 0}, {"35", 1}}) {
      EXPECT_EQ(loaded.Load({{DEMO_ENABLE, byte}}), "");
      EXPECT_EQ(loaded.At("CharacterList"), characters) << byte << ": its own bit counts, bit 6 does not";
      EXPECT_TRUE(loaded.At("DemoType") == type && loaded.At("DemoSpeed") == speed);
    }
  }
}

}  // namespace
}  // namespace ovl::testing
