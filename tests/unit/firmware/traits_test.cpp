// What is read from the text of a release, and what a release has that no unit has. What the firmware of the
// menu have is part of the tests of the panels, the registers and the form, which run under each of them.
#include "firmware/traits.h"

#include <gtest/gtest.h>

namespace ovl::testing {
namespace {

using firmware::FirmwareId;
using firmware::Layout;

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
