// Parts of the records, in whole records and in those that a file cut short.
#include "image/slot_records.h"

#include <gtest/gtest.h>

#include "codecs/bytes.h"
#include "firmware/traits.h"
#include "image/field_map.h"

namespace ovl::testing {
namespace {

const firmware::FirmwareId kV1400{"V1400", "R12"};
const firmware::FirmwareId kV1300{"V1300", "R14"};

TEST(SlotRecords, FreeSlotsAreAsWideAsTheFirmwareStoresThem) {
  for (const auto& firmware : {kV1400, kV1300}) {
    const auto slot = image::FreeExceptionSlot(firmware);
    const auto& row = *image::FindField("EXCPSTRS");
    EXPECT_EQ(static_cast<int>(slot.size()), image::DigitsOf(row, firmware::LayoutOf(firmware)));
    EXPECT_TRUE(codecs::HasBit(codecs::HexToInt(slot), image::kFreeBit));
    EXPECT_EQ(image::ExceptionText(slot, firmware), std::string(40, ' '));
  }
}

TEST(SlotRecords, RangeAndPatternOfASlotKeepOutOfEachOther) {
  for (const auto& firmware : {kV1400, kV1300}) {
    auto slot = image::FreeExceptionSlot(firmware);
    const std::string digits = firmware.IsV1400() ? "12345678901122334455" : "123490112255";
    image::StoreRange(slot, firmware, digits);
    image::StoreExceptionText(slot, firmware, "VOID ?");
    EXPECT_EQ(slot.substr(0, 2 + digits.size() + 2), "00" + digits + "06");
    EXPECT_EQ(image::ExceptionText(slot, firmware), "VOID ?" + std::string(34, ' '));
    const auto high = image::RangeValueOf(slot, firmware, 0);
    const auto low = image::RangeValueOf(slot, firmware, 1);
    EXPECT_EQ(high.integers + high.decimals + low.integers + low.decimals, digits);
    EXPECT_EQ(image::RangeAndLengthOf(slot), digits + "06");
    EXPECT_EQ(image::CharactersOf(slot).substr(0, 12), "564F4944207F");
  }
}

TEST(SlotRecords, ShortRecordsReadAsEmpty) {
  for (const std::string record : {"", "1", "10", "1012"}) {
    const auto value = image::RangeValueOf(record, kV1400, 1);
    EXPECT_EQ(value.integers + value.decimals, "") << record;
    EXPECT_EQ(image::ExceptionText(record, kV1400), "") << record;
    EXPECT_EQ(image::RangeAndLengthOf(record), "") << record;
    EXPECT_EQ(image::AlarmVideoLossDigits(record), "") << record;
  }
  EXPECT_EQ(image::AlarmVideoLoss("1"), 0x10) << "the last two digits, as far as they are there";
  EXPECT_EQ(image::WithoutEndMark("4"), "");
  std::string record;
  image::StoreFirstByte(record, 0x21);
  EXPECT_EQ(record, "21");
}

TEST(SlotRecords, AlarmDurationsLeaveTheVideoLossInPlace) {
  std::string record = "1C000007";
  image::StoreAlarmDuration(record, kV1400, 0xFD, 1);
  EXPECT_EQ(record, "1CFD0107");
  image::StoreAlarmTrigger(record, 3);
  image::StoreAlarmVideoLoss(record, 9);
  EXPECT_EQ(record, "03FD0109");
  image::StoreAlarmDuration(record, kV1300, 0, 11);
  EXPECT_EQ(record, "03000B") << "V13xx has no byte for the video loss";
}

TEST(SlotRecords, FlagsKeepTheirOtherBits) {
  for (int entry = 0; entry < 3; ++entry) {
    EXPECT_EQ(image::ParityEntry(image::WithParityEntry(0xFF, entry)), entry);
    EXPECT_EQ(image::WithParityEntry(0xFF, entry) & ~3, 0xFC);
    EXPECT_EQ(image::OperatorOf(image::WithOperator(0xFF, entry)), entry);
    EXPECT_EQ(image::WithOperator(0xF3, entry) & ~0xC, 0xF3);
  }
  EXPECT_EQ(image::ParityEntry(1), 0) << "odd or even means nothing while parity is off";
}

TEST(SlotRecords, NormalStatesCountAcrossTwoBytes) {
  image::ConfigImage image;
  image.at(image::FieldId::ALMNORMAL_BAK, 1) = "81";
  image.at(image::FieldId::ALMNORMAL_BAK, 2) = "40";
  std::string closed;
  for (int number = 1; number <= image::kAlarms; ++number)
    if (image::IsNormallyClosed(image, number)) closed += std::to_string(number) + " ";
  EXPECT_EQ(closed, "1 8 15 ");
}

}  // namespace
}  // namespace ovl::testing
