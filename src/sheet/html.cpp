#include "sheet/html.h"

#include "codecs/windows_1252.h"

namespace ovl::sheet {
namespace {

void AppendCharacter(std::string& html, char byte, std::string_view blank) {
  constexpr char32_t kBox = 0x25A1;
  const auto character = codecs::CharacterOfCode(static_cast<unsigned char>(byte));
  const bool control = character < ' ' || (character >= 0x7F && character <= 0x9F);
  if (byte == ' ') {
    html += blank;
  } else if (byte == '&') {
    html += "&amp;";
  } else if (byte == '<') {
    html += "&lt;";
  } else if (byte == '>') {
    html += "&gt;";
  } else if (byte == '"') {
    html += "&quot;";
  } else {
    codecs::AppendUtf8(html, control ? kBox : character);
  }
}

std::string Escaped(std::string_view text, std::string_view blank) {
  std::string html;
  for (const char byte : text) AppendCharacter(html, byte, blank);
  return html;
}

}  // namespace

std::string Html(std::string_view text) {
  return Escaped(text, " ");
}

std::string UnbrokenHtml(std::string_view text) {
  return Escaped(text, "&#160;");
}

std::string Head(std::string_view html) {
  return std::string("<p class=\"head\">").append(html).append("</p>\n");
}

std::string Table(std::string_view kind, std::string_view rows) {
  return std::string("<table class=\"")
      .append(kind)
      .append("\" width=\"100%\" cellspacing=\"0\">\n")
      .append(rows)
      .append("</table>\n");
}

std::string Cell(std::string_view kind, std::string_view html) {
  return std::string("<td class=\"").append(kind).append("\">").append(html).append("</td>");
}

}  // namespace ovl::sheet
