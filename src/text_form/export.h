// The text form of an image: one setting a line, in the words of the form.
#pragma once

#include <string>
#include <vector>

#include "text_form/catalogue.h"
#include "text_form/document.h"

namespace ovl::text_form {

inline constexpr std::string_view kOtherBytes = "Other bytes";

// A text of Windows-1252 as it is written: in quotes, in UTF-8, with escapes.
std::string Quoted(std::string_view text);

// A setting as it is stored. Texts are in Windows-1252.
struct Line {
  int tab = 0;
  int slot = 0;
  std::string table, key, control;
  std::optional<std::string> words;  // nothing: no words store these bytes
  std::string digits;
  std::string fields;  // "RX_BAUDRATE"
};

// In the order of the text form, the options of the register behind the register. Options without words are
// left out: their bytes are among the others.
std::vector<Line> LinesOf(Catalogue& catalogue, const image::ConfigImage& image);

// What the lines do not store: whole fields, and bits beside theirs. Fields of zeros are left out.
struct OtherBytes {
  std::string name;    // with its entry
  std::string digits;  // the rest of the field is zero
  bool as_they_are;    // the field is too short or too long, or has other characters
};
std::vector<OtherBytes> OtherBytesOf(Catalogue& catalogue, const image::ConfigImage& image);

// In UTF-8, with LF at the ends of the lines. Reading it gives the same image.
std::string Export(Catalogue& catalogue, const image::ConfigImage& image);

}  // namespace ovl::text_form
