// Which fields of the image an act on a control may write.
#pragma once

#include <string_view>

namespace ovl::testing {

// The fields' names with blanks between and around them; a single blank for a control that writes none. A
// name with its index stands ahead of the name of its whole array. Controls of other forms than the main one
// have the form in front.
std::string_view FieldsOf(std::string_view control);

}  // namespace ovl::testing
