// A configuration as a text of address-tagged records: how it is taken apart into the three sections and
// composed again. The text is what goes over the line, into upload.bin, into saved files and default images.
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

// Where a reader expects the firmware's image, and where a download puts it. They differ only for releases
// that no unit has.
Region ReadRegion(const firmware::FirmwareId& firmware);
Region WriteRegion(const firmware::FirmwareId& firmware);

// "$" and four digits, the head of a record.
std::string AddressMarker(int address);

// The digits of the image as records: 64 to each, the rest to the last one, CR LF between them, "#" at the
// end. Every address is there, also when the digits have run out.
std::string BlockRecords(std::string_view digits, const Region& region);

enum class ParseResult {
  kOk,
  kOtherFirmware,  // the first marker is nowhere in the text
  kBroken,         // the last record has no last marker, or no "#"
};

// The digits of all records, joined. What stands ahead of the first marker or behind the "#" is ignored, and
// so are the addresses in between.
ParseResult ParseRecords(std::string_view stream, const Region& region, std::string& digits);

// Cuts the digits at the firmware's section lengths; the last section takes what there is.
Sections CutSections(std::string_view digits, const firmware::FirmwareId& firmware);

}  // namespace ovl::image
