// The interface to the register, and the chaining of units.
#include "panels/acts.h"

namespace ovl::testing {
namespace {

using enum FieldId;

std::string Comm(int member) {
  return Member("ComboCOMM", member);
}

TEST(Communication, TheInterfaceCodeIsTheFirmwaresOwn) {
  for (const auto& firmware : AllFirmware()) {
    SCOPED_TRACE(firmware.Joined());
    const bool old = Before(firmware, 7, 26, 25);
    const std::vector<std::string> codes = {old ? "0A" : "0E", old ? "19" : "1D",
                                            firmware.IsV1400() ? "36" : "26"};
    PanelProgram picked(firmware), loaded(firmware);
    for (int position = 0; position < 3; ++position) {
      const auto& own = codes[static_cast<std::size_t>(position)];
      EXPECT_EQ(picked.Effect(Comm(0), position), "IOCFG_BAK=" + own);
      for (const std::string code : {own.c_str(), "00", "0A", "0E", "19", "1D", "26", "36", "FF"}) {
        if (code != own && std::find(codes.begin(), codes.end(), code) != codes.end()) continue;
        EXPECT_EQ(loaded.Load({{IOCFG_BAK, code}}), "");
        EXPECT_EQ(loaded.At(Comm(0)), position) << code;
      }
    }
  }
}

TEST(Communication, ANetworkProtocolBringsItsSpeed) {
  PanelProgram program({"V1400", "R7"});
  for (const auto& [protocol, speed] : {std::pair{0, 3}, {1, 8}, {2, 5}}) {
    program.Pick(Comm(12), 0);
    EXPECT_EQ(program.Effect(Comm(11), protocol),
              "NET_PROTOCOL=" + ByteToHex(protocol) + " NET_BAUDRATE=" + ByteToHex(speed));
    EXPECT_EQ(program.At(Comm(12)), speed);
  }
}

// Whether protocol, address and network protocol are covered; the first releases cover one more.
struct Network {
  const char *covered, *covered_early;
  bool address_reset, speed_follows;
};
constexpr Network kByType[] = {{"111", "111", true, false},
                               {"000", "010", true, true},
                               {"100", "100", false, true},
                               {"111", "111", true, false}};

void ExpectRules(PanelProgram& program, const Network& row, bool early, int speed) {
  std::string covered;
  for (int cover = 0; cover < 3; ++cover) covered += program.Visible(Member("ComboNone", cover)) ? "1" : "0";
  EXPECT_EQ(covered, early ? row.covered_early : row.covered);
  EXPECT_EQ(program.Enabled(Comm(12)), !row.speed_follows);
  EXPECT_EQ(program.At(Comm(10)), row.address_reset ? 0 : 5);
  EXPECT_EQ(program.At(Comm(12)), speed);
}

TEST(Communication, TheNetworkTypeRulesItsPanelAndALoadStoresNothing) {
  for (const char* release : {"R1", "R2", "R4", "R6", "R7", "R11", "R12"}) {
    const FirmwareId firmware{"V1400", release};
    const bool early = Before(firmware, 3, 0, 0);
    PanelProgram picked(firmware), loaded(firmware);
    for (int type = 0; type < 4; ++type) {
      SCOPED_TRACE(std::string(release) + " type " + std::to_string(type));
      const auto& row = kByType[type];
      for (const auto& [member, position] : {std::pair{9, 2}, {10, 5}, {11, 1}, {12, 2}}) {
        picked.Reveal(Comm(member));
        ASSERT_EQ(picked.Pick(Comm(member), position), Outcome::kDone);
      }
      EXPECT_EQ(picked.Effect(Comm(9), type), std::string(row.address_reset ? "NET_ADDRESS=00 " : "") +
                                                  "NET_TYPE=" + ByteToHex(type) +
                                                  (row.speed_follows ? " NET_BAUDRATE=08" : ""));
      ExpectRules(picked, row, early, row.speed_follows ? 8 : 2);
      EXPECT_EQ(
          loaded.Load(
              {{NET_TYPE, ByteToHex(type)}, {NET_ADDRESS, "05"}, {NET_PROTOCOL, "02"}, {NET_BAUDRATE, "01"}}),
          "");
      ExpectRules(loaded, row, early, row.speed_follows ? 5 : 1);
      EXPECT_EQ(loaded.At(Comm(9)), type);
    }
    EXPECT_EQ(loaded.Load({{NET_TYPE, "FF"}, {NET_PROTOCOL, "FF"}}), "");
    EXPECT_EQ(loaded.At(Comm(9)), 3);
    EXPECT_EQ(loaded.At(Comm(11)), 2);
  }
}

TEST(Communication, ACoverKeepsItsText) {
  PanelProgram program({"V1400", "R12"});
  for (std::size_t cover = 0; cover < 3; ++cover) {
    auto& box = program.app.frmMain.ComboNone[cover];
    program.Type(box, "typed");
    EXPECT_EQ(box.text, cover == 0 ? "ASCII" : "N/A");
  }
  EXPECT_EQ(program.Written(), "");
}

}  // namespace
}  // namespace ovl::testing
