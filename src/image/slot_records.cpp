#include "image/slot_records.h"

#include <algorithm>
#include <array>

#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "firmware/traits.h"

namespace ovl::image {
namespace {

constexpr std::size_t kByte = 2;
constexpr std::size_t kTextLength = 40;
constexpr std::size_t kAlarmDurationEnd = 3 * kByte;
constexpr int kParityBits = 3;
constexpr int kOperatorBits = 3;
constexpr int kOperatorShift = 2;
constexpr char kWildcard = '?';
constexpr char kStoredWildcard = '\x7F';

std::size_t ValueDigits(const firmware::FirmwareId& firmware) {
  return firmware::RangeIntegersOf(firmware) + kRangeDecimals;
}

std::size_t RangeEnd(const firmware::FirmwareId& firmware) {
  return kByte + 2 * ValueDigits(firmware);
}

std::string_view From(std::string_view record, std::size_t first) {
  return record.substr(std::min(first, record.size()));
}

}  // namespace

std::string UpToNul(std::string text) {
  text.resize(std::min(text.find('\0'), text.size()));
  return text;
}

std::string StoredText(std::string_view digits) {
  return UpToNul(codecs::HexToText(digits)).substr(0, kTextLength);
}

std::string PaddedText(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return std::string(2 * kTextLength, '0');
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);
  auto digits = codecs::TextToHex(text.substr(0, kTextLength));
  digits.resize(2 * kTextLength, '0');
  return digits;
}

std::string WithoutEndMark(std::string_view digits) {
  return std::string(digits.substr(0, std::max(digits.size(), kByte) - kByte));
}

void StoreFirstByte(std::string& record, int byte) {
  record.replace(0, std::min(record.size(), kByte), codecs::ByteToHex(byte));
}

int ParityEntry(int flags) {
  constexpr std::array kEntries = {0, 0, 2, 1};
  return kEntries.at(static_cast<std::size_t>(flags & kParityBits));
}

int WithParityEntry(int flags, int entry) {
  constexpr std::array kBitsOfEntry = {0, 3, 2};
  return (flags & ~kParityBits) | kBitsOfEntry.at(static_cast<std::size_t>(entry));
}

int OperatorOf(int flags) {
  return flags >> kOperatorShift & kOperatorBits;
}

int WithOperator(int flags, int entry) {
  return (flags & ~(kOperatorBits << kOperatorShift)) | entry << kOperatorShift;
}

RangeValue RangeValueOf(std::string_view slot, const firmware::FirmwareId& firmware, std::size_t value) {
  const auto first = kByte + value * ValueDigits(firmware);
  const auto integers = firmware::RangeIntegersOf(firmware);
  return {codecs::Slice(slot, first, integers), codecs::Slice(slot, first + integers, kRangeDecimals)};
}

void StoreRange(std::string& slot, const firmware::FirmwareId& firmware, std::string_view digits) {
  slot = codecs::Slice(slot, 0, kByte).append(digits) + codecs::Slice(slot, RangeEnd(firmware));
}

std::string ExceptionText(std::string_view slot, const firmware::FirmwareId& firmware) {
  auto text = StoredText(From(slot, RangeEnd(firmware) + kByte));
  std::replace(text.begin(), text.end(), kStoredWildcard, kWildcard);
  return text;
}

void StoreExceptionText(std::string& slot, const firmware::FirmwareId& firmware, std::string text) {
  text = text.substr(0, kTextLength);
  std::replace(text.begin(), text.end(), kWildcard, kStoredWildcard);
  const bool blank = std::all_of(text.begin(), text.end(), [](char character) { return character == ' '; });
  text.resize(kTextLength, ' ');
  const int flags = codecs::WithBit(codecs::HexToInt(slot), kFreeBit, blank);
  const auto range = codecs::Slice(slot, kByte, 2 * ValueDigits(firmware));
  slot = codecs::ByteToHex(flags) + range + codecs::TextToCountedHex(text);
}

std::string FreeExceptionSlot(const firmware::FirmwareId& firmware) {
  std::string slot(RangeEnd(firmware), '0');
  StoreExceptionText(slot, firmware, {});
  return slot;
}

DigitSpan RangeDigits(const firmware::FirmwareId& firmware) {
  return {kByte, 2 * ValueDigits(firmware)};
}

DigitSpan PatternDigits(const firmware::FirmwareId& firmware) {
  return {RangeEnd(firmware)};
}

bool IsFreeException(std::string_view slot) {
  return !slot.empty() && codecs::HasBit(codecs::HexToInt(slot), kFreeBit);
}

TriggeringExceptions ExceptionsOfTrigger(int trigger) {
  constexpr int kFirstHalf = 25, kSecondHalf = 26, kAll = 27, kHalf = kExceptions / 2;
  if (trigger > kNoTrigger && trigger <= kExceptions) return {trigger, trigger};
  if (trigger == kFirstHalf) return {1, kHalf};
  if (trigger == kSecondHalf) return {kHalf + 1, kExceptions};
  if (trigger == kAll) return {1, kExceptions};
  return {};
}

std::optional<int> AlarmTime(int counter) {
  constexpr int kPulse = 0, kEnd = 256;
  return counter == kPulse ? std::nullopt : std::optional(kEnd - counter);
}

int AlarmTrigger(std::string_view record) {
  return codecs::HexToInt(record);
}

int AlarmCounter(std::string_view record) {
  return codecs::HexToInt(From(record, kByte));
}

int AlarmVideoLoss(std::string_view record) {
  return codecs::HexToInt(From(record, std::max(record.size(), kByte) - kByte));
}

std::string_view AlarmVideoLossDigits(std::string_view record) {
  return From(record, kAlarmDurationEnd);
}

void StoreAlarmTrigger(std::string& record, int trigger) {
  record = codecs::ByteToHex(trigger) + codecs::Slice(record, kByte);
}

void StoreAlarmDuration(std::string& record, const firmware::FirmwareId& firmware, int counter, int entry) {
  auto stored = codecs::Slice(record, 0, kByte) + codecs::ByteToHex(counter) + codecs::ByteToHex(entry);
  if (firmware::HasVideoLoss(firmware)) stored += AlarmVideoLossDigits(record);
  record = std::move(stored);
}

void StoreAlarmVideoLoss(std::string& record, int entry) {
  record = codecs::Slice(record, 0, kAlarmDurationEnd) + codecs::ByteToHex(entry);
}

bool IsNormallyClosed(const ConfigImage& image, int number) {
  constexpr int kAlarmsOfByte = 8;
  const auto& states = image.at(FieldId::ALMNORMAL_BAK, (number - 1) / kAlarmsOfByte + 1);
  return codecs::HasBit(codecs::HexToInt(states), (number - 1) % kAlarmsOfByte);
}

std::string_view TriggeredDigits(std::string_view record) {
  return From(record, kByte);
}

}  // namespace ovl::image
