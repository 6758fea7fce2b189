#include "host/toml/toml_reader.h"

#include "host/toml/toml_limits.h"

#define TOML_EXCEPTIONS 0
#define TOML_ENABLE_FORMATTERS 0
#include <toml++/toml.h>

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "text_form/messages.h"

namespace ovl::host {
namespace {

using text_form::Document;
using text_form::Entry;
using text_form::Position;
using text_form::Problem;
using text_form::Table;
using text_form::Value;
using text_form::ValueKind;

Position PositionOf(const toml::source_position& position) {
  return {static_cast<int>(position.line), static_cast<int>(position.column)};
}

// { bytes = "7F" } or { digits = "7" }.
Value InlineValue(const toml::table& table) {
  if (table.size() == 1) {
    for (const auto& [name, kind] :
         {std::pair{"bytes", ValueKind::kBytes}, std::pair{"digits", ValueKind::kDigits}}) {
      if (const auto text = table[name].value<std::string>(); text && table[name].is_string())
        return {kind, *text, {}};
    }
  }
  return {ValueKind::kOther, "a table", {}};
}

Value ValueOf(const toml::node& node) {
  Value value;
  if (const auto* text = node.as_string()) {
    value = {ValueKind::kText, text->get(), {}};
  } else if (const auto* number = node.as_integer()) {
    value = {ValueKind::kNumber, std::to_string(number->get()), {}};
  } else if (const auto* flag = node.as_boolean()) {
    value = {ValueKind::kFlag, flag->get() ? "true" : "false", {}};
  } else if (const auto* table = node.as_table()) {
    value = InlineValue(*table);
  } else {
    value = {ValueKind::kOther, "a value of another kind", {}};
  }
  value.at = PositionOf(node.source().begin);
  return value;
}

void AddEntry(Document& document, std::string table, const toml::key& key, const toml::node& node) {
  document.entries.push_back(
      {std::move(table), std::string(key.str()), PositionOf(key.source().begin), ValueOf(node)});
}

// A table without a name must not count as the lines before the first table.
std::string TableName(const toml::key& key) {
  return key.str().empty() ? "\"\"" : std::string(key.str());
}

void AddTable(Document& document, const toml::table& parsed) {
  for (const auto& [key, node] : parsed) {
    const auto* table = node.as_table();
    if (table == nullptr || table->is_inline()) {
      AddEntry(document, {}, key, node);
      continue;
    }
    const auto name = TableName(key);
    for (const auto& [inner_key, inner] : *table) AddEntry(document, name, inner_key, inner);
    document.tables.push_back({name, PositionOf(key.source().begin)});
  }
}

Problem WrongSyntax(const toml::parse_error& error) {
  return {PositionOf(error.source().begin), "wrong syntax: " + text_form::Escaped(error.description())};
}

// Reads a text in which something is wrong. No statement is longer than a line, so every other line can be
// read.
class LineReader {
 public:
  explicit LineReader(OutsideLimits outside) : outside_(std::move(outside)) {
    document_.problems = outside_.problems;
  }

  Document Read(std::string_view text) {
    for (int number = 1; !text.empty() && number <= outside_.last_line; ++number) {
      const auto line = text.substr(0, text.find('\n'));
      ReadLine(line.substr(0, line.find_last_not_of('\r') + 1), number);
      text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    text_form::SortByPlace(document_.problems);
    return std::move(document_);
  }

 private:
  void ReadLine(std::string_view line, int number) {
    const bool is_table = line.substr(std::min(line.find_first_not_of(" \t"), line.size())).starts_with('[');
    // The settings of a table whose name cannot be read are not judged.
    if (is_table) table_.reset();
    if (IsOutside(number)) return;
    const auto parsed = toml::parse(line);
    if (!parsed) return Say(WrongSyntax(parsed.error()), number);
    Document read;
    AddTable(read, parsed.table());
    if (is_table && !parsed.table().empty()) table_ = TableName(parsed.table().begin()->first);
    // A point in a name makes a table only before the first table.
    if (is_table || (table_ && table_->empty())) TakeTables(std::move(read.tables), number);
    for (auto& entry : read.entries) {
      entry.at.line = entry.value.at.line = number;
      if (table_) TakeEntry(std::move(entry), is_table);
    }
    if (is_table && !read.entries.empty()) table_.reset();  // a table within a table
  }

  void TakeTables(std::vector<Table> tables, int number) {
    for (auto& table : tables) {
      table.at.line = number;
      if (IsNew({table.name, {}}, "[" + text_form::Escaped(table.name) + "]", table.at))
        document_.tables.push_back(std::move(table));
    }
  }

  void TakeEntry(Entry entry, bool is_table) {
    if (!is_table && !table_->empty()) entry.table = *table_;
    if (IsNew({entry.table, entry.key}, text_form::InQuotes(entry.key), entry.at))
      document_.entries.push_back(std::move(entry));
  }

  bool IsNew(std::pair<std::string, std::string> name, const std::string& words, Position at) {
    const auto [known, is_new] = lines_.try_emplace(std::move(name), at.line);
    if (!is_new)
      document_.problems.push_back({at, words + " is already on line " + std::to_string(known->second)});
    return is_new;
  }

  bool IsOutside(int number) const {
    return std::any_of(outside_.problems.begin(), outside_.problems.end(),
                       [&](const Problem& problem) { return problem.at.line == number; });
  }

  void Say(Problem problem, int number) {
    problem.at.line = number;
    document_.problems.push_back(std::move(problem));
  }

  OutsideLimits outside_;
  Document document_;
  std::optional<std::string> table_ = std::string();  // none: its name cannot be read
  std::map<std::pair<std::string, std::string>, int> lines_;
};

}  // namespace

Document ReadToml(std::string_view text) {
  if (auto problem = text_form::OtherFormat(text)) return {{}, {std::move(*problem)}};
  auto outside = OutsideTomlLimits(text);
  if (!outside.problems.empty()) return LineReader(std::move(outside)).Read(text);
  const auto parsed = toml::parse(text);
  if (!parsed) {
    auto document = LineReader({}).Read(text);
    if (document.problems.empty()) document.problems.push_back(WrongSyntax(parsed.error()));
    return document;
  }
  Document document;
  AddTable(document, parsed.table());
  std::sort(document.entries.begin(), document.entries.end(),
            [](const Entry& one, const Entry& other) { return one.at < other.at; });
  return document;
}

}  // namespace ovl::host
