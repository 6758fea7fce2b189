// What a person sees of a control. Each kind of control is printed and compared as defined here.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/registry.h"

namespace ovl::script {

// The position of a list, the chosen element of an array, the value of a bar, the current tab, or 1 or 0 for
// a control that can be checked or chosen. Nothing for other controls.
std::optional<int> PositionOf(const controls::ControlRef& control);

// The text of a list's entry, of the chosen element, of a text box or a bar. The caption of other controls.
std::string TextOf(const controls::ControlRef& control);

// The entries of a list or the captions of an array's elements. Nothing for other kinds.
std::optional<std::vector<std::string>> EntriesOf(const controls::ControlRef& control);

// Whether a check box, a menu item or an element is checked. Nothing for other kinds.
std::optional<bool> CheckedOf(const controls::ControlRef& control);

// NAME = position "text" visible|hidden enabled|disabled; "-" for a control without a position.
std::string Description(const std::string& name, const controls::ControlRef& control);

// Whether two texts look the same to people. CR LF, CR and LF count as the same line break.
bool ReadTheSame(std::string_view one, std::string_view other);

}  // namespace ovl::script
