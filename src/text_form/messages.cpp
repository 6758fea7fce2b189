#include "text_form/messages.h"

#include <algorithm>
#include <cctype>
#include <numeric>

#include "codecs/windows_1252.h"

namespace ovl::text_form {
namespace {

bool Alike(char one, char other) {
  return std::tolower(static_cast<unsigned char>(one)) == std::tolower(static_cast<unsigned char>(other));
}

// Letters to insert, to leave out or to replace; two neighbours that changed places count once.
std::size_t Distance(std::string_view one, std::string_view other) {
  std::vector<std::size_t> before(other.size() + 1), row(before.size()), next(before.size());
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < one.size(); ++i) {
    next[0] = i + 1;
    for (std::size_t j = 0; j < other.size(); ++j) {
      const bool alike = Alike(one[i], other[j]);
      next[j + 1] = std::min({next[j] + 1, row[j + 1] + 1, row[j] + (alike ? 0 : 1)});
      if (i > 0 && j > 0 && Alike(one[i], other[j - 1]) && Alike(one[i - 1], other[j]))
        next[j + 1] = std::min(next[j + 1], before[j - 1] + 1);
    }
    before = row;
    row.swap(next);
  }
  return row.back();
}

// The word with the fewest letters to change, whatever its case. Empty if none is near.
std::string Nearest(std::string_view word, const std::vector<std::string>& words) {
  constexpr std::size_t kLongest = 80;
  if (word.size() > kLongest) return {};
  std::string nearest;
  auto least = std::min(std::max<std::size_t>(2, word.size() / 3) + 1, word.size());
  for (const auto& candidate : words) {
    const auto distance = Distance(word, candidate);
    if (distance >= least) continue;
    least = distance;
    nearest = candidate;
  }
  return nearest;
}

}  // namespace

std::string Escaped(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string escaped;
  for (const char letter : text) {
    const auto code = static_cast<unsigned char>(letter);
    if (code < ' ' || code == 0x7F) {
      escaped.append("\\u00").append(1, kDigits[code >> 4U]).append(1, kDigits[code & 0xFU]);
    } else {
      escaped += letter;
    }
  }
  return escaped;
}

std::string InQuotes(std::string_view text) {
  constexpr std::size_t kMost = 80;
  if (text.size() <= kMost) return "\"" + Escaped(text) + "\"";
  // Not within a character of UTF-8.
  auto end = kMost;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
  return "\"" + Escaped(text.substr(0, end)) + "...\"";
}

std::string Written(const Value& value) {
  switch (value.kind) {
    case ValueKind::kText:
      return InQuotes(value.text);
    case ValueKind::kBytes:
      return "{ bytes = " + InQuotes(value.text) + " }";
    case ValueKind::kDigits:
      return "{ digits = " + InQuotes(value.text) + " }";
    case ValueKind::kNumber:
    case ValueKind::kFlag:
    case ValueKind::kOther:
      break;
  }
  return value.text;
}

std::string Suggestion(std::string_view word, const std::vector<std::string>& words) {
  const auto nearest = Nearest(word, words);
  return nearest.empty() ? std::string() : ". Did you mean " + InQuotes(nearest) + "?";
}

std::string NotAllowed(const Setting& setting, std::string_view text, std::string_view allowed) {
  constexpr std::size_t kFew = 12;
  std::vector<std::string> entries;
  if (setting.kind == Kind::kChoice) {
    for (const auto& choice : *setting.choices) entries.push_back(codecs::Utf8OfWindows1252(choice.words));
  }
  auto words = InQuotes(text) + " is not allowed for " + InQuotes(setting.key) + "; allowed: ";
  if (entries.size() <= kFew) {
    words += codecs::Utf8OfWindows1252(allowed);
  } else {
    words += "one of " + std::to_string(entries.size()) + " entries, from " + InQuotes(entries.front()) +
             " to " + InQuotes(entries.back());
  }
  return words + Suggestion(text, entries);
}

void Cut(std::vector<Problem>& problems) {
  if (problems.size() <= kMostProblems) return;
  const auto others = problems.size() - kMostProblems;
  const auto at = problems[kMostProblems].at;
  problems.resize(kMostProblems);
  problems.push_back({at, "and " + std::to_string(others) + " more"});
}

}  // namespace ovl::text_form
