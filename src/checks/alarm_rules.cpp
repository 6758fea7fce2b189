// The rules about the alarms and their texts.
#include <array>

#include "checks/conditions.h"
#include "checks/rule.h"
#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "firmware/traits.h"
#include "image/slot_records.h"

namespace ovl::checks {
namespace {

using enum image::FieldId;
using enum Severity;
using core::Place;
using phrases::OfForm;
using phrases::Pattern;
using phrases::Sentence;

// An alarm of the image, with its triggered text.
struct Alarm {
  int number;
  int trigger;
  int video_loss;           // 0: OFF, also where the firmware has none
  std::string_view record;  // of the text
  bool has_text;

  bool Shows() const { return codecs::HasBit(codecs::HexToInt(record), image::kDisplayBit); }
  bool ShowsOrSends() const {
    constexpr int kShownOrSent = 1 << image::kDisplayBit | 1 << image::kOutputBit;
    return (codecs::HexToInt(record) & kShownOrSent) != 0;
  }
  bool GoesOff() const { return trigger != image::kNoTrigger || video_loss != 0; }
};

// In the words of the form, which marks the triggers that are exceptions.
phrases::Words TriggerWords(const controls::MainForm& form, int trigger) {
  const auto& triggers = form.ComboALM[controls::Alm::kTrigger].items;
  const auto at = static_cast<std::size_t>(trigger);
  const auto words = OfForm(at < triggers.size() ? triggers[at] : "");
  const auto exceptions = image::ExceptionsOfTrigger(trigger);
  if (exceptions.first > exceptions.last) return words;
  return Sentence(Pattern("List", "%1 %2"), {OfForm(form.lbAlmTrig.caption), words});
}

// The alarms for which the condition holds. The texts are the number, the trigger, and what else sets it off.
template <class Condition>
Hits AlarmsWith(Subject& subject, const Condition& condition) {
  const bool with_video = firmware::HasVideoLoss(subject.Firmware());
  Hits hits;
  for (int number = 1; number <= image::kAlarms; ++number) {
    const auto& stored = subject.Image().at(ALMSTRUCT_BAK, number);
    const auto& record = subject.Image().at(TRIGGER_TEXT, number);
    const auto text = image::StoredText(image::WithoutEndMark(image::TriggeredDigits(record)));
    const Alarm alarm{number, image::AlarmTrigger(stored), with_video ? image::AlarmVideoLoss(stored) : 0,
                      record, !IsBlank(text)};
    if (!condition(alarm)) continue;
    hits.push_back({number,
                    {std::to_string(number), TriggerWords(subject.Form(), alarm.trigger),
                     alarm.video_loss == 0 ? Sentence(Pattern("Check", "nothing"))
                                           : Sentence(Pattern("Check", "only VIDEO LOSS"))}});
  }
  return hits;
}

Hits WithoutException(Subject& subject) {
  return AlarmsWith(
      subject, [&](const Alarm& alarm) { return WaitsForFreeExceptions(subject.Image(), alarm.trigger); });
}

Hits BlankTriggerText(Subject& subject) {
  return AlarmsWith(subject, [](const Alarm& alarm) { return IsBlankTrigger(alarm.record); });
}

Hits TextNeverComes(Subject& subject) {
  return AlarmsWith(
      subject, [](const Alarm& alarm) { return alarm.has_text && alarm.ShowsOrSends() && !alarm.GoesOff(); });
}

Hits TextUnused(Subject& subject) {
  return AlarmsWith(
      subject, [](const Alarm& alarm) { return alarm.has_text && !alarm.ShowsOrSends() && alarm.GoesOff(); });
}

Hits DelayWithoutRts(Subject& subject) {
  return AlarmsWith(subject, [&](const Alarm& alarm) {
    return subject.Byte(TRIGGER_DELAY, alarm.number) != 0 && alarm.trigger != image::kRtsTrigger;
  });
}

// One hit for all alarms.
Hits TextDisplayOff(Subject& subject) {
  if (subject.HasBit(DSPCFG_BAK, image::kTextBit)) return {};
  std::vector<int> numbers;
  for (const auto& hit : AlarmsWith(
           subject, [](const Alarm& alarm) { return alarm.has_text && alarm.Shows() && alarm.GoesOff(); }))
    numbers.push_back(hit.slot);
  if (numbers.empty()) return {};
  return {{0, {NumberedAlarms(numbers)}}};
}

Hits FlagWithoutDuration(Subject& subject) {
  if (subject.Form().ComboALM[controls::Alm::kFlagType].position <= 0) return {};
  if (subject.Form().ComboALM[controls::Alm::kFlagDuration].position != 0) return {};
  return {{0, {subject.Entry("ComboALM(4)"), subject.Entry("ComboALM(5)")}}};
}

constexpr std::string_view kTrigger = "ComboALM(1)";

constexpr std::array kRules = {
    Rule{"alarm-without-exception", kWarning,
         "Only free exceptions trigger alarm %1 (%2), so %3 triggers it.", Place::kAlarmOutputs, kTrigger,
         WithoutException},
    Rule{"text-never-comes", kWarning,
         "Alarm %1 has a text to show or to send, but nothing triggers the alarm.", Place::kAlarmOutputs,
         kTrigger, TextNeverComes},
    Rule{"blank-trigger-text", kWarning, "The trigger text of alarm %1 is empty or only blanks.",
         Place::kAlarmOutputs, "TextTrigger", BlankTriggerText},
    Rule{"text-unused", kNote, "The trigger text of alarm %1 is neither shown nor sent.",
         Place::kAlarmOutputs, "ComboTrigger(1)", TextUnused},
    Rule{"trigger-text-display-off", kNote,
         "DISPLAY TEXT of %1 is ON, but DISPLAY of the text display is OFF.", Place::kText, "ComboDIP(6)",
         TextDisplayOff},
    Rule{"delay-without-rts", kNote, "Alarm %1 has a delay after the RTS line, but its ALARM TRIGGER is %2.",
         Place::kAlarmOutputs, "ComboTrigger(2)", DelayWithoutRts},
    Rule{"flag-without-duration", kNote, "FLAG TYPE is %1, but FLAG DURATION is %2.", Place::kAlarmOutputs,
         "ComboALM(5)", FlagWithoutDuration},
};

}  // namespace

std::span<const Rule> AlarmRules() {
  return kRules;
}

}  // namespace ovl::checks
