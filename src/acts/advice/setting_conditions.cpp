#include "acts/advice/setting_conditions.h"

#include <string>
#include <vector>

#include "checks/conditions.h"
#include "image/slot_records.h"

namespace ovl::acts {
namespace {

using enum image::FieldId;
using phrases::OfForm;
using phrases::Pattern;
using phrases::Sentence;
using phrases::Words;

// An action that shows the first of the exceptions or alarms that the line names.
constexpr std::string_view kExceptionList = "ComboExcp(0)";
constexpr std::string_view kAlarmList = "ComboALM(0)";
Advice GoTo(Words words, Words caption, std::string_view control, std::string_view list, int number) {
  return {AdviceId::kCount,
          {},
          std::move(words),
          AdviceAction::kGoToControl,
          std::move(caption),
          control,
          list,
          number};
}

}  // namespace

Advice RangeOrder(const core::Application& app, const Observed&) {
  std::vector<int> numbers;
  for (int number = 1; number <= image::kExceptions; ++number) {
    if (checks::FirstIsAboveSecond(app.image.at(EXCPSTRS, number), app.image_firmware))
      numbers.push_back(number);
  }
  if (numbers.empty()) return {};
  const auto button = OfForm(app.frmMain.cmdSetRange.caption);
  return GoTo(
      Sentence(Pattern("Advice", "In the range of %1 the first value is above the second. Check it with %2."),
               {checks::NumberedExceptions(numbers), button}),
      button, "cmdSetRange", kExceptionList, numbers.front());
}

Advice AlarmWithoutException(const core::Application& app, const Observed&) {
  const auto& triggers = app.frmMain.ComboALM[controls::Alm::kTrigger];
  std::vector<Words> alarms;
  int first = 0;
  for (int number = 1; number <= image::kAlarms; ++number) {
    const int trigger = image::AlarmTrigger(app.image.at(ALMSTRUCT_BAK, number));
    if (!checks::WaitsForFreeExceptions(app.image, trigger)) continue;
    if (first == 0) first = number;
    alarms.push_back(
        Sentence(Pattern("List", "%1 (%2)"),
                 {std::to_string(number), OfForm(triggers.items.at(static_cast<std::size_t>(trigger)))}));
  }
  if (alarms.empty()) return {};
  const auto caption = OfForm(triggers.caption);
  return GoTo(Sentence(Pattern("Advice",
                               "Only free exceptions trigger %1, so no alarm occurs. Enter a text for the "
                               "exceptions, or pick another %2."),
                       {checks::NumberedAlarms(alarms, alarms.size()), caption}),
              caption, "ComboALM(1)", kAlarmList, first);
}

Advice BlankText(const core::Application& app, const Observed&) {
  std::vector<int> exceptions, alarms;
  for (int number = 1; number <= image::kExceptions; ++number) {
    if (checks::IsBlankException(app.image.at(EXCPSTRS, number), app.image_firmware))
      exceptions.push_back(number);
  }
  for (int number = 1; number <= image::kAlarms; ++number) {
    if (checks::IsBlankTrigger(app.image.at(TRIGGER_TEXT, number))) alarms.push_back(number);
  }
  if (exceptions.empty() && alarms.empty()) return {};
  std::vector<Words> texts;
  if (!exceptions.empty()) texts.push_back(checks::NumberedExceptions(exceptions));
  if (!alarms.empty())
    texts.push_back(Sentence(Pattern("Advice", "the trigger text of %1"), {checks::NumberedAlarms(alarms)}));
  const bool of_exception = !exceptions.empty();
  const auto& button = of_exception ? app.frmMain.cmdSetExcpstr : app.frmMain.cmdSetTrigger;
  const auto caption = OfForm(button.caption);
  return GoTo(Sentence(Pattern("Advice",
                               "The text is empty or only blanks: %1. Such a text never matches and shows "
                               "nothing. Enter a text with %2, or switch off the actions and the operator."),
                       {phrases::Listed(texts), caption}),
              caption, of_exception ? "cmdSetExcpstr" : "cmdSetTrigger",
              of_exception ? kExceptionList : kAlarmList, of_exception ? exceptions.front() : alarms.front());
}

}  // namespace ovl::acts
