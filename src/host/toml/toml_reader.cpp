#include "host/toml/toml_reader.h"

#include "host/toml/toml_limits.h"

#define TOML_EXCEPTIONS 0
#define TOML_ENABLE_FORMATTERS 0
#include <toml++/toml.h>

#include <algorithm>

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

}  // namespace

Document ReadToml(std::string_view text) {
  Document document;
  if (auto problem = text_form::OtherFormat(text)) return {{}, {std::move(*problem)}};
  if (auto problems = OutsideTomlLimits(text); !problems.empty()) return {{}, std::move(problems)};
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
    if (table->empty()) document.empty_tables.push_back({name, {}, PositionOf(key.source().begin), {}});
  }
  std::sort(document.entries.begin(), document.entries.end(),
            [](const Entry& one, const Entry& other) { return one.at < other.at; });
  return document;
}

}  // namespace ovl::host
