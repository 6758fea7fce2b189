// What an image or a configuration file contains, by field names.
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

// Every field of the stream of the firmware, one line each, below the headings of the three sections. Lines
// end with CR LF.
std::string LabelledDump(const ConfigImage& image, const firmware::FirmwareId& firmware);

// The image in a stream without line ends; nothing if the stream does not fit the firmware.
std::optional<ConfigImage> DecodeStream(std::string_view stream, const firmware::FirmwareId& firmware);

struct FieldDifference {
  const FieldRow* field = nullptr;
  std::string name;      // with its entry
  std::size_t byte = 0;  // its first byte in the section, counted from 0
  std::string before, after;
  int entry = 1;
};
std::vector<FieldDifference> Differences(const ConfigImage& before, const ConfigImage& after,
                                         const firmware::FirmwareId& firmware);

// Whether the markers and the length of a stream are those of the firmware.
bool FitsFirmware(std::string_view stream, const firmware::FirmwareId& firmware);

// A firmware of the Version menu that fits the markers and the length of a stream, and the register that the
// stream selects under this firmware.
struct FirmwareFit {
  firmware::FirmwareId firmware;
  int register_code = 0;
  std::string register_name;  // empty if the list of the firmware has no such code
};
std::vector<FirmwareFit> FittingFirmware(std::string_view stream);

// What the program does when it opens the stream under a firmware.
enum class OpenOutcome {
  kLoads,
  kShifts,  // loads it, but reads fields at the wrong place: the stream has the length of another layout
  kRefused,
  kEndsProgram,
};
OpenOutcome OutcomeOfOpening(std::string_view stream, const firmware::FirmwareId& firmware);

}  // namespace ovl::image
