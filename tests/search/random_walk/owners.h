// Which fields of the image an act on a control may write.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ovl::testing {

// Of a field that is a record: all of it, or only some of its digits.
enum class Part { kAll, kFirstByte, kDuration, kLastByte, kRange, kAllButRange };

struct Owner {
  std::string controls, fields;  // with blanks between and around them
  Part of_records = Part::kAll;
};

// A name with its index stands ahead of the name of its whole array. Controls of other forms than the main
// one have the form in front. A control that is not listed writes nothing.
const Owner& OwnerNamed(std::string_view control);

// Whether the owner's fields have one of this name.
bool MayWrite(const Owner& owner, std::string_view field);

// What the part leaves of a record; the numbers of a range have so many digits.
std::string Without(Part part, std::size_t range, std::string record);

}  // namespace ovl::testing
