#include "acts/advice/setting_conditions.h"

#include <algorithm>
#include <string>
#include <vector>

#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "image/slot_records.h"

namespace ovl::acts {
namespace {

using enum image::FieldId;

// "3", "3 and 7", "3, 7 and 9".
std::string Listed(const std::vector<std::string>& words) {
  std::string text;
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (at > 0) text += at + 1 == words.size() ? " and " : ", ";
    text += words[at];
  }
  return text;
}

// "exception 3", "exceptions 3 and 7".
std::string Numbered(const std::string& kind, const std::vector<std::string>& numbers) {
  return kind + (numbers.size() == 1 ? " " : "s ") + Listed(numbers);
}

// The same with the numbers of three and more neighbours as "3 to 7".
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

// An action that shows the first of the exceptions or alarms that the line names.
constexpr std::string_view kExceptionList = "ComboExcp(0)";
constexpr std::string_view kAlarmList = "ComboALM(0)";
Advice GoTo(std::string words, std::string caption, std::string_view control, std::string_view list,
            int number) {
  return {AdviceId::kCount,
          {},
          std::move(words),
          AdviceAction::kGoToControl,
          std::move(caption),
          control,
          list,
          number};
}

bool IsBlank(const std::string& text) {
  return std::all_of(text.begin(), text.end(), [](char character) { return character == ' '; });
}

bool FirstIsAboveSecond(const core::Application& app, const std::string& slot) {
  const auto first = image::RangeValueOf(slot, app.image_firmware, 0);
  const auto second = image::RangeValueOf(slot, app.image_firmware, 1);
  const auto one = first.integers + first.decimals;
  const auto other = second.integers + second.decimals;
  return one.size() == other.size() && one > other;
}

bool WaitsForFreeExceptions(const core::Application& app, int trigger) {
  const auto [first, last] = image::ExceptionsOfTrigger(trigger);
  if (first > last) return false;
  for (int number = first; number <= last; ++number) {
    if (!image::IsFreeException(app.image.at(EXCPSTRS, number))) return false;
  }
  return true;
}

// An exception that has an action or an operator, and only blanks to look for.
bool IsBlankException(const core::Application& app, const std::string& slot) {
  if (slot.empty() || !IsBlank(image::ExceptionText(slot, app.image_firmware))) return false;
  const int flags = codecs::HexToInt(slot);
  const bool acts = codecs::HasBit(flags, image::kDisplayBit) || codecs::HasBit(flags, image::kOutputBit) ||
                    codecs::HasBit(flags, image::kHistoryBit) || codecs::HasBit(flags, image::kScrollBit) ||
                    image::OperatorOf(flags) != 0;
  return acts || !codecs::HasBit(flags, image::kFreeBit);
}

// A triggered text of blanks, or one that is shown or sent and is empty.
bool IsBlankTrigger(const std::string& record) {
  if (record.empty()) return false;
  constexpr int kShownOrSent = 1 << image::kDisplayBit | 1 << image::kOutputBit;
  const auto text = image::StoredText(image::WithoutEndMark(image::TriggeredDigits(record)));
  return IsBlank(text) && (!text.empty() || (codecs::HexToInt(record) & kShownOrSent) != 0);
}

}  // namespace

Advice RangeOrder(const core::Application& app, const Observed&) {
  std::vector<int> numbers;
  for (int number = 1; number <= image::kExceptions; ++number) {
    if (FirstIsAboveSecond(app, app.image.at(EXCPSTRS, number))) numbers.push_back(number);
  }
  if (numbers.empty()) return {};
  const auto& button = app.frmMain.cmdSetRange.caption;
  return GoTo("In the range of " + Numbered("exception", numbers) +
                  " the first value is above the second. Check it with " + button + ".",
              button, "cmdSetRange", kExceptionList, numbers.front());
}

Advice AlarmWithoutException(const core::Application& app, const Observed&) {
  const auto& triggers = app.frmMain.ComboALM[controls::Alm::kTrigger];
  std::vector<std::string> alarms;
  int first = 0;
  for (int number = 1; number <= image::kAlarms; ++number) {
    const int trigger = image::AlarmTrigger(app.image.at(ALMSTRUCT_BAK, number));
    if (!WaitsForFreeExceptions(app, trigger)) continue;
    if (first == 0) first = number;
    alarms.push_back(std::to_string(number) + " (" + triggers.items.at(static_cast<std::size_t>(trigger)) +
                     ")");
  }
  if (alarms.empty()) return {};
  return GoTo("Free exceptions trigger " + Numbered("alarm", alarms) +
                  ", so nothing sets off such an alarm. Give the exceptions a text, or pick another " +
                  triggers.caption + ".",
              triggers.caption, "ComboALM(1)", kAlarmList, first);
}

Advice BlankText(const core::Application& app, const Observed&) {
  std::vector<int> exceptions, alarms;
  for (int number = 1; number <= image::kExceptions; ++number) {
    if (IsBlankException(app, app.image.at(EXCPSTRS, number))) exceptions.push_back(number);
  }
  for (int number = 1; number <= image::kAlarms; ++number) {
    if (IsBlankTrigger(app.image.at(TRIGGER_TEXT, number))) alarms.push_back(number);
  }
  if (exceptions.empty() && alarms.empty()) return {};
  std::vector<std::string> texts;
  if (!exceptions.empty()) texts.push_back(Numbered("exception", exceptions));
  if (!alarms.empty()) texts.push_back("the trigger text of " + Numbered("alarm", alarms));
  const bool of_exception = !exceptions.empty();
  const auto& button = of_exception ? app.frmMain.cmdSetExcpstr : app.frmMain.cmdSetTrigger;
  return GoTo("The text is empty or only blanks: " + Listed(texts) +
                  ". Such a text never matches and shows nothing. Enter one with " + button.caption +
                  ", or switch its actions and its operator off.",
              button.caption, of_exception ? "cmdSetExcpstr" : "cmdSetTrigger",
              of_exception ? kExceptionList : kAlarmList, of_exception ? exceptions.front() : alarms.front());
}

}  // namespace ovl::acts
