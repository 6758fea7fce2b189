// The interface to the register, the network of units, the blank time, and the lines for clock and title.
#include "unit/panels/panel_program.h"

#include <algorithm>

namespace ovl::testing {
namespace {

std::string Comm(int member) {
  return Member("ComboCOMM", member);
}

TEST(Communication, TheInterfaceCodeDependsOnTheFirmware) {
  for (const auto& firmware : EveryFirmware()) {
    const bool old = FactsOf(firmware).Has(Feature::kOldInterfaceCodes);
    const std::string codes[] = {old ? "0A" : "0E", old ? "19" : "1D", firmware.IsV1400() ? "36" : "26"};
    PanelProgram picked(firmware), loaded(firmware);
    for (int position = 0; position < 3; ++position) {
      const auto& own = codes[position];
      EXPECT_EQ(picked.Effect(Comm(0), position), "IOCFG_BAK=" + own);
      for (const std::string code : {own.c_str(), "00", "0A", "0E", "19", "1D", "26", "36", "FF"}) {
        if (code != own && std::ranges::count(codes, code) > 0) continue;
        EXPECT_EQ(loaded.Load({{IOCFG_BAK, code}}), "");
        EXPECT_EQ(loaded.At(Comm(0)), position) << code;
      }
    }
  }
}

// Which of protocol, address and network protocol are covered; the positions of address and speed; and
// whether the user may change the speed.
std::string Network(PanelProgram& program) {
  std::string shown;
  for (int cover = 0; cover < 3; ++cover) shown += program.Visible(Member("ComboNone", cover)) ? "1" : "0";
  for (const int member : {10, 12}) shown += " " + std::to_string(program.At(Comm(member)));
  return shown + (program.Enabled(Comm(12)) ? " free" : " fixed");
}

TEST(Communication, TheNetworkTypeControlsItsPanelAndALoadStoresNothing) {
  struct NetworkType {
    std::string written, after_pick, after_load;
  };
  const NetworkType types[] = {
      {"NET_ADDRESS=00 NET_TYPE=00", "111 0 2 free", "111 0 1 free"},
      {"NET_ADDRESS=00 NET_TYPE=01 NET_BAUDRATE=08", "000 0 8 fixed", "000 0 5 fixed"},
      {"NET_TYPE=02 NET_BAUDRATE=08", "100 5 8 fixed", "100 5 5 fixed"},
      {"NET_ADDRESS=00 NET_TYPE=03", "111 0 2 free", "111 0 1 free"}};
  for (const char* release : {"R1", "R2", "R4", "R6", "R7", "R11", "R12"}) {
    const firmware::FirmwareId firmware{"V1400", release};
    PanelProgram picked(firmware), loaded(firmware);
    for (int type = 0; type < 4; ++type) {
      SCOPED_TRACE(type);
      const auto& [written, after_pick, after_load] = types[type];
      // In the first releases one more control is covered.
      const bool one_more = type == 1 && firmware.Number() < 3;
      for (const auto& [member, position] : {std::pair{9, 2}, {10, 5}, {11, 1}, {12, 2}}) {
        picked.Reveal(Comm(member));
        ASSERT_EQ(picked.Pick(Comm(member), position), core::Outcome::kDone);
      }
      EXPECT_EQ(picked.Effect(Comm(9), type), written);
      EXPECT_EQ(Network(picked), one_more ? "010 0 8 fixed" : after_pick);
      const auto byte = codecs::ByteToHex(type);
      EXPECT_EQ(
          loaded.Load({{NET_TYPE, byte}, {NET_ADDRESS, "05"}, {NET_PROTOCOL, "02"}, {NET_BAUDRATE, "01"}}),
          "");
      EXPECT_EQ(Network(loaded), one_more ? "010 0 5 fixed" : after_load);
      EXPECT_EQ(loaded.At(Comm(9)), type);
    }
    EXPECT_EQ(loaded.Load({{NET_TYPE, "FF"}, {NET_PROTOCOL, "FF"}}), "");
    EXPECT_EQ(loaded.At(Comm(9)), 3);
    EXPECT_EQ(loaded.At(Comm(11)), 2);
    // Unknown types and protocols change nothing.
    for (const auto& [type, address] : {std::pair{"FF", 5}, {"02", 5}, {"01", 0}}) {
      loaded.ListOf(Comm(9)).position = loaded.ListOf(Comm(11)).position = -1;
      loaded.Load({{NET_TYPE, type}, {NET_ADDRESS, "05"}, {NET_PROTOCOL, "FF"}, {NET_BAUDRATE, "06"}});
      EXPECT_EQ(std::pair(loaded.At(Comm(10)), loaded.At(Comm(12))), std::pair(address, 6)) << type;
    }
  }
}

TEST(Communication, ANetworkProtocolSetsItsSpeedAndACoverKeepsItsText) {
  PanelProgram program({"V1400", "R7"});
  for (const auto& [protocol, speed] : {std::pair{0, 3}, {1, 8}, {2, 5}}) {
    program.Pick(Comm(12), 0);
    EXPECT_EQ(program.Effect(Comm(11), protocol),
              "NET_PROTOCOL=" + codecs::ByteToHex(protocol) + " NET_BAUDRATE=" + codecs::ByteToHex(speed));
    EXPECT_EQ(program.At(Comm(12)), speed);
  }
  program.Mark();
  auto& covers = program.app.frmMain.ComboNone;
  for (auto& cover : covers) program.Type(cover, "typed");
  EXPECT_EQ(covers[0].text + covers[1].text + covers[2].text, "ASCIIN/AN/A");
  EXPECT_EQ(program.Written(), "");
}

constexpr int kRts = 12;

TEST(Display, ABlankTimeIsStoredAndClearsFlagsThatAreStillShown) {
  PanelProgram program({"V1334", "R1"});
  for (const int list : {2, 3, 5}) program.Pick(Member("ComboDIP", list), 1);
  for (int time = 0; time <= kRts; ++time) {
    const int mask = time == 3 ? 0xFF : time >= 11 ? 0xF0 : 0xF1;
    for (const int flags : {0xFF, 0x0E, 0x00, 0xAB}) {
      const auto wiped = (flags & mask) == flags ? "" : "DSPCFG_BAK=" + codecs::ByteToHex(flags & mask) + " ";
      EXPECT_EQ(program.Effect("ComboDIP(0)", time, {{DSPCFG_BAK, codecs::ByteToHex(flags)}}),
                wiped + "BLNKVAL=" + kDurations[std::min(time, 11)] + " BLNKIND=" + codecs::ByteToHex(time) +
                    " BLNKRTS_BAK=" + (time == kRts ? "01" : "00"));
    }
    for (const int list : {2, 3, 5}) EXPECT_EQ(program.At(Member("ComboDIP", list)), 1);
  }
  EXPECT_EQ(program.Pick("ComboDIP(0)", 13), core::Outcome::kRefused);
}

TEST(Display, CounterAndFlagDecideTheBlankTimeShownAndTheIndexDoesNot) {
  struct Row {
    const char *counter, *flag;
    int shown, shown_without;  // by a firmware that has no flag
  };
  const Row rows[] = {{"00", "01", kRts, 11}, {"00", "00", 11, 11},  {"FF", "01", kRts, 0},
                      {"FF", "02", 0, 0},     {"F2", "01", kRts, 0}, {"F2", "00", kRts, 0}};
  for (const auto& firmware : EveryFirmware()) {
    PanelProgram program(firmware);
    const bool has = FactsOf(firmware).Has(Feature::kRtsBlankTime);
    for (const auto& [counter, flag, shown, shown_without] : rows) {
      // One release does not read the flag, so that all fields after it move.
      EXPECT_EQ(program.Load({{BLNKVAL, counter}, {BLNKIND, "05"}, {BLNKRTS_BAK, flag}}).empty(),
                firmware.Joined() != "V1400R7");
      EXPECT_EQ(program.At("ComboDIP(0)"), has ? shown : shown_without) << counter << flag;
    }
  }
}

TEST(Display, ClockAndTitleEachNeedALine) {
  PanelProgram program({"V1400", "R7"});
  // The initials of clock, title and lines, in the order in which they are picked.
  for (const std::string order : {"ctl", "lct", "ltc"}) {
    for (int number = 0; number < 44; ++number) {
      SCOPED_TRACE(order + std::to_string(number));
      const int clock = number & 1, title = number >> 1 & 1, lines = std::max(number >> 2, clock + title);
      for (const char initial : order) {
        if (initial == 'c') program.Pick("ComboTD(0)", clock);
        if (initial == 't') program.Pick("ComboTD(5)", title);
        if (initial == 'l') program.Pick("ComboDIP(1)", number >> 2);
      }
      EXPECT_EQ(program.Byte(DSPCFG_BAK), codecs::ByteToHex(0x20 | clock << 7 | title << 4));
      for (const bool later : {false, true}) {
        EXPECT_EQ(program.At("ComboDIP(1)"), lines);
        EXPECT_EQ(program.Byte(DSPLINES_BAK), codecs::ByteToHex(lines + 1));
        if (later) continue;
        // Switching them off leaves the lines.
        program.Pick("ComboTD(0)", 0);
        program.Pick("ComboTD(5)", 0);
      }
    }
  }
  EXPECT_EQ(program.Load({{DSPLINES_BAK, "01"}, {DSPCFG_BAK, "B0"}}), "");
  EXPECT_EQ(program.At("ComboDIP(1)"), 0) << "what is loaded stays as it is";
}

}  // namespace
}  // namespace ovl::testing
