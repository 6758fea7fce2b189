// A register's default image, picked, loaded and composed again.
#include <gtest/gtest.h>

#include "catalogue/firmware.h"
#include "default_images.h"
#include "image/files.h"
#include "image/record_stream.h"
#include "support/harness.h"

namespace ovl::testing {
namespace {

FirmwareId IdOf(const FirmwareEntry& entry) {
  return {std::string(entry.version), std::string(entry.release)};
}

TEST(DefaultImages, EveryPickGivesWhatItsImageHoldsAndTwiceTheSame) {
  int picks = 0;
  for (const auto& entry : FirmwareTable()) {
    if (!entry.in_menu) continue;
    const auto firmware = IdOf(entry);
    Harness program(firmware);
    WriteDefaultImages(program.folder.Path().string(), firmware);
    ASSERT_EQ(program.Start(), Outcome::kDone);
    const int names = static_cast<int>(program.app.frmMain.ComboReg.items.size());
    for (int code = 0; code < names; ++code) {
      SCOPED_TRACE(firmware.Joined() + " " +
                   program.app.frmMain.ComboReg.items[static_cast<std::size_t>(code)]);
      ASSERT_EQ(program.Pick("ComboReg", code), Outcome::kDone);
      EXPECT_EQ(program.app.image[FieldId::REGTYPE], ByteToHex(code));
      EXPECT_EQ(program.app.frmMain.ComboReg.position, code);
      const auto once = program.app.image;
      ASSERT_EQ(program.Pick("ComboReg", code), Outcome::kDone);
      EXPECT_TRUE(program.app.image == once);
      ++picks;
    }
    EXPECT_TRUE(program.NoBoxLeft());
  }
  EXPECT_EQ(picks, 1552);
}

TEST(DefaultImages, LoadedWholeAndAppliedToAllPanelsEveryImageIsUnchanged) {
  for (const auto& entry : FirmwareTable()) {
    if (!entry.in_menu) continue;
    const auto firmware = IdOf(entry);
    Harness program(firmware);
    WriteDefaultImages(program.folder.Path().string(), firmware);
    ASSERT_EQ(program.Start(), Outcome::kDone);
    auto& app = program.app;
    const auto names = app.frmMain.ComboReg.items;
    for (std::size_t code = 0; code < names.size(); ++code) {
      SCOPED_TRACE(firmware.Joined() + " " + names[code]);
      app.frmMain.ComboReg.position = static_cast<int>(code);
      DispatchStart(app, [](Application& inside) { (void)inside; });
      program.file_answers.push_back(
          program.folder.File(firmware.version + "/" + firmware.release + "/" + [&] {
            auto name = names[code];
            if (firmware.IsV1400()) {
              for (auto& character : name) character = character == '/' || character == ',' ? ' ' : character;
            }
            return name;
          }() + ".bin"));
      const auto path = *program.file_answers.back();
      ASSERT_EQ(program.Click("OpenMenu"), Outcome::kDone);
      EXPECT_TRUE(program.NoBoxLeft());
      EXPECT_EQ(SectionsToStream(app) + "\r\n", ReadWhole(path));
    }
  }
}

}  // namespace
}  // namespace ovl::testing
