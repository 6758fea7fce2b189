// The word of a list that somebody may have meant.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace ovl::text_form {

// The word with the fewest letters to change, whatever its case. Empty if none is near.
std::string Nearest(std::string_view word, std::span<const std::string> words);

}  // namespace ovl::text_form
