#include "image/field_map.h"

#include <algorithm>
#include <array>

#include "firmware/traits.h"

namespace ovl::image {
namespace {

using enum Capability;
using enum FieldId;
using enum Section;

constexpr std::size_t kSyscfgDigitsV13 = 96;
constexpr std::size_t kSysfixedDigitsV13 = 192;

// What a field holds when the firmware lacks the capability.
constexpr std::string_view kNoAtm = " ........ATM INTERFACE";
constexpr std::string_view kNoTcpIp = " ........ATCPIP MODE";
constexpr std::string_view kNoRows = " ........ANSI TERM";
constexpr std::string_view kNoColumns = " ........AANSI TERM";

constexpr Since kAlarmModeSince = {Bit(firmware::Layout::kEarlyV1400), 6, false};
constexpr Since kRtsSince = {kLate, 11, true};
constexpr LayoutSet kAllButOldV13 = kV1400 | Bit(firmware::Layout::kNewV13);

// In stream order. Fields that no control edits are read, kept and written back unchanged; of those the
// comment says no more than their name does.
constexpr auto kFields = std::to_array<FieldRow>({
    {EXECENTRY, "EXECENTRY", kSyscfg, kEvery, true},                // meaning not known
    {COMMCFG_BAK, "COMMCFG_BAK", kSyscfg, kEvery, true},            // flags of the register line
    {IOCFG_BAK, "IOCFG_BAK", kSyscfg, kEvery, true},                // interface type
    {RX_BAUDRATE, "RX_BAUDRATE", kSyscfg, kEvery, true},            // receive baud rate, place in the list
    {TX_BAUDRATE, "TX_BAUDRATE", kSyscfg, kEvery, true},            // transmit baud rate, place in the list
    {MPDCFG_BAK, "MPDCFG_BAK", kSyscfg, kEvery, false},             // MPD settings
    {MPDCOMMCFG_BAK, "MPDCOMMCFG_BAK", kSyscfg, kEvery, false},     // MPD line settings
    {MPDRXBAUDRATE, "MPDRXBAUDRATE", kSyscfg, kEvery, false},       // MPD receive baud rate
    {MPDTXBAUDRATE, "MPDTXBAUDRATE", kSyscfg, kEvery, false},       // MPD transmit baud rate
    {XATMNOTX, "XATMNOTX", kSyscfg, kEvery, false},                 // meaning not known
    {XATMNORX, "XATMNORX", kSyscfg, kEvery, false},                 // meaning not known
    {UNITADDR, "UNITADDR", kSyscfg, kEvery, true},                  // address, an option of some registers
    {SITE_NO_BAK, "SITE_NO_BAK", kSyscfg, kEvery, false},           // site number
    {DV_ADDRIND_BAK, "DV_ADDRIND_BAK", kSyscfg, kEvery, true},      // console or device to follow
    {TCIADDBAK_1, "TCIADDBAK_1", kSyscfg, kEvery, true},            // register ID, first digit
    {TCIADDBAK_2, "TCIADDBAK_2", kSyscfg, kEvery, true},            // register ID, second digit
    {TCIADDBAK_3, "TCIADDBAK_3", kSyscfg, kEvery, true},            // register ID, third digit
    {GTITLE_NF_BAK, "GTITLE_NF_BAK", kSyscfg, kEvery, true},        // title display, or the GASBOY device
    {GPS_CONFIG_BAK, "GPS_CONFIG_BAK", kSyscfg, kEvery, true},      // GPS settings
    {DEVICE_INDEX_BAK, "DEVICE_INDEX_BAK", kSyscfg, kEvery, true},  // MICROS: device
    {IGSCFG_BAK, "IGSCFG_BAK", kSyscfg, kEvery, false, {}, kAtmInterface, kNoAtm},  // meaning not known
    {REGDV_TYPE_BAK, "REGDV_TYPE_BAK", kSyscfg, kEvery, true},                      // MICROS: source type
    {REG_GNA_BAK, "REG_GNA_BAK", kSyscfg, kEvery, true},                            // MICROS: source ISN GNA
    {REG_LNA_BAK, "REG_LNA_BAK", kSyscfg, kEvery, true},                            // MICROS: source ISN LNA
    {REG_IDNA_BAK, "REG_IDNA_BAK", kSyscfg, kEvery, true},                          // MICROS: source IDN ID
    {PCDV_TYPE_BAK, "PCDV_TYPE_BAK", kSyscfg, kEvery, true},     // MICROS: destination type
    {PC_GNA_BAK, "PC_GNA_BAK", kSyscfg, kEvery, true},           // MICROS: destination ISN GNA
    {PC_LNA_BAK, "PC_LNA_BAK", kSyscfg, kEvery, true},           // MICROS: destination ISN LNA
    {PC_IDNA_BAK, "PC_IDNA_BAK", kSyscfg, kEvery, true},         // MICROS: destination IDN ID
    {MICROS_STATUS, "MICROS_STATUS", kSyscfg, kEvery, true},     // MICROS: mode
    {HIST_REG, "HIST_REG", kSyscfg, kEvery, false},              // video recorder
    {HIST_DEST_ID, "HIST_DEST_ID", kSyscfg, kEvery, false},      // address of the recorder
    {HIST_SRC_ID, "HIST_SRC_ID", kSyscfg, kEvery, false},        // own address towards the recorder
    {REGTYPE, "REGTYPE", kSysfixed, kEvery, true},               // register, place in the list
    {REGTYPE_MINOR, "REGTYPE_MINOR", kSysfixed, kEvery, true},   // model or option of the register
    {REGTYPE_EXT1, "REGTYPE_EXT1", kSysfixed, kExtended, true},  // kind of connection
    {REGTYPE_EXT2, "REGTYPE_EXT2", kSysfixed, kExtended, true},  // second option of the register
    {HPADDR_BAK, "HPADDR_BAK", kSysfixed, kEvery, false},        // meaning not known
    {VPADDR_BAK, "VPADDR_BAK", kSysfixed, kEvery, false},        // meaning not known
    {HSADDR_BAK, "HSADDR_BAK", kSysfixed, kEvery, false},        // meaning not known
    {GOADDR_BAK, "GOADDR_BAK", kSysfixed, kEvery, false},        // meaning not known
    {DISP_POS_BAK, "DISP_POS_BAK", kSysfixed, kEvery, false},    // display position
    {DSPLINES_BAK, "DSPLINES_BAK", kSysfixed, kEvery, false},    // lines of the display
    {DSPCFG_BAK, "DSPCFG_BAK", kSysfixed, kEvery, false},        // flags of the display, clock and title
    {HARDWARE_CFG_BAK, "HARDWARE_CFG_BAK", kSysfixed, kEvery, false},  // hardware settings
    {ALMCFG_BAK, "ALMCFG_BAK", kSysfixed, kEvery, false},              // flag type of all alarms
    {ALMNORMAL_BAK, "ALMNORMAL_BAK", kSysfixed, kEvery, false},        // normal states, a bit for each alarm
    {BLNKVAL, "BLNKVAL", kSysfixed, kEvery, false},                    // blank time, 256 minus the minutes
    {BLNKIND, "BLNKIND", kSysfixed, kEvery, false},                    // blank time, place in the list
    {FLAGDWLVAL, "FLAGDWLVAL", kSysfixed, kEvery, false},              // flag duration
    {FLAGDWLIND, "FLAGDWLIND", kSysfixed, kEvery, false},  // flag duration, twice its place in the list
    {ALMSTRUCT_BAK, "ALMSTRUCT_BAK", kSysfixed, kEvery, false, {8, 6}},       // alarm record
    {IPADDRESS, "IPADDRESS", kSysfixed, kEvery, true, {}, kTcpIp, kNoTcpIp},  // IP address
    {DECIMAL_POINT_BAK, "DECIMAL_POINT_BAK", kSysfixed, kEvery, false},  // separator in amounts: dot or comma
    {TIME_FORMAT_BAK, "TIME_FORMAT_BAK", kSysfixed, kEvery, false, {}, kTimeFields},  // time format
    {DATE_FORMAT_BAK, "DATE_FORMAT_BAK", kSysfixed, kEvery, false, {}, kTimeFields},  // date format
    {TD_LOCKING_BAK, "TD_LOCKING_BAK", kSysfixed, kEvery, false, {}, kTimeFields},    // lock of the clock
    {TIMESTAMP_ENA, "TIMESTAMP_ENA", kSysfixed, kEvery, false, {}, kTimeFields},      // time stamp in reports
    {DAYLIGHT_BAK, "DAYLIGHT_BAK", kSysfixed, kEvery, false, {}, kTimeFields},        // daylight saving rule
    {DSPROW, "DSPROW", kSysfixed, kEvery, false, {}, kAnsiTerm, kNoRows},             // meaning not known
    {DSPCOL, "DSPCOL", kSysfixed, kEvery, false, {}, kAnsiTerm, kNoColumns},          // meaning not known
    {DEMO_ENABLE, "DEMO_ENABLE", kSysfixed, kEvery, false},                           // demonstration
    {SPCOMPRES_BAK, "SPCOMPRES_BAK", kSysfixed, kEvery, false},                       // space compression
    {DSPCHARS_BAK, "DSPCHARS_BAK", kSysfixed, kV1400, false},                         // characters in a line
    {NET_ADDRESS, "NET_ADDRESS", kSysfixed, kV1400, false},                           // network address
    {NET_TYPE, "NET_TYPE", kSysfixed, kV1400, false},                                 // part in the network
    {NET_PROTOCOL, "NET_PROTOCOL", kSysfixed, kV1400, false},                         // network protocol
    {TX_PROTOCOL, "TX_PROTOCOL", kSysfixed, kV1400, false},                           // transmit protocol
    {DUPLINE_BAK, "DUPLINE_BAK", kSysfixed, kV1400, false},          // report of duplicate lines
    {SCROLLMATCH_BAK, "SCROLLMATCH_BAK", kSysfixed, kV1400, false},  // timeout of scroll matching
    {LANGUAGE_BAK, "LANGUAGE_BAK", kSysfixed, kV1400, false},        // language
    {NET_BAUDRATE, "NET_BAUDRATE", kSysfixed, kV1400, false},        // network baud rate
    {SW_HANDSHAKE, "SW_HANDSHAKE", kSysfixed, kV1400, false},        // software handshake
    {ECRDIGIT_7, "ECRDIGIT_7", kSysfixed, kLate, false},             // MICROS 3700: register number, digit 7
    {ECRDIGIT_6, "ECRDIGIT_6", kSysfixed, kLate, false},             // the same, digit 6
    {ECRDIGIT_5, "ECRDIGIT_5", kSysfixed, kLate, false},             // the same, digit 5
    {ECRDIGIT_4, "ECRDIGIT_4", kSysfixed, kLate, false},             // the same, digit 4
    {ECRDIGIT_3, "ECRDIGIT_3", kSysfixed, kLate, false},             // the same, digit 3
    {ECRDIGIT_2, "ECRDIGIT_2", kSysfixed, kLate, false},             // the same, digit 2
    {ECRDIGIT_1, "ECRDIGIT_1", kSysfixed, kLate, false},             // the same, digit 1
    {BLNKRTS_BAK, "BLNKRTS_BAK", kSysfixed, kExtended, false, {}, kNone, {}, kRtsSince},  // blank by RTS
    {ONSCRNTITL, "ONSCRNTITL", kSysstr, kEvery, false, {82}},      // title: 40 characters, 00
    {EXCPSTRS, "EXCPSTRS", kSysstr, kEvery, false, {106, 98}},     // exception slot
    {TRIGGER_TEXT, "TRIGGER_TEXT", kSysstr, kEvery, false, {84}},  // triggered text of an alarm
    {TRIGGER_DELAY, "TRIGGER_DELAY", kSysstr, kV1400, false},      // delay of the triggered text
    {ALM_MODE, "ALM_MODE", kSysstr, kAllButOldV13, false, {}, kNone, {}, kAlarmModeSince},  // alarm type
});
static_assert(kFields.size() == kFieldCount);

// The place of each field in the table.
constexpr auto kPlaces = [] {
  std::array<std::size_t, kFieldCount> places{};
  for (std::size_t place = 0; place < kFieldCount; ++place)
    places[static_cast<std::size_t>(kFields[place].id)] = place;
  return places;
}();

bool IsExtension(FieldId id) {
  return id == FieldId::REGTYPE_EXT1 || id == FieldId::REGTYPE_EXT2;
}

// Sets a field that the stream does not hold. The register options of the longer layouts become zero in the
// other layouts. A flag that only some releases of its layout store becomes empty, until a panel writes it.
void SettleAbsent(const FieldRow& row, firmware::Layout layout, const firmware::Capabilities& capabilities,
                  Scope scope, ConfigImage& image) {
  const bool in_layout = (row.layouts & Bit(layout)) != 0;
  for (int entry = 1; entry <= EntryCount(row.id); ++entry) {
    if (!HasCapability(capabilities, row.capability)) {
      if (!row.sentinel.empty()) image.at(row.id, entry) = row.sentinel;
    } else if (!in_layout && IsExtension(row.id)) {
      image.at(row.id, entry) = "00";
    } else if (in_layout && row.since.readers_only && scope == Scope::kWhole) {
      image.at(row.id, entry).clear();
    }
  }
}

void ReadField(std::string_view& section, const FieldRow& row, firmware::Layout layout, Scope scope,
               ConfigImage& image) {
  const auto digits = static_cast<std::int16_t>(DigitsOf(row, layout));
  for (int entry = 1; entry <= EntryCount(row.id); ++entry) {
    if (scope == Scope::kWhole || row.is_default) {
      image.at(row.id, entry) = codecs::PeelChars(section, digits);
      continue;
    }
    for (int pair = 0; pair < digits / 2; ++pair) codecs::DropPair(section);
  }
}

template <class Texts>
auto& SectionOf(Texts& sections, Section section) {
  switch (section) {
    case Section::kSyscfg:
      return sections.SYSCFG;
    case Section::kSysfixed:
      return sections.SYSFIXED;
    default:
      return sections.SYSSTR;
  }
}

void PadTo(std::string& section, std::size_t digits) {
  while (section.size() < digits) section += "00";
}

}  // namespace

std::span<const FieldRow> FieldTable() {
  return kFields;
}

const FieldRow* FindField(std::string_view name) {
  const auto found =
      std::find_if(kFields.begin(), kFields.end(), [&](const FieldRow& row) { return row.name == name; });
  return found == kFields.end() ? nullptr : &*found;
}

const FieldRow& RowOf(FieldId field) {
  return kFields.at(kPlaces.at(static_cast<std::size_t>(field)));
}

int DigitsOf(const FieldRow& row, firmware::Layout layout) {
  return (kV1400 & Bit(layout)) != 0 ? row.width.digits : row.width.digits_v13;
}

bool HasCapability(const firmware::Capabilities& capabilities, Capability capability) {
  switch (capability) {
    case Capability::kAtmInterface:
      return capabilities.HasAtmInterface;
    case Capability::kTcpIp:
      return capabilities.HasTcpIp;
    case Capability::kTimeFields:
      return capabilities.HasTimeFields;
    case Capability::kAnsiTerm:
      return capabilities.HasAnsiTerm;
    default:
      return true;
  }
}

bool InStream(const FieldRow& row, firmware::Layout layout, const firmware::FirmwareId& firmware,
              const firmware::Capabilities& capabilities, Direction direction) {
  if ((row.layouts & Bit(layout)) == 0 || !HasCapability(capabilities, row.capability)) return false;
  if ((row.since.layouts & Bit(layout)) == 0 || firmware::IsFromRelease(firmware, row.since.release))
    return true;
  return row.since.readers_only && direction == Direction::kWrite;
}

void ReadSections(const Sections& sections, const firmware::FirmwareId& firmware,
                  const firmware::Capabilities& capabilities, Scope scope, ConfigImage& image) {
  const auto layout = LayoutOf(firmware);
  std::array<std::string_view, 3> rest = {sections.SYSCFG, sections.SYSFIXED, sections.SYSSTR};
  for (const auto& row : kFields) {
    if (InStream(row, layout, firmware, capabilities, Direction::kRead)) {
      ReadField(rest[static_cast<std::size_t>(row.section)], row, layout, scope, image);
    } else {
      SettleAbsent(row, layout, capabilities, scope, image);
    }
  }
}

void MarkMissingFields(ConfigImage& image, const firmware::Capabilities& capabilities) {
  for (const auto& row : kFields) {
    if (HasCapability(capabilities, row.capability) || row.sentinel.empty()) continue;
    for (int entry = 1; entry <= EntryCount(row.id); ++entry) image.at(row.id, entry) = row.sentinel;
  }
}

Sections WriteSections(const ConfigImage& image, firmware::Layout layout,
                       const firmware::FirmwareId& firmware, const firmware::Capabilities& capabilities) {
  Sections sections;
  sections.SYSSTR.reserve(4096);
  for (const auto& row : kFields) {
    if (!InStream(row, layout, firmware, capabilities, Direction::kWrite)) continue;
    for (int entry = 1; entry <= EntryCount(row.id); ++entry) {
      SectionOf(sections, row.section) += image.at(row.id, entry);
    }
  }
  if ((kV13 & Bit(layout)) != 0) {
    PadTo(sections.SYSCFG, kSyscfgDigitsV13);
    PadTo(sections.SYSFIXED, kSysfixedDigitsV13);
  }
  return sections;
}

}  // namespace ovl::image
