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

}  // namespace
}  // namespace ovl::testing
