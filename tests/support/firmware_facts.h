// What the tests know about each firmware, written down apart from the tables of the program. A new firmware
// is one row in firmware_facts.cpp.
#pragma once

#include <cstddef>
#include <ostream>
#include <string_view>
#include <vector>

#include "firmware/firmware_id.h"

namespace ovl::firmware {

// How GoogleTest names a firmware.
inline void PrintTo(const FirmwareId& firmware, std::ostream* output) {
  *output << firmware.Joined();
}

}  // namespace ovl::firmware

namespace ovl::testing {

// What a firmware has beside the first form of V1400, or what it lacks.
enum class Feature {
  kVista,               // the language Spanish and the protocol "NORBAIN VISTA"
  kSpanishFirst,        // English and Spanish instead of English and German
  kAlarmType,           // DWELL or TIMED for each alarm
  kRtsBlankTime,        // the blank time "RTS"
  kMasterReset,         // its button
  kNewIbmModels,        // the last two models of IBM
  kLastSharpModel,      // the last model of SHARP in the lists by models
  kTenthSharpModel,     // the tenth option of SHARP in the other lists
  kLastEpsonOption,     // the last option of EPSON GENERIC
  kReducedForm,         // the main form without the parts that only V1400 has
  kOnePairOfIds,        // only one pair of recorder identifiers
  kNoDemo,              // no demonstration and no compression of spaces
  kOldDemo,             // the lists of the demonstration count from 1
  kOldInterfaceCodes,   // the codes of RS-232 and RS-422 before they changed
  kUniparSharesNumber,  // UNIPAR is recognised by the number of the register before it
};

// How the stream of a firmware begins and ends, and how many digits its sections have.
struct StreamFacts {
  std::string_view first_record, last_record;
  std::size_t syscfg, sysfixed, digits;

  bool operator==(const StreamFacts&) const = default;
};

struct FirmwareFacts {
  firmware::FirmwareId id;
  StreamFacts stream;
  std::vector<Feature> features;

  bool Has(Feature feature) const;
};

// In the order of the Version menu.
const std::vector<FirmwareFacts>& AllFirmwareFacts();

// A firmware that does not exist has the facts of the last one before it in its family, or, in an unknown
// family, those of the last firmware of all.
const FirmwareFacts& FactsOf(const firmware::FirmwareId& firmware);

std::vector<firmware::FirmwareId> EveryFirmware();

inline const firmware::FirmwareId kLatest{"V1400", "R12"};

}  // namespace ovl::testing
