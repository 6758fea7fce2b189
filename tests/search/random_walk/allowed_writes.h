// Which fields of the image an act on a control may write.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "support/panel_facts.h"

namespace ovl::testing {

struct AllowedWrites {
  std::vector<image::FieldId> fields;
  RecordPart part = RecordPart::kAll;  // of a field that is a record

  bool Has(image::FieldId field) const;
};

// A control that no table lists writes nothing. The name of an array means all its members that have no
// row of their own. Controls of other forms than the main one have the name of the form in front.
const AllowedWrites& WritesOf(std::string_view control);

// The record without the digits of the part; the limits of a range have `range` digits.
std::string WithoutPart(RecordPart part, std::size_t range, std::string record);

}  // namespace ovl::testing
