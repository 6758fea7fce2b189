#include "images/default_images.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/configuration.h"
#include "files/files.h"
#include "host/files.h"
#include "image/record_stream.h"
#include "support/firmware_facts.h"
#include "support/harness.h"
#include "support/register_facts.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

TEST(DefaultImages, EveryRegisterOfEveryFirmwareHasAFileThatLoadsUnchanged) {
  TemporaryFolder folder;
  std::size_t files = 0;
  for (const auto& firmware : EveryFirmware())
    files += static_cast<std::size_t>(images::WriteDefaultImages(folder.Path().string(), firmware));
  EXPECT_EQ(files, NumberOfDefaultImages());
  std::size_t found = 0;
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
  EXPECT_EQ(found, NumberOfDefaultImages());
}

TEST(DefaultImages, TheNamesOfV1400HaveNoSlashAndNoComma) {
  TemporaryFolder folder;
  images::WriteDefaultImages(folder.Path().string(), {"V1400", "R7"});
  EXPECT_TRUE(fs::exists(folder.File("V1400/R7/HUTH T400 T500.bin")));
  EXPECT_TRUE(fs::exists(folder.File("V1400/R7/PC COM 1 2 3 4.bin")));
}

}  // namespace
}  // namespace ovl::testing
