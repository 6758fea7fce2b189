// What the tests know about the controls of the settings panels, written down apart from the tables of the
// program. A new field of a panel is one row in panel_facts.cpp.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "image/config_image.h"

namespace ovl::testing {

// The digits that a control may change in a field that holds a record.
enum class RecordPart { kAll, kFirstByte, kDuration, kLastByte, kRange, kAllButRange };

// Where a list stores: in a field of its own, in the alarm or exception slot that is shown, or in a field
// that some network types hide.
enum class Group { kPanel, kRecord, kNetwork };

// A selection that stores a number or some bits of a byte.
struct Selection {
  std::string list;
  image::FieldId field;
  int mask;   // the bits that it stores
  int first;  // the first position
  int step;   // each further position stores this much more
  int entries;
  Group group = Group::kPanel;
  std::vector<image::FieldId> also = {};  // fields that a pick may store as well
};

const std::vector<Selection>& Selections();

// A control that stores in another way.
struct Writer {
  std::string control;
  std::vector<image::FieldId> fields;
  RecordPart part = RecordPart::kAll;
};
const std::vector<Writer>& OtherWriters();

// The fields that no control edits.
const std::set<image::FieldId>& CarriedFields();

}  // namespace ovl::testing
