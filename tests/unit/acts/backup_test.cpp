// A backup opens again under its firmware without a difference, whatever the user did before.
#include "acts/backup.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/configuration.h"
#include "firmware/firmware_table.h"
#include "firmware/traits.h"
#include "image/field_map.h"
#include "image/record_stream.h"
#include "search/random_walk/act_generator.h"
#include "search/random_walk/checked_program.h"
#include "support/firmware_facts.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

constexpr const char* kBackup = "backup.bin";

// The walk works in the current folder.
class BackupWalk : public ::testing::Test {
 protected:
  BackupWalk() : before_(fs::current_path()) { fs::current_path(folder_.Path()); }
  ~BackupWalk() override { fs::current_path(before_); }

 private:
  TemporaryFolder folder_;
  fs::path before_;
};

// The entries that differ among those that a stream of the firmware contains.
std::string DifferentEntries(const image::ConfigImage& one, const image::ConfigImage& other,
                             const firmware::FirmwareId& firmware) {
  std::string names;
  for (const auto& row : image::FieldTable()) {
    if (!InStream(row, LayoutOf(firmware), firmware, firmware::CapabilitiesOf(firmware),
                  image::Direction::kRead))
      continue;
    for (int entry = 1; entry <= image::EntryCount(row.id); ++entry) {
      if (one.at(row.id, entry) != other.at(row.id, entry))
        names += std::string(row.name) + "(" + std::to_string(entry) + ") ";
    }
  }
  return names;
}

// Whether the image has all digits of its firmware, and none too many.
bool IsComplete(core::Application& app) {
  auto copy = app.image;
  copy[image::FieldId::BLNKRTS_BAK].resize(firmware::StoresBlankByRts(app.firmware) ? 2 : 0, '0');
  const auto sections =
      image::WriteSections(copy, LayoutOf(app.firmware), app.firmware, CapabilitiesOf(app.firmware));
  return sections.SYSCFG.size() + sections.SYSFIXED.size() + sections.SYSSTR.size() ==
         FactsOf(app.firmware).stream.digits;
}

void Walk(CheckedProgram& program, unsigned seed, int acts) {
  ActGenerator generator(seed);
  for (int act = 0; act < acts; ++act) {
    for (const auto& line : generator.Next(program.App())) {
      if (program.Ended() && line != "start") break;
      ASSERT_EQ(program.Do(line), "") << line;
    }
  }
  if (program.Ended()) program.Do("start");
}

// False: the walk has ended the program, led to another firmware, or opened a file of another layout. Then
// there is nothing to compare, but a backup is refused exactly if the image is not complete.
bool BackUpAndReopen(const firmware::FirmwareId& stored, unsigned seed) {
  constexpr int kActs = 40;
  for (const auto* file : kWalkFiles) fs::remove(file);
  CheckedProgram program(stored);
  Walk(program, seed, kActs);
  if (program.Ended()) return false;
  auto& app = program.App();
  const auto written = acts::SaveBackup(app, kBackup);
  EXPECT_EQ(written.Ok(), IsComplete(app));
  if (!written.Ok() || app.firmware != firmware::ServedFirmware(stored.Joined())) return false;
  CheckedProgram other(stored);
  other.Do(std::string("answer ") + kBackup);
  other.Do("click OpenMenu");
  EXPECT_FALSE(other.Ended());
  // As read. Open then shows it, and the panels put a record in order when they show it.
  EXPECT_EQ(DifferentEntries(other.App().known_image, app.image, app.firmware), "");
  EXPECT_EQ(acts::ReopenableFile(other.App().known_image, app.firmware), ReadFile(kBackup));
  return true;
}

TEST_F(BackupWalk, OpensAgainWithoutADifferenceUnderEveryFirmware) {
  constexpr unsigned kLastSeed = 20;
  for (const auto& entry : firmware::FirmwareTable()) {
    const auto stored = entry.Id();
    SCOPED_TRACE(stored.Joined());
    images::WriteDefaultImages(".", firmware::ServedFirmware(stored.Joined()));
    unsigned seed = 1;
    while (!BackUpAndReopen(stored, seed)) ASSERT_LE(++seed, kLastSeed);
  }
}

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
