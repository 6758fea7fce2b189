// Reads the syntax of a text form, which is TOML, with a library.
#pragma once

#include <string_view>

#include "text_form/document.h"

namespace ovl::host {

// Every line with a wrong syntax is a problem, at the place where it shows, and so is a table or a name that
// comes twice; the entries are then those of the other lines. Tables within tables, lists and dates are read
// as values of another kind.
text_form::Document ReadToml(std::string_view text);

}  // namespace ovl::host
