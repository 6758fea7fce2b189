#include "host/toml/toml_reader.h"

#define TOML_EXCEPTIONS 0
#define TOML_ENABLE_FORMATTERS 0
#include <toml++/toml.h>

#include <algorithm>
#include <optional>

#include "text_form/messages.h"

namespace ovl::host {
namespace {

using text_form::Document;
using text_form::Entry;
using text_form::Position;
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

std::string NameOf(toml::node_type type) {
  switch (type) {
    case toml::node_type::array:
      return "a list";
    case toml::node_type::floating_point:
      return "a number with a point";
    default:
      return "a date or time";
  }
}

Value ValueOf(const toml::node& node) {
  Value value;
  if (const auto* text = node.as_string()) {
    value = {ValueKind::kText, text->get(), {}};
  } else if (const auto* number = node.as_integer()) {
    value = {ValueKind::kText, std::to_string(number->get()), {}};
  } else if (const auto* flag = node.as_boolean()) {
    value = {ValueKind::kFlag, flag->get() ? "true" : "false", {}};
  } else if (const auto* table = node.as_table()) {
    value = InlineValue(*table);
  } else {
    value = {ValueKind::kOther, NameOf(node.type()), {}};
  }
  value.at = PositionOf(node.source().begin);
  return value;
}

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kStartsName =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-\"'";

// What the library must not get. It calls itself for each part of a name, so a long one would use up the
// stack, and it takes for granted that a table begins with a name.
std::optional<text_form::Problem> WrongIn(std::string_view line, int number) {
  constexpr auto kMostPoints = 100;
  if (std::count(line.begin(), line.end(), '.') > kMostPoints)
    return text_form::Problem{{number, 1}, "the line has too many points"};
  auto at = std::min(line.find_first_not_of(kBlanks), line.size());
  if (line.substr(at, 1) != "[") return std::nullopt;
  at += line.substr(at, 2) == "[[" ? 2 : 1;
  at = std::min(line.find_first_not_of(kBlanks, at), line.size());
  if (at < line.size() && (line[at] == ']' || kStartsName.find(line[at]) != std::string_view::npos))
    return std::nullopt;
  return text_form::Problem{{number, static_cast<int>(at) + 1}, "wrong syntax: a table needs a name"};
}

std::optional<text_form::Problem> WrongIn(std::string_view text) {
  constexpr std::size_t kMostBytes = 1'000'000;
  if (text.size() > kMostBytes) return text_form::Problem{{1, 1}, "the file is too large for a text form"};
  for (int number = 1; !text.empty(); ++number) {
    const auto line = text.substr(0, text.find('\n'));
    if (auto problem = WrongIn(line, number)) return problem;
    text.remove_prefix(std::min(line.size() + 1, text.size()));
  }
  return std::nullopt;
}

void AddEntry(Document& document, std::string table, const toml::key& key, const toml::node& node) {
  document.entries.push_back(
      {std::move(table), std::string(key.str()), PositionOf(key.source().begin), ValueOf(node)});
}

}  // namespace

Document ReadToml(std::string_view text) {
  Document document;
  if (auto problem = WrongIn(text)) return {{}, {std::move(*problem)}};
  const auto parsed = toml::parse(text);
  if (!parsed) {
    const auto& error = parsed.error();
    document.problems.push_back(
        {PositionOf(error.source().begin), "wrong syntax: " + text_form::Escaped(error.description())});
    return document;
  }
  for (const auto& [key, node] : parsed.table()) {
    const auto* table = node.as_table();
    if (table == nullptr || table->is_inline()) {
      AddEntry(document, {}, key, node);
      continue;
    }
    // A table without a name must not count as the lines before the first table.
    const auto name = key.str().empty() ? "\"\"" : std::string(key.str());
    for (const auto& [inner_key, inner] : *table) AddEntry(document, name, inner_key, inner);
  }
  std::sort(document.entries.begin(), document.entries.end(),
            [](const Entry& one, const Entry& other) { return one.at < other.at; });
  return document;
}

}  // namespace ovl::host
