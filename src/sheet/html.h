// Pieces of HTML in UTF-8. Texts of the unit and of the form are in Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace ovl::sheet {

// With everything escaped that HTML would not show as it is. Control characters become a box.
std::string Html(std::string_view text);

// The same with blanks that stay where they are and do not break a line.
std::string UnbrokenHtml(std::string_view text);

// The head of a section, and a table of the whole width. The head is HTML.
std::string Head(std::string_view html);
std::string Table(std::string_view kind, std::string_view rows);

// "<td class="KIND">HTML</td>"
std::string Cell(std::string_view kind, std::string_view html);

}  // namespace ovl::sheet
