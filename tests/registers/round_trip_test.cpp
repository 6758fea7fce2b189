// A register's default image, picked, loaded whole and composed again, for every firmware and every name.
#include <gtest/gtest.h>

#include <algorithm>

#include "catalogue/firmware.h"
#include "default_images.h"
#include "image/files.h"
#include "image/record_stream.h"
#include "support/harness.h"

namespace ovl::testing {
namespace {

class EveryFirmware : public ::testing::TestWithParam<FirmwareEntry> {};

std::string ImagePath(const Harness& program, const FirmwareId& firmware, std::string name) {
  if (firmware.IsV1400()) {
    std::replace(name.begin(), name.end(), '/', ' ');
    std::replace(name.begin(), name.end(), ',', ' ');
  }
  return program.folder.File(firmware.version + "/" + firmware.release + "/" + name + ".bin");
}

TEST_P(EveryFirmware, PicksAndLoadsItsDefaultImagesWithoutChangingThem) {
  const FirmwareId firmware{std::string(GetParam().version), std::string(GetParam().release)};
  Harness program(firmware);
  WriteDefaultImages(program.folder.Path().string(), firmware);
  ASSERT_EQ(program.Start(), Outcome::kDone);
  auto& app = program.app;
  const auto names = app.frmMain.ComboReg.items;
  ASSERT_FALSE(names.empty());
  for (std::size_t code = 0; code < names.size(); ++code) {
    SCOPED_TRACE(names[code]);
    ASSERT_EQ(program.Pick("ComboReg", static_cast<int>(code)), Outcome::kDone);
    EXPECT_EQ(app.image[FieldId::REGTYPE], ByteToHex(static_cast<int>(code)));
    const auto once = app.image;
    ASSERT_EQ(program.Pick("ComboReg", static_cast<int>(code)), Outcome::kDone);
    EXPECT_TRUE(app.image == once);
    EXPECT_EQ(app.frmMain.ComboReg.position, static_cast<int>(code));

    const auto path = ImagePath(program, firmware, names[code]);
    program.file_answers.emplace_back(path);
    ASSERT_EQ(program.Click("OpenMenu"), Outcome::kDone);
    EXPECT_EQ(SectionsToStream(app) + "\r\n", ReadWhole(path));
  }
  EXPECT_TRUE(program.NoBoxLeft());
}

std::vector<FirmwareEntry> MenuEntries() {
  std::vector<FirmwareEntry> entries;
  for (const auto& entry : FirmwareTable()) {
    if (entry.in_menu) entries.push_back(entry);
  }
  return entries;
}

INSTANTIATE_TEST_SUITE_P(DefaultImages, EveryFirmware, ::testing::ValuesIn(MenuEntries()),
                         [](const auto& firmware) {
                           return std::string(firmware.param.version).append(firmware.param.release);
                         });

}  // namespace
}  // namespace ovl::testing
