#include "firmware/register_lists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "core/application.h"
#include "registers/register_catalogue.h"
#include "unit/registers/rows.h"

namespace ovl::testing {
namespace {

// What start-up keeps of a list: the names, and for every key the number that recognises it.
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

TEST(RegisterLists, EveryFirmwareHasItsListOfDistinctNames) {
  // In the order of the menu.
  const std::vector<std::size_t> counts = {78, 78, 78, 78, 110, 111, 111, 41, 42, 42, 42, 42, 42, 43, 44,
                                           44, 46, 46, 38, 40,  41,  41,  42, 42, 42, 44, 44, 33, 27};
  const auto all = EveryFirmware();
  ASSERT_EQ(all.size(), counts.size());
  for (std::size_t place = 0; place < counts.size(); ++place) {
    const auto names = Catalogue(all[place]).names;
    EXPECT_EQ(names.size(), counts[place]) << all[place].Joined();
    EXPECT_EQ(std::set(names.begin(), names.end()).size(), names.size()) << all[place].Joined();
    EXPECT_EQ(names.at(0), "GENERIC");
  }
}

TEST(RegisterLists, UnknownPairsHaveNoList) {
  const std::pair<const char*, const char*> pairs[] = {{"V1400", "R3"},  {"V1324", "R22"}, {"V1410", "R1"},
                                                       {"V1334", "R17"}, {"V1400", "r7"},  {"", ""}};
  for (const auto& [version, release] : pairs)
    EXPECT_TRUE(firmware::BuildRegisterEntries(version, release).empty()) << version << release;
}

// Of a firmware's list some names at their codes and, behind "=", keys with the number that recognises them;
// a model has the same key whatever its list calls it.
constexpr const char* kSamples[] = {
    "V1400R4;=6 BEETLE 50 PRINTERS;=37 NIXDORF BEETLE;=18 FUJITSU;=22 HUTH;=33 NCR;=36 NCR RCPT PRINTER;"
    "=-1 NCR MODEL;=34 NCR7454WS;=43 PC COM;=53 SHARP UP600;=66 TEC;=70 UNIPAR;=72 UNIWELL;"
    "=73 UNIWELL MODEL;=74 UP3000 3300",
    "V1400R6;6 BEETLE 50 PRINTERS;21 HTEC;45 POINT4 DV10;77 WEIGH SCALE",
    "V1400R7;72 QUEST VMD40X;73 REMANCO 260R139507;104 UNIPAR;109 WEIGH SCALE;=28 FUJITSU;=37 HUTH;=-1 NCR;"
    "=52 NCR MODEL;=62 PC COM;=97 TEC;=103 TOWA PROSPER ET-7826;=104 UNIPAR;=-1 UNIWELL;=106 UNIWELL MODEL;"
    "=-1 RADIENT;=-1 BEETLE 50 PRINTERS",
    "V1400R11;2 ALOHA;72 QUEST VMD40X;73 RADIENT;105 UNIPAR;110 WEIGH SCALE",
    "V1400R12;105 UNIPAR;=73 RADIENT;=98 TEC;=104 UNIPAR;=-1 UNIWELL;=107 UNIWELL MODEL",
    "V1300R14;5 ADS;11 GASBOY;21 MICROS;24 NIXDORF BEETLE;40 OVL-DRS;=3 PC COM;=10 FUJITSU;=22 NCR;"
    "=23 NCR7454WS;=24 BEETLE 50 PRINTERS;=-1 NIXDORF BEETLE;=37 UNIWELL MODEL;=38 UP3000 3300;=-1 SENSORS",
    "V1300R19;11 GASBOY;12 GILBARCO;24 NCR7456;25 NIXDORF BEETLE;41 OVL-DRS",
    "V1300R20;12 GLORY GFR-220;13 GILBARCO;25 NCR7456;29 POLE DISPLAY;30 SHARP;42 OVL-DRS",
    "V1300R23;29 POLE DISPLAY;30 RUBY SAPPHIRE;31 SHARP;43 OVL-DRS",
    "V1300R26;20 MICROPOS;21 MICROMAX;30 RADIENT;31 RUBY SAPPHIRE;32 SENSORS;45 OVL-DRS;=32 SENSORS;"
    "=20 MICROPOS",
    "V1300R27;19 MICRELEC;20 MICROMAX;21 MICROPOS;22 MICROS;45 OVL-DRS",
    "V1324R17;1 BEETLE 50 PRINTERS;5 CASIO VIDEO SYSTEM;35 UP3000;37 WEIGH SCALE;=-1 ADDRESSABLE OVL;"
    "=-1 TCPIP;=1 BEETLE 50 PRINTERS;=11 HUTH;=13 NIXDORF BEETLE;=-1 NCR;=25 SHARP UP600;=-1 TEC;=34 UNIPAR;"
    "=36 UNIWELL",
    "V1324R18;5 CASIO TE-2200;13 KOPPENS GASPUMP;14 NCR RCPT PRINTER;39 WEIGH SCALE",
    "V1324R20;1 TCPIP;2 BEETLE 50 PRINTERS;15 NCR RCPT PRINTER;40 WEIGH SCALE",
    "V1324R21;=1 TCPIP;=15 NCR;=-1 NCR RCPT PRINTER;=41 TEC;=-1 UP3000 3300",
    "V1324R24;1 TCPIP;36 TKMAXX;40 WEIGH SCALE;41 TEC SLIP PRINTER EMULATE",
    "V1324R25;2 ANSI;12 EPSON GENERIC;13 GLORY GFR-220;38 TEC SLIP PRINTER EMULATE;39 TKMAXX;43 WEIGH SCALE",
    "V1310R1;4 PC COM 1234;9 GLORY GFR-220;18 NE134 COUNTER;32 WEIGH SCALE;=4 PC COM;=15 NCR;=16 NCR7454WS;"
    "=19 BEETLE 50 PRINTERS;=-1 NIXDORF BEETLE;=26 TEC;=29 UP3000 3300",
    "V1334R1;4 BEETLE 50 PRINTERS;14 NCR RCPT PRINTER;24 UP3000;26 WEIGH SCALE;=4 BEETLE 50 PRINTERS;"
    "=14 NCR;=-1 NCR RCPT PRINTER;=15 NIXDORF BEETLE;=20 SHARP UP600;=22 TEC;=25 UNIWELL;=-1 UNIWELL MODEL",
};

TEST(RegisterLists, NamesStandAtTheirCodesAndKeysRecogniseAModel) {
  for (const auto* sample : kSamples) {
    const auto [firmware, rows] = FirmwareAndRows(sample, ';');
    const Catalogue catalogue(firmware);
    for (const auto& row : rows) {
      const auto name = row.substr(row.find(' ') + 1);
      const auto code =
          std::find(catalogue.names.begin(), catalogue.names.end(), name) - catalogue.names.begin();
      const auto number =
          row[0] == '=' ? "=" + std::to_string(catalogue.index.at(name)) : std::to_string(code);
      EXPECT_EQ(number + " " + name, row) << firmware.Joined();
    }
  }
}

TEST(RegisterLists, TcpipPushesTheRestOfV1324UpByOne) {
  auto shifted = Catalogue({"V1324", "R18"}).names;
  shifted.insert(shifted.begin() + 1, "TCPIP");
  EXPECT_EQ(Catalogue({"V1324", "R19"}).names, shifted);
}

TEST(RegisterKeys, AreDistinctAndEachServesAFirmware) {
  const std::set<std::string_view> keys(firmware::RegisterKeys().begin(), firmware::RegisterKeys().end());
  EXPECT_EQ(firmware::RegisterKeys().size(), 136U);
  EXPECT_EQ(keys.size(), 136U);
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

// UNIPAR of two firmware shares the code before its own with TOWA PROSPER ET-7826, and nothing has its own.
TEST(RegisterKeys, TakeTheirEntrysPositionWithFewExceptions) {
  for (const auto& firmware : EveryFirmware()) {
    const bool shifted = firmware.Joined() == "V1400R11" || firmware.Joined() == "V1400R12";
    int position = 0;
    for (const auto& entry : firmware::BuildRegisterEntries(firmware.version, firmware.release)) {
      const bool without_key = entry.name == "UP3000";
      const int index = without_key ? -1 : shifted && position == 105 ? 104 : position;
      EXPECT_EQ(entry.key.empty(), without_key) << firmware.Joined() << " " << entry.name;
      EXPECT_EQ(entry.key_index, index) << firmware.Joined() << " " << entry.name;
      ++position;
    }
  }
}

}  // namespace
}  // namespace ovl::testing
