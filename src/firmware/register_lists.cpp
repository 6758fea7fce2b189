#include "firmware/register_lists.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace ovl::firmware {
namespace {

// A group of lists where each list develops from the one before. Each group has its own bit, so that a row
// can name several groups.
enum Family : unsigned {
  kV1400Base = 1,
  kV1400Model = 2,
  kV1300 = 4,
  kV1324 = 8,
  kV1310 = 16,
  kV1334 = 32,
};

// The first stage of each group. The numbers are positions. Do not change the order, although it is not quite
// alphabetical: a unit stores the position of its register.
constexpr std::string_view kV1400BaseNames[] = {
    // 0
    "GENERIC", "TCPIP", "ADDRESSABLE OVL", "AD4323", "ADS", "ANSI", "BEETLE 50 PRINTERS",
    "CASIO QT2100 REM DISPLAY", "CASIO QT6000", "CASIO TK-T500",
    // 10
    "CASIO TE-2200", "CASIO VIDEO SYSTEM", "CLARITY EPOS", "DELTA SONO 3.1", "DRESSER WAYNE", "EDACOM",
    "ELCA", "EPSON GENERIC", "FUJITSU 9920", "GASBOY",
    // 20
    "GILBARCO", "HTEC", "HUTH T400/T500", "HERTZ", "IBM3151 TERMINAL", "IBM RDS", "JETSORT",
    "KOPPENS GASPUMP", "MEMS-5", "MICRELEC",
    // 30
    "MICROMAX", "MICROPOS", "MICROS", "NCR", "NCR7454WS/7197", "NCR7456", "NCR RCPT PRINTER",
    "NIXDORF BEETLE", "NORAND 1200", "NUCLEUS PRINTER",
    // 40
    "ODOMETER", "OMEGA 2000", "PANASONIC", "PC COM 1,2,3,4", "POLE DISPLAY", "POINT4 DV10", "Q-MATIC",
    "SAMSUNG SRP350", "SCHEIDT U. BACH. DISPLAY", "SCHLUMBERGER",
    // 50
    "SHARP", "SHARP 750 ER-01PU", "SHARP ER-A410 420", "SHARP UP600/700", "SHOPMATE", "SICOM",
    "SIEMENS BEETLE i815ES", "SQUIRREL", "SPEDI CCTV", "STAR EPOS",
    // 60
    "SUNTRONIC", "SWEDA 54XX", "SWINTEC 2250", "TCI", "TEAM POS 2000 - CBE", "TEAM POS 2000 - ISTORE",
    "TEC SLIP PRINTER EMULATE", "TEXAS DIGITAL", "TKMAXX", "TOLEDO",
    // 70
    "UNIPAR", "UNITOUCH DSP800", "UNIWELL", "UNIWELL UN4025", "UP3000/3300", "VERIFONE", "OVL-DRS",
    "WEIGH SCALE"};

constexpr std::string_view kV1400ModelNames[] = {
    // 0
    "GENERIC", "TCPIP", "ALOHA", "ALPHANUMERIC PENNINE V8.13", "ARCIRIS IRIDIUM", "ADDRESSABLE OVL", "AD4323",
    "ADS", "ANSI", "BLEEP",
    // 10
    "CAP SOFTWARE", "CAPTIVA", "CASIO", "CLARITY EPOS", "COMPAQ NISASCAN", "DATASYM 6000", "DECATOR 2000",
    "DELTA SONO 3.1", "DIGINET MINI POS", "DIGIPOS",
    // 20
    "DRESSER WAYNE", "EDACOM", "ELCA", "E-NOVATIONS EMPERIUM", "EPSON GENERIC", "EASY2TOUCH", "EUROPAD",
    "EZTOUCH", "FUJITSU", "GASBOY",
    // 30
    "GELLER", "GLADIUS TOUCH SCREEN", "GILBARCO", "GLORY GFR-220", "HERO 9400", "HERTZ", "HTEC",
    "HUTH T400/T500", "IBM", "ICL",
    // 40
    "I-CNTRL INT JAVELIN VIPER", "ICR", "J2 TOUCH SCREEN", "JCM", "JETSORT", "KOPPENS GASPUMP", "MEMS-5",
    "MERIT", "MICRELEC", "MICROMAX",
    // 50
    "MICROPOS", "MICROS", "NCR", "NIXDORF", "NORAND 1200", "ODOMETER", "OLYMPIA CM2220", "OMEGA 2000",
    "OMRON", "PANASONIC",
    // 60
    "PAR", "PARAGON CLARITY SMARTPAD", "PC COM 1,2,3,4", "PEC", "PIXEL POINT", "POLE DISPLAY", "POINT4 DV10",
    "POS LIGNE", "POSIFLEX", "PROSPER",
    // 70
    "Q-MATIC", "QSYSTEMS QBASE", "QUEST VMD40X", "RADIENT", "REMANCO 260R139507", "RETAIL DATA PORT SHOPMATE",
    "RIVA", "RST EPOS ITOUCH", "RUBY SAPPHIRE", "SAM EPOS",
    // 80
    "SAMSUNG", "SCHEIDT U. BACH. DISPLAY", "SCHLUMBERGER", "SENSORS", "SHARP", "SHOPMATE",
    "SIEMENS BEETLE i815ES", "SICOM", "SQUIRREL", "SPEDI CCTV",
    // 90
    "STAR PRINTER", "STAR EPOS", "STATION MASTER SMART POS", "SUNTRONIC", "SWEDA 54XX", "SWINTEC 2250", "TCI",
    "TEAM POS 2000", "TEC", "TEXAS DIGITAL",
    // 100
    "TKMAXX", "TOKHEIM FUEL POS", "TOLEDO", "TOWA PROSPER ET-7626", "TOWA PROSPER ET-7826", "UNIPAR",
    "UNITOUCH DSP800", "UNIWELL", "VECTRON", "VERIFONE",
    // 110
    "WEIGH SCALE"};

constexpr std::string_view kV1300Names[] = {
    // 0
    "GENERIC", "TCPIP", "ADDRESSABLE OVL", "PC COM 1234", "AD4323", "ADS", "DELTA SONO 3.1", "DRESSER WAYNE",
    "EDACOM", "ELCA",
    // 10
    "FUJITSU 9920", "GASBOY", "GILBARCO", "HERTZ", "IBM3151 TERMINAL", "IBM RDS", "JETSORT", "MEMS-5",
    "MICRELEC", "MICROPOS",
    // 20
    "MICROMAX", "MICROS", "NCR", "NCR7454WS 7197", "NIXDORF BEETLE", "NORAND 1200", "PANASONIC",
    "POLE DISPLAY", "SHARP", "SICOM",
    // 30
    "SUNTRONIC", "SWEDA 54XX", "SWINTEC 2250", "TEXAS DIGITAL", "TCI", "TOLEDO", "UNITOUCH DSP800",
    "UNIWELL UN4025", "UP3000 3300", "VERIFONE",
    // 40
    "OVL-DRS"};

constexpr std::string_view kV1324Names[] = {
    // 0
    "GENERIC", "BEETLE 50 PRINTERS", "CASIO QT2100 REM DISPLAY", "CASIO QT6000", "CASIO TK-T500",
    "CASIO VIDEO SYSTEM", "CLARITY EPOS", "DRESSER WAYNE", "EDACOM", "EPSON GENERIC",
    // 10
    "HTEC", "HUTH T400 T500", "KOPPENS GASPUMP", "NIXDORF BEETLE", "NUCLEUS PRINTER", "ODOMETER",
    "OMEGA 2000", "POINT4 DV10", "POLE DISPLAY", "Q-MATIC",
    // 20
    "SAMSUNG SRP350", "SCHEIDT U. BACH. DISPLAY", "SCHLUMBERGER", "SHARP 750 ER-01PU", "SHARP ER-A410 420",
    "SHARP UP600 700", "SHOPMATE", "SIEMENS BEETLE i815ES", "SQUIRREL", "SPEDI CCTV",
    // 30
    "STAR EPOS", "TEAM POS 2000 - CBE", "TEAM POS 2000 - ISTORE", "TKMAXX", "UNIPAR", "UP3000", "UNIWELL",
    "WEIGH SCALE"};

constexpr std::string_view kV1310Names[] = {
    // 0
    "GENERIC", "TCPIP", "ADDRESSABLE OVL", "ANSI", "PC COM 1234", "CASIO TK-T500", "CASIO TE-2200",
    "DRESSER WAYNE", "EPSON GENERIC", "GLORY GFR-220",
    // 10
    "GILBARCO", "HERTZ", "IBM3151 TERMINAL", "IBM RDS", "MICROS", "NCR", "NCR7454WS 7197", "NCR7456",
    "NE134 COUNTER", "NIXDORF BEETLE",
    // 20
    "PANASONIC", "POLE DISPLAY", "RADIENT", "RUBY SAPPHIRE", "SHARP", "SUNTRONIC", "TEC SLIP PRINTER EMULATE",
    "TOLEDO", "UNITOUCH DSP800", "UP3000 3300",
    // 30
    "VERIFONE", "VISHAY WEIGHBRIDGE", "WEIGH SCALE"};

constexpr std::string_view kV1334Names[] = {
    // 0
    "GENERIC", "TCPIP", "ADDRESSABLE OVL", "ANSI", "BEETLE 50 PRINTERS", "CASIO QT2100 REM DISPLAY",
    "CASIO QT6000", "CASIO TK-T500", "CASIO TE-2200", "CASIO VIDEO SYSTEM",
    // 10
    "CLARITY EPOS", "EDACOM", "EPSON GENERIC", "GLORY GFR-220", "NCR RCPT PRINTER", "NIXDORF BEETLE",
    "POLE DISPLAY", "SAMSUNG SRP350", "SHARP 750 ER-01PU", "SHARP ER-A410 420",
    // 20
    "SHARP UP600 700", "SPEDI CCTV", "TEC SLIP PRINTER EMULATE", "TKMAXX", "UP3000", "UNIWELL",
    "WEIGH SCALE"};

struct FamilyRow {
  Family family;
  std::span<const std::string_view> names;
};

constexpr FamilyRow kFamilies[] = {
    {kV1400Base, kV1400BaseNames}, {kV1400Model, kV1400ModelNames}, {kV1300, kV1300Names},
    {kV1324, kV1324Names},         {kV1310, kV1310Names},           {kV1334, kV1334Names},
};

enum class Change { kInsertAfter, kAppend, kMoveBefore, kSwapWith, kRemove };

// What a stage changes in the list of the stage before. The rows of a stage apply from top to bottom.
struct StageRow {
  Family family;
  int stage;
  std::string_view name;
  Change change;
  std::string_view other;  // the name that the change refers to; empty for kAppend and kRemove
};

constexpr StageRow kStages[] = {
    // V1400R7 is older than the list that it is derived from.
    {kV1400Model, 2, "RADIENT", Change::kRemove, ""},
    {kV1300, 2, "NCR7456", Change::kInsertAfter, "NCR7454WS 7197"},
    {kV1300, 3, "GLORY GFR-220", Change::kInsertAfter, "GASBOY"},
    {kV1300, 4, "RUBY SAPPHIRE", Change::kInsertAfter, "POLE DISPLAY"},
    {kV1300, 5, "RADIENT", Change::kInsertAfter, "POLE DISPLAY"},
    {kV1300, 5, "SENSORS", Change::kInsertAfter, "RUBY SAPPHIRE"},
    {kV1300, 6, "MICROPOS", Change::kSwapWith, "MICROMAX"},
    {kV1324, 2, "CASIO TE-2200", Change::kInsertAfter, "CASIO TK-T500"},
    {kV1324, 2, "NCR RCPT PRINTER", Change::kInsertAfter, "KOPPENS GASPUMP"},
    {kV1324, 3, "TCPIP", Change::kInsertAfter, "GENERIC"},
    {kV1324, 4, "TEC SLIP PRINTER EMULATE", Change::kAppend, ""},
    {kV1324, 5, "ANSI", Change::kInsertAfter, "TCPIP"},
    {kV1324, 5, "GLORY GFR-220", Change::kInsertAfter, "EPSON GENERIC"},
    {kV1324, 5, "TEC SLIP PRINTER EMULATE", Change::kMoveBefore, "TKMAXX"},
};

struct FirmwareRow {
  std::string_view version;
  std::string_view release;
  Family family;
  int stage = 1;
};

constexpr FirmwareRow kFirmware[] = {
    {"V1400", "R1", kV1400Base},   {"V1400", "R2", kV1400Base},     {"V1400", "R4", kV1400Base},
    {"V1400", "R6", kV1400Base},   {"V1400", "R7", kV1400Model, 2}, {"V1400", "R11", kV1400Model},
    {"V1400", "R12", kV1400Model}, {"V1300", "R14", kV1300},        {"V1300", "R15", kV1300, 2},
    {"V1300", "R16", kV1300, 2},   {"V1300", "R17", kV1300, 2},     {"V1300", "R18", kV1300, 2},
    {"V1300", "R19", kV1300, 2},   {"V1300", "R20", kV1300, 3},     {"V1300", "R21", kV1300, 4},
    {"V1300", "R23", kV1300, 4},   {"V1300", "R26", kV1300, 5},     {"V1300", "R27", kV1300, 6},
    {"V1324", "R17", kV1324},      {"V1324", "R18", kV1324, 2},     {"V1324", "R19", kV1324, 3},
    {"V1324", "R20", kV1324, 3},   {"V1324", "R21", kV1324, 4},     {"V1324", "R23", kV1324, 4},
    {"V1324", "R24", kV1324, 4},   {"V1324", "R25", kV1324, 5},     {"V1324", "R26", kV1324, 5},
    {"V1310", "R1", kV1310},       {"V1334", "R1", kV1334},
};

// The entries whose key is not their name. The same name can mean different models: "NCR", "NIXDORF BEETLE"
// and "UNIWELL" differ between the families.
struct KeyRow {
  std::string_view name;
  std::string_view key;
  unsigned families;
};

constexpr KeyRow kRenamed[] = {
    {"FUJITSU 9920", "FUJITSU", kV1300 | kV1400Base},
    {"HUTH T400 T500", "HUTH", kV1324},
    {"HUTH T400/T500", "HUTH", kV1400Base | kV1400Model},
    {"NCR", "NCR MODEL", kV1400Model},
    {"NCR RCPT PRINTER", "NCR", kV1324 | kV1334},
    {"NCR7454WS 7197", "NCR7454WS", kV1300 | kV1310},
    {"NCR7454WS/7197", "NCR7454WS", kV1400Base},
    {"NIXDORF BEETLE", "BEETLE 50 PRINTERS", kV1300 | kV1310},
    {"PC COM 1234", "PC COM", kV1300 | kV1310},
    {"PC COM 1,2,3,4", "PC COM", kV1400Base | kV1400Model},
    {"SHARP UP600 700", "SHARP UP600", kV1324 | kV1334},
    {"SHARP UP600/700", "SHARP UP600", kV1400Base},
    {"TEC SLIP PRINTER EMULATE", "TEC", kV1324 | kV1310 | kV1334 | kV1400Base},
    {"UNIWELL", "UNIWELL MODEL", kV1400Model},
    {"UNIWELL UN4025", "UNIWELL MODEL", kV1300 | kV1400Base},
    {"UP3000", "", kV1324 | kV1334},
    {"UP3000/3300", "UP3000 3300", kV1400Base},
};

// A key with an index other than the position of its entry.
struct IndexRow {
  Family family;
  int stage;
  std::string_view key;
  int index;
};

// "RADIENT" in the list moved "UNIPAR" to position 105. These two firmware still use the former index 104 for
// it, which is also the index of "TOWA PROSPER ET-7826".
constexpr IndexRow kShiftedIndexes[] = {
    {kV1400Model, 1, "UNIPAR", 104},
};

constexpr std::string_view KeyOf(Family family, std::string_view name) {
  for (const KeyRow& row : kRenamed) {
    if (row.name == name && (row.families & family) != 0) return row.key;
  }
  return name;
}

int KeyIndex(const FirmwareRow& firmware, std::string_view key, int position) {
  if (key.empty()) return -1;
  for (const IndexRow& row : kShiftedIndexes) {
    if (row.family == firmware.family && row.stage == firmware.stage && row.key == key) return row.index;
  }
  return position;
}

// Calls `add` for every key of every list, in the order in which the lists name them.
template <class Add>
constexpr void ForEachKey(const Add& add) {
  for (const FamilyRow& row : kFamilies) {
    for (std::string_view name : row.names) add(KeyOf(row.family, name));
  }
  for (const StageRow& row : kStages) add(KeyOf(row.family, row.name));
}

constexpr std::size_t CountKeyedEntries() {
  std::size_t count = 0;
  ForEachKey([&](std::string_view) { ++count; });
  return count;
}

// Each key once, in the order in which the lists first name it.
struct KeyList {
  std::array<std::string_view, CountKeyedEntries()> keys;
  std::size_t count = 0;
};

constexpr KeyList CollectKeys() {
  KeyList list;
  ForEachKey([&](std::string_view key) {
    const auto end = list.keys.begin() + static_cast<std::ptrdiff_t>(list.count);
    if (!key.empty() && std::find(list.keys.begin(), end, key) == end) list.keys[list.count++] = key;
  });
  return list;
}

constexpr auto kKeys = CollectKeys();

void ApplyChange(const StageRow& row, std::vector<std::string_view>& names) {
  const auto place = [&](std::string_view name) { return std::find(names.begin(), names.end(), name); };
  switch (row.change) {
    case Change::kInsertAfter:
      names.insert(std::next(place(row.other)), row.name);
      break;
    case Change::kAppend:
      names.push_back(row.name);
      break;
    case Change::kMoveBefore:
      names.erase(place(row.name));
      names.insert(place(row.other), row.name);
      break;
    case Change::kSwapWith:
      std::iter_swap(place(row.name), place(row.other));
      break;
    case Change::kRemove:
      names.erase(place(row.name));
      break;
  }
}

std::vector<std::string_view> NamesOf(const FirmwareRow& firmware) {
  std::vector<std::string_view> names;
  for (const FamilyRow& row : kFamilies) {
    if (row.family == firmware.family) names.assign(row.names.begin(), row.names.end());
  }
  for (const StageRow& row : kStages) {
    if (row.family == firmware.family && row.stage <= firmware.stage) ApplyChange(row, names);
  }
  return names;
}

}  // namespace

std::span<const std::string_view> RegisterKeys() {
  return std::span(kKeys.keys).first(kKeys.count);
}

std::vector<RegisterEntry> BuildRegisterEntries(std::string_view version, std::string_view release) {
  const auto firmware = std::find_if(std::begin(kFirmware), std::end(kFirmware), [&](const FirmwareRow& row) {
    return row.version == version && row.release == release;
  });
  if (firmware == std::end(kFirmware)) return {};

  std::vector<RegisterEntry> entries;
  for (std::string_view name : NamesOf(*firmware)) {
    const std::string_view key = KeyOf(firmware->family, name);
    const int position = static_cast<int>(entries.size());
    entries.push_back({name, key, KeyIndex(*firmware, key, position)});
  }
  return entries;
}

}  // namespace ovl::firmware
