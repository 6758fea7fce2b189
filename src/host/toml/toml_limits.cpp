#include "host/toml/toml_limits.h"

#include <algorithm>
#include <optional>
#include <string>

#include "text_form/messages.h"

namespace ovl::host {
namespace {

using text_form::Problem;

constexpr std::string_view kStartsName =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-\"'";
constexpr std::string_view kAllowed = "; allowed: a text in quotes";

bool IsQuote(char byte) {
  return byte == '"' || byte == '\'';
}

bool IsAscii(char byte) {
  return static_cast<unsigned char>(byte) < 0x80;
}

bool IsNoFirstByte(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
}

bool IsFlagOrWholeNumber(std::string_view word) {
  if (word == "true" || word == "false") return true;
  constexpr std::size_t kMostDigits = 18;  // of a number of the library
  const bool has_zero_in_front = word.size() > 1 && word.front() == '0';
  return !word.empty() && word.size() <= kMostDigits && !has_zero_in_front &&
         word.find_first_not_of("0123456789") == std::string_view::npos;
}

class Line {
 public:
  Line(std::string_view text, int number) : text_(text), number_(number), first_(SkipBlanks(0)) {}

  std::optional<Problem> Wrong() {
    if (auto problem = WrongTable()) return problem;
    for (std::size_t at = first_; at < text_.size();) {
      const char byte = text_[at];
      if (byte == '#' && expected_ != Expected::kUnknown) break;
      // Also where the line is wrong already: the library does not expect every character in such a text.
      opens_text_ = IsQuote(byte) && text_.substr(at, 3) == std::string(3, byte);
      if (opens_text_) return At(at, "wrong syntax: a text over several lines is not allowed");
      const bool is_text = IsQuote(byte) && MayBegin();
      if (!is_text) {
        if (auto problem = WrongAt(at)) return problem;
      }
      const auto end = is_text ? BehindQuotes(at) : BehindWord(at);
      expected_ = Behind(byte, at, end);
      at = end;
    }
    return std::nullopt;
  }

  // The next lines are the text, and nothing can be said of them.
  bool OpensText() const { return opens_text_; }

 private:
  std::size_t SkipBlanks(std::size_t at) const {
    return std::min(text_.find_first_not_of(" \t", at), text_.size());
  }

  // The columns count characters.
  Problem At(std::size_t at, std::string words) const {
    const auto before = text_.substr(0, at);
    const auto rest = std::count_if(before.begin(), before.end(), IsNoFirstByte);
    return {{number_, static_cast<int>(at) - static_cast<int>(rest) + 1}, std::move(words)};
  }

  std::optional<Problem> WrongTable() const {
    if (text_.substr(first_, 1) != "[") return std::nullopt;
    const auto at = SkipBlanks(first_ + 1);
    if (at < text_.size() && (text_[at] == ']' || kStartsName.find(text_[at]) != std::string_view::npos))
      return std::nullopt;
    return At(at, "wrong syntax: a table needs a name");
  }

  // What can come next in a line whose syntax is right so far. In any other line it is not known where a text
  // begins for the library, which is not prepared for every letter outside of texts.
  enum class Expected { kName, kBehindName, kValue, kBehindValue, kEnd, kUnknown };

  bool MayBegin() const { return expected_ == Expected::kName || expected_ == Expected::kValue; }

  // What is expected behind the character, word or text from `at` to `end`.
  Expected Behind(char byte, std::size_t at, std::size_t end) const {
    const auto only_from = [this](Expected before, Expected next) {
      return expected_ == before ? next : Expected::kUnknown;
    };
    switch (byte) {
      case ' ':
      case '\t':
        return expected_;
      case '\r':
        return end == text_.size() ? expected_ : Expected::kUnknown;
      case '.':
        return only_from(Expected::kBehindName, Expected::kName);
      case '=':
        return is_table_ ? Expected::kUnknown : only_from(Expected::kBehindName, Expected::kValue);
      case '{':
        return only_from(Expected::kValue, Expected::kName);
      case ',':
        return braces_ == 0 ? Expected::kUnknown : only_from(Expected::kBehindValue, Expected::kName);
      case '}':
        return braces_ == 0 ? Expected::kUnknown : only_from(Expected::kBehindValue, Expected::kEnd);
      case '[':
        return at == first_ ? Expected::kName : Expected::kUnknown;
      case ']':
        return is_table_ ? only_from(Expected::kBehindName, Expected::kEnd) : Expected::kUnknown;
      default:
        if (!MayBegin() || kStartsName.find(byte) == std::string_view::npos) return Expected::kUnknown;
        return expected_ == Expected::kName ? Expected::kBehindName : Expected::kBehindValue;
    }
  }

  std::size_t BehindWord(std::size_t at) const {
    const auto in_word = kStartsName.substr(0, kStartsName.find('"'));
    return std::max(at + 1, std::min(text_.find_first_not_of(in_word, at), text_.size()));
  }

  // The place behind the text in quotes that begins at `at`.
  std::size_t BehindQuotes(std::size_t at) const {
    const char quote = text_[at];
    for (++at; at < text_.size() && text_[at] != quote; ++at) {
      if (quote == '"' && text_[at] == '\\') ++at;
    }
    return at + 1;
  }

  std::optional<Problem> WrongAt(std::size_t at) {
    constexpr int kMostPoints = 100;
    const char byte = text_[at];
    if (!IsAscii(byte))
      return At(at, "wrong syntax: letters other than A to Z are allowed only within quotes");
    if (byte == '[' && at != first_) return At(at, "a list is not allowed" + std::string(kAllowed));
    if (byte == '{' && ++braces_ > 1) return At(at, "a table within a table is not allowed");
    if (byte == '.' && ++points_ > kMostPoints) return At(0, "the line has too many points");
    return byte == '=' ? WrongValue(SkipBlanks(at + 1)) : std::nullopt;
  }

  std::optional<Problem> WrongValue(std::size_t at) const {
    const auto rest = text_.substr(at);
    const auto word = rest.substr(0, rest.find_first_of(" \t\r#,}"));
    if (word.empty()) return At(at, "wrong syntax: a value is missing");
    const bool is_other = IsQuote(word[0]) || word[0] == '{' || word[0] == '[';
    if (is_other || !std::all_of(word.begin(), word.end(), IsAscii) || IsFlagOrWholeNumber(word))
      return std::nullopt;
    const auto line = text_.substr(first_);
    const auto allowed = line.starts_with(text_form::kCompleteKey) ? "true, false"
                         : line.starts_with("format")              ? "1"
                                                      : "a text in quotes, or a whole number of a list";
    return At(at, text_form::InQuotes(word) + " is not allowed; allowed: " + allowed);
  }

  std::string_view text_;
  int number_;
  std::size_t first_;  // not a blank
  int points_ = 0;
  int braces_ = 0;
  bool is_table_ = text_.substr(first_, 1) == "[";
  bool opens_text_ = false;
  Expected expected_ = Expected::kName;
};

}  // namespace

OutsideLimits OutsideTomlLimits(std::string_view text) {
  constexpr std::size_t kMostBytes = 1'000'000;
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.size() > kMostBytes) return {{{{1, 1}, "the file is too large for a text form"}}, 0};
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  OutsideLimits outside;
  for (int number = 1; !text.empty(); ++number) {
    const auto line = text.substr(0, text.find('\n'));
    Line checked(line, number);
    if (auto problem = checked.Wrong()) outside.problems.push_back(std::move(*problem));
    if (checked.OpensText()) {
      outside.last_line = number;
      break;
    }
    text.remove_prefix(std::min(line.size() + 1, text.size()));
  }
  return outside;
}

}  // namespace ovl::host
