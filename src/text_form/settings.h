// The settings of a firmware as the text form names them: where each one is, which bits it occupies, and how
// its words are stored. Reading and writing the text form, the list of settings and the site sheet use it.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "changes/sites.h"
#include "core/application.h"
#include "image/slot_records.h"

namespace ovl::text_form {

// Bits of a field. The bits are those of a single byte; of a longer part they are all.
struct FieldPart {
  image::FieldId field;
  int entry = 1;
  image::DigitSpan digits = {};
  int bits = core::kWholeByte;
};

// An entry of a list: what it stores in each part, as digits. The other bits of a part are zero.
struct Choice {
  std::string words;
  std::vector<std::string> stored;
  std::string marked = {};  // with the mark that the form shows in front of it, if any: "EX. 3"
};
using Choices = std::vector<Choice>;

enum class Kind { kChoice, kNumber, kRange, kExceptionText, kTriggeredText, kTitle };

struct Setting {
  int tab = 0;
  int slot = 0;         // the exception or alarm, counted from 1; 0: none
  std::string table;    // "TEXT DISPLAY", "Exception 3"
  std::string key;      // "PARITY"
  std::string control;  // that shows it
  Kind kind = Kind::kChoice;
  std::vector<FieldPart> parts;
  std::shared_ptr<const Choices> choices;  // of a list; the settings of all slots share it
};

// The digits of a part, without the bits that do not belong to it.
std::string StoredIn(const image::ConfigImage& image, const FieldPart& part);
void Store(image::ConfigImage& image, const FieldPart& part, std::string_view digits);

// The number of digits of an entry of the field.
std::size_t DigitsOfField(image::FieldId field, const firmware::FirmwareId& firmware);

// A field that has as many digits as it should, all of them upper-case.
bool IsRegular(std::string_view value, std::size_t digits);

// Whether a field of the setting is regular.
bool IsStored(const Setting& setting, const image::ConfigImage& image, const firmware::FirmwareId& firmware);

// What the image stores, in words. Nothing if no words store the same. Texts are in Windows-1252. Parts whose
// field is not regular are left out.
std::optional<std::string> WordsOf(const Setting& setting, const image::ConfigImage& image,
                                   const firmware::FirmwareId& firmware);

// Stores the words. Nothing, or else what is allowed: "OFF", "ON".
std::optional<std::string> StoreWords(const Setting& setting, std::string_view words,
                                      image::ConfigImage& image, const firmware::FirmwareId& firmware);

// The parts as digits, with blanks between them, and back. A part of a field that is not regular is zero.
// False: the digits are not those of the parts.
std::string DigitsOf(const Setting& setting, const image::ConfigImage& image,
                     const firmware::FirmwareId& firmware);
bool StoreDigits(const Setting& setting, std::string_view digits, image::ConfigImage& image,
                 const firmware::FirmwareId& firmware);

// The names of the fields and bits: "DSPCFG_BAK bit 4", "BLNKVAL, BLNKIND".
std::string FieldNames(const Setting& setting);

}  // namespace ovl::text_form
