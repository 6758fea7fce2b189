// Free exception slots, and the parts of records that a file cut short.
#include "image/slot_records.h"

#include <gtest/gtest.h>

#include "codecs/codecs.h"

namespace ovl::testing {
namespace {

TEST(SlotRecords, AFreeSlotIsMarkedAndBlank) {
  EXPECT_EQ(image::FreeExceptionSlot({"V1300", "R14"}),
            "10" + std::string(14, '0') + codecs::TextToHex(std::string(40, ' ')) + "00");
}

TEST(SlotRecords, RangeAndPatternOfASlotKeepOutOfEachOther) {
  for (const auto& firmware : {firmware::FirmwareId{"V1400", "R12"}, firmware::FirmwareId{"V1300", "R14"}}) {
    auto slot = image::FreeExceptionSlot(firmware);
    const std::string digits = firmware.IsV1400() ? "12345678901122334455" : "123490112255";
    image::StoreRange(slot, firmware, digits);
    image::StoreExceptionText(slot, firmware, "VOID ?");
    const auto range = image::RangeDigits(firmware), pattern = image::PatternDigits(firmware);
    EXPECT_EQ(slot.substr(range.first, range.count), digits);
    EXPECT_EQ(slot.substr(pattern.first, 14), "06564F4944207F");
  }
}

TEST(SlotRecords, ShortRecordsReadAsEmpty) {
  const firmware::FirmwareId firmware{"V1400", "R12"};
  for (const std::string record : {"", "1", "10", "1012"}) {
    const auto value = image::RangeValueOf(record, firmware, 1);
    EXPECT_EQ(value.integers + value.decimals, "") << record;
    EXPECT_EQ(image::ExceptionText(record, firmware), "") << record;
    EXPECT_EQ(image::AlarmVideoLossDigits(record), "") << record;
  }
  EXPECT_EQ(image::AlarmVideoLoss("1"), 0x10) << "the last two digits, as far as they are there";
  EXPECT_EQ(image::WithoutEndMark("4"), "");
  std::string record;
  image::StoreFirstByte(record, 0x21);
  EXPECT_EQ(record, "21");
}

}  // namespace
}  // namespace ovl::testing
