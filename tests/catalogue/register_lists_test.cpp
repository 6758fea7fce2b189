#include "catalogue/register_lists.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ovl {
namespace {

struct Firmware {
  const char* version;
  const char* release;
  std::size_t names;
};

constexpr Firmware kAllFirmware[] = {
    {"V1400", "R1", 78},  {"V1400", "R2", 78},   {"V1400", "R4", 78},   {"V1400", "R6", 78},
    {"V1400", "R7", 110}, {"V1400", "R11", 111}, {"V1400", "R12", 111}, {"V1300", "R14", 41},
    {"V1300", "R15", 42}, {"V1300", "R16", 42},  {"V1300", "R17", 42},  {"V1300", "R18", 42},
    {"V1300", "R19", 42}, {"V1300", "R20", 43},  {"V1300", "R21", 44},  {"V1300", "R23", 44},
    {"V1300", "R26", 46}, {"V1300", "R27", 46},  {"V1324", "R17", 38},  {"V1324", "R18", 40},
    {"V1324", "R19", 41}, {"V1324", "R20", 41},  {"V1324", "R21", 42},  {"V1324", "R23", 42},
    {"V1324", "R24", 42}, {"V1324", "R25", 44},  {"V1324", "R26", 44},  {"V1310", "R1", 33},
    {"V1334", "R1", 27},
};

std::string Name(const Firmware& firmware) {
  return std::string(firmware.version) + firmware.release;
}

// What start-up keeps of a list: the names, and for every key the number that recognises it.
struct Catalogue {
  Catalogue(const char* version, const char* release) {
    for (std::string_view key : RegisterKeys()) index[std::string(key)] = -1;
    for (const RegisterEntry& entry : BuildRegisterEntries(version, release)) {
      names.emplace_back(entry.name);
      if (!entry.key.empty()) index.at(std::string(entry.key)) = entry.key_index;
    }
  }

  std::vector<std::string> names;
  std::map<std::string, int> index;
};

// Names or keys of a firmware, each behind the position where it is expected: "5 ADS; 11 GASBOY".
struct Sample {
  const char* version;
  const char* release;
  const char* spots;
};

std::vector<std::pair<int, std::string>> Spots(const Sample& sample) {
  std::vector<std::pair<int, std::string>> spots;
  std::istringstream text(sample.spots);
  int position = 0;
  for (std::string name; text >> position >> std::ws && std::getline(text, name, ';');) {
    spots.emplace_back(position, name);
  }
  return spots;
}

TEST(RegisterLists, EveryFirmwareHasItsListOfDistinctNames) {
  for (const Firmware& firmware : kAllFirmware) {
    SCOPED_TRACE(Name(firmware));
    const Catalogue catalogue(firmware.version, firmware.release);
    EXPECT_EQ(catalogue.names.size(), firmware.names);
    EXPECT_EQ(std::set<std::string>(catalogue.names.begin(), catalogue.names.end()).size(), firmware.names);
    ASSERT_FALSE(catalogue.names.empty());
    EXPECT_EQ(catalogue.names.front(), "GENERIC");
  }
}

TEST(RegisterLists, UnknownPairsHaveNoList) {
  const std::pair<const char*, const char*> pairs[] = {{"V1400", "R3"}, {"V1300", "R22"}, {"V1324", "R22"},
                                                       {"V1410", "R1"}, {"V1310", "R2"},  {"V1334", "R17"},
                                                       {"V1400", "r7"}, {"V1400", ""},    {"", ""}};
  for (const auto& [version, release] : pairs) {
    EXPECT_TRUE(BuildRegisterEntries(version, release).empty()) << version << release;
  }
}

TEST(RegisterLists, NamesStandAtTheirCodes) {
  const Sample samples[] = {
      {"V1400", "R6", "6 BEETLE 50 PRINTERS; 21 HTEC; 45 POINT4 DV10; 77 WEIGH SCALE"},
      {"V1400", "R7", "72 QUEST VMD40X; 73 REMANCO 260R139507; 104 UNIPAR; 109 WEIGH SCALE"},
      {"V1400", "R11", "2 ALOHA; 72 QUEST VMD40X; 73 RADIENT; 110 WEIGH SCALE"},
      {"V1300", "R14", "5 ADS; 11 GASBOY; 21 MICROS; 24 NIXDORF BEETLE; 40 OVL-DRS"},
      {"V1300", "R19", "11 GASBOY; 12 GILBARCO; 24 NCR7456; 25 NIXDORF BEETLE; 41 OVL-DRS"},
      {"V1300", "R20", "12 GLORY GFR-220; 13 GILBARCO; 25 NCR7456; 29 POLE DISPLAY; 30 SHARP; 42 OVL-DRS"},
      {"V1300", "R23", "29 POLE DISPLAY; 30 RUBY SAPPHIRE; 31 SHARP; 43 OVL-DRS"},
      {"V1300", "R26", "20 MICROPOS; 21 MICROMAX; 30 RADIENT; 31 RUBY SAPPHIRE; 32 SENSORS; 45 OVL-DRS"},
      {"V1300", "R27", "19 MICRELEC; 20 MICROMAX; 21 MICROPOS; 22 MICROS; 45 OVL-DRS"},
      {"V1324", "R17", "1 BEETLE 50 PRINTERS; 5 CASIO VIDEO SYSTEM; 35 UP3000; 37 WEIGH SCALE"},
      {"V1324", "R18", "5 CASIO TE-2200; 13 KOPPENS GASPUMP; 14 NCR RCPT PRINTER; 39 WEIGH SCALE"},
      {"V1324", "R20", "1 TCPIP; 2 BEETLE 50 PRINTERS; 15 NCR RCPT PRINTER; 40 WEIGH SCALE"},
      {"V1324", "R24", "1 TCPIP; 36 TKMAXX; 40 WEIGH SCALE; 41 TEC SLIP PRINTER EMULATE"},
      {"V1324", "R25",
       "2 ANSI; 12 EPSON GENERIC; 13 GLORY GFR-220; 38 TEC SLIP PRINTER EMULATE; 39 TKMAXX; "
       "43 WEIGH SCALE"},
      {"V1310", "R1", "4 PC COM 1234; 9 GLORY GFR-220; 18 NE134 COUNTER; 32 WEIGH SCALE"},
      {"V1334", "R1", "4 BEETLE 50 PRINTERS; 14 NCR RCPT PRINTER; 24 UP3000; 26 WEIGH SCALE"},
  };
  for (const Sample& sample : samples) {
    const Catalogue catalogue(sample.version, sample.release);
    for (const auto& [position, name] : Spots(sample)) {
      EXPECT_EQ(catalogue.names.at(static_cast<std::size_t>(position)), name)
          << sample.version << sample.release << " at " << position;
    }
  }
}

TEST(RegisterLists, TcpipPushesTheRestOfV1324UpByOne) {
  std::vector<std::string> shifted = Catalogue("V1324", "R18").names;
  shifted.insert(shifted.begin() + 1, "TCPIP");
  EXPECT_EQ(Catalogue("V1324", "R19").names, shifted);
}

TEST(RegisterKeys, AreDistinctAndEachServesAFirmware) {
  const std::set<std::string_view> keys(RegisterKeys().begin(), RegisterKeys().end());
  EXPECT_EQ(RegisterKeys().size(), 136u);
  EXPECT_EQ(keys.size(), 136u);

  std::set<std::string_view> served;
  for (const Firmware& firmware : kAllFirmware) {
    std::set<std::string_view> in_list;
    for (const RegisterEntry& entry : BuildRegisterEntries(firmware.version, firmware.release)) {
      if (entry.key.empty()) continue;
      EXPECT_TRUE(in_list.insert(entry.key).second) << Name(firmware) << " has twice " << entry.key;
    }
    served.insert(in_list.begin(), in_list.end());
  }
  EXPECT_EQ(served, keys);
}

TEST(RegisterKeys, RecogniseAModelWhateverItsListCallsIt) {
  const Sample samples[] = {
      {"V1400", "R4",
       "6 BEETLE 50 PRINTERS; 37 NIXDORF BEETLE; 18 FUJITSU; 22 HUTH; 33 NCR; "
       "36 NCR RCPT PRINTER; -1 NCR MODEL; 34 NCR7454WS; 43 PC COM; 53 SHARP UP600; 66 TEC; "
       "70 UNIPAR; 72 UNIWELL; 73 UNIWELL MODEL; 74 UP3000 3300"},
      {"V1400", "R7",
       "28 FUJITSU; 37 HUTH; -1 NCR; 52 NCR MODEL; 62 PC COM; 97 TEC; "
       "103 TOWA PROSPER ET-7826; 104 UNIPAR; -1 UNIWELL; 106 UNIWELL MODEL; -1 RADIENT; "
       "-1 BEETLE 50 PRINTERS"},
      {"V1400", "R12", "73 RADIENT; 98 TEC; -1 UNIWELL; 107 UNIWELL MODEL"},
      {"V1300", "R14",
       "3 PC COM; 10 FUJITSU; 22 NCR; 23 NCR7454WS; 24 BEETLE 50 PRINTERS; "
       "-1 NIXDORF BEETLE; 37 UNIWELL MODEL; 38 UP3000 3300; -1 SENSORS"},
      {"V1300", "R26", "32 SENSORS; 20 MICROPOS"},
      {"V1324", "R17",
       "-1 TCPIP; 1 BEETLE 50 PRINTERS; 11 HUTH; 13 NIXDORF BEETLE; -1 NCR; 25 SHARP UP600; "
       "-1 TEC; 34 UNIPAR; 36 UNIWELL"},
      {"V1324", "R21", "1 TCPIP; 15 NCR; -1 NCR RCPT PRINTER; 41 TEC; -1 UP3000 3300"},
      {"V1310", "R1",
       "4 PC COM; 15 NCR; 16 NCR7454WS; 19 BEETLE 50 PRINTERS; -1 NIXDORF BEETLE; 26 TEC; "
       "29 UP3000 3300"},
      {"V1334", "R1",
       "4 BEETLE 50 PRINTERS; 14 NCR; -1 NCR RCPT PRINTER; 15 NIXDORF BEETLE; "
       "20 SHARP UP600; 22 TEC; 25 UNIWELL; -1 UNIWELL MODEL"},
  };
  for (const Sample& sample : samples) {
    const Catalogue catalogue(sample.version, sample.release);
    for (const auto& [position, key] : Spots(sample)) {
      EXPECT_EQ(catalogue.index.at(key), position) << sample.version << sample.release << ' ' << key;
    }
  }
}

TEST(RegisterKeys, OnlyV1324LacksTheAddressableUnit) {
  for (const Firmware& firmware : kAllFirmware) {
    const bool present = Catalogue(firmware.version, firmware.release).index.at("ADDRESSABLE OVL") >= 0;
    EXPECT_EQ(present, std::string_view(firmware.version) != "V1324") << Name(firmware);
  }
}

TEST(RegisterKeys, TakeTheirEntrysPositionWithFewExceptions) {
  for (const Firmware& firmware : kAllFirmware) {
    const bool shifted = Name(firmware) == "V1400R11" || Name(firmware) == "V1400R12";
    int position = 0;
    int without_key = 0;
    for (const RegisterEntry& entry : BuildRegisterEntries(firmware.version, firmware.release)) {
      SCOPED_TRACE(Name(firmware) + ' ' + std::string(entry.name));
      if (entry.key.empty()) {
        EXPECT_EQ(entry.name, "UP3000");
        EXPECT_EQ(entry.key_index, -1);
        ++without_key;
      } else if (!shifted || position != 105) {
        EXPECT_EQ(entry.key_index, position);
      }
      ++position;
    }
    const std::string_view version = firmware.version;
    EXPECT_EQ(without_key, version == "V1324" || version == "V1334" ? 1 : 0) << Name(firmware);
  }
}

TEST(RegisterKeys, UniparOfV1400R11AndR12SharesTheCodeBeforeItsOwn) {
  for (const char* release : {"R11", "R12"}) {
    const Catalogue catalogue("V1400", release);
    EXPECT_EQ(catalogue.names.at(105), "UNIPAR");
    EXPECT_EQ(catalogue.index.at("UNIPAR"), 104);
    EXPECT_EQ(catalogue.index.at("TOWA PROSPER ET-7826"), 104);
    for (const auto& [key, position] : catalogue.index) EXPECT_NE(position, 105) << key;
  }
}

}  // namespace
}  // namespace ovl
