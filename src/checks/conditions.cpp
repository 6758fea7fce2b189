#include "checks/conditions.h"

#include <algorithm>

#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "image/slot_records.h"

namespace ovl::checks {

using enum image::FieldId;
using phrases::Pattern;
using phrases::Sentence;
using phrases::Words;

bool IsBlank(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char character) { return character == ' '; });
}

bool FirstIsAboveSecond(std::string_view slot, const firmware::FirmwareId& firmware) {
  const auto first = image::RangeValueOf(slot, firmware, 0);
  const auto second = image::RangeValueOf(slot, firmware, 1);
  const auto one = first.integers + first.decimals;
  const auto other = second.integers + second.decimals;
  return one.size() == other.size() && one > other;
}

bool WaitsForFreeExceptions(const image::ConfigImage& image, int trigger) {
  const auto [first, last] = image::ExceptionsOfTrigger(trigger);
  if (first > last) return false;
  for (int number = first; number <= last; ++number) {
    if (!image::IsFreeException(image.at(EXCPSTRS, number))) return false;
  }
  return true;
}

bool IsBlankException(std::string_view slot, const firmware::FirmwareId& firmware) {
  if (slot.empty() || !IsBlank(image::ExceptionText(slot, firmware))) return false;
  const int flags = codecs::HexToInt(slot);
  const bool acts = codecs::HasBit(flags, image::kDisplayBit) || codecs::HasBit(flags, image::kOutputBit) ||
                    codecs::HasBit(flags, image::kHistoryBit) || codecs::HasBit(flags, image::kScrollBit) ||
                    image::OperatorOf(flags) != 0;
  return acts || !codecs::HasBit(flags, image::kFreeBit);
}

bool IsBlankTrigger(std::string_view record) {
  if (record.empty()) return false;
  constexpr int kShownOrSent = 1 << image::kDisplayBit | 1 << image::kOutputBit;
  const auto text = image::StoredText(image::WithoutEndMark(image::TriggeredDigits(record)));
  return IsBlank(text) && (!text.empty() || (codecs::HexToInt(record) & kShownOrSent) != 0);
}

std::vector<Words> InWords(const std::vector<int>& numbers) {
  std::vector<Words> words;
  for (std::size_t at = 0; at < numbers.size();) {
    auto last = at;
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
    if (last < at + 2) last = at;
    const Words first(std::to_string(numbers[at]));
    words.push_back(last > at ? Sentence(Pattern("List", "%1 to %2"), {first, std::to_string(numbers[last])})
                              : first);
    at = last + 1;
  }
  return words;
}

Words NumberedExceptions(const std::vector<int>& numbers) {
  const auto list = phrases::Listed(InWords(numbers));
  return numbers.size() == 1 ? Sentence(Pattern("List", "exception %1"), {list})
                             : Sentence(Pattern("List", "exceptions %1"), {list});
}

Words NumberedAlarms(const std::vector<Words>& numbers, std::size_t count) {
  const auto list = phrases::Listed(numbers);
  return count == 1 ? Sentence(Pattern("List", "alarm %1"), {list})
                    : Sentence(Pattern("List", "alarms %1"), {list});
}

Words NumberedAlarms(const std::vector<int>& numbers) {
  return NumberedAlarms(InWords(numbers), numbers.size());
}

}  // namespace ovl::checks
