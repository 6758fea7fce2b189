// The words for what is wrong in a text form. All texts are in UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text_form/document.h"
#include "text_form/settings.h"

namespace ovl::text_form {

// Control characters become their escapes, so that a message is one line. A long text is cut in quotes.
std::string Escaped(std::string_view text);
std::string InQuotes(std::string_view text);

// As the value is written.
std::string Written(const Value& value);

// For a word that is not in the list: ". Did you mean "PARITY"?", or what is allowed if no word is near.
std::string Suggestion(std::string_view word, const std::vector<std::string>& words);

// `allowed` is what StoreWords returns.
std::string NotAllowed(const Setting& setting, std::string_view text, std::string_view allowed);

void SortByPlace(std::vector<Problem>& problems);

// More than a whole form has lines. Of more problems than these only their number is left.
inline constexpr std::size_t kMostProblems = 1000;
void Cut(std::vector<Problem>& problems);

}  // namespace ovl::text_form
