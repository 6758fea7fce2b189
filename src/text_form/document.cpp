#include "text_form/document.h"

#include <algorithm>
#include <array>

#include "firmware/firmware_table.h"
#include "text_form/messages.h"

namespace ovl::text_form {
namespace {

constexpr std::string_view kFormatKey = "format";

bool IsBlank(char letter) {
  return letter == ' ' || letter == '\t';
}

// Whether a line assigns the format.
bool IsFormatLine(std::string_view line) {
  while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
  if (!line.starts_with(kFormatKey)) return false;
  line.remove_prefix(kFormatKey.size());
  while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
  return line.starts_with('=');
}

void ExpectFormat(const Document& document, std::vector<Problem>& problems) {
  const auto* format = HeaderOf(document, kFormatKey);
  const auto known = std::to_string(kFormat);
  if (format == nullptr) {
    problems.push_back({{1, 1}, "the line \"format = " + known + "\" is missing"});
  } else if (format->value.text != known) {
    problems.push_back({format->value.at, "format " + Escaped(format->value.text) +
                                              " is not known; this program reads format " + known});
  }
}

void ExpectFirmware(const Entry& entry, std::vector<Problem>& problems) {
  const auto& value = entry.value;
  if (value.kind != ValueKind::kText) {
    problems.push_back(
        {value.at, Written(value) + " is not allowed here; allowed: a text such as \"V1400 R12\""});
  } else if (!firmware::FindFirmware(value.text)) {
    problems.push_back({value.at, InQuotes(value.text) + " is no firmware that this program serves"});
  }
}

}  // namespace

std::string TextOf(const Problem& problem, std::string_view path) {
  return std::string(path) + ":" + std::to_string(problem.at.line) + ":" + std::to_string(problem.at.column) +
         ": " + problem.words;
}

bool IsTextForm(std::string_view bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  while (!bytes.empty()) {
    const auto line = bytes.substr(0, bytes.find('\n'));
    if (IsFormatLine(line)) return true;
    bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
  }
  return false;
}

const Entry* HeaderOf(const Document& document, std::string_view key) {
  const auto found = std::find_if(document.entries.begin(), document.entries.end(), [&](const Entry& entry) {
    return entry.table.empty() && entry.key == key;
  });
  return found == document.entries.end() ? nullptr : &*found;
}

std::vector<Problem> HeaderProblems(const Document& document) {
  auto problems = document.problems;
  if (problems.empty()) ExpectFormat(document, problems);
  if (!problems.empty()) return problems;
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
      ExpectFirmware(entry, problems);
    }
  }
  return problems;
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
