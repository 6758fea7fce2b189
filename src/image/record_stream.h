// A configuration as a text of records with addresses. The serial line, upload.bin, saved files and default
// images all use this text. The functions below split it into the three sections and build it from digits.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "image/field_map.h"

namespace ovl::image {

// The memory addresses of the first and the last record.
struct Region {
  int first = 0;
  int last = 0;
};

// The addresses that a reader expects in an image of the firmware, and those that a download writes. They
// differ only for releases that no unit has.
Region ReadRegion(const firmware::FirmwareId& firmware);
Region WriteRegion(const firmware::FirmwareId& firmware);

// The region of a file that "Save" writes, in the layout of firmware::SavedLayoutOf.
Region SavedRegion(const firmware::FirmwareId& firmware);

// "$" and four digits, the start of a record.
std::string AddressMarker(int address);

// The digits of the image as records. Each record has 64 digits; the last one takes the rest and ends with
// "#". CR LF separates the records. Every address occurs, also after the last digit.
std::string BlockRecords(std::string_view digits, const Region& region);

enum class ParseResult {
  kOk,
  kOtherFirmware,  // the text does not contain the first marker
  kBroken,         // the last marker or the "#" is missing
};

// Joins the digits of all records. It ignores the text before the first marker and after the "#", and the
// addresses between them.
ParseResult ParseRecords(std::string_view stream, const Region& region, std::string& digits);

// Splits the digits at the section lengths of the firmware. The last section takes the rest.
Sections CutSections(std::string_view digits, const firmware::FirmwareId& firmware);

}  // namespace ovl::image
