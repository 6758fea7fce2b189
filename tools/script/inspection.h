// What a person would read off a control: the one place that tells how each kind of control is printed and
// compared.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/registry.h"

namespace ovl::script {

// Position of a list, chosen element of an array, value of a bar, current tab; 1 or 0 of whatever is checked
// or chosen. Nothing for a control without any of it.
std::optional<int> PositionOf(const controls::ControlRef& control);

// Text of a list's entry, of the chosen element, of a text box or a bar; the caption of anything else.
std::string TextOf(const controls::ControlRef& control);

// Entries of a list or captions of an array's elements; nothing for other kinds.
std::optional<std::vector<std::string>> EntriesOf(const controls::ControlRef& control);

// Of a check box, a menu item, an element; nothing for other kinds.
std::optional<bool> CheckedOf(const controls::ControlRef& control);

// NAME = position "text" visible|hidden enabled|disabled; "-" for a control without a position.
std::string Description(const std::string& name, const controls::ControlRef& control);

// Whether two texts that people read are the same: CR LF, CR and LF are one kind of line break.
bool ReadTheSame(std::string_view one, std::string_view other);

}  // namespace ovl::script
