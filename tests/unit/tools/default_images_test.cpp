#include "images/default_images.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/configuration.h"
#include "files/files.h"
#include "firmware/firmware_table.h"
#include "host/files.h"
#include "image/record_stream.h"
#include "support/harness.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

TEST(DefaultImages, EveryNameOfEveryFirmwareHasAFileThatLoadsUnchanged) {
  TemporaryFolder folder;
  int files = 0;
  for (const auto& entry : firmware::FirmwareTable()) {
    if (!entry.in_menu) continue;
    const firmware::FirmwareId firmware{std::string(entry.version), std::string(entry.release)};
    files += images::WriteDefaultImages(folder.Path().string(), firmware);
  }
  EXPECT_EQ(files, 1552);
  int found = 0;
  for (const auto& file : fs::recursive_directory_iterator(folder.Path())) {
    if (!file.is_regular_file()) continue;
    ++found;
    const auto release = file.path().parent_path();
    core::Application app;
    app.firmware = {release.parent_path().filename().string(), release.filename().string()};
    app.platform.show_message = [&](const core::MessageBox& box) {
      ADD_FAILURE() << file.path() << ": " << box.text;
    };
    PrepareCapabilities(app);
    ASSERT_TRUE(LoadStream(app, files::ReadJoined(host::DiskFiles(), file.path().string()))) << file.path();
    EXPECT_EQ(SectionsToStream(app) + "\r\n", ReadFile(file.path().string())) << file.path();
  }
  EXPECT_EQ(found, 1552);
}

TEST(DefaultImages, TheNamesOfV1400HaveNoSlashAndNoComma) {
  TemporaryFolder folder;
  images::WriteDefaultImages(folder.Path().string(), {"V1400", "R7"});
  EXPECT_TRUE(fs::exists(folder.File("V1400/R7/HUTH T400 T500.bin")));
  EXPECT_TRUE(fs::exists(folder.File("V1400/R7/PC COM 1 2 3 4.bin")));
}

}  // namespace
}  // namespace ovl::testing
