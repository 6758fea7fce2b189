// The rules about the exceptions and the exception report.
#include <algorithm>
#include <array>

#include "checks/conditions.h"
#include "checks/rule.h"
#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "image/slot_records.h"

namespace ovl::checks {
namespace {

using enum image::FieldId;
using enum Severity;
using core::Place;

// An exception of the image.
struct Exception {
  int number;
  const std::string& slot;
  int flags;
  std::string text;                  // without blanks at its end
  std::array<std::string, 2> range;  // digits

  bool Has(int bit) const { return codecs::HasBit(flags, bit); }
  bool IsUsed() const { return !image::IsFreeException(slot) && !text.empty(); }
  bool HasRange() const {
    return std::any_of(range.begin(), range.end(), [](const std::string& value) {
      return value.find_first_not_of('0') != std::string::npos;
    });
  }
  std::string Named() const { return std::to_string(number); }
};

std::vector<Exception> ExceptionsOf(const Subject& subject) {
  std::vector<Exception> exceptions;
  for (int number = 1; number <= image::kExceptions; ++number) {
    const auto& slot = subject.Image().at(EXCPSTRS, number);
    auto text = image::ExceptionText(slot, subject.Firmware());
    text.erase(text.find_last_not_of(' ') + 1);
    Exception exception{number, slot, codecs::HexToInt(slot), std::move(text), {}};
    for (std::size_t value = 0; value < 2; ++value) {
      const auto [integers, decimals] = image::RangeValueOf(slot, subject.Firmware(), value);
      exception.range[value] = integers + decimals;
    }
    exceptions.push_back(std::move(exception));
  }
  return exceptions;
}

// The exceptions for which the condition holds, with their number and a text as the texts of the words.
template <class Condition, class Text>
Hits ExceptionsWith(const Subject& subject, const Condition& condition, const Text& text) {
  Hits hits;
  for (const auto& exception : ExceptionsOf(subject)) {
    if (condition(exception)) hits.push_back({exception.number, {exception.Named(), text(exception)}});
  }
  return hits;
}

template <class Condition>
Hits ExceptionsWith(const Subject& subject, const Condition& condition) {
  return ExceptionsWith(subject, condition, [](const Exception& exception) { return exception.text; });
}

// Which of the two is the limit above is not known, so this counts only where they are compared.
Hits RangeOrder(Subject& subject) {
  return ExceptionsWith(subject, [&](const Exception& exception) {
    const bool is_compared = exception.IsUsed() && image::OperatorOf(exception.flags) != 0;
    return is_compared && FirstIsAboveSecond(exception.slot, subject.Firmware());
  });
}

Hits RangeDigits(Subject& subject) {
  const auto digits = [](const Exception& exception) { return exception.range[0] + exception.range[1]; };
  return ExceptionsWith(
      subject,
      [&](const Exception& exception) {
        return exception.IsUsed() && digits(exception).find_first_not_of("0123456789") != std::string::npos;
      },
      digits);
}

Hits FreeWithText(Subject& subject) {
  return ExceptionsWith(subject, [](const Exception& exception) {
    return image::IsFreeException(exception.slot) && !exception.text.empty();
  });
}

// The length behind the range, as the text would be stored anew.
Hits TextLength(Subject& subject) {
  const auto first = image::PatternDigits(subject.Firmware()).first;
  const auto length = [first](std::string_view slot) {
    return std::to_string(codecs::HexToInt(codecs::Slice(slot, first, 2)));
  };
  Hits hits;
  for (const auto& exception : ExceptionsOf(subject)) {
    auto anew = exception.slot;
    image::StoreExceptionText(anew, subject.Firmware(),
                              image::ExceptionText(exception.slot, subject.Firmware()));
    if (exception.IsUsed() && length(anew) != length(exception.slot))
      hits.push_back({exception.number, {exception.Named(), length(exception.slot), length(anew)}});
  }
  return hits;
}

Hits BlankException(Subject& subject) {
  return ExceptionsWith(subject, [&](const Exception& exception) {
    return IsBlankException(exception.slot, subject.Firmware());
  });
}

bool TriggersAlarm(const Subject& subject, int number) {
  for (int alarm = 1; alarm <= image::kAlarms; ++alarm) {
    const int trigger = image::AlarmTrigger(subject.Image().at(ALMSTRUCT_BAK, alarm));
    const auto [first, last] = image::ExceptionsOfTrigger(trigger);
    if (number >= first && number <= last) return true;
  }
  return false;
}

Hits WithoutEffect(Subject& subject) {
  return ExceptionsWith(subject, [&](const Exception& exception) {
    const bool acts = exception.Has(image::kDisplayBit) || exception.Has(image::kOutputBit) ||
                      exception.Has(image::kHistoryBit) || exception.Has(image::kScrollBit);
    return exception.IsUsed() && !acts && !TriggersAlarm(subject, exception.number);
  });
}

bool LookForTheSame(const Exception& one, const Exception& other) {
  if (one.text != other.text) return false;
  const int compares = image::OperatorOf(one.flags);
  return compares == image::OperatorOf(other.flags) && (compares == 0 || one.range == other.range);
}

Hits Twice(Subject& subject) {
  Hits hits;
  const auto exceptions = ExceptionsOf(subject);
  for (auto later = exceptions.begin(); later != exceptions.end(); ++later) {
    if (!later->IsUsed()) continue;
    const auto first = std::find_if(exceptions.begin(), later, [&](const Exception& earlier) {
      return earlier.IsUsed() && LookForTheSame(earlier, *later);
    });
    if (first != later) hits.push_back({later->number, {later->Named(), first->Named(), later->text}});
  }
  return hits;
}

Hits MatchesEverything(Subject& subject) {
  return ExceptionsWith(subject, [](const Exception& exception) {
    return exception.IsUsed() && exception.text.find_first_not_of("? ") == std::string::npos;
  });
}

Hits BlankInFront(Subject& subject) {
  return ExceptionsWith(subject, [](const Exception& exception) {
    return exception.IsUsed() && exception.text.front() == ' ';
  });
}

constexpr std::string_view kScrollMatching = "ComboExcp(4)";

// Where the form hides the list of SCROLL MATCHING, the bit still switches DISPLAY off.
Hits ScrollMatchingAlone(Subject& subject) {
  auto hits = ExceptionsWith(subject, [](const Exception& exception) {
    return exception.Has(image::kScrollBit) &&
           (exception.Has(image::kDisplayBit) || exception.Has(image::kOutputBit) ||
            exception.Has(image::kHistoryBit));
  });
  if (subject.Offers(std::string(kScrollMatching))) return hits;
  for (auto& hit : hits) {
    hit.site = {Place::kExceptionReport, "ComboExcp(1)"};
    hit.site->slot = hit.slot;
  }
  return hits;
}

Hits RangeWithoutOperator(Subject& subject) {
  return ExceptionsWith(subject, [](const Exception& exception) {
    return exception.IsUsed() && exception.HasRange() && image::OperatorOf(exception.flags) == 0;
  });
}

Hits OperatorWithoutRange(Subject& subject) {
  return ExceptionsWith(subject, [](const Exception& exception) {
    return exception.IsUsed() && !exception.HasRange() && image::OperatorOf(exception.flags) != 0;
  });
}

// One hit for all exceptions that have the bit.
Hits AllWith(const Subject& subject, int bit) {
  std::vector<int> numbers;
  for (const auto& exception : ExceptionsOf(subject)) {
    if (exception.IsUsed() && exception.Has(bit)) numbers.push_back(exception.number);
  }
  if (numbers.empty()) return {};
  return {{0, {NumberedExceptions(numbers)}}};
}

Hits DisplayOff(Subject& subject) {
  return subject.HasBit(DSPCFG_BAK, image::kTextBit) ? Hits() : AllWith(subject, image::kDisplayBit);
}

Hits ReportOff(Subject& subject) {
  return subject.HasBit(COMMCFG_BAK, image::kReportBit) ? Hits() : AllWith(subject, image::kOutputBit);
}

Hits StampWithoutReport(Subject& subject) {
  const bool unused = subject.Byte(TIMESTAMP_ENA) != 0 && !subject.HasBit(COMMCFG_BAK, image::kReportBit);
  return unused ? Hits{{}} : Hits();
}

Hits DuplicatesWithoutReport(Subject& subject) {
  const bool unused = subject.Byte(DUPLINE_BAK) != 0 && !subject.HasBit(COMMCFG_BAK, image::kReportBit);
  return unused ? Hits{{}} : Hits();
}

constexpr std::string_view kText = "TextException";
constexpr std::string_view kRange = "cmdSetRange";

constexpr std::array kRules = {
    Rule{"range-digits", kError, "The range of exception %1 is not a number: its digits are %2.",
         Place::kExceptionReport, kRange, RangeDigits},
    Rule{"free-with-text", kError, "Exception %1 has the text \"%2\", but is marked as free.",
         Place::kExceptionReport, kText, FreeWithText},
    Rule{"text-length", kWarning,
         "The text of exception %1 is stored with the length %2, but its length is %3.",
         Place::kExceptionReport, kText, TextLength},
    Rule{"range-order", kNote, "In the range of exception %1 the first value is above the second.",
         Place::kExceptionReport, kRange, RangeOrder},
    Rule{"blank-exception", kWarning,
         "Exception %1 has an action or is not marked as free, but its text is empty or only blanks.",
         Place::kExceptionReport, kText, BlankException},
    Rule{"exception-without-effect", kWarning,
         "Exception %1, \"%2\", has no effect: its actions are OFF, and it triggers no alarm.",
         Place::kExceptionReport, "ComboExcp(2)", WithoutEffect},
    Rule{"exception-twice", kWarning,
         "Exception %1 has the same text, operator and range as exception %2: \"%3\".",
         Place::kExceptionReport, kText, Twice},
    Rule{"matches-everything", kWarning,
         "The text of exception %1 is only \"?\", which matches any character.", Place::kExceptionReport,
         kText, MatchesEverything},
    Rule{"scroll-matching-alone", kWarning,
         "Exception %1 has SCROLL MATCHING, so its DISPLAY, OUTPUT and HISTORY BUFFER can change to OFF when "
         "the tab shows it.",
         Place::kExceptionReport, kScrollMatching, ScrollMatchingAlone},
    Rule{"display-off", kWarning, "DISPLAY of %1 is ON, but DISPLAY of the text display is OFF.",
         Place::kText, "ComboDIP(6)", DisplayOff},
    Rule{"report-off", kWarning, "OUTPUT of %1 is ON, but OUTPUT of the exception report is OFF.",
         Place::kExceptionReport, "ComboExcepRe(0)", ReportOff},
    Rule{"stamp-without-report", kNote, "TIME STAMP is ON, but OUTPUT of the exception report is OFF.",
         Place::kExceptionReport, "ComboExcepRe(1)", StampWithoutReport},
    Rule{"duplicates-without-report", kNote,
         "DUPLICATE LINE is ON, but OUTPUT of the exception report is OFF.", Place::kExceptionReport,
         "ComboExcepRe(2)", DuplicatesWithoutReport},
    Rule{"blank-in-front", kNote,
         "The text of exception %1 begins with a blank, so the line must have this blank too.",
         Place::kExceptionReport, kText, BlankInFront},
    Rule{"range-without-operator", kNote,
         "Exception %1 has a range, but its OPERATOR is NONE, so the unit does not compare the amount.",
         Place::kExceptionReport, "ComboExcp(5)", RangeWithoutOperator},
    Rule{"operator-without-range", kNote,
         "Exception %1 compares the amount, but both values of its range are 0.", Place::kExceptionReport,
         kRange, OperatorWithoutRange},
};

}  // namespace

std::span<const Rule> ExceptionRules() {
  return kRules;
}

}  // namespace ovl::checks
