#include "checks/conditions.h"

#include <algorithm>

#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "image/slot_records.h"

namespace ovl::checks {

using enum image::FieldId;

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

std::string Listed(const std::vector<std::string>& words) {
  std::string text;
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (at > 0) text += at + 1 == words.size() ? " and " : ", ";
    text += words[at];
  }
  return text;
}

std::string Numbered(const std::string& kind, const std::vector<std::string>& numbers) {
  return kind + (numbers.size() == 1 ? " " : "s ") + Listed(numbers);
}

std::string Numbered(const std::string& kind, const std::vector<int>& numbers) {
  std::vector<std::string> words;
  for (std::size_t at = 0; at < numbers.size();) {
    auto last = at;
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
    if (last < at + 2) last = at;
    words.push_back(std::to_string(numbers[at]));
    if (last > at) words.back() += " to " + std::to_string(numbers[last]);
    at = last + 1;
  }
  return kind + (numbers.size() == 1 ? " " : "s ") + Listed(words);
}

}  // namespace ovl::checks
