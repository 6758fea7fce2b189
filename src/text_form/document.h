// A text form as its syntax goes, before anything is known about settings. `host/toml` reads it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovl::text_form {

// Both count from 1.
struct Position {
  int line = 1;
  int column = 1;

  auto operator<=>(const Position&) const = default;
};

// Something wrong with a text form, in UTF-8.
struct Problem {
  Position at;
  std::string words;

  bool operator==(const Problem&) const = default;
};

// "PATH:LINE:COLUMN: WORDS"
std::string TextOf(const Problem& problem, std::string_view path);

enum class ValueKind {
  kText,    // "EVEN"
  kNumber,  // 7
  kBytes,   // { bytes = "7F" }
  kDigits,  // { digits = "7" }
  kFlag,    // true
  kOther
};

struct Value {
  ValueKind kind = ValueKind::kOther;
  std::string text;  // in UTF-8; "true" for a flag; of another value, what kind it is
  Position at;
};

struct Entry {
  std::string table;  // empty: before the first table
  std::string key;
  Position at;
  Value value;
};

struct Table {
  std::string name;
  Position at;  // of the name
};

struct Document {
  std::vector<Entry> entries;  // in the order of the lines
  std::vector<Problem> problems;
  std::vector<Table> tables = {};
};

inline constexpr int kFormat = 1;  // the version of the form
inline constexpr std::string_view kFirmwareKey = "firmware", kCompleteKey = "complete";

// Whether the bytes are a text form and no record stream.
bool IsTextForm(std::string_view bytes);

// The problem of a form in other characters, or of a later version, whose syntax can be another one.
std::optional<Problem> OtherFormat(std::string_view bytes);

// The line with this key before the first table; null if there is none.
const Entry* HeaderOf(const Document& document, std::string_view key);

// What is wrong with the syntax or with the lines before the first table. `running` is the firmware of the
// program, which the settings can name although no other program serves it; empty if there is none.
std::vector<Problem> HeaderProblems(const Document& document, std::string_view running = {});

// Whether the settings can be judged: the format is not another one, and neither is the firmware unknown.
bool CanBeJudged(const Document& document, std::string_view running);

// The firmware that the form names, such as "V1400 R12"; empty if it names none.
std::string FirmwareNamed(const Document& document);

// The form names every setting of its firmware.
bool IsComplete(const Document& document);

}  // namespace ovl::text_form
