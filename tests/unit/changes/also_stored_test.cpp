// The quiet line after a pick in the register list.
#include "changes/also_stored.h"

#include <gtest/gtest.h>

#include "support/firmware_facts.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

std::string LineAfterPick(Installed& program, const std::string& name) {
  const auto before = program.app.image;
  const core::PickEvent pick{program.app.registry.Find("ComboReg")->control, program.CodeOf(name)};
  EXPECT_EQ(Dispatch(program.app, pick), core::Outcome::kDone);
  return changes::AlsoStored(program.app, pick, before);
}

TEST(AlsoStored, ARegisterPickNamesWhatIsOnOtherTabs) {
  for (const auto& firmware : {kLatest, firmware::FirmwareId{"V1300", "R23"}}) {
    Installed program(firmware);
    program.Pick("ComboExcepRe(0)", 1);
    program.Pick("ComboCOMM(2)", 1);
    EXPECT_EQ(LineAfterPick(program, "ADS"),
              "Also stored: COMMUNICATION: TX BAUDRATE 9600; EXCEPTION REPORT: OUTPUT OFF.");
    EXPECT_EQ(LineAfterPick(program, "ADS"), "") << "nothing differs";
    EXPECT_EQ(program.Open(std::nullopt), core::Outcome::kDone);
    EXPECT_EQ(LineAfterPick(program, "MICRELEC"), "") << "the pick is swallowed";
    EXPECT_EQ(LineAfterPick(program, "MICRELEC"),
              "Also stored: COMMUNICATION: PARITY EVEN, DATA BITS 7, RX BAUDRATE 14400, TX BAUDRATE 2400.");
  }
}

}  // namespace
}  // namespace ovl::testing
