#include "sheet/slot_table.h"

#include <algorithm>
#include <map>

#include "changes/wording.h"
#include "codecs/codecs.h"
#include "image/slot_records.h"
#include "sheet/html.h"

namespace ovl::sheet {
namespace {

using acts::SlotKind;
using image::FieldId;
using text_form::Line;

constexpr std::size_t kCharacters = 40;  // of a line of the picture
constexpr std::string_view kTrigger = "ComboALM(1)";

struct Slots {
  core::Place place;
  int count;
  std::string_view name, names;
};

Slots SlotsOf(SlotKind kind) {
  if (kind == SlotKind::kAlarm) return {core::Place::kAlarmOutputs, image::kAlarms, "Alarm", "Alarms"};
  return {core::Place::kExceptionReport, image::kExceptions, "Exception", "Exceptions"};
}

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

std::string TriggeredText(const image::ConfigImage& image, int number) {
  return image::StoredText(
      image::WithoutEndMark(image::TriggeredDigits(image.at(FieldId::TRIGGER_TEXT, number))));
}

std::string TextOf(SlotKind kind, const core::Application& like, const image::ConfigImage& image,
                   int number) {
  if (kind == SlotKind::kAlarm) return TriggeredText(image, number);
  return image::ExceptionText(image.at(FieldId::EXCPSTRS, number), like.image_firmware);
}

// An exception that looks for blanks is in use if it does something.
bool IsUsedException(const core::Application& like, const image::ConfigImage& image, int number) {
  const auto& slot = image.at(FieldId::EXCPSTRS, number);
  if (image::IsFreeException(slot)) return false;
  return codecs::HexToInt(slot) != 0 || !IsBlank(image::ExceptionText(slot, like.image_firmware));
}

// The output of an alarm without a trigger can be closed, and video loss can close it.
bool IsUsedAlarm(const image::ConfigImage& image, int number) {
  const auto& record = image.at(FieldId::ALMSTRUCT_BAK, number);
  return image::AlarmTrigger(record) != image::kNoTrigger || image::IsNormallyClosed(image, number) ||
         codecs::HexToInt(image::AlarmVideoLossDigits(record)) != 0 || !IsBlank(TriggeredText(image, number));
}

// The form has the words "EX." beside the list of triggers if the entry is an exception.
std::string CellWords(const Line& line, const core::Application& like, const image::ConfigImage& image) {
  auto words = ValueOf(line);
  if (line.control != kTrigger) return words;
  const auto exceptions =
      image::ExceptionsOfTrigger(image::AlarmTrigger(image.at(FieldId::ALMSTRUCT_BAK, line.slot)));
  return exceptions.first > exceptions.last ? words : like.frmMain.lbAlmTrig.caption + " " + words;
}

// Bytes can be many, and break the line.
std::string CellOf(const Line& line, const core::Application& like, const image::ConfigImage& image) {
  const auto words = CellWords(line, like, image);
  return line.words ? Cell("value", UnbrokenHtml(words)) : Cell("bytes", Html(words));
}

bool IsText(const Line& line) {
  return line.control == "TextException" || line.control == "TextTrigger";
}

// The settings in the order of the lines, without the text.
std::vector<std::string> ColumnsOf(std::span<const Line> lines) {
  std::vector<std::string> columns;
  for (const auto& line : lines) {
    if (!IsText(line) && std::find(columns.begin(), columns.end(), line.key) == columns.end())
      columns.push_back(line.key);
  }
  return columns;
}

// The lines of a caption end where it says so: a printed table breaks a word rather than widen a column.
std::string HeadCell(std::string_view caption) {
  constexpr std::size_t kLetters = 10;
  std::string cell = "<th>";
  std::size_t letters = 0;
  while (!caption.empty()) {
    const auto word = caption.substr(0, caption.find(' '));
    const bool fits = letters + word.size() < kLetters;
    if (letters > 0) cell += fits ? "&#160;" : "<br>";
    letters = (letters > 0 && fits ? letters + 1 : 0) + word.size();
    cell += Html(word);
    caption.remove_prefix(std::min(word.size() + 1, caption.size()));
  }
  return cell + "</th>";
}

std::string HeadOf(const std::vector<std::string>& columns) {
  std::string head = "<tr><th>No.</th><th>TEXT</th>";
  for (const auto& column : columns) head += HeadCell(column);
  return head + "</tr>\n";
}

// "1, 4 to 9 and 12"
std::string NumbersInWords(std::span<const int> numbers) {
  std::vector<std::string> parts;
  for (std::size_t first = 0; first < numbers.size();) {
    auto last = first;
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
    if (last == first + 1) last = first;  // two neighbours are named one by one
    parts.push_back(std::to_string(numbers[first]));
    if (last > first) parts.back() += " to " + std::to_string(numbers[last]);
    first = last + 1;
  }
  std::string words;
  for (std::size_t part = 0; part < parts.size(); ++part) {
    if (part > 0) words += part + 1 == parts.size() ? " and " : ", ";
    words += parts[part];
  }
  return words;
}

std::string FreeInWords(const Slots& slots, const std::vector<int>& free) {
  const bool one = free.size() == 1;
  return std::string(one ? slots.name : slots.names) + " " + NumbersInWords(free) + (one ? " is" : " are") +
         " free.";
}

}  // namespace

std::string PictureText(std::string text) {
  text.resize(std::max(text.size(), kCharacters), ' ');
  return "<span class=\"picture\">" + UnbrokenHtml(text) + "</span>";
}

std::string ValueOf(const Line& line) {
  if (line.words) return *line.words;
  auto digits = line.digits;
  digits.erase(std::remove(digits.begin(), digits.end(), ' '), digits.end());
  return changes::BytesInWords(digits);
}

std::string SlotTable(SlotKind kind, std::span<const Line> lines, const core::Application& like,
                      const image::ConfigImage& image) {
  const auto slots = SlotsOf(kind);
  std::vector<Line> of_slots;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(of_slots),
               [&](const Line& line) { return line.slot > 0 && line.tab == changes::TabOf(slots.place); });
  if (of_slots.empty()) return {};
  const auto columns = ColumnsOf(of_slots);
  std::string rows;
  std::vector<int> free;
  for (int number = 1; number <= slots.count; ++number) {
    const bool used =
        kind == SlotKind::kAlarm ? IsUsedAlarm(image, number) : IsUsedException(like, image, number);
    if (!used) {
      free.push_back(number);
      continue;
    }
    std::map<std::string, std::string> cells;
    for (const auto& line : of_slots) {
      if (line.slot == number) cells[line.key] = CellOf(line, like, image);
    }
    rows += "<tr>" + Cell("number", std::to_string(number)) +
            Cell("text", PictureText(TextOf(kind, like, image, number)));
    for (const auto& column : columns) rows += cells[column];
    rows += "</tr>\n";
  }
  auto html = Head(slots.names);
  if (!rows.empty()) html += Table("slots", HeadOf(columns) + rows);
  return free.empty() ? html : html + "<p>" + FreeInWords(slots, free) + "</p>\n";
}

}  // namespace ovl::sheet
