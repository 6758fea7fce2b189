#include "firmware/register_lists.h"

#include <gtest/gtest.h>

#include <algorithm>
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

const firmware::FirmwareId kV1400R4{"V1400", "R4"}, kV1400R6{"V1400", "R6"}, kV1400R7{"V1400", "R7"},
    kV1400R11{"V1400", "R11"}, kV1400R12{"V1400", "R12"}, kV1300R14{"V1300", "R14"},
    kV1300R19{"V1300", "R19"}, kV1300R20{"V1300", "R20"}, kV1300R23{"V1300", "R23"},
    kV1300R26{"V1300", "R26"}, kV1300R27{"V1300", "R27"}, kV1324R17{"V1324", "R17"},
    kV1324R18{"V1324", "R18"}, kV1324R20{"V1324", "R20"}, kV1324R21{"V1324", "R21"},
    kV1324R24{"V1324", "R24"}, kV1324R25{"V1324", "R25"}, kV1310R1{"V1310", "R1"}, kV1334R1{"V1334", "R1"};

struct Sample {
  firmware::FirmwareId firmware;
  int number;
  std::string text;
};

// Names with their codes.
const std::vector<Sample> kNames = {
    {kV1400R6, 6, "BEETLE 50 PRINTERS"},
    {kV1400R6, 21, "HTEC"},
    {kV1400R6, 45, "POINT4 DV10"},
    {kV1400R6, 77, "WEIGH SCALE"},
    {kV1400R7, 72, "QUEST VMD40X"},
    {kV1400R7, 73, "REMANCO 260R139507"},
    {kV1400R7, 104, "UNIPAR"},
    {kV1400R7, 109, "WEIGH SCALE"},
    {kV1400R11, 2, "ALOHA"},
    {kV1400R11, 72, "QUEST VMD40X"},
    {kV1400R11, 73, "RADIENT"},
    {kV1400R11, 105, "UNIPAR"},
    {kV1400R11, 110, "WEIGH SCALE"},
    {kV1400R12, 105, "UNIPAR"},
    {kV1300R14, 5, "ADS"},
    {kV1300R14, 11, "GASBOY"},
    {kV1300R14, 21, "MICROS"},
    {kV1300R14, 24, "NIXDORF BEETLE"},
    {kV1300R14, 40, "OVL-DRS"},
    {kV1300R19, 11, "GASBOY"},
    {kV1300R19, 12, "GILBARCO"},
    {kV1300R19, 24, "NCR7456"},
    {kV1300R19, 25, "NIXDORF BEETLE"},
    {kV1300R19, 41, "OVL-DRS"},
    {kV1300R20, 12, "GLORY GFR-220"},
    {kV1300R20, 13, "GILBARCO"},
    {kV1300R20, 25, "NCR7456"},
    {kV1300R20, 29, "POLE DISPLAY"},
    {kV1300R20, 30, "SHARP"},
    {kV1300R20, 42, "OVL-DRS"},
    {kV1300R23, 29, "POLE DISPLAY"},
    {kV1300R23, 30, "RUBY SAPPHIRE"},
    {kV1300R23, 31, "SHARP"},
    {kV1300R23, 43, "OVL-DRS"},
    {kV1300R26, 20, "MICROPOS"},
    {kV1300R26, 21, "MICROMAX"},
    {kV1300R26, 30, "RADIENT"},
    {kV1300R26, 31, "RUBY SAPPHIRE"},
    {kV1300R26, 32, "SENSORS"},
    {kV1300R26, 45, "OVL-DRS"},
    {kV1300R27, 19, "MICRELEC"},
    {kV1300R27, 20, "MICROMAX"},
    {kV1300R27, 21, "MICROPOS"},
    {kV1300R27, 22, "MICROS"},
    {kV1300R27, 45, "OVL-DRS"},
    {kV1324R17, 1, "BEETLE 50 PRINTERS"},
    {kV1324R17, 5, "CASIO VIDEO SYSTEM"},
    {kV1324R17, 35, "UP3000"},
    {kV1324R17, 37, "WEIGH SCALE"},
    {kV1324R18, 5, "CASIO TE-2200"},
    {kV1324R18, 13, "KOPPENS GASPUMP"},
    {kV1324R18, 14, "NCR RCPT PRINTER"},
    {kV1324R18, 39, "WEIGH SCALE"},
    {kV1324R20, 1, "TCPIP"},
    {kV1324R20, 2, "BEETLE 50 PRINTERS"},
    {kV1324R20, 15, "NCR RCPT PRINTER"},
    {kV1324R20, 40, "WEIGH SCALE"},
    {kV1324R24, 1, "TCPIP"},
    {kV1324R24, 36, "TKMAXX"},
    {kV1324R24, 40, "WEIGH SCALE"},
    {kV1324R24, 41, "TEC SLIP PRINTER EMULATE"},
    {kV1324R25, 2, "ANSI"},
    {kV1324R25, 12, "EPSON GENERIC"},
    {kV1324R25, 13, "GLORY GFR-220"},
    {kV1324R25, 38, "TEC SLIP PRINTER EMULATE"},
    {kV1324R25, 39, "TKMAXX"},
    {kV1324R25, 43, "WEIGH SCALE"},
    {kV1310R1, 4, "PC COM 1234"},
    {kV1310R1, 9, "GLORY GFR-220"},
    {kV1310R1, 18, "NE134 COUNTER"},
    {kV1310R1, 32, "WEIGH SCALE"},
    {kV1334R1, 4, "BEETLE 50 PRINTERS"},
    {kV1334R1, 14, "NCR RCPT PRINTER"},
    {kV1334R1, 24, "UP3000"},
    {kV1334R1, 26, "WEIGH SCALE"},
};

// Keys with the numbers that recognise them. A model has the same key, whatever its list calls it.
const std::vector<Sample> kKeys = {
    {kV1400R4, 6, "BEETLE 50 PRINTERS"},
    {kV1400R4, 37, "NIXDORF BEETLE"},
    {kV1400R4, 18, "FUJITSU"},
    {kV1400R4, 22, "HUTH"},
    {kV1400R4, 33, "NCR"},
    {kV1400R4, 36, "NCR RCPT PRINTER"},
    {kV1400R4, -1, "NCR MODEL"},
    {kV1400R4, 34, "NCR7454WS"},
    {kV1400R4, 43, "PC COM"},
    {kV1400R4, 53, "SHARP UP600"},
    {kV1400R4, 66, "TEC"},
    {kV1400R4, 70, "UNIPAR"},
    {kV1400R4, 72, "UNIWELL"},
    {kV1400R4, 73, "UNIWELL MODEL"},
    {kV1400R4, 74, "UP3000 3300"},
    {kV1400R7, 28, "FUJITSU"},
    {kV1400R7, 37, "HUTH"},
    {kV1400R7, -1, "NCR"},
    {kV1400R7, 52, "NCR MODEL"},
    {kV1400R7, 62, "PC COM"},
    {kV1400R7, 97, "TEC"},
    {kV1400R7, 103, "TOWA PROSPER ET-7826"},
    {kV1400R7, 104, "UNIPAR"},
    {kV1400R7, -1, "UNIWELL"},
    {kV1400R7, 106, "UNIWELL MODEL"},
    {kV1400R7, -1, "RADIENT"},
    {kV1400R7, -1, "BEETLE 50 PRINTERS"},
    {kV1400R12, 73, "RADIENT"},
    {kV1400R12, 98, "TEC"},
    {kV1400R12, 104, "UNIPAR"},
    {kV1400R12, -1, "UNIWELL"},
    {kV1400R12, 107, "UNIWELL MODEL"},
    {kV1300R14, 3, "PC COM"},
    {kV1300R14, 10, "FUJITSU"},
    {kV1300R14, 22, "NCR"},
    {kV1300R14, 23, "NCR7454WS"},
    {kV1300R14, 24, "BEETLE 50 PRINTERS"},
    {kV1300R14, -1, "NIXDORF BEETLE"},
    {kV1300R14, 37, "UNIWELL MODEL"},
    {kV1300R14, 38, "UP3000 3300"},
    {kV1300R14, -1, "SENSORS"},
    {kV1300R26, 32, "SENSORS"},
    {kV1300R26, 20, "MICROPOS"},
    {kV1324R17, -1, "ADDRESSABLE OVL"},
    {kV1324R17, -1, "TCPIP"},
    {kV1324R17, 1, "BEETLE 50 PRINTERS"},
    {kV1324R17, 11, "HUTH"},
    {kV1324R17, 13, "NIXDORF BEETLE"},
    {kV1324R17, -1, "NCR"},
    {kV1324R17, 25, "SHARP UP600"},
    {kV1324R17, -1, "TEC"},
    {kV1324R17, 34, "UNIPAR"},
    {kV1324R17, 36, "UNIWELL"},
    {kV1324R21, 1, "TCPIP"},
    {kV1324R21, 15, "NCR"},
    {kV1324R21, -1, "NCR RCPT PRINTER"},
    {kV1324R21, 41, "TEC"},
    {kV1324R21, -1, "UP3000 3300"},
    {kV1310R1, 4, "PC COM"},
    {kV1310R1, 15, "NCR"},
    {kV1310R1, 16, "NCR7454WS"},
    {kV1310R1, 19, "BEETLE 50 PRINTERS"},
    {kV1310R1, -1, "NIXDORF BEETLE"},
    {kV1310R1, 26, "TEC"},
    {kV1310R1, 29, "UP3000 3300"},
    {kV1334R1, 4, "BEETLE 50 PRINTERS"},
    {kV1334R1, 14, "NCR"},
    {kV1334R1, -1, "NCR RCPT PRINTER"},
    {kV1334R1, 15, "NIXDORF BEETLE"},
    {kV1334R1, 20, "SHARP UP600"},
    {kV1334R1, 22, "TEC"},
    {kV1334R1, 25, "UNIWELL"},
    {kV1334R1, -1, "UNIWELL MODEL"},
};

TEST(RegisterLists, NamesHaveTheirCodes) {
  for (const auto& [firmware, code, name] : kNames)
    EXPECT_EQ(Catalogue(firmware).names.at(static_cast<std::size_t>(code)), name) << firmware.Joined();
}

TEST(RegisterLists, KeysRecogniseAModelByItsNumber) {
  for (const auto& [firmware, number, key] : kKeys)
    EXPECT_EQ(Catalogue(firmware).index.at(key), number) << firmware.Joined() << " " << key;
}

TEST(RegisterLists, TcpipMovesTheOtherNamesOfV1324UpByOne) {
  auto shifted = Catalogue({"V1324", "R18"}).names;
  shifted.insert(shifted.begin() + 1, "TCPIP");
  EXPECT_EQ(Catalogue({"V1324", "R19"}).names, shifted);
}

TEST(RegisterKeys, AreDistinctAndEachIsUsedByAFirmware) {
  const std::set<std::string_view> keys(firmware::RegisterKeys().begin(), firmware::RegisterKeys().end());
  EXPECT_EQ(firmware::RegisterKeys().size(), NumberOfRegisterKeys());
  EXPECT_EQ(keys.size(), NumberOfRegisterKeys());
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
