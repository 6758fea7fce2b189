#include "support/panel_facts.h"

namespace ovl::testing {

using enum image::FieldId;
using enum Group;

const std::vector<Selection>& Selections() {
  static const std::vector<Selection> rows = {
      {"ComboCOMM(1)", RX_BAUDRATE, 0xFF, 0, 1, 11},
      {"ComboCOMM(2)", TX_BAUDRATE, 0xFF, 0, 1, 11},
      {"ComboCOMM(7)", TX_PROTOCOL, 0xFF, 0, 1, 5},
      {"ComboCOMM(8)", SW_HANDSHAKE, 0xFF, 0, 1, 3},
      {"ComboCOMM(12)", NET_BAUDRATE, 0xFF, 0, 1, 10},
      {"ComboCOMM(4)", COMMCFG_BAK, 0x04, 0, 0x04, 2},
      {"ComboCOMM(5)", COMMCFG_BAK, 0x20, 0x20, -0x20, 2},
      {"ComboExcepRe(0)", COMMCFG_BAK, 0x10, 0, 0x10, 2, kPanel, {TIMESTAMP_ENA}},
      {"ComboExcepRe(1)", TIMESTAMP_ENA, 0xFF, 0, 1, 2, kPanel, {COMMCFG_BAK}},
      {"ComboExcepRe(2)", DUPLINE_BAK, 0xFF, 0, 1, 2, kPanel, {TIMESTAMP_ENA}},
      {"ComboDIP(2)", DSPCFG_BAK, 0x02, 0, 0x02, 2},
      {"ComboDIP(3)", DSPCFG_BAK, 0x04, 0, 0x04, 2},
      {"ComboDIP(4)", DSPCFG_BAK, 0x40, 0, 0x40, 2},
      {"ComboDIP(5)", DSPCFG_BAK, 0x08, 0, 0x08, 2},
      {"ComboDIP(6)", DSPCFG_BAK, 0x20, 0, 0x20, 2},
      {"ComboTD(5)", DSPCFG_BAK, 0x10, 0, 0x10, 2, kPanel, {DSPLINES_BAK}},
      {"ComboTD(0)", DSPCFG_BAK, 0x80, 0, 0x80, 2, kPanel, {DSPLINES_BAK}},
      {"ComboDIP(1)", DSPLINES_BAK, 0xFF, 1, 1, 11},
      {"ComboDIP(7)", SPCOMPRES_BAK, 0xFF, 0, 1, 6},
      {"ComboDIP(8)", DSPCHARS_BAK, 0xFF, 10, 1, 31},
      {"ComboTD(1)", TIME_FORMAT_BAK, 0xFF, 0, 1, 2},
      {"ComboTD(2)", DATE_FORMAT_BAK, 0xFF, 0, 1, 3},
      {"ComboTD(4)", TD_LOCKING_BAK, 0xFF, 0, 1, 2},
      {"ComboLang", LANGUAGE_BAK, 0xFF, 0, 1, 3},
      {"ComboScroll(1)", SCROLLMATCH_BAK, 0xFF, 0, 1, 6},
      {"ComboALM(4)", ALMCFG_BAK, 0x07, 0, 1, 5},
      {"ComboALM(5)", FLAGDWLIND, 0xFF, 0, 2, 121},
      {"OpDVR", HIST_REG, 0xFF, 0, 1, 3},
      {"ComboKLM4011(0)", HIST_DEST_ID, 0xFF, 1, 1, 32},
      {"ComboKLM4011(1)", HIST_SRC_ID, 0xFF, 1, 1, 32},
      {"ComboKLM4011(2)", HIST_DEST_ID, 0xFF, 1, 1, 32},
      {"ComboKLM4011(3)", HIST_SRC_ID, 0xFF, 1, 1, 32},
      {"ComboCOMM(10)", NET_ADDRESS, 0xFF, 0, 1, 17, kNetwork},
      {"ComboTrigger(0)", TRIGGER_TEXT, 0x01, 0, 0x01, 2, kRecord},
      {"ComboTrigger(1)", TRIGGER_TEXT, 0x02, 0, 0x02, 2, kRecord},
      {"ComboExcp(4)", EXCPSTRS, 0x40, 0, 0x40, 2, kRecord},
      {"ComboExcp(1)", EXCPSTRS, 0x01, 0, 0x01, 2, kRecord},
      {"ComboExcp(2)", EXCPSTRS, 0x02, 0, 0x02, 2, kRecord},
      {"ComboExcp(3)", EXCPSTRS, 0x20, 0, 0x20, 2, kRecord},
      {"ComboExcp(5)", EXCPSTRS, 0x0C, 0, 0x04, 3, kRecord},
  };
  return rows;
}

const std::vector<Writer>& OtherWriters() {
  using enum RecordPart;
  static const std::vector<Writer> rows = {
      {"ComboCOMM(0)", {IOCFG_BAK}},
      {"ComboCOMM(3)", {COMMCFG_BAK}},
      {"ComboCOMM(6)", {COMMCFG_BAK}},
      {"ComboCOMM(9)", {NET_TYPE, NET_ADDRESS, NET_BAUDRATE}},
      {"ComboCOMM(11)", {NET_PROTOCOL, NET_BAUDRATE}},
      {"ComboDIP(0)", {DSPCFG_BAK, BLNKVAL, BLNKIND, BLNKRTS_BAK}},
      {"ComboTD(3)", {DAYLIGHT_BAK}},
      {"ComboScroll(0)", {SCROLLMATCH_BAK}},
      {"CharacterList", {DEMO_ENABLE}},
      {"DemoType", {DEMO_ENABLE}},
      {"DemoSpeed", {DEMO_ENABLE}},
      {"DemoMode", {DEMO_ENABLE}},
      // A record that is shown is put in order.
      {"ComboExcp(0)", {EXCPSTRS}, kAllButRange},
      {"ComboALM(0)", {TRIGGER_TEXT, ALMSTRUCT_BAK, ALM_MODE}},
      {"ComboALM(1)", {ALMSTRUCT_BAK}, kFirstByte},
      {"ComboALM(2)", {ALMNORMAL_BAK}},
      {"ComboALM(3)", {ALMSTRUCT_BAK}, kDuration},
      {"ComboALM(6)", {ALMSTRUCT_BAK}, kLastByte},
      {"ComboALM(7)", {ALM_MODE}},
      {"ComboTrigger(2)", {TRIGGER_DELAY}},
      {"frmSetEXCPSTR", {EXCPSTRS, TRIGGER_TEXT, ONSCRNTITL}, kAllButRange},
      {"frmSetEXCPSTR.cmdSET", {EXCPSTRS, TRIGGER_TEXT, ONSCRNTITL}, kAllButRange},
      {"cmdSetRange", {DECIMAL_POINT_BAK}},
      {"frmSetRange.ComboDec", {DECIMAL_POINT_BAK}},
      {"frmSetRange.cmdClr", {DECIMAL_POINT_BAK}},
      {"frmSetRange.cmdSetRange", {EXCPSTRS}, kRange},
  };
  return rows;
}

const std::set<image::FieldId>& CarriedFields() {
  static const std::set<image::FieldId> fields = {
      EXECENTRY,   MPDCFG_BAK,     MPDCOMMCFG_BAK, MPDRXBAUDRATE, MPDTXBAUDRATE,   XATMNOTX,   XATMNORX,
      SITE_NO_BAK, GPS_CONFIG_BAK, HPADDR_BAK,     VPADDR_BAK,    HSADDR_BAK,      GOADDR_BAK, DISP_POS_BAK,
      FLAGDWLVAL,  IGSCFG_BAK,     DSPROW,         DSPCOL,        HARDWARE_CFG_BAK};
  return fields;
}

}  // namespace ovl::testing
