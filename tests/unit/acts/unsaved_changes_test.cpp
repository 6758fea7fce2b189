// The copy of unsaved changes across every change of firmware, and at every end of the program.
#include "acts/unsaved_changes.h"

#include <gtest/gtest.h>

#include "acts/backup.h"
#include "support/firmware_facts.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

// A program with a change that no file and no unit holds.
struct Changed : Installed {
  explicit Changed(const firmware::FirmwareId& firmware) : Installed(firmware, Images::kFirstRegister) {
    Pick("ComboCOMM(3)", app.frmMain.ComboCOMM[3].position == 0 ? 1 : 0);
  }
};

TEST(UnsavedChanges, KeepTheFirmwareOfTheirNameWhateverFirmwareIsPicked) {
  for (const auto& from : EveryFirmware()) {
    for (const auto& to : EveryFirmware()) {
      if (from == to) continue;
      SCOPED_TRACE(from.Joined() + " to " + to.Joined());
      Changed program(from);
      auto& app = program.app;
      ASSERT_TRUE(acts::HasUnsavedChanges(app));
      const auto copy = acts::ReopenableFileOf(app);
      std::string name, during_box;
      app.platform.show_message = [&](const core::MessageBox&) {
        EXPECT_EQ(app.firmware, to);
        name = acts::FirmwareName(app);
        during_box = acts::ReopenableFileOf(app);
      };
      const auto item = to.Joined() + "mnu";
      const core::ClickEvent pick{app.registry.Find(item)->control};
      ASSERT_EQ(Dispatch(app, pick), core::Outcome::kEnded);
      EXPECT_EQ(name, from.Joined());
      EXPECT_EQ(during_box, copy);
      EXPECT_TRUE(acts::OpensUnder(copy, name));
      EXPECT_TRUE(acts::DropsUnsavedChanges(app, pick, true));
      EXPECT_FALSE(acts::DropsUnsavedChanges(app, pick, false)) << "the next start serves the old firmware";
    }
  }
}

TEST(UnsavedChanges, OpenUnderTheFirmwareThatTheirNameShows) {
  for (const auto& firmware : EveryFirmware()) {
    SCOPED_TRACE(firmware.Joined());
    Changed program(firmware);
    const auto path = program.folder.File("rescued.bin");
    ASSERT_TRUE(acts::SaveBackup(program.app, path).Ok());
    const auto changed = program.app.image;
    Installed next(firmware, Images::kFirstRegister);
    EXPECT_EQ(next.Open(path), core::Outcome::kDone);
    EXPECT_TRUE(next.app.image == changed);
  }
  EXPECT_TRUE(acts::OpensUnder(PatternStream({"V1400", "R7"}), "V1410R1"));
  EXPECT_FALSE(acts::OpensUnder(PatternStream({"V1400", "R12"}), "V1400R7")) << "one byte longer";
  for (const auto* name : {"V1400R4", "V1300R14", "", "R", "nonsense"})
    EXPECT_FALSE(acts::OpensUnder(PatternStream({"V1400", "R12"}), name)) << name;
}

TEST(UnsavedChanges, AreDroppedWhenTheUserLeavesAndAtNoOtherEnd) {
  Changed program(kLatest);
  auto& app = program.app;
  const auto click = [](auto& control) { return core::Event(core::ClickEvent{&control}); };
  EXPECT_TRUE(acts::DropsUnsavedChanges(app, click(app.frmMain.menuExit), true));
  EXPECT_TRUE(acts::DropsUnsavedChanges(app, click(app.frmMain.menuExit), false));
  EXPECT_TRUE(acts::DropsUnsavedChanges(app, core::CloseEvent{&app.frmMain.form}, true));
  for (const auto& event :
       {click(app.frmMain.OpenMenu), click(app.frmOK_buttom.Command1), core::Event(core::ReceivedEvent{}),
        core::Event(core::PickEvent{&app.frmMain.ComboReg, 3}),
        core::Event(core::CloseEvent{&app.frmMicros.form}), core::Event(core::TickEvent{&app.frmMain.Timer})})
    EXPECT_FALSE(acts::DropsUnsavedChanges(app, event, true)) << event.index();
}

}  // namespace
}  // namespace ovl::testing
