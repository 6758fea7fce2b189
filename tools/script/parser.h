// The script's language: words, texts in double quotes, and how both are printed again. All texts are bytes.
// Syntax errors throw Stop with kWrongStatement.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovl::script {

struct Word {
  std::string text;
  bool quoted = false;
};

// The words of one line. A "#" outside a text starts a comment. A line may be empty.
std::vector<Word> SplitWords(std::string_view line);

// The text in double quotes with the escapes of the language: one line, printable ASCII alone.
std::string Quoted(std::string_view text);

// As a script would have it: bare if possible, otherwise quoted.
std::string AsWord(std::string_view text);

// One byte of exactly two hexadecimal digits, in either case.
std::optional<char> HexByte(std::string_view digits);

// A statement's words behind its name, taken one after the other. `what` names the word in messages.
class Arguments {
 public:
  explicit Arguments(std::vector<Word> words) : words_(std::move(words)) {}

  bool AtEnd() const { return next_ == words_.size(); }
  bool NextIsQuoted() const { return !AtEnd() && words_[next_].quoted; }

  const std::string& Next(std::string_view what);
  // The next word, which must be quoted (Text) or must not be (Bare).
  const std::string& Text(std::string_view what);
  const std::string& Bare(std::string_view what);
  // A bare whole number, -999,999,999 to 999,999,999.
  int Number(std::string_view what);
  // Takes the next word if it is this one, written bare.
  bool Take(std::string_view keyword);
  // Throws Stop if a word is left.
  void End() const;

 private:
  std::vector<Word> words_;
  std::size_t next_ = 0;
};

}  // namespace ovl::script
