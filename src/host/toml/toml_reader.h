// Reads the syntax of a text form, which is TOML, with a library.
#pragma once

#include <string_view>

#include "text_form/document.h"

namespace ovl::host {

// A wrong syntax is one problem, at the place where it shows, without entries. Tables within tables, lists
// and dates are read as values of another kind.
text_form::Document ReadToml(std::string_view text);

}  // namespace ovl::host
