#include "acts/advice/setting_conditions.h"

#include <string>
#include <vector>

#include "checks/conditions.h"
#include "image/slot_records.h"

namespace ovl::acts {
namespace {

using enum image::FieldId;
using checks::Listed;
using checks::Numbered;

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

}  // namespace

Advice RangeOrder(const core::Application& app, const Observed&) {
  std::vector<int> numbers;
  for (int number = 1; number <= image::kExceptions; ++number) {
    if (checks::FirstIsAboveSecond(app.image.at(EXCPSTRS, number), app.image_firmware))
      numbers.push_back(number);
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
    if (!checks::WaitsForFreeExceptions(app.image, trigger)) continue;
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
    if (checks::IsBlankException(app.image.at(EXCPSTRS, number), app.image_firmware))
      exceptions.push_back(number);
  }
  for (int number = 1; number <= image::kAlarms; ++number) {
    if (checks::IsBlankTrigger(app.image.at(TRIGGER_TEXT, number))) alarms.push_back(number);
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
