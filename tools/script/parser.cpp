#include "script/parser.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "script/stop.h"

namespace ovl::script {
namespace {

constexpr std::array<std::pair<char, char>, 5> kEscapes{
    {{'"', '"'}, {'\\', '\\'}, {'r', '\r'}, {'n', '\n'}, {'t', '\t'}}};

bool IsBlank(char character) {
  return character == ' ' || character == '\t' || character == '\r';
}

bool EndsWord(char character) {
  return IsBlank(character) || character == '#';
}

bool IsPrintable(char character) {
  return character >= ' ' && character <= '~';
}

std::optional<int> HexDigit(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  return std::nullopt;
}

void AppendHex(std::string& output, char byte) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const auto value = static_cast<unsigned char>(byte);
  output += kDigits[value >> 4U];
  output += kDigits[value & 0x0FU];
}

// The byte of an escape. Moves the place to the escape's last character.
char Unescape(std::string_view line, std::size_t& place) {
  if (place == line.size()) Wrong("a backslash ends the line");
  const char code = line[place];
  if (code == 'x') {
    const auto byte = HexByte(line.substr(place + 1, 2));
    if (!byte) Wrong("\\x needs two hexadecimal digits");
    place += 2;
    return *byte;
  }
  const auto found =
      std::find_if(kEscapes.begin(), kEscapes.end(), [code](const auto& row) { return row.first == code; });
  if (found == kEscapes.end()) Wrong(std::string("there is no escape \\") + code);
  return found->second;
}

// Both readers start at a word's first character and end behind its last one.
Word ReadText(std::string_view line, std::size_t& place) {
  Word word{{}, true};
  for (++place; place < line.size() && line[place] != '"'; ++place) {
    word.text += line[place] == '\\' ? Unescape(line, ++place) : line[place];
  }
  if (place == line.size()) Wrong("the closing quote of a text is missing");
  ++place;
  if (place < line.size() && !EndsWord(line[place])) Wrong("a blank is missing after a text");
  return word;
}

Word ReadBare(std::string_view line, std::size_t& place) {
  const auto start = place;
  while (place < line.size() && !EndsWord(line[place])) {
    if (line[place] == '"') Wrong("there is a quote inside a word");
    ++place;
  }
  return {std::string(line.substr(start, place - start)), false};
}

}  // namespace

std::vector<Word> SplitWords(std::string_view line) {
  std::vector<Word> words;
  std::size_t place = 0;
  while (place < line.size() && line[place] != '#') {
    if (IsBlank(line[place])) {
      ++place;
    } else {
      words.push_back(line[place] == '"' ? ReadText(line, place) : ReadBare(line, place));
    }
  }
  return words;
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char character : text) {
    const auto escape = std::find_if(kEscapes.begin(), kEscapes.end(),
                                     [character](const auto& row) { return row.second == character; });
    if (escape != kEscapes.end()) {
      quoted += '\\';
      quoted += escape->first;
    } else if (IsPrintable(character)) {
      quoted += character;
    } else {
      AppendHex(quoted += "\\x", character);
    }
  }
  return quoted += '"';
}

std::string AsWord(std::string_view text) {
  const bool bare = !text.empty() && std::all_of(text.begin(), text.end(), [](char character) {
    return IsPrintable(character) && !EndsWord(character) && character != '"';
  });
  return bare ? std::string(text) : Quoted(text);
}

std::optional<char> HexByte(std::string_view digits) {
  if (digits.size() != 2) return std::nullopt;
  const auto high = HexDigit(digits[0]);
  const auto low = HexDigit(digits[1]);
  if (!high || !low) return std::nullopt;
  return static_cast<char>(static_cast<unsigned char>(*high * 16 + *low));
}

const std::string& Arguments::Next(std::string_view what) {
  if (AtEnd()) Wrong(std::string(what) + " is missing");
  return words_[next_++].text;
}

const std::string& Arguments::Text(std::string_view what) {
  if (!AtEnd() && !NextIsQuoted()) Wrong(std::string(what) + " must be in quotes");
  return Next(what);
}

const std::string& Arguments::Bare(std::string_view what) {
  if (NextIsQuoted()) Wrong(std::string(what) + " must be without quotes");
  return Next(what);
}

int Arguments::Number(std::string_view what) {
  constexpr int kLargest = 999'999'999;
  const auto& word = Bare(what);
  int number = 0;
  const auto* end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, number);
  if (error != std::errc() || stop != end || number > kLargest || number < -kLargest) {
    Wrong(std::string(what) + " must be a number, not " + Quoted(word));
  }
  return number;
}

bool Arguments::Take(std::string_view keyword) {
  if (AtEnd() || NextIsQuoted() || words_[next_].text != keyword) return false;
  ++next_;
  return true;
}

void Arguments::End() const {
  if (!AtEnd()) Wrong(Quoted(words_[next_].text) + " is one word too many");
}

}  // namespace ovl::script
