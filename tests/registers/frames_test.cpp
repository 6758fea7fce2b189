// Which option frame each register of each firmware shows, under which title, and what the frame offers.
#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <vector>

#include "catalogue/firmware.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

// "base" and "model" are the two register lists of V1400.
struct FrameRow {
  std::string_view firmware;
  std::string_view names;  // as the list shows them, apart by "|"
  int frame;
  std::string_view title;  // empty: the name itself
};

constexpr FrameRow kFrames[] = {
    {"base model V1300R16+ V1310 V1324 V1334", "TCPIP", 30, "IP AND INFORMATION CONFIG"},
    {"V1300R15-", "TCPIP", 21, "SET IP ADDRESS"},
    {"base model V1300 V1310 V1334", "ADDRESSABLE OVL", 0, "SET ADDRESS"},
    {"base model V1300", "ADS", 1, "ADS SET DISPLAY"},
    {"base model V1300", "DELTA SONO 3.1", 2, "DELTA SETTING"},
    {"base V1300 V1310 V1324", "DRESSER WAYNE", 3, "DRESSER WAYNE SETTING"},
    {"model", "DRESSER WAYNE", 36, "DRESSER WAYNE SETTING"},
    {"base model V1300", "EDACOM", 4, "SET MODEL"},
    {"V1324 V1334", "EDACOM", 4, "EDACOM MODEL SETTING "},
    {"base V1300", "FUJITSU 9920", 1, "FUJITSU 9920 SET DISPLAY"},
    {"model", "FUJITSU", 38, "FUJITSU SETTINGS"},
    {"base model V1300", "GASBOY", 5, "GASBOY SETTING"},
    {"base model V1300 V1310", "GILBARCO", 6, "GILBRACO"},
    {"base V1300 V1310", "IBM3151 TERMINAL", 7, ""},
    {"base V1300 V1310", "IBM RDS", 1, "IBM RDS SET DISPLAY"},
    {"base model V1300", "MICRELEC", 8, "MICRELEC MODE"},
    {"base model V1300 V1310", "MICROS", 9, "MICROS"},
    {"base V1300 V1310", "NCR", 10, "NCR MODEL"},
    {"V1300 V1310", "NIXDORF BEETLE", 11, "NIXDORF BEETLE"},
    {"base", "BEETLE 50 PRINTERS", 11, "NIXDORF BEETLE"},
    {"V1324 V1334", "BEETLE 50 PRINTERS", 11, "Beetle/50 Printers SETTING"},
    {"base model V1300", "NORAND 1200", 12, "NORAND"},
    {"base model V1300 V1310", "PANASONIC", 13, "PANASONIC"},
    {"base V1300 V1310", "SHARP", 14, "SHARP MODEL"},
    {"model", "SHARP", 46, "SHARP MODEL"},
    {"base model V1300", "SICOM", 15, "SICOM"},
    {"base model V1300 V1310", "SUNTRONIC", 16, "SUNTRONIC"},
    {"base model V1300", "TCI", 17, "TCI ADDRESS"},
    {"base V1300", "UNIWELL UN4025", 18, "UNIWELL"},
    {"model", "UNIWELL", 49, "UNIWELL"},
    {"base model V1300 V1310", "VERIFONE", 19, "VERIFONE"},
    {"base", "UP3000/3300", 20, "UP3000/UP3300"},
    {"V1300 V1310", "UP3000 3300", 20, "UP3000/UP3300"},
    {"base V1310 V1324 V1334", "CASIO TK-T500", 22, ""},
    {"base V1310 V1324 V1334", "CASIO TE-2200", 29, ""},
    {"base model", "CLARITY EPOS", 23, "CLARITY EPOS SETTING"},
    {"V1324 V1334", "CLARITY EPOS", 23, ""},
    {"base model V1310 V1324 V1334", "EPSON GENERIC", 24, ""},
    {"base V1324 V1334", "NIXDORF BEETLE", 25, "NIXDORF BEETLE SETTING"},
    {"base V1324", "NUCLEUS PRINTER", 26, "NUCLEUS PRINTER SETTING"},
    {"base model V1324", "OMEGA 2000", 25, "OMEGA 2000 SETTING"},
    {"base model V1324", "SCHLUMBERGER", 7, ""},
    {"base V1324 V1334", "SHARP 750 ER-01PU", 1, " SHARP 750 ER-01PU SET DISPLAY"},
    {"base V1324 V1334", "SHARP ER-A410 420", 27, ""},
    {"base", "SHARP UP600/700", 28, ""},
    {"V1324 V1334", "SHARP UP600 700", 28, ""},
    {"base model V1324 V1334", "SPEDI CCTV", 0, "SPEDI CCTV SET ADDRESS"},
    {"base model V1324 V1334", "TKMAXX", 25, "TKMAXX SETTING"},
    {"base model", "WEIGH SCALE", 32, ""},
    {"V1310 V1324 V1334", "WEIGH SCALE", 26, "WEIGH SCALE SETTING"},
    {"base V1310 V1324 V1334", "TEC SLIP PRINTER EMULATE", 31, ""},
    {"model", "TEC", 48, ""},
    {"model V1300", "SENSORS", 50, ""},
    {"model", "EASY2TOUCH|EUROPAD|POSIFLEX", 37, ""},
    {"model", "I-CNTRL INT JAVELIN VIPER|MERIT", 18, ""},
    {"model", "JCM", 42, "JMC"},
    {"model", "OMRON|PAR|PROSPER|VECTRON", 42, ""},
    {"model", "PARAGON CLARITY SMARTPAD", 23, ""},
    {"model", "RIVA", 19, ""},
    {"model", "BLEEP", 33, ""},
    {"model", "CASIO", 34, ""},
    {"model", "DIGIPOS", 35, ""},
    {"model", "GELLER", 39, ""},
    {"model", "IBM", 40, ""},
    {"model", "ICL", 41, ""},
    {"model", "NCR", 43, ""},
    {"model", "NIXDORF", 44, ""},
    {"model", "SAMSUNG", 45, ""},
    {"model", "TEAM POS 2000", 47, ""},
    {"V1310", "POLE DISPLAY", 53, ""},
    {"V1310", "NE134 COUNTER", 51, "SET ADDRESS"},
    {"V1310", "VISHAY WEIGHBRIDGE", 52, ""},
};

// Whether a row of words holds one of them whole.
bool Holds(std::string_view row, std::string_view word, char separator) {
  const auto padded = std::string(1, separator) + std::string(row) + std::string(1, separator);
  return padded.find(separator + std::string(word) + separator) != std::string::npos;
}

bool Serves(const FrameRow& row, const FirmwareId& firmware) {
  if (firmware.IsV1400()) return Holds(row.firmware, firmware.Number() < 7 ? "base" : "model", ' ');
  if (firmware.version == "V1300" &&
      Holds(row.firmware, firmware.Number() < 16 ? "V1300R15-" : "V1300R16+", ' ')) {
    return true;
  }
  return Holds(row.firmware, firmware.version, ' ');
}

std::vector<int> ShownFrames(const MainForm& form) {
  std::vector<int> shown;
  for (std::size_t frame = 0; frame < form.frmAddress.size(); ++frame) {
    if (form.frmAddress[frame].visible) shown.push_back(static_cast<int>(frame));
  }
  return shown;
}

TEST(OptionFrames, EveryRegisterOfEveryFirmwareShowsItsOwn) {
  std::set<const FrameRow*> used;
  for (const auto& entry : FirmwareTable()) {
    if (!entry.in_menu) continue;
    const FirmwareId firmware{std::string(entry.version), std::string(entry.release)};
    Installed program(firmware);
    ASSERT_EQ(program.Start(), Outcome::kDone);
    const auto& form = program.app.frmMain;
    for (const auto& name : form.ComboReg.items) {
      SCOPED_TRACE(firmware.Joined() + " " + name);
      const FrameRow* expected = nullptr;
      for (const auto& row : kFrames) {
        if (!Serves(row, firmware) || !Holds(row.names, name, '|')) continue;
        ASSERT_EQ(expected, nullptr);
        expected = &row;
      }
      ASSERT_EQ(program.Register(name), Outcome::kDone);
      auto shown = ShownFrames(form);
      if (expected == nullptr) {
        EXPECT_EQ(shown, std::vector<int>{});
        continue;
      }
      used.insert(expected);
      if (expected->frame == 49) std::erase(shown, 18);
      EXPECT_EQ(shown, std::vector<int>{expected->frame});
      EXPECT_EQ(form.frmAddress[static_cast<std::size_t>(expected->frame)].caption,
                expected->title.empty() ? name : std::string(expected->title));
    }
  }
  EXPECT_EQ(used.size(), std::size(kFrames)) << "a row names no register";
}

struct OfferRow {
  FirmwareId firmware;
  const char* name;
  const char* array;
  std::string offered;
};

TEST(OptionFrames, ElementsFollowTheFirmwareAndTheRegister) {
  const std::string ncr = "NCR 2113, 3110|NCR 745X [POLE]|NCR JRNL PRINTER|NCR RCPT PRINTER|NCR SLIP PRINTER";
  const std::string gas = "PC G-SITE|TCRG/2|TCR15G [ OLD FMT ]|TCR15G [ NEW FMT ]|PASSPORT";
  const std::string micros = "LOCAL VSS|MICROS IDN NETWORK|MICROS ISN NETWORK";
  const std::string epson =
      "STANDARD|PRINTER WITH POLE|DOUBLE CHAR PRINTER|POLE DISPLAY|POLE DISPLAY 20|POLE VIA PRINTER|"
      "RECIEPT PRINTER ONLY|JOURNAL PRINTER ONLY|SLIP PRINTER ONLY";
  const std::string avery = "AVERY|MOLENS|LEON LD5204";
  const std::string avery_r4 = "AVERY 2ND HEADER|AVERY PC OUTPUT|MOLENS|LEON LD5204";
  const std::string avery_r7 =
      "AVERY 2ND HEADER|AVERY PC OUTPUT|DE LA RUE 2800|LEON LD5204|LEON ENG. LD52XX|MOLENS|PINAL|RITEWEIGH|"
      "TOLEDO 8142 DIRECT OUTPUT";
  const std::string nucleus = "STANDARD (Both)|PRINTER WITH POLE|POLE VIA PRINTER";
  const OfferRow rows[] = {
      {{"V1400", "R1"}, "WEIGH SCALE", "OpWEIGHS", avery},
      {{"V1400", "R2"}, "WEIGH SCALE", "OpWEIGHS", avery},
      {{"V1400", "R4"}, "WEIGH SCALE", "OpWEIGHS", avery_r4},
      {{"V1400", "R4"}, "NCR", "OpNCR", ncr},
      {{"V1400", "R4"}, "GILBARCO", "OpGilbraco", gas},
      {{"V1400", "R4"}, "EPSON GENERIC", "OpRI_QT2", epson},
      {{"V1400", "R6"}, "WEIGH SCALE", "OpWEIGHS", avery_r4 + "|PINAL"},
      {{"V1400", "R6"}, "NCR", "OpNCR", ncr + "|NCR 5972 (TAP)|NCR 5972 (EMULATE)"},
      {{"V1400", "R6"}, "GILBARCO", "OpGilbraco", gas + "|PASSPORT (XML FMT)"},
      {{"V1400", "R6"}, "MICROS", "OpMicros", micros},
      {{"V1400", "R6"}, "EPSON GENERIC", "OpRI_QT2", epson + "|GRAPHIC FILTER"},
      {{"V1400", "R6"}, "NUCLEUS PRINTER", "OpNUCP", nucleus},
      {{"V1400", "R7"}, "WEIGH SCALE", "OpWEIGHS", avery_r7},
      {{"V1400", "R7"}, "MICROS", "OpMicros", micros + "|MICROS 3700 V4.X"},
      {{"V1400", "R12"}, "WEIGH SCALE", "OpWEIGHS", avery_r7},
      {{"V1400", "R12"}, "GILBARCO", "OpGilbraco", gas + "|PASSPORT (XML FMT)"},
      {{"V1300", "R21"}, "GILBARCO", "OpGilbraco", gas},
      {{"V1300", "R23"}, "GILBARCO", "OpGilbraco", gas + "|PASSPORT (XML FMT)"},
      {{"V1300", "R27"}, "NCR", "OpNCR", ncr},
      {{"V1300", "R27"}, "MICROS", "OpMicros", micros},
      {{"V1310", "R1"}, "NCR", "OpNCR", ncr},
      {{"V1310", "R1"}, "GILBARCO", "OpGilbraco", gas + "|PASSPORT (XML FMT)"},
      {{"V1310", "R1"}, "WEIGH SCALE", "OpNUCP", avery},
      {{"V1324", "R23"}, "EPSON GENERIC", "OpRI_QT2", epson},
      {{"V1324", "R24"}, "EPSON GENERIC", "OpRI_QT2", epson + "|GRAPHIC FILTER"},
      {{"V1324", "R24"}, "WEIGH SCALE", "OpNUCP", avery},
      {{"V1324", "R24"}, "NUCLEUS PRINTER", "OpNUCP", nucleus},
  };
  std::optional<Installed> program;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.firmware.Joined() + " " + row.name);
    if (!program || !(program->app.firmware == row.firmware)) {
      program.emplace(row.firmware);
      ASSERT_EQ(program->Start(), Outcome::kDone);
    }
    ASSERT_EQ(program->Register(row.name), Outcome::kDone);
    EXPECT_EQ(program->Offered(row.array), row.offered);
  }
}

TEST(OptionFrames, OneFrameServesSeveralRegistersUnderOtherCaptions) {
  const std::pair<const char*, const char*> shared[] = {
      {"OMRON", "PROLOGIC|RS5550/5555"},
      {"JCM", "Gold 4800/4850|Gold G-225|Gold G-381|Gold G-556"},
      {"PAR", "POS 400|VIAGRO"},
      {"VECTRON", "COLOUR TOUCH|POS MINI/32|VARIO"},
      {"PROSPER", "ET7626|ET7826"},
      {"VECTRON", "COLOUR TOUCH|POS MINI/32|VARIO"},
      {"JCM", "Gold 4800/4850|Gold G-225|Gold G-381|Gold G-556"},
  };
  Installed program({"V1400", "R11"});
  ASSERT_EQ(program.Start(), Outcome::kDone);
  for (const auto& [name, offered] : shared) {
    ASSERT_EQ(program.Register(name), Outcome::kDone);
    EXPECT_EQ(program.Offered("JCMOp"), offered) << name;
  }
}

TEST(OptionFrames, OnlyEasy2TouchSetsItsModelByte) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"EASY2TOUCH", "TS600/TS700", "01"},
      {"EUROPAD", "EP300/EP3000", "07"},
      {"POSIFLEX", "EPOS/PST6000", "07"},
  };
  Installed program({"V1400", "R12"});
  ASSERT_EQ(program.Start(), Outcome::kDone);
  for (const auto& [name, caption, stored] : rows) {
    SCOPED_TRACE(name);
    program.SetByte(name, program.Ext2(), "07");
    ASSERT_EQ(program.Register(name), Outcome::kDone);
    EXPECT_EQ(program.Offered("EASYOP"), caption);
    EXPECT_EQ(program.ArrayOf("EASYOP").chosen, 0);
    EXPECT_EQ(program.app.image[FieldId::REGTYPE_EXT2], stored);
  }
}

TEST(OptionFrames, TheMixedListIsRefilledInV1400AndGrowsElsewhere) {
  using Items = std::vector<std::string>;
  Installed base({"V1400", "R6"});
  ASSERT_EQ(base.Start(), Outcome::kDone);
  const auto& items = base.app.frmMain.ComboDIPMIXED.items;
  base.Register("IBM3151 TERMINAL");
  EXPECT_EQ(items, (Items{"RECEIPT", "JOURNAL", "MIXED"}));
  base.Register("SCHLUMBERGER");
  EXPECT_EQ(items, (Items{"RECEIPT", "C .D. U", "CDU(2L)"}));
  base.Register("SCHLUMBERGER");
  EXPECT_EQ(items.size(), 3U);

  Installed other({"V1300", "R14"});
  ASSERT_EQ(other.Start(), Outcome::kDone);
  other.Register("IBM3151 TERMINAL");
  other.Register("ADS");
  other.Register("IBM3151 TERMINAL");
  EXPECT_EQ(other.app.frmMain.ComboDIPMIXED.items,
            (Items{"RECEIPT", "JOURNAL", "MIXED", "RECEIPT", "JOURNAL", "MIXED"}));
}

TEST(OptionFrames, OdometerAsksForOneLine) {
  for (const FirmwareId& firmware : {FirmwareId{"V1400", "R4"}, {"V1400", "R12"}, {"V1324", "R17"}}) {
    SCOPED_TRACE(firmware.Joined());
    Installed program(firmware);
    ASSERT_EQ(program.Start(), Outcome::kDone);
    program.Pick("ComboTD(0)", 0);
    program.Pick("ComboTD(5)", 0);
    ASSERT_EQ(program.Pick("ComboDIP(1)", 6), Outcome::kDone);
    ASSERT_EQ(program.Register("ODOMETER"), Outcome::kDone);
    EXPECT_EQ(program.app.frmMain.ComboDIP[1].position, 0);
    EXPECT_EQ(program.app.image[FieldId::DSPLINES_BAK], "01");
  }
}

TEST(OptionFrames, UniwellFrameSharesOneListOrTheOther) {
  Installed base({"V1400", "R6"});
  ASSERT_EQ(base.Start(), Outcome::kDone);
  base.Register("UNIWELL UN4025");
  EXPECT_TRUE(base.Control("ComboUni").visible);
  EXPECT_FALSE(base.Control("ComboUniFor14R7up").visible);

  Installed program({"V1400", "R7"});
  ASSERT_EQ(program.Start(), Outcome::kDone);
  for (const char* name : {"MERIT", "I-CNTRL INT JAVELIN VIPER", "UNIWELL"}) {
    SCOPED_TRACE(name);
    program.SetByte(name, program.Ext2(), "01");
    for (int digit = 0; digit < 3; ++digit)
      program.SetByte(name, 14 + digit, "0" + std::to_string(digit + 3));
    ASSERT_EQ(program.Register(name), Outcome::kDone);
    EXPECT_FALSE(program.Control("ComboUni").visible);
    EXPECT_TRUE(program.Control("ComboUniFor14R7up").visible);
    EXPECT_EQ(program.ListOf("ComboUniFor14R7up").position, 1);
    for (int member = 0; member < 3; ++member) {
      EXPECT_EQ(program.app.frmMain.ComboUNI_ID[static_cast<std::size_t>(member)].position, 5 - member);
    }
  }
  EXPECT_EQ(program.app.frmMain.frmAddress[18].caption, "");
  EXPECT_EQ(program.app.frmMain.frmAddress[49].caption, "UNIWELL");
}

}  // namespace
}  // namespace ovl::testing
