// Texts that people read. The model writes them in English. A text that is put together keeps its template
// and its parts, so that the windows can show it in another language without a look into the data of the
// user.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace ovl::phrases {

// A caption of a form for the list of texts: without the blanks around it, double blanks and the colon, and
// with the words that have a digit taken out. "Comport 3" is the pattern "Comport %1" with the value "3".
struct Caption {
  std::string pattern;
  std::vector<std::string> values;
};
Caption CaptionOf(std::string_view caption);

// Without the blanks at both ends, double blanks and the colon.
std::string Tidied(std::string_view caption);

// The context of the captions and entries of all forms.
inline constexpr const char* kForm = "Form";

// A text of the program in the list of texts. lupdate reads where it is made: both must be literals, or the
// text is from a table that tools/model_texts lists.
struct Pattern {
  constexpr Pattern(const char* in_context, std::string_view in_text) : context(in_context), text(in_text) {}

  const char* context;
  std::string_view text;
};

class Words {
 public:
  Words() = default;
  // Data, which is the same in every language: a name, a number, what a user has typed.
  Words(std::string data) : english_(std::move(data)) {}

  const std::string& English() const { return english_; }
  operator const std::string&() const { return english_; }
  operator std::string_view() const { return english_; }
  bool empty() const { return english_.empty(); }

  // Null for data. Empty for parts that are only side by side.
  const char* Context() const { return context_; }
  const std::string& Source() const { return source_; }
  const std::vector<Words>& Parts() const { return parts_; }

  friend bool operator==(const Words& one, const Words& other) { return one.english_ == other.english_; }
  friend bool operator==(const Words& one, const std::string& other) { return one.english_ == other; }
  friend bool operator==(const Words& one, const char* other) { return one.english_ == other; }
  friend std::ostream& operator<<(std::ostream& out, const Words& words) { return out << words.english_; }

 private:
  friend Words Sentence(const Pattern& pattern, std::vector<Words> parts);
  friend Words OfForm(std::string caption);
  friend Words SideBySide(std::vector<Words> parts);

  std::string english_;
  const char* context_ = nullptr;
  std::string source_;
  std::vector<Words> parts_;
};

// A text of the program. The parts replace "%1", "%2" and so on.
Words Sentence(const Pattern& pattern, std::vector<Words> parts = {});

// A caption or an entry of a list.
Words OfForm(std::string caption);

// The parts one behind the other.
Words SideBySide(std::vector<Words> parts);

// "3", "3 and 7", "3, 7 and 9".
Words Listed(const std::vector<Words>& parts);

// A caption that only a handler assigns. It is marked for the list of texts, and stays as it is.
constexpr const char* Marked(const char* /*context*/, const char* caption) {
  return caption;
}

}  // namespace ovl::phrases
