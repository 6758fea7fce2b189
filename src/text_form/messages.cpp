#include "text_form/messages.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <numeric>
#include <optional>
#include <tuple>

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

std::optional<double> NumberOf(std::string_view word) {
  constexpr std::size_t kMostDigits = 9;
  if (word.empty() || word.size() > kMostDigits) return std::nullopt;
  if (word.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
  return std::stod(std::string(word));
}

// The number of the list that differs least, if that is little. 255 is meant by 256, and not 25.
std::optional<std::string> NearNumber(std::string_view word, const std::vector<std::string>& words) {
  constexpr double kShare = 0.1;
  const auto number = NumberOf(word);
  if (!number) return std::nullopt;
  std::optional<std::string> nearest;
  auto least = *number * kShare;
  for (const auto& candidate : words) {
    const auto other = NumberOf(candidate);
    if (!other || std::abs(*other - *number) > least) continue;
    least = std::abs(*other - *number);
    nearest = candidate;
  }
  return nearest;
}

std::size_t SharedStart(std::string_view one, std::string_view other) {
  const auto ends = std::mismatch(one.begin(), one.end(), other.begin(), other.end(), Alike);
  return static_cast<std::size_t>(ends.first - one.begin());
}

// The last number in a word; zero if there is none.
double LastNumber(std::string_view word) {
  constexpr std::string_view kDigits = "0123456789";
  const auto last = word.find_last_of(kDigits);
  if (last == std::string_view::npos) return 0;
  const auto first = word.find_last_not_of(kDigits, last) + 1;
  return NumberOf(word.substr(first, last + 1 - first)).value_or(0);
}

// The word with the fewest letters to change, whatever its case; of several the one that begins most alike,
// and then the one with the nearest number. Empty if none is near.
std::string Nearest(std::string_view word, const std::vector<std::string>& words) {
  constexpr std::size_t kLongest = 80;
  if (word.size() > kLongest) return {};
  if (const auto number = NearNumber(word, words)) return *number;
  const auto least = std::min(std::max<std::size_t>(2, word.size() / 3) + 1, word.size());
  std::tuple best(least, std::size_t{0}, 0.0);
  std::string nearest;
  for (const auto& candidate : words) {
    const std::tuple found(Distance(word, candidate), word.size() - SharedStart(word, candidate),
                           std::abs(LastNumber(candidate) - LastNumber(word)));
    if (found >= best) continue;
    best = found;
    nearest = candidate;
  }
  return nearest;
}

// Of many words only how many they are, the first and the last.
std::string Listed(const std::vector<std::string>& words) {
  constexpr std::size_t kFew = 20;
  if (words.size() > kFew) {
    return "one of " + std::to_string(words.size()) + ", from " + InQuotes(words.front()) + " to " +
           InQuotes(words.back());
  }
  std::string listed;
  for (const auto& word : words) listed.append(listed.empty() ? "" : ", ").append(InQuotes(word));
  return listed;
}

std::string DidYouMean(std::string_view word) {
  return ". Did you mean " + InQuotes(word) + "?";
}

}  // namespace

std::string Escaped(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  constexpr unsigned char kLeadOfControls = 0xC2;  // U+0080 to U+009F
  const auto code_at = [&](std::size_t at) {
    return static_cast<unsigned char>(at < text.size() ? text[at] : ' ');
  };
  std::string escaped;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool is_pair = code_at(at) == kLeadOfControls && code_at(at + 1) >= 0x80 && code_at(at + 1) < 0xA0;
    if (is_pair) ++at;
    const auto code = code_at(at);
    if (is_pair || code < ' ' || code == 0x7F) {
      escaped.append("\\u00").append(1, kDigits[code >> 4U]).append(1, kDigits[code & 0xFU]);
    } else {
      escaped += text[at];
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
  if (!nearest.empty()) return DidYouMean(nearest);
  return words.empty() ? std::string() : "; allowed: " + Listed(words);
}

std::string NotAllowed(const Setting& setting, std::string_view text, std::string_view allowed) {
  const auto words = InQuotes(text) + " is not allowed for " + InQuotes(setting.key) + "; allowed: ";
  if (setting.kind != Kind::kChoice) return words + codecs::Utf8OfWindows1252(allowed);
  std::vector<std::string> entries;
  for (const auto& choice : *setting.choices) entries.push_back(codecs::Utf8OfWindows1252(choice.words));
  const auto nearest = Nearest(text, entries);
  return words + Listed(entries) + (nearest.empty() ? std::string() : DidYouMean(nearest));
}

void SortByPlace(std::vector<Problem>& problems) {
  std::stable_sort(problems.begin(), problems.end(),
                   [](const Problem& one, const Problem& other) { return one.at < other.at; });
}

void Cut(std::vector<Problem>& problems) {
  if (problems.size() <= kMostProblems) return;
  const auto others = problems.size() - kMostProblems;
  const auto at = problems[kMostProblems].at;
  problems.resize(kMostProblems);
  problems.push_back({at, "and " + std::to_string(others) + " more"});
}

}  // namespace ovl::text_form
