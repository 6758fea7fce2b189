#include "image/field_map.h"

#include <algorithm>
#include <array>

namespace ovl::image {
namespace {

using enum FieldId;
using enum Section;

constexpr std::size_t kSyscfgDigitsV13 = 96;
constexpr std::size_t kSysfixedDigitsV13 = 192;

// In stream order.
constexpr auto kFields = std::to_array<FieldRow>({
    {EXECENTRY, "EXECENTRY", kSyscfg, kEvery, true},
    {COMMCFG_BAK, "COMMCFG_BAK", kSyscfg, kEvery, true},
    {IOCFG_BAK, "IOCFG_BAK", kSyscfg, kEvery, true},
    {RX_BAUDRATE, "RX_BAUDRATE", kSyscfg, kEvery, true},
    {TX_BAUDRATE, "TX_BAUDRATE", kSyscfg, kEvery, true},
    {MPDCFG_BAK, "MPDCFG_BAK", kSyscfg, kEvery, false},
    {MPDCOMMCFG_BAK, "MPDCOMMCFG_BAK", kSyscfg, kEvery, false},
    {MPDRXBAUDRATE, "MPDRXBAUDRATE", kSyscfg, kEvery, false},
    {MPDTXBAUDRATE, "MPDTXBAUDRATE", kSyscfg, kEvery, false},
    {XATMNOTX, "XATMNOTX", kSyscfg, kEvery, false},
    {XATMNORX, "XATMNORX", kSyscfg, kEvery, false},
    {UNITADDR, "UNITADDR", kSyscfg, kEvery, true},
    {SITE_NO_BAK, "SITE_NO_BAK", kSyscfg, kEvery, false},
    {DV_ADDRIND_BAK, "DV_ADDRIND_BAK", kSyscfg, kEvery, true},
    {TCIADDBAK_1, "TCIADDBAK_1", kSyscfg, kEvery, true},
    {TCIADDBAK_2, "TCIADDBAK_2", kSyscfg, kEvery, true},
    {TCIADDBAK_3, "TCIADDBAK_3", kSyscfg, kEvery, true},
    {GTITLE_NF_BAK, "GTITLE_NF_BAK", kSyscfg, kEvery, true},
    {GPS_CONFIG_BAK, "GPS_CONFIG_BAK", kSyscfg, kEvery, true},
    {DEVICE_INDEX_BAK, "DEVICE_INDEX_BAK", kSyscfg, kEvery, true},
    {IGSCFG_BAK,
     "IGSCFG_BAK",
     kSyscfg,
     kEvery,
     false,
     {},
     Capability::kAtmInterface,
     " ........ATM INTERFACE"},
    {REGDV_TYPE_BAK, "REGDV_TYPE_BAK", kSyscfg, kEvery, true},
    {REG_GNA_BAK, "REG_GNA_BAK", kSyscfg, kEvery, true},
    {REG_LNA_BAK, "REG_LNA_BAK", kSyscfg, kEvery, true},
    {REG_IDNA_BAK, "REG_IDNA_BAK", kSyscfg, kEvery, true},
    {PCDV_TYPE_BAK, "PCDV_TYPE_BAK", kSyscfg, kEvery, true},
    {PC_GNA_BAK, "PC_GNA_BAK", kSyscfg, kEvery, true},
    {PC_LNA_BAK, "PC_LNA_BAK", kSyscfg, kEvery, true},
    {PC_IDNA_BAK, "PC_IDNA_BAK", kSyscfg, kEvery, true},
    {MICROS_STATUS, "MICROS_STATUS", kSyscfg, kEvery, true},
    {HIST_REG, "HIST_REG", kSyscfg, kEvery, false},
    {HIST_DEST_ID, "HIST_DEST_ID", kSyscfg, kEvery, false},
    {HIST_SRC_ID, "HIST_SRC_ID", kSyscfg, kEvery, false},
    {REGTYPE, "REGTYPE", kSysfixed, kEvery, true},
    {REGTYPE_MINOR, "REGTYPE_MINOR", kSysfixed, kEvery, true},
    {REGTYPE_EXT1, "REGTYPE_EXT1", kSysfixed, kExtended, true},
    {REGTYPE_EXT2, "REGTYPE_EXT2", kSysfixed, kExtended, true},
    {HPADDR_BAK, "HPADDR_BAK", kSysfixed, kEvery, false},
    {VPADDR_BAK, "VPADDR_BAK", kSysfixed, kEvery, false},
    {HSADDR_BAK, "HSADDR_BAK", kSysfixed, kEvery, false},
    {GOADDR_BAK, "GOADDR_BAK", kSysfixed, kEvery, false},
    {DISP_POS_BAK, "DISP_POS_BAK", kSysfixed, kEvery, false},
    {DSPLINES_BAK, "DSPLINES_BAK", kSysfixed, kEvery, false},
    {DSPCFG_BAK, "DSPCFG_BAK", kSysfixed, kEvery, false},
    {HARDWARE_CFG_BAK, "HARDWARE_CFG_BAK", kSysfixed, kEvery, false},
    {ALMCFG_BAK, "ALMCFG_BAK", kSysfixed, kEvery, false},
    {ALMNORMAL_BAK, "ALMNORMAL_BAK", kSysfixed, kEvery, false},
    {BLNKVAL, "BLNKVAL", kSysfixed, kEvery, false},
    {BLNKIND, "BLNKIND", kSysfixed, kEvery, false},
    {FLAGDWLVAL, "FLAGDWLVAL", kSysfixed, kEvery, false},
    {FLAGDWLIND, "FLAGDWLIND", kSysfixed, kEvery, false},
    {ALMSTRUCT_BAK, "ALMSTRUCT_BAK", kSysfixed, kEvery, false, {8, 6}},
    {IPADDRESS, "IPADDRESS", kSysfixed, kEvery, true, {}, Capability::kTcpIp, " ........ATCPIP MODE"},
    {DECIMAL_POINT_BAK, "DECIMAL_POINT_BAK", kSysfixed, kEvery, false},
    {TIME_FORMAT_BAK, "TIME_FORMAT_BAK", kSysfixed, kEvery, false, {}, Capability::kTimeFields},
    {DATE_FORMAT_BAK, "DATE_FORMAT_BAK", kSysfixed, kEvery, false, {}, Capability::kTimeFields},
    {TD_LOCKING_BAK, "TD_LOCKING_BAK", kSysfixed, kEvery, false, {}, Capability::kTimeFields},
    {TIMESTAMP_ENA, "TIMESTAMP_ENA", kSysfixed, kEvery, false, {}, Capability::kTimeFields},
    {DAYLIGHT_BAK, "DAYLIGHT_BAK", kSysfixed, kEvery, false, {}, Capability::kTimeFields},
    {DSPROW, "DSPROW", kSysfixed, kEvery, false, {}, Capability::kAnsiTerm, " ........ANSI TERM"},
    {DSPCOL, "DSPCOL", kSysfixed, kEvery, false, {}, Capability::kAnsiTerm, " ........AANSI TERM"},
    {DEMO_ENABLE, "DEMO_ENABLE", kSysfixed, kEvery, false},
    {SPCOMPRES_BAK, "SPCOMPRES_BAK", kSysfixed, kEvery, false},
    {DSPCHARS_BAK, "DSPCHARS_BAK", kSysfixed, kV1400, false},
    {NET_ADDRESS, "NET_ADDRESS", kSysfixed, kV1400, false},
    {NET_TYPE, "NET_TYPE", kSysfixed, kV1400, false},
    {NET_PROTOCOL, "NET_PROTOCOL", kSysfixed, kV1400, false},
    {TX_PROTOCOL, "TX_PROTOCOL", kSysfixed, kV1400, false},
    {DUPLINE_BAK, "DUPLINE_BAK", kSysfixed, kV1400, false},
    {SCROLLMATCH_BAK, "SCROLLMATCH_BAK", kSysfixed, kV1400, false},
    {LANGUAGE_BAK, "LANGUAGE_BAK", kSysfixed, kV1400, false},
    {NET_BAUDRATE, "NET_BAUDRATE", kSysfixed, kV1400, false},
    {SW_HANDSHAKE, "SW_HANDSHAKE", kSysfixed, kV1400, false},
    {ECRDIGIT_7, "ECRDIGIT_7", kSysfixed, kLate, false},
    {ECRDIGIT_6, "ECRDIGIT_6", kSysfixed, kLate, false},
    {ECRDIGIT_5, "ECRDIGIT_5", kSysfixed, kLate, false},
    {ECRDIGIT_4, "ECRDIGIT_4", kSysfixed, kLate, false},
    {ECRDIGIT_3, "ECRDIGIT_3", kSysfixed, kLate, false},
    {ECRDIGIT_2, "ECRDIGIT_2", kSysfixed, kLate, false},
    {ECRDIGIT_1, "ECRDIGIT_1", kSysfixed, kLate, false},
    {BLNKRTS_BAK,
     "BLNKRTS_BAK",
     kSysfixed,
     kExtended,
     false,
     {},
     Capability::kNone,
     {},
     Since{kLate, 11, true}},
    {ONSCRNTITL, "ONSCRNTITL", kSysstr, kEvery, false, {82}},
    {EXCPSTRS, "EXCPSTRS", kSysstr, kEvery, false, {106, 98}},
    {TRIGGER_TEXT, "TRIGGER_TEXT", kSysstr, kEvery, false, {84}},
    {TRIGGER_DELAY, "TRIGGER_DELAY", kSysstr, kV1400, false},
    {ALM_MODE,
     "ALM_MODE",
     kSysstr,
     kV1400 | Bit(firmware::Layout::kNewV13),
     false,
     {},
     Capability::kNone,
     {},
     Since{Bit(firmware::Layout::kEarlyV1400), 6, false}},
});
static_assert(kFields.size() == kFieldCount);

bool IsExtension(FieldId id) {
  return id == FieldId::REGTYPE_EXT1 || id == FieldId::REGTYPE_EXT2;
}

// What a field that the stream does not hold becomes. The register options of the longer layouts read as zero
// elsewhere; the flag that only some releases of its layout store is empty until a panel writes it.
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

firmware::Layout LayoutOf(const firmware::FirmwareId& firmware) {
  const int release = firmware.Number();
  if (firmware.IsV1400()) {
    const bool early = firmware.release == "R1" || firmware.release == "R2" || firmware.release == "R4" ||
                       firmware.release == "R6";
    return early ? firmware::Layout::kEarlyV1400 : firmware::Layout::kLateV1400;
  }
  const bool old =
      (firmware.version == "V1300" && release < 26) || (firmware.version == "V1324" && release < 25);
  return old ? firmware::Layout::kOldV13 : firmware::Layout::kNewV13;
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

firmware::Capabilities CapabilitiesOf(const firmware::FirmwareId& firmware) {
  firmware::Capabilities capabilities;
  if (firmware.version != "V1324") return capabilities;
  const std::string_view release = firmware.release;
  const auto tail = release.substr(std::max<std::size_t>(release.size(), 2) - 2);
  capabilities.HasTcpIp = codecs::LeadingNumber(tail) >= 19;
  return capabilities;
}

bool InStream(const FieldRow& row, firmware::Layout layout, int release,
              const firmware::Capabilities& capabilities, Direction direction) {
  if ((row.layouts & Bit(layout)) == 0 || !HasCapability(capabilities, row.capability)) return false;
  if ((row.since.layouts & Bit(layout)) == 0 || release >= row.since.release) return true;
  return row.since.readers_only && direction == Direction::kWrite;
}

void ReadSections(const Sections& sections, const firmware::FirmwareId& firmware,
                  const firmware::Capabilities& capabilities, Scope scope, ConfigImage& image) {
  const auto layout = LayoutOf(firmware);
  std::array<std::string_view, 3> rest = {sections.SYSCFG, sections.SYSFIXED, sections.SYSSTR};
  for (const auto& row : kFields) {
    if (InStream(row, layout, firmware.Number(), capabilities, Direction::kRead)) {
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
    if (!InStream(row, layout, firmware.Number(), capabilities, Direction::kWrite)) continue;
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
