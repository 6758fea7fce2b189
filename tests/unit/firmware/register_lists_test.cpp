#include "firmware/register_lists.h"

#include <gtest/gtest.h>

#include <set>

#include "core/application.h"
#include "firmware/firmware_table.h"
#include "registers/register_catalogue.h"
#include "support/firmware_facts.h"
#include "support/register_facts.h"

namespace ovl::testing {
namespace {

// What the start keeps of a list: the names, and for every key the number that recognises it.
struct Catalogue {
  explicit Catalogue(const firmware::FirmwareId& firmware) {
    app.firmware = firmware;
    registers::ResetRegisterIndexes(app);
    registers::BuildRegisterList(app);
  }

  core::Application app;
  const std::vector<std::string>& names = app.frmMain.ComboReg.items;
  const decltype(app.RegisterIndex)& index = app.RegisterIndex;
};

TEST(FirmwareTable, TheMenuHasEveryFirmwareInItsOrder) {
  std::vector<firmware::FirmwareId> in_menu;
  for (const auto& entry : firmware::FirmwareTable()) {
    if (entry.in_menu) in_menu.push_back(entry.Id());
  }
  EXPECT_EQ(in_menu, EveryFirmware());
}

TEST(RegisterLists, EveryFirmwareHasItsListOfDistinctNames) {
  for (const auto& firmware : EveryFirmware()) {
    const auto names = Catalogue(firmware).names;
    EXPECT_EQ(names.size(), NumberOfRegisters(firmware)) << firmware.Joined();
    EXPECT_EQ(std::set(names.begin(), names.end()).size(), names.size()) << firmware.Joined();
    EXPECT_EQ(names.at(0), "GENERIC");
  }
}

TEST(RegisterLists, UnknownPairsHaveNoList) {
  const std::pair<const char*, const char*> pairs[] = {{"V1400", "R3"},  {"V1324", "R22"}, {"V1410", "R1"},
                                                       {"V1334", "R99"}, {"V1400", "r7"},  {"", ""}};
  for (const auto& [version, release] : pairs)
    EXPECT_TRUE(firmware::BuildRegisterEntries(version, release).empty()) << version << release;
}

const firmware::FirmwareId kV1400R6{"V1400", "R6"}, kV1400R7{"V1400", "R7"}, kV1400R11{"V1400", "R11"},
    kV1300R14{"V1300", "R14"}, kV1300R19{"V1300", "R19"}, kV1300R20{"V1300", "R20"},
    kV1300R23{"V1300", "R23"}, kV1300R26{"V1300", "R26"}, kV1300R27{"V1300", "R27"},
    kV1324R17{"V1324", "R17"}, kV1324R18{"V1324", "R18"}, kV1324R20{"V1324", "R20"},
    kV1324R24{"V1324", "R24"}, kV1324R25{"V1324", "R25"}, kV1310R1{"V1310", "R1"}, kV1334R1{"V1334", "R1"};

// Names with their codes.
struct Samples {
  firmware::FirmwareId firmware;
  std::vector<std::pair<int, std::string>> numbers;
};
const std::vector<Samples> kNames = {
    {kV1400R6, {{6, "BEETLE 50 PRINTERS"}, {21, "HTEC"}, {45, "POINT4 DV10"}, {77, "WEIGH SCALE"}}},
    {kV1400R7, {{72, "QUEST VMD40X"}, {73, "REMANCO 260R139507"}, {104, "UNIPAR"}, {109, "WEIGH SCALE"}}},
    {kV1400R11, {{2, "ALOHA"}, {72, "QUEST VMD40X"}, {73, "RADIENT"}, {105, "UNIPAR"}, {110, "WEIGH SCALE"}}},
    {kV1300R14, {{5, "ADS"}, {11, "GASBOY"}, {21, "MICROS"}, {24, "NIXDORF BEETLE"}, {40, "OVL-DRS"}}},
    {kV1300R19, {{11, "GASBOY"}, {12, "GILBARCO"}, {24, "NCR7456"}, {25, "NIXDORF BEETLE"}, {41, "OVL-DRS"}}},
    {kV1300R20, {{12, "GLORY GFR-220"}, {13, "GILBARCO"}, {25, "NCR7456"}, {29, "POLE DISPLAY"}}},
    {kV1300R20, {{30, "SHARP"}, {42, "OVL-DRS"}}},
    {kV1300R23, {{29, "POLE DISPLAY"}, {30, "RUBY SAPPHIRE"}, {31, "SHARP"}, {43, "OVL-DRS"}}},
    {kV1300R26, {{20, "MICROPOS"}, {21, "MICROMAX"}, {30, "RADIENT"}, {31, "RUBY SAPPHIRE"}}},
    {kV1300R26, {{32, "SENSORS"}, {45, "OVL-DRS"}}},
    {kV1300R27, {{19, "MICRELEC"}, {20, "MICROMAX"}, {21, "MICROPOS"}, {22, "MICROS"}, {45, "OVL-DRS"}}},
    {kV1324R17, {{1, "BEETLE 50 PRINTERS"}, {5, "CASIO VIDEO SYSTEM"}, {35, "UP3000"}, {37, "WEIGH SCALE"}}},
    {kV1324R18, {{5, "CASIO TE-2200"}, {13, "KOPPENS GASPUMP"}, {14, "NCR RCPT PRINTER"}}},
    {kV1324R20, {{1, "TCPIP"}, {2, "BEETLE 50 PRINTERS"}, {15, "NCR RCPT PRINTER"}, {40, "WEIGH SCALE"}}},
    {kV1324R24, {{1, "TCPIP"}, {36, "TKMAXX"}, {40, "WEIGH SCALE"}, {41, "TEC SLIP PRINTER EMULATE"}}},
    {kV1324R25, {{2, "ANSI"}, {12, "EPSON GENERIC"}, {13, "GLORY GFR-220"}}},
    {kV1324R25, {{38, "TEC SLIP PRINTER EMULATE"}, {39, "TKMAXX"}, {43, "WEIGH SCALE"}}},
    {kV1310R1, {{4, "PC COM 1234"}, {9, "GLORY GFR-220"}, {18, "NE134 COUNTER"}, {32, "WEIGH SCALE"}}},
    {kV1334R1, {{4, "BEETLE 50 PRINTERS"}, {14, "NCR RCPT PRINTER"}, {24, "UP3000"}, {26, "WEIGH SCALE"}}},
};

TEST(RegisterLists, NamesHaveTheirCodes) {
  for (const auto& [firmware, numbers] : kNames) {
    for (const auto& [code, name] : numbers)
      EXPECT_EQ(Catalogue(firmware).names.at(static_cast<std::size_t>(code)), name) << firmware.Joined();
  }
}

TEST(RegisterKeys, AreDistinctAndEachIsUsedByAFirmware) {
  const std::set<std::string_view> keys(firmware::RegisterKeys().begin(), firmware::RegisterKeys().end());
  EXPECT_EQ(keys.size(), firmware::RegisterKeys().size());
  std::set<std::string_view> served;
  for (const auto& firmware : EveryFirmware()) {
    std::set<std::string_view> in_list;
    for (const auto& entry : firmware::BuildRegisterEntries(firmware.version, firmware.release)) {
      if (entry.key.empty()) continue;
      EXPECT_TRUE(in_list.insert(entry.key).second) << firmware.Joined() << " has twice " << entry.key;
    }
    EXPECT_EQ(Catalogue(firmware).index.size(), keys.size());
    served.insert(in_list.begin(), in_list.end());
  }
  EXPECT_EQ(served, keys);
}

// In some firmware UNIPAR has the number of TOWA PROSPER ET-7826, the register before it, and nothing has its
// own.
TEST(RegisterKeys, HaveThePositionOfTheirEntryWithFewExceptions) {
  for (const auto& firmware : EveryFirmware()) {
    const bool shared = FactsOf(firmware).Has(Feature::kUniparSharesNumber);
    int position = 0;
    for (const auto& entry : firmware::BuildRegisterEntries(firmware.version, firmware.release)) {
      const bool without_key = entry.name == "UP3000";
      const int index = without_key ? -1 : shared && entry.name == "UNIPAR" ? position - 1 : position;
      EXPECT_EQ(entry.key.empty(), without_key) << firmware.Joined() << " " << entry.name;
      EXPECT_EQ(entry.key_index, index) << firmware.Joined() << " " << entry.name;
      ++position;
    }
  }
}

}  // namespace
}  // namespace ovl::testing
