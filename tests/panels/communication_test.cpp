// The panels "Register Settings" and "Network Settings".
#include <gtest/gtest.h>

#include <vector>

#include "catalogue/firmware.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

std::string Comm(int member) {
  return "ComboCOMM(" + std::to_string(member) + ")";
}

int Position(Installed& program, int member) {
  return program.Selected(Comm(member));
}

TEST(Communication, TheLineFlagsShowAsSelections) {
  struct Row {
    const char* flags;
    int parity, data_bits, handshake, linefeed, output;
  };
  const Row rows[] = {
      {"00", 0, 0, 1, 1, 0}, {"01", 0, 0, 1, 1, 0}, {"02", 2, 0, 1, 1, 0}, {"03", 1, 0, 1, 1, 0},
      {"04", 0, 1, 1, 1, 0}, {"08", 0, 0, 1, 0, 0}, {"10", 0, 0, 1, 1, 1}, {"20", 0, 0, 0, 1, 0},
      {"C0", 0, 0, 1, 1, 0}, {"FF", 1, 1, 0, 0, 1},
  };
  for (const FirmwareId& firmware : {FirmwareId{"V1400", "R12"}, {"V1324", "R17"}}) {
    Installed program(firmware);
    for (const auto& row : rows) {
      SCOPED_TRACE(firmware.Joined() + " " + row.flags);
      program.SetByte("GENERIC", kLineFlags, row.flags);
      ASSERT_EQ(program.Register("GENERIC"), Outcome::kDone);
      EXPECT_EQ(Position(program, 3), row.parity);
      EXPECT_EQ(Position(program, 4), row.data_bits);
      EXPECT_EQ(Position(program, 5), row.handshake);
      EXPECT_EQ(Position(program, 6), row.linefeed);
      EXPECT_EQ(program.app.frmMain.ComboExcepRe[0].position, row.output);
      EXPECT_EQ(program.app.image[FieldId::COMMCFG_BAK], row.flags) << "what is shown is not stored again";
    }
  }
}

TEST(Communication, AClickStoresItsOwnLineFlagsAlone) {
  const std::tuple<int, int, const char*, const char*> rows[] = {
      {3, 0, "FF", "FC"}, {3, 0, "01", "00"}, {3, 1, "00", "03"}, {3, 1, "02", "03"}, {3, 2, "FF", "FE"},
      {3, 2, "01", "02"}, {4, 0, "FF", "FB"}, {4, 1, "00", "04"}, {5, 0, "00", "20"}, {5, 1, "FF", "DF"},
      {0, 0, "01", "01"}, {1, 4, "C1", "C1"}, {4, 1, "01", "05"},
  };
  Installed program({"V1400", "R12"});
  for (const auto& [member, position, before, after] : rows) {
    program.app.image[FieldId::COMMCFG_BAK] = before;
    ASSERT_EQ(program.Pick(Comm(member), position), Outcome::kDone);
    EXPECT_EQ(program.app.image[FieldId::COMMCFG_BAK], after) << Comm(member) << " " << position;
  }
}

TEST(Communication, TheLinefeedBitGoesByTheHandshake) {
  Installed program({"V1310", "R1"});
  for (const int handshake : {0, 1}) {
    ASSERT_EQ(program.Pick(Comm(5), handshake), Outcome::kDone);
    for (const int linefeed : {0, 1, 1, 0}) {
      for (const char* before : {"00", "FF"}) {
        program.app.image[FieldId::COMMCFG_BAK] = before;
        ASSERT_EQ(program.Pick(Comm(6), linefeed), Outcome::kDone);
        EXPECT_EQ(program.app.image[FieldId::COMMCFG_BAK],
                  ByteToHex((HexToInt(before) & 0xF7) | (handshake == 0 ? 0 : 8)));
        EXPECT_EQ(Position(program, 6), linefeed);
      }
    }
  }
}

// The codes of "RS-232", "PASSIVE TAP" and "RS-485".
std::vector<std::string> InterfaceCodes(const FirmwareId& firmware) {
  const auto number = firmware.Number();
  if (firmware.version == "V1400") {
    return number <= 6 ? std::vector<std::string>{"0A", "19", "36"}
                       : std::vector<std::string>{"0E", "1D", "36"};
  }
  const bool old =
      (firmware.version == "V1300" && number < 26) || (firmware.version == "V1324" && number < 25);
  return old ? std::vector<std::string>{"0A", "19", "26"} : std::vector<std::string>{"0E", "1D", "26"};
}

TEST(Communication, TheInterfaceCodeIsTheFirmwaresOwn) {
  for (const auto& entry : FirmwareTable()) {
    if (!entry.in_menu) continue;
    const FirmwareId firmware{std::string(entry.version), std::string(entry.release)};
    SCOPED_TRACE(firmware.Joined());
    const auto codes = InterfaceCodes(firmware);
    Installed program(firmware, Images::kFirstRegister);
    for (int position = 0; position < 3; ++position) {
      EXPECT_EQ(program.Effect(Comm(0), position), "IOCFG_BAK=" + codes[static_cast<std::size_t>(position)]);
    }
    for (int position = 0; position < 3; ++position) {
      program.SetByte("GENERIC", kInterface, codes[static_cast<std::size_t>(position)]);
      ASSERT_EQ(program.Register("GENERIC"), Outcome::kDone);
      EXPECT_EQ(Position(program, 0), position);
      for (const char* code : {"00", "0A", "0E", "19", "1D", "26", "36", "FF"}) {
        if (std::find(codes.begin(), codes.end(), code) != codes.end()) continue;
        program.SetByte("GENERIC", kInterface, code);
        ASSERT_EQ(program.Register("GENERIC"), Outcome::kDone);
        EXPECT_EQ(Position(program, 0), position) << "unknown code " << code;
        EXPECT_EQ(program.app.image[FieldId::IOCFG_BAK], code);
      }
    }
  }
}

TEST(Communication, EverySelectionStoresItsPosition) {
  struct Row {
    int member;
    const char* field;
    int entries, network;  // the network type under which the selection can be made
  };
  const Row rows[] = {{1, "RX", 11, 0},          {2, "TX", 11, 0},           {7, "TX_PROTOCOL", 4, 1},
                      {8, "SW_HANDSHAKE", 3, 0}, {10, "NET_ADDRESS", 17, 2}, {12, "NET_BAUDRATE", 10, 0}};
  Installed program({"V1400", "R1"});
  for (const auto& row : rows) {
    ASSERT_EQ(program.Pick(Comm(9), row.network), Outcome::kDone);
    for (int position = 0; position < row.entries; ++position) {
      EXPECT_EQ(program.Effect(Comm(row.member), position), row.field + ("=" + ByteToHex(position)));
    }
    EXPECT_EQ(program.Pick(Comm(row.member), row.entries), Outcome::kRefused) << Comm(row.member);
  }
  const auto& saved = program.app.SavedIndexes["ComboCOMM"];
  ASSERT_EQ(saved.size(), 13U);
  for (int member = 0; member < 13; ++member) {
    EXPECT_EQ(saved[static_cast<std::size_t>(member)], Position(program, member));
  }
}

TEST(Communication, ANetworkProtocolBringsItsSpeed) {
  const std::tuple<int, int, const char*> rows[] = {{0, 3, "NET_PROTOCOL=00 NET_BAUDRATE=03"},
                                                    {1, 8, "NET_PROTOCOL=01 NET_BAUDRATE=08"},
                                                    {2, 5, "NET_PROTOCOL=02 NET_BAUDRATE=05"}};
  Installed program({"V1400", "R7"});
  for (const auto& [protocol, speed, written] : rows) {
    program.Pick(Comm(9), 0);
    program.Pick(Comm(12), 0);
    EXPECT_EQ(program.Effect(Comm(11), protocol), written);
    EXPECT_EQ(Position(program, 12), speed);
  }
}

struct NetworkRow {
  int type;
  bool protocol_covered, address_covered, network_protocol_covered;
  bool address_reset, speed_follows;
};

constexpr NetworkRow kNetwork[] = {{0, true, true, true, true, false},
                                   {1, false, false, false, true, true},
                                   {2, true, false, false, false, true},
                                   {3, true, true, true, true, false}};

void ExpectCovers(Installed& program, const NetworkRow& row, bool early) {
  EXPECT_EQ(program.Control("ComboNone(0)").visible, row.protocol_covered);
  EXPECT_EQ(program.Control("ComboNone(1)").visible, row.address_covered || (row.type == 1 && early));
  EXPECT_EQ(program.Control("ComboNone(2)").visible, row.network_protocol_covered);
  EXPECT_EQ(program.Control(Comm(12)).enabled, !row.speed_follows);
}

TEST(Communication, TheNetworkTypeRulesItsPanel) {
  for (const char* release : {"R1", "R2", "R4", "R7", "R12"}) {
    const bool early = release == std::string_view("R1") || release == std::string_view("R2");
    Installed program({"V1400", release}, Images::kFirstRegister);
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
      ExpectCovers(program, row, early);
      EXPECT_EQ(Position(program, 10), row.address_reset ? 0 : 5);
      EXPECT_EQ(Position(program, 12), row.speed_follows ? 8 : 2);
    }
  }
}

TEST(Communication, ANetworkThatIsAppliedStoresNothing) {
  for (const auto& row : kNetwork) {
    SCOPED_TRACE(row.type);
    Installed program({"V1400", "R7"}, Images::kFirstRegister);
    const std::pair<FieldId, std::string> stored[] = {{FieldId::NET_TYPE, "0" + std::to_string(row.type)},
                                                      {FieldId::NET_ADDRESS, "05"},
                                                      {FieldId::NET_PROTOCOL, "02"},
                                                      {FieldId::TX_PROTOCOL, "03"},
                                                      {FieldId::SW_HANDSHAKE, "02"},
                                                      {FieldId::NET_BAUDRATE, "01"}};
    for (const auto& [field, byte] : stored) program.app.image[field] = byte;
    ASSERT_EQ(program.Register("GENERIC"), Outcome::kDone);
    for (const auto& [field, byte] : stored) EXPECT_EQ(program.app.image[field], byte);
    EXPECT_EQ(Position(program, 9), row.type);
    EXPECT_EQ(Position(program, 10), row.address_reset ? 0 : 5);
    EXPECT_EQ(Position(program, 11), 2);
    EXPECT_EQ(Position(program, 7), 3);
    EXPECT_EQ(Position(program, 8), 2);
    EXPECT_EQ(Position(program, 12), row.speed_follows ? 5 : 1);
    ExpectCovers(program, row, false);
    EXPECT_TRUE(program.app.PanelsReady);
  }
}

TEST(Communication, OnlyV1400HasANetwork) {
  Installed program({"V1310", "R1"});
  const int type = Position(program, 9), address = Position(program, 10);
  program.app.image[FieldId::NET_TYPE] = "02";
  program.app.image[FieldId::NET_ADDRESS] = "05";
  ASSERT_EQ(program.Register("GENERIC"), Outcome::kDone);
  EXPECT_EQ(Position(program, 9), type);
  EXPECT_EQ(Position(program, 10), address);
}

TEST(Communication, ACoverKeepsItsText) {
  Installed program({"V1400", "R12"});
  ASSERT_EQ(program.Pick(Comm(9), 0), Outcome::kDone);
  const char* texts[] = {"ASCII", "N/A", "N/A"};
  program.Mark();
  for (std::size_t cover = 0; cover < 3; ++cover) {
    auto& box = program.app.frmMain.ComboNone[cover];
    EXPECT_EQ(box.text, texts[cover]);
    Dispatch(program.app, TypeEvent{&box, "typed"});
    EXPECT_EQ(box.text, texts[cover]);
  }
  EXPECT_EQ(program.Written(), "");
}

TEST(Communication, AByteThatTheListLacksLeavesTheSelection) {
  using F = FieldId;
  for (const FirmwareId& firmware : {FirmwareId{"V1400", "R1"}, {"V1300", "R27"}}) {
    Installed program(firmware);
    for (const auto& [member, position] :
         {std::pair{9, 2}, {10, 5}, {11, 1}, {7, 3}, {8, 1}, {1, 6}, {2, 4}}) {
      if (firmware.IsV1400() || member < 3) program.Pick(Comm(member), position);
    }
    std::vector<int> before;
    for (int member = 0; member < 13; ++member) before.push_back(Position(program, member));
    for (const char* odd : {"0B", "FF"}) {
      program.SetByte("GENERIC", kReceiveSpeed, odd);
      program.SetByte("GENERIC", kTransmitSpeed, odd);
      for (const auto field :
           {F::NET_TYPE, F::NET_PROTOCOL, F::TX_PROTOCOL, F::SW_HANDSHAKE, F::NET_ADDRESS, F::NET_BAUDRATE}) {
        program.app.image[field] = "FF";
      }
      ASSERT_EQ(program.Register("GENERIC"), Outcome::kDone);
      for (const int member : {1, 2, 7, 8, 9, 10, 11, 12}) {
        EXPECT_EQ(Position(program, member), before[static_cast<std::size_t>(member)]) << Comm(member);
      }
      EXPECT_EQ(program.app.image[F::RX_BAUDRATE] + program.app.image[F::TX_BAUDRATE],
                std::string(odd) + odd);
    }
    EXPECT_TRUE(program.NoBoxLeft());
  }
}

}  // namespace
}  // namespace ovl::testing
