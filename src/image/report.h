// What an image or a configuration file holds, told by field names.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "firmware/firmware_id.h"
#include "image/config_image.h"
#include "image/field_map.h"

namespace ovl::image {

// "EXCPSTRS(3)", or "RX_BAUDRATE" for a field with one entry.
std::string EntryName(std::string_view field, int entries, int entry);

// Every field of the firmware's stream, a line each, under the headings of the three sections. Lines end with
// CR LF.
std::string LabelledDump(const ConfigImage& image, const firmware::FirmwareId& firmware);

// The image that a stream holds, its lines joined; nothing if it is not one of the firmware's.
std::optional<ConfigImage> DecodeStream(std::string_view stream, const firmware::FirmwareId& firmware);

struct FieldDifference {
  const FieldRow* field = nullptr;
  std::string name;      // with its entry
  std::size_t byte = 0;  // where it begins in its section, from 0
  std::string before, after;
};
std::vector<FieldDifference> Differences(const ConfigImage& before, const ConfigImage& after,
                                         const firmware::FirmwareId& firmware);

// A firmware of the catalogue whose markers and length a stream has, and the register it would be under it.
struct FirmwareFit {
  firmware::FirmwareId firmware;
  int register_code = 0;
  std::string register_name;  // empty if the firmware's list has no such code
};
std::vector<FirmwareFit> FittingFirmware(std::string_view stream);

// What opening a stream does under a firmware.
enum class OpenOutcome { kLoads, kRefused, kEndsProgram };
OpenOutcome OutcomeOfOpening(std::string_view stream, const firmware::FirmwareId& firmware);

}  // namespace ovl::image
