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
  const std::tuple<int, int, const char*> rows[] = {{0, 3, "NET_PROTOCOL=00 NET_BAUDRATE=03"},
                                                    {1, 8, "NET_PROTOCOL=01 NET_BAUDRATE=08"},
                                                    {2, 5, "NET_PROTOCOL=02 NET_BAUDRATE=05"}};
  PanelProgram program({"V1400", "R7"});
  for (const auto& [protocol, speed, written] : rows) {
    program.Pick(Comm(12), 0);
    EXPECT_EQ(program.Effect(Comm(11), protocol), written);
    EXPECT_EQ(program.At(Comm(12)), speed);
  }
}

struct NetworkRow {
  int type;
  bool protocol_covered, address_covered, network_protocol_covered, address_reset, speed_follows;
};
constexpr NetworkRow kNetwork[] = {{0, true, true, true, true, false},
                                   {1, false, false, false, true, true},
                                   {2, true, false, false, false, true},
                                   {3, true, true, true, true, false}};

void ExpectRules(PanelProgram& program, const NetworkRow& row, bool early, int own_speed,
                 int protocol_speed) {
  EXPECT_EQ(program.Visible("ComboNone(0)"), row.protocol_covered);
  EXPECT_EQ(program.Visible("ComboNone(1)"), row.address_covered || (row.type == 1 && early));
  EXPECT_EQ(program.Visible("ComboNone(2)"), row.network_protocol_covered);
  EXPECT_EQ(program.Enabled(Comm(12)), !row.speed_follows);
  EXPECT_EQ(program.At(Comm(10)), row.address_reset ? 0 : 5);
  EXPECT_EQ(program.At(Comm(12)), row.speed_follows ? protocol_speed : own_speed);
}

TEST(Communication, TheNetworkTypeRulesItsPanelAndALoadStoresNothing) {
  for (const char* release : {"R1", "R2", "R4", "R6", "R7", "R11", "R12"}) {
    const bool early = Before({"V1400", release}, 3, 0, 0);
    PanelProgram program({"V1400", release}), loaded({"V1400", release});
    for (const auto& row : kNetwork) {
      SCOPED_TRACE(std::string(release) + " type " + std::to_string(row.type));
      program.Pick(Comm(9), 2);
      program.Pick(Comm(10), 5);
      program.Pick(Comm(11), 1);
      program.Reveal(Comm(12));
      ASSERT_EQ(program.Pick(Comm(12), 2), Outcome::kDone);
      EXPECT_EQ(program.Effect(Comm(9), row.type), std::string(row.address_reset ? "NET_ADDRESS=00 " : "") +
                                                       "NET_TYPE=" + ByteToHex(row.type) +
                                                       (row.speed_follows ? " NET_BAUDRATE=08" : ""));
      ExpectRules(program, row, early, 2, 8);
      EXPECT_EQ(loaded.Load({{NET_TYPE, ByteToHex(row.type)},
                             {NET_ADDRESS, "05"},
                             {NET_PROTOCOL, "02"},
                             {NET_BAUDRATE, "01"}}),
                "");
      ExpectRules(loaded, row, early, 1, 5);
      EXPECT_EQ(loaded.At(Comm(9)), row.type);
      EXPECT_EQ(loaded.At(Comm(11)), 2);
    }
    EXPECT_EQ(loaded.Load({{NET_TYPE, "FF"}, {NET_PROTOCOL, "FF"}}), "");
    EXPECT_EQ(loaded.At(Comm(9)), 3);
    EXPECT_EQ(loaded.At(Comm(11)), 2);
    EXPECT_TRUE(loaded.app.PanelsReady);
  }
}

TEST(Communication, OnlyV1400HasANetwork) {
  PanelProgram program({"V1310", "R1"});
  program.app.image[NET_TYPE] = "02";
  program.app.image[NET_ADDRESS] = "05";
  ASSERT_EQ(program.Register("GENERIC"), Outcome::kDone);
  EXPECT_NE(program.At(Comm(9)), 2);
  EXPECT_NE(program.At(Comm(10)), 5);
}

TEST(Communication, ACoverKeepsItsText) {
  PanelProgram program({"V1400", "R12"});
  ASSERT_EQ(program.Pick(Comm(9), 0), Outcome::kDone);
  program.Mark();
  for (std::size_t cover = 0; cover < 3; ++cover) {
    auto& box = program.app.frmMain.ComboNone[cover];
    program.Type(box, "typed");
    EXPECT_EQ(box.text, cover == 0 ? "ASCII" : "N/A");
  }
  EXPECT_EQ(program.Written(), "");
}

}  // namespace
}  // namespace ovl::testing
