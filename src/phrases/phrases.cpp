#include "phrases/phrases.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace ovl::phrases {
namespace {

bool IsDigit(char letter) {
  return letter >= '0' && letter <= '9';
}

// The text with the parts in place of "%1", "%2" and so on.
std::string Filled(std::string_view text, const std::vector<Words>& parts) {
  std::string filled;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '%' && at + 1 < text.size() && IsDigit(text[at + 1])) {
      filled += parts.at(static_cast<std::size_t>(text[++at] - '1')).English();
    } else {
      filled += text[at];
    }
  }
  return filled;
}

}  // namespace

std::string Tidied(std::string_view caption) {
  std::string words;
  for (const char letter : caption) {
    if (letter != ' ' || (!words.empty() && words.back() != ' ')) words += letter;
  }
  while (!words.empty() && (words.back() == ' ' || words.back() == ':')) words.pop_back();
  return words;
}

Caption CaptionOf(std::string_view caption) {
  constexpr std::size_t kMostValues = 9;
  std::istringstream tidied(Tidied(caption));
  Caption parts;
  for (std::string word; tidied >> word;) {
    if (!parts.pattern.empty()) parts.pattern += ' ';
    const bool is_value = std::any_of(word.begin(), word.end(), IsDigit);
    if (!is_value || parts.values.size() == kMostValues) {
      parts.pattern += word;
    } else {
      parts.values.push_back(word);
      parts.pattern += '%' + std::to_string(parts.values.size());
    }
  }
  return parts;
}

Words Sentence(const Pattern& pattern, std::vector<Words> parts) {
  Words words(Filled(pattern.text, parts));
  words.context_ = pattern.context;
  words.source_ = pattern.text;
  words.parts_ = std::move(parts);
  return words;
}

Words OfForm(std::string caption) {
  Words words(std::move(caption));
  words.context_ = kForm;
  words.source_ = words.english_;
  return words;
}

Words SideBySide(std::vector<Words> parts) {
  std::string english;
  for (const auto& part : parts) english += part.English();
  Words words(std::move(english));
  words.context_ = "";
  words.parts_ = std::move(parts);
  return words;
}

Words Listed(const std::vector<Words>& parts) {
  Words list;
  for (std::size_t at = 0; at < parts.size(); ++at) {
    const bool last = at + 1 == parts.size();
    list = at == 0 ? parts[at]
           : last  ? Sentence(Pattern("List", "%1 and %2"), {list, parts[at]})
                   : Sentence(Pattern("List", "%1, %2"), {list, parts[at]});
  }
  return list;
}

}  // namespace ovl::phrases
