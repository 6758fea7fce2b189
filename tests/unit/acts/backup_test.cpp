// The bytes, the name and the refusal of a backup. That it opens again without a difference, whatever the
// user did before, is the random walk's to find out.
#include "acts/backup.h"

#include <gtest/gtest.h>

#include "core/configuration.h"
#include "support/firmware_facts.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

TEST(Backup, IsTheStreamOfADownload) {
  for (const auto& firmware : EveryFirmware()) {
    Installed program(firmware, Images::kFirstRegister);
    EXPECT_EQ(acts::ReopenableFileOf(program.app), SectionsToStream(program.app) + "\r\n");
  }
}

// This release sends a flag that it does not read.
TEST(Backup, LeavesOutAFlagThatItsReaderDoesNotExpect) {
  Installed program({"V1400", "R7"});
  const auto before = acts::ReopenableFileOf(program.app);
  program.app.image[image::FieldId::BLNKRTS_BAK] = "01";
  EXPECT_EQ(acts::ReopenableFileOf(program.app), before);
  EXPECT_GT(SectionsToStream(program.app).size() + 2, before.size());
}

TEST(Backup, NamesFirmwareRegisterAndDay) {
  Installed program(kLatest);
  program.now = {2026, 3, 5, 14, 7, 9};
  EXPECT_EQ(acts::BackupName(program.app), "V1400R12 GENERIC 2026-03-05.bin");
  program.Register("HUTH T400/T500");
  EXPECT_EQ(acts::BackupName(program.app), "V1400R12 HUTH T400-T500 2026-03-05.bin");
  Installed compact({"V1410", "R1"}, Images::kOwn);
  images::WriteDefaultImages(compact.folder.Path().string(), {"V1400", "R7"});
  ASSERT_EQ(compact.Start(), core::Outcome::kDone);
  EXPECT_EQ(acts::BackupName(compact.app).find("V1410R1 GENERIC "), 0U);
  const firmware::FirmwareId served{"V1400", "R7"};
  EXPECT_EQ(compact.app.image_firmware, served);
}

TEST(Backup, OfAConfigurationThatCannotBeReadBackIsRefused) {
  Installed program(kLatest);
  const auto path = program.folder.File("backup.bin"), saved = program.folder.File("saved.bin");
  WriteFile(path, "older");
  program.Answer("menuSave", saved);
  program.Open(saved);
  const auto refused = acts::SaveBackup(program.app, path);
  ASSERT_FALSE(refused.Ok());
  EXPECT_EQ(refused.Problem().Text(), "V1400R12: The configuration is not complete");
  EXPECT_EQ(ReadFile(path), "older");
  program.Open(program.PathOf("ADS"));
  EXPECT_TRUE(acts::SaveBackup(program.app, path).Ok());
  EXPECT_EQ(ReadFile(path), acts::ReopenableFileOf(program.app));
  const auto blocked = program.folder.File("no folder/backup.bin");
  EXPECT_EQ(acts::SaveBackup(program.app, blocked).Problem().Text(), blocked + ": No such file or directory");
}

}  // namespace
}  // namespace ovl::testing
