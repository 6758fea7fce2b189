#include "text_form/document.h"

#include <algorithm>
#include <array>

#include "firmware/firmware_table.h"
#include "text_form/messages.h"

namespace ovl::text_form {
namespace {

constexpr std::string_view kFormatKey = "format";

std::string_view WithoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

bool IsUtf16(std::string_view bytes) {
  return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

// Calls the function for each line and its number until it returns true.
template <class Function>
void ForEachLine(std::string_view bytes, const Function& ends) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  for (int number = 1; !bytes.empty(); ++number) {
    const auto line = bytes.substr(0, bytes.find('\n'));
    if (ends(line, number)) return;
    bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
  }
}

// Whether a line assigns this key.
bool Assigns(std::string_view line, std::string_view key) {
  const auto equals = line.find('=');
  if (equals == std::string_view::npos) return false;
  auto found = WithoutBlanks(line.substr(0, equals));
  const bool in_quotes = found.size() > 2 && (found.front() == '"' || found.front() == '\'');
  if (in_quotes && found.front() == found.back()) found = found.substr(1, found.size() - 2);
  return found == key;
}

bool IsFormatLine(std::string_view line) {
  return Assigns(line, kFormatKey);
}

// One of the lines before the first table, or the line of a table.
bool IsOfTextForm(std::string_view line) {
  return IsFormatLine(line) || Assigns(line, kFirmwareKey) || Assigns(line, kCompleteKey) ||
         WithoutBlanks(line).starts_with('[');
}

Problem UnknownFormat(Position at, std::string_view found) {
  const auto known = std::to_string(kFormat);
  return {at, "format " + Escaped(found) + " is not known; this program reads format " + known};
}

bool IsKnownFormat(const Value& value) {
  return value.kind == ValueKind::kNumber && value.text == std::to_string(kFormat);
}

bool IsKnownFirmware(const Value& value, std::string_view running) {
  return value.kind == ValueKind::kText && (value.text == running || firmware::FindFirmware(value.text));
}

void ExpectFormat(const Document& document, std::vector<Problem>& problems) {
  const auto* format = HeaderOf(document, kFormatKey);
  const auto known = std::to_string(kFormat);
  if (format == nullptr) {
    problems.push_back({{1, 1}, "the line \"format = " + known + "\" is missing"});
  } else if (!IsKnownFormat(format->value)) {
    problems.push_back(UnknownFormat(format->value.at, Written(format->value)));
  }
}

std::vector<std::string> FirmwareNames() {
  std::vector<std::string> names;
  for (const auto& entry : firmware::FirmwareTable()) {
    if (entry.in_menu) names.push_back(std::string(entry.version) + " " + std::string(entry.release));
  }
  return names;
}

void ExpectFirmware(const Entry& entry, std::string_view running, std::vector<Problem>& problems) {
  const auto& value = entry.value;
  if (value.kind != ValueKind::kText) {
    problems.push_back(
        {value.at, Written(value) + " is not allowed here; allowed: a text such as \"V1400 R12\""});
  } else if (!IsKnownFirmware(value, running)) {
    problems.push_back({value.at, InQuotes(value.text) + " is not a firmware of this program" +
                                      Suggestion(value.text, FirmwareNames())});
  }
}

}  // namespace

std::string TextOf(const Problem& problem, std::string_view path) {
  return std::string(path) + ":" + std::to_string(problem.at.line) + ":" + std::to_string(problem.at.column) +
         ": " + problem.words;
}

// A record stream has none of these lines. Without a format, a text form has an error, but is one.
bool IsTextForm(std::string_view bytes) {
  bool found = IsUtf16(bytes);  // a record stream is in ASCII
  ForEachLine(bytes, [&](std::string_view line, int) { return found || (found = IsOfTextForm(line)); });
  return found;
}

std::optional<Problem> OtherFormat(std::string_view bytes) {
  if (IsUtf16(bytes)) return Problem{{1, 1}, "the text is in UTF-16. Save it in UTF-8"};
  std::optional<Problem> problem;
  ForEachLine(bytes, [&](std::string_view line, int number) {
    if (!IsFormatLine(line)) return WithoutBlanks(line).starts_with('[');
    const auto behind = line.find('=') + 1;
    const auto value = WithoutBlanks(line.substr(behind, line.find('#') - behind));
    const bool is_number =
        !value.empty() && value.find_first_not_of("+-0123456789.") == std::string_view::npos;
    const auto column = static_cast<int>(value.data() - line.data()) + 1;
    if (is_number && value != std::to_string(kFormat)) problem = UnknownFormat({number, column}, value);
    return true;
  });
  return problem;
}

const Entry* HeaderOf(const Document& document, std::string_view key) {
  const auto found = std::find_if(document.entries.begin(), document.entries.end(), [&](const Entry& entry) {
    return entry.table.empty() && entry.key == key;
  });
  return found == document.entries.end() ? nullptr : &*found;
}

std::vector<Problem> HeaderProblems(const Document& document, std::string_view running) {
  auto problems = document.problems;
  if (problems.empty() || HeaderOf(document, kFormatKey) != nullptr) ExpectFormat(document, problems);
  const std::vector<std::string> keys = {std::string(kFormatKey), std::string(kFirmwareKey),
                                         std::string(kCompleteKey)};
  for (const auto& entry : document.entries) {
    if (!entry.table.empty()) continue;
    if (std::find(keys.begin(), keys.end(), entry.key) == keys.end()) {
      problems.push_back({entry.at, InQuotes(entry.key) + " is in no table" + Suggestion(entry.key, keys)});
    } else if (entry.key == kCompleteKey && entry.value.kind != ValueKind::kFlag) {
      problems.push_back(
          {entry.value.at, Written(entry.value) + " is not allowed here; allowed: true, false"});
    } else if (entry.key == kFirmwareKey) {
      ExpectFirmware(entry, running, problems);
    }
  }
  return problems;
}

bool CanBeJudged(const Document& document, std::string_view running) {
  const auto* format = HeaderOf(document, kFormatKey);
  const auto* firmware = HeaderOf(document, kFirmwareKey);
  return (format == nullptr || IsKnownFormat(format->value)) &&
         (firmware == nullptr || IsKnownFirmware(firmware->value, running));
}

std::string FirmwareNamed(const Document& document) {
  const auto* entry = HeaderOf(document, kFirmwareKey);
  return entry == nullptr || entry->value.kind != ValueKind::kText ? std::string() : entry->value.text;
}

bool IsComplete(const Document& document) {
  const auto* entry = HeaderOf(document, kCompleteKey);
  return entry != nullptr && entry->value.kind == ValueKind::kFlag && entry->value.text == "true";
}

}  // namespace ovl::text_form
