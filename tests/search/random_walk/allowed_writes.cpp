#include "search/random_walk/allowed_writes.h"

#include <algorithm>
#include <map>

#include "support/register_facts.h"

namespace ovl::testing {
namespace {

using Table = std::map<std::string, AllowedWrites, std::less<>>;

Table AllWrites() {
  Table table;
  const auto add = [&](const std::string& control, const std::vector<image::FieldId>& fields,
                       RecordPart part) {
    auto& writes = table[control];
    writes.fields.insert(writes.fields.end(), fields.begin(), fields.end());
    writes.part = part;
  };
  for (const auto& row : OptionControls()) add(row.name, row.fields, RecordPart::kAll);
  for (const auto& row : OtherWriters()) add(row.control, row.fields, row.part);
  for (const auto& row : Selections()) {
    const auto part = row.group == Group::kRecord ? RecordPart::kFirstByte : RecordPart::kAll;
    add(row.list, {row.field}, part);
    add(row.list, row.also, part);
  }
  return table;
}

}  // namespace

bool AllowedWrites::Has(image::FieldId field) const {
  return std::ranges::find(fields, field) != fields.end();
}

const AllowedWrites& WritesOf(std::string_view control) {
  static const auto table = AllWrites();
  static const AllowedWrites none;
  for (const auto name : {control, control.substr(0, control.find('('))}) {
    if (const auto found = table.find(name); found != table.end()) return found->second;
  }
  return none;
}

std::string WithoutPart(RecordPart part, std::size_t range, std::string record) {
  constexpr std::size_t kByte = 2;
  if (part == RecordPart::kAll) return {};
  if (record.size() < kByte) return record;
  if (part == RecordPart::kAllButRange) return record.substr(kByte, range);
  if (part == RecordPart::kFirstByte) return record.substr(kByte);
  if (part == RecordPart::kDuration) return record.erase(kByte, 2 * kByte);
  return part == RecordPart::kRange ? record.erase(kByte, range) : record.erase(record.size() - kByte);
}

}  // namespace ovl::testing
