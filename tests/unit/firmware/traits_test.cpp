// What a firmware has, at the releases where it changes and at releases that no unit has.
#include "firmware/traits.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ovl::testing {
namespace {

using firmware::FirmwareId;
using firmware::Layout;

using Predicate = bool (*)(const FirmwareId&);

struct Fact {
  const char* name;
  Predicate holds;
  const char* firmware;  // those that have it and those behind "!" that lack it
};

constexpr Fact kFacts[] = {
    {"alarm type", firmware::HasAlarmType,
     "V1400 R6 V1300 R26 V1324 R25 V1310 R0 V1334 R1 ! V1400 R5 V1300 R25 V1324 R24 V1410 R7"},
    {"second recorder pair", firmware::HasSecondRecorderPair,
     "V1400 R0 V1300 R27 V1324 R26 V1310 R1 V9 R1 ! V1300 R26 V1324 R25 V1300 x"},
    {"stored demonstration", firmware::StoresDemo, "V1400 R1 V1300 R0 V1334 x ! V1400 R0 V1410 R1"},
    {"packed demonstration", firmware::HasPackedDemo,
     "V1400 R2 V1300 R27 V1324 R26 V1310 R0 V1334 R0 V1400 R10000 ! V1400 R1 V1300 R26 V1324 R25 V9 R30"},
    {"demonstration from one", firmware::CountsDemoCharactersFromOne,
     "V1400 R1 V1300 R26 V1324 R25 ! V1400 R0 V1400 R2 V1300 R27 V1324 R26 V1310 R0 V9 R1"},
    {"demonstration type", firmware::ShowsDemoType,
     "V1400 R2 V1400 R4 V1400 R6 V1400 R7 V1400 R11 V1400 R13 ! V1400 R1 V1400 R3 V1400 R5 V1400 R8 V1400 "
     "R10 V1300 R27"},
    {"demonstration speed", firmware::ShowsDemoSpeed,
     "V1400 R13 V1300 R27 V1310 R1 ! V1400 R12 V1300 R26 V9 R20"},
    {"saved file reopens", firmware::SavedFileReopens,
     "V1400 R1 V1400 R6 V1300 R25 V1324 R24 ! V1400 R7 V1400 R12 V1300 R26 V1324 R25 V1310 R1 V1334 R1 V9 "
     "R1"},
    {"short image", firmware::HasShortImage, "V1400 R5 V1400 R0 V1400 x ! V1400 R6 V1300 R5"},
    {"blank by RTS", firmware::StoresBlankByRts,
     "V1400 R11 V1300 R26 V1324 R25 V1310 R1 V9 R1 ! V1400 R10 V1400 R6 V1300 R25 V1324 R24"},
    {"fixed master address", firmware::HasFixedMasterAddress,
     "V1400 R1 V1400 R2 ! V1400 R01 V1400 R4 V1300 R1"},
    {"EPSON read", firmware::ReadsEpsonFromExtension,
     "V1400 R6 V1324 R24 V1310 R24 V1334 R1 ! V1400 R5 V1324 R23 V1310 R1 V1300 R27"},
    {"EPSON written", firmware::WritesEpsonToExtension, "V1400 R7 ! V1400 R6 V1324 R26 V1334 R7"},
    {"NIXDORF written", firmware::WritesNixdorfToExtension, "V1400 R7 V1300 R14 V9 R8 ! V1400 R6 V1310 R1"},
    {"GILBARCO XML", firmware::OffersGilbarcoXml,
     "V1400 R6 V1300 R23 V1310 R0 ! V1400 R5 V1300 R22 V1334 R30"},
    {"GILBARCO XML list", firmware::HasGilbarcoXmlList, "V1300 R27 V1310 R1 ! V1300 R26 V1400 R12"},
    {"compact", firmware::IsCompact, "V1410 R1 ! V1400 R1"},
};

TEST(Traits, HoldFromTheirFirstReleaseOn) {
  for (const auto& fact : kFacts) {
    std::istringstream words(fact.firmware);
    bool expected = true;
    for (FirmwareId id; words >> id.version;) {
      if (id.version == "!") {
        expected = false;
        continue;
      }
      words >> id.release;
      EXPECT_EQ(fact.holds(id), expected) << fact.name << ": " << id.Joined();
    }
    EXPECT_FALSE(expected) << fact.name << " is nowhere denied";
  }
}

// The early V1400 layout goes by the text; the length of the image and everything else by the number.
TEST(Traits, LayoutsGoByTextInV1400AndByNumberElsewhere) {
  const std::pair<FirmwareId, Layout> layouts[] = {
      {{"V1400", "R6"}, Layout::kEarlyV1400}, {{"V1400", "R06"}, Layout::kLateV1400},
      {{"V1400", "R3"}, Layout::kLateV1400},  {{"V1400", "R7"}, Layout::kLateV1400},
      {{"V1300", "R25"}, Layout::kOldV13},    {{"V1300", "R26"}, Layout::kNewV13},
      {{"V1324", "R24"}, Layout::kOldV13},    {{"V1324", "R25"}, Layout::kNewV13},
      {{"V1310", "R1"}, Layout::kNewV13},     {{"V9", "R1"}, Layout::kNewV13},
  };
  for (const auto& [id, layout] : layouts) EXPECT_EQ(firmware::LayoutOf(id), layout) << id.Joined();
}

TEST(Traits, TcpIpGoesByTheLastTwoCharacters) {
  for (const auto* release : {"R19", "R26", "R119", "19", "R99"})
    EXPECT_TRUE(firmware::CapabilitiesOf({"V1324", release}).HasTcpIp) << release;
  for (const auto* release : {"R18", "R9", "R200", "", "R", "R1901"})
    EXPECT_FALSE(firmware::CapabilitiesOf({"V1324", release}).HasTcpIp) << release;
  EXPECT_TRUE(firmware::CapabilitiesOf({"V1300", "R14"}).HasTcpIp);
}

TEST(Traits, ListsFollowTheRelease) {
  const auto codes = [](const FirmwareId& id) {
    const auto* found = firmware::InterfaceCodesOf(id);
    return found == nullptr ? std::string() : (*found)[0] + std::string(" ") + (*found)[2];
  };
  EXPECT_EQ(codes({"V1400", "R6"}), "0A 36");
  EXPECT_EQ(codes({"V1400", "R5"}), "0E 36");
  EXPECT_EQ(codes({"V1324", "R24"}), "0A 26");
  EXPECT_EQ(codes({"V1334", "R1"}), "0E 26");
  EXPECT_EQ(codes({"V1410", "R1"}), "");
  EXPECT_EQ(firmware::WeighScaleModelsOf({"V1400", "R5"}).size(), 0U);
}

TEST(Traits, RowsOfATableEndWithTheirLastRelease) {
  const firmware::Releases row = {firmware::kFamily1300 | firmware::kFamily1324, 14, 17};
  for (const auto* release : {"R14", "R17"})
    EXPECT_TRUE(firmware::IsInReleases({"V1324", release}, row)) << release;
  for (const auto* release : {"R13", "R18", ""})
    EXPECT_FALSE(firmware::IsInReleases({"V1300", release}, row)) << release;
  EXPECT_FALSE(firmware::IsInReleases({"V1310", "R15"}, row));
  EXPECT_FALSE(firmware::IsInReleases({"V9", "R15"}, {~0U}));
}

}  // namespace
}  // namespace ovl::testing
