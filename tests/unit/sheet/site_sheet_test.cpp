// The site sheet as HTML, and its checksum.
#include "sheet/site_sheet.h"

#include <gtest/gtest.h>

#include "core/configuration.h"
#include "image/slot_records.h"
#include "sheet/checksum.h"
#include "start/start_up.h"
#include "text_form/encoding.h"

namespace ovl::testing {
namespace {

using image::FieldId;

// The text without what is between "<" and ">".
std::string WithoutTags(std::string html) {
  for (auto tag = html.find('<'); tag != std::string::npos; tag = html.find('<'))
    html.replace(tag, html.find('>', tag) - tag + 1, " ");
  return html;
}

std::string Blanks(int count) {
  std::string blanks;
  for (int blank = 0; blank < count; ++blank) blanks += "&#160;";
  return blanks;
}

class SiteSheet : public ::testing::Test {
 protected:
  SiteSheet() {
    start::ServeFirmware(app_, {"V1400", "R12"});
    app_.image = text_form::FilledImage(app_.image_firmware, '0');
  }

  std::string Text() const { return WithoutTags(sheet::SiteSheet(app_, app_.image, {}).Html()); }
  bool Has(const std::string& text) const { return Text().find(text) != std::string::npos; }

  core::Application app_;
};

TEST_F(SiteSheet, HasTheExceptionsAndAlarmsThatAreInUse) {
  auto& image = app_.image;
  image::StoreExceptionText(image.at(FieldId::EXCPSTRS, 2), app_.image_firmware, "  A<B> & \"C\"  \xC4");
  image::StoreFirstByte(image.at(FieldId::EXCPSTRS, 9), 1 << image::kDisplayBit);
  image::StoreExceptionText(image.at(FieldId::EXCPSTRS, 12), app_.image_firmware, "FREE");
  image::StoreFirstByte(image.at(FieldId::EXCPSTRS, 12), 1 << image::kFreeBit);
  image::StoreAlarmTrigger(image.at(FieldId::ALMSTRUCT_BAK, 4), 2);
  auto& triggered = image.at(FieldId::TRIGGER_TEXT, 7);
  triggered = triggered.substr(0, image::kTriggeredDigits.first) + image::PaddedText("TILL  OPEN") + "00";
  image.at(FieldId::ALMNORMAL_BAK, 2) = "80";

  EXPECT_TRUE(Has(" 2   " + Blanks(2) + "A&lt;B&gt;&#160;&amp;&#160;&quot;C&quot;&#160;&#160;\xC3\x84" +
                  Blanks(25) + " "))
      << Text();
  EXPECT_TRUE(Has("Exceptions 1, 3 to 8 and 10 to 24 are free."));
  EXPECT_FALSE(Has("FREE"));
  // A list without a meaning shows a fixed text.
  EXPECT_TRUE(Has("TX PROTOCOL  ASCII "));
  EXPECT_TRUE(Has("EX.&#160;2"));
  EXPECT_TRUE(Has("RTS TRIGGERED TEXT&#160;DELAY "));
  EXPECT_TRUE(Has("TILL&#160;&#160;OPEN" + Blanks(30) + " "));
  EXPECT_TRUE(Has("Alarms 1 to 3, 5, 6 and 8 to 15 are free."));
}

TEST_F(SiteSheet, SaysIfTheUnitMayNotHaveAllOfIt) {
  const auto html = sheet::SiteSheet(app_, app_.image, {}, sheet::Changes::kNotDownloaded).Html();
  EXPECT_NE(html.find("not downloaded"), std::string::npos);
  EXPECT_FALSE(Has("not downloaded"));
}

TEST_F(SiteSheet, TheChecksumIsThatOfTheStreamOfADownload) {
  EXPECT_EQ(sheet::Crc32("123456789"), 0xCBF43926);
  image::StoreExceptionText(app_.image.at(FieldId::EXCPSTRS, 24), app_.image_firmware, "VOID");
  const auto sum = sheet::Checksum(app_.image, app_.image_firmware);
  ASSERT_TRUE(sum);
  EXPECT_EQ(std::stoul(*sum, nullptr, 16), sheet::Crc32(core::SectionsToStream(app_) + "\r\n"));
  EXPECT_TRUE(Has("Checksum  " + *sum));
  app_.image[FieldId::TX_BAUDRATE].clear();
  EXPECT_TRUE(Has("not complete"));
}

}  // namespace
}  // namespace ovl::testing
