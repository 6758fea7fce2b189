// The configuration of a unit as a set of named fields. An entry of a field is a byte as two hexadecimal
// digits, a longer record of such digits, or the sentinel text of a field that the firmware lacks. A field
// that was never read is empty.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace ovl::image {

enum class FieldId {
  // system configuration
  EXECENTRY,
  COMMCFG_BAK,
  IOCFG_BAK,
  RX_BAUDRATE,
  TX_BAUDRATE,
  MPDCFG_BAK,
  MPDCOMMCFG_BAK,
  MPDRXBAUDRATE,
  MPDTXBAUDRATE,
  XATMNOTX,
  XATMNORX,
  UNITADDR,
  SITE_NO_BAK,
  DV_ADDRIND_BAK,
  TCIADDBAK_1,
  TCIADDBAK_2,
  TCIADDBAK_3,
  GTITLE_NF_BAK,
  GPS_CONFIG_BAK,
  DEVICE_INDEX_BAK,
  IGSCFG_BAK,
  REGDV_TYPE_BAK,
  REG_GNA_BAK,
  REG_LNA_BAK,
  REG_IDNA_BAK,
  PCDV_TYPE_BAK,
  PC_GNA_BAK,
  PC_LNA_BAK,
  PC_IDNA_BAK,
  MICROS_STATUS,
  HIST_REG,
  HIST_DEST_ID,
  HIST_SRC_ID,
  // fixed configuration
  REGTYPE,
  REGTYPE_MINOR,
  REGTYPE_EXT1,
  REGTYPE_EXT2,
  HPADDR_BAK,
  VPADDR_BAK,
  HSADDR_BAK,
  GOADDR_BAK,
  DISP_POS_BAK,
  DSPLINES_BAK,
  DSPCFG_BAK,
  HARDWARE_CFG_BAK,
  ALMCFG_BAK,
  ALMNORMAL_BAK,
  BLNKVAL,
  BLNKIND,
  FLAGDWLVAL,
  FLAGDWLIND,
  ALMSTRUCT_BAK,
  IPADDRESS,
  DECIMAL_POINT_BAK,
  TIME_FORMAT_BAK,
  DATE_FORMAT_BAK,
  TD_LOCKING_BAK,
  TIMESTAMP_ENA,
  DAYLIGHT_BAK,
  DSPROW,
  DSPCOL,
  DEMO_ENABLE,
  SPCOMPRES_BAK,
  DSPCHARS_BAK,
  NET_ADDRESS,
  NET_TYPE,
  NET_PROTOCOL,
  TX_PROTOCOL,
  DUPLINE_BAK,
  SCROLLMATCH_BAK,
  LANGUAGE_BAK,
  NET_BAUDRATE,
  SW_HANDSHAKE,
  ECRDIGIT_7,
  ECRDIGIT_6,
  ECRDIGIT_5,
  ECRDIGIT_4,
  ECRDIGIT_3,
  ECRDIGIT_2,
  ECRDIGIT_1,
  BLNKRTS_BAK,
  // strings
  ONSCRNTITL,
  EXCPSTRS,
  TRIGGER_TEXT,
  TRIGGER_DELAY,
  ALM_MODE,
};

inline constexpr std::size_t kFieldCount = static_cast<std::size_t>(FieldId::ALM_MODE) + 1;
inline constexpr int kAlarms = 16;
inline constexpr int kExceptions = 24;

// The number of entries of a field. Entries count from 1.
constexpr int EntryCount(FieldId field) {
  switch (field) {
    case FieldId::ALMNORMAL_BAK:
      return 2;
    case FieldId::IPADDRESS:
      return 4;
    case FieldId::EXCPSTRS:
      return kExceptions;
    case FieldId::ALMSTRUCT_BAK:
    case FieldId::TRIGGER_TEXT:
    case FieldId::TRIGGER_DELAY:
    case FieldId::ALM_MODE:
      return kAlarms;
    default:
      return 1;
  }
}

class ConfigImage {
 public:
  ConfigImage() {
    for (std::size_t field = 0; field < kFieldCount; ++field) {
      fields_[field].resize(static_cast<std::size_t>(EntryCount(static_cast<FieldId>(field))));
    }
  }

  std::string& operator[](FieldId field) { return at(field, 1); }
  const std::string& operator[](FieldId field) const { return at(field, 1); }

  // Throws std::out_of_range for an entry that the field does not have.
  std::string& at(FieldId field, int entry) { return Entries(field).at(static_cast<std::size_t>(entry - 1)); }
  const std::string& at(FieldId field, int entry) const {
    return fields_[static_cast<std::size_t>(field)].at(static_cast<std::size_t>(entry - 1));
  }

  bool operator==(const ConfigImage&) const = default;

 private:
  std::vector<std::string>& Entries(FieldId field) { return fields_[static_cast<std::size_t>(field)]; }

  std::array<std::vector<std::string>, kFieldCount> fields_;
};

}  // namespace ovl::image
