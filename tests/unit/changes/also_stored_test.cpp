#include "changes/also_stored.h"

#include <gtest/gtest.h>

#include "changes/editors.h"
#include "support/firmware_facts.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

std::string LineAfterPick(core::Application& app, std::string_view list, int entry) {
  const auto before = app.image;
  const core::PickEvent pick{app.registry.Find(list)->control, entry};
  Dispatch(app, pick);
  return changes::AlsoStored(app, pick, before).English();
}

// With HW HANDSHAKING ON every pick in AUTO LINEFEED stores OFF, also one that changes no byte. No other list
// stores an entry that it does not show.
TEST(AlsoStored, APickThatStoresAnotherEntryIsContradicted) {
  for (const auto& firmware : {kLatest, firmware::FirmwareId{"V1300", "R23"}}) {
    Installed program(firmware);
    for (const auto& editor : changes::Editors()) {
      if (editor.display == core::ValueDisplay::kNothing || editor.controls == "ComboCOMM(6)") continue;
      for (const int entry : {0, 1})
        EXPECT_FALSE(LineAfterPick(program.app, editor.controls, entry).starts_with("Stored: "))
            << editor.controls;
    }
    EXPECT_EQ(LineAfterPick(program.app, "ComboCOMM(5)", 0), "");
    for ([[maybe_unused]] const int time : {1, 2})
      EXPECT_EQ(LineAfterPick(program.app, "ComboCOMM(6)", 0), "Stored: AUTO LINEFEED OFF, not ON.");
    EXPECT_EQ(LineAfterPick(program.app, "ComboCOMM(6)", 1), "");
  }
}

}  // namespace
}  // namespace ovl::testing
