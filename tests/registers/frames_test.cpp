// Which option frame each register of each firmware shows, under which title, and what the frame offers.
#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <set>

#include "catalogue/firmware.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

// "base" and "model" are the two register lists of V1400.
struct FrameRow {
  std::string_view firmware;
  std::string_view registers;  // name and frame
  std::string_view title;      // none: the register's name
};

constexpr FrameRow kFrames[] = {
    {"base model V1300R16+ V1310 V1324 V1334", "TCPIP@30", "IP AND INFORMATION CONFIG"},
    {"V1300R15-", "TCPIP@21", "SET IP ADDRESS"},
    {"base model V1300 V1310 V1334", "ADDRESSABLE OVL@0", "SET ADDRESS"},
    {"base model V1300", "ADS@1", "ADS SET DISPLAY"},
    {"base model V1300", "DELTA SONO 3.1@2", "DELTA SETTING"},
    {"base V1300 V1310 V1324", "DRESSER WAYNE@3", "DRESSER WAYNE SETTING"},
    {"model", "DRESSER WAYNE@36", "DRESSER WAYNE SETTING"},
    {"base model V1300", "EDACOM@4", "SET MODEL"},
    {"V1324 V1334", "EDACOM@4", "EDACOM MODEL SETTING "},
    {"base V1300", "FUJITSU 9920@1", "FUJITSU 9920 SET DISPLAY"},
    {"model", "FUJITSU@38", "FUJITSU SETTINGS"},
    {"base model V1300", "GASBOY@5", "GASBOY SETTING"},
    {"base model V1300 V1310", "GILBARCO@6", "GILBRACO"},
    {"base V1300 V1310", "IBM RDS@1", "IBM RDS SET DISPLAY"},
    {"base model V1300", "MICRELEC@8", "MICRELEC MODE"},
    {"base V1300 V1310", "NCR@10", "NCR MODEL"},
    {"base", "BEETLE 50 PRINTERS@11", "NIXDORF BEETLE"},
    {"V1324 V1334", "BEETLE 50 PRINTERS@11", "Beetle/50 Printers SETTING"},
    {"base model V1300", "NORAND 1200@12", "NORAND"},
    {"base V1300 V1310", "SHARP@14", "SHARP MODEL"},
    {"model", "SHARP@46", "SHARP MODEL"},
    {"base model V1300", "TCI@17", "TCI ADDRESS"},
    {"base V1300", "UNIWELL UN4025@18", "UNIWELL"},
    {"base", "UP3000/3300@20", "UP3000/UP3300"},
    {"V1300 V1310", "UP3000 3300@20", "UP3000/UP3300"},
    {"base model", "CLARITY EPOS@23", "CLARITY EPOS SETTING"},
    {"base V1324 V1334", "NIXDORF BEETLE@25", "NIXDORF BEETLE SETTING"},
    {"base V1324", "NUCLEUS PRINTER@26", "NUCLEUS PRINTER SETTING"},
    {"base model V1324", "OMEGA 2000@25", "OMEGA 2000 SETTING"},
    {"base V1324 V1334", "SHARP 750 ER-01PU@1", " SHARP 750 ER-01PU SET DISPLAY"},
    {"base model V1324 V1334", "SPEDI CCTV@0", "SPEDI CCTV SET ADDRESS"},
    {"base model V1324 V1334", "TKMAXX@25", "TKMAXX SETTING"},
    {"V1310 V1324 V1334", "WEIGH SCALE@26", "WEIGH SCALE SETTING"},
    {"model", "JCM@42", "JMC"},
    {"V1310", "NE134 COUNTER@51", "SET ADDRESS"},
    {"base V1300 V1310", "IBM3151 TERMINAL@7", ""},
    {"base model V1300 V1310", "MICROS@9|PANASONIC@13|SUNTRONIC@16|VERIFONE@19", ""},
    {"V1300 V1310", "NIXDORF BEETLE@11", ""},
    {"base model V1300", "SICOM@15", ""},
    {"base V1310 V1324 V1334", "CASIO TK-T500@22|CASIO TE-2200@29|TEC SLIP PRINTER EMULATE@31", ""},
    {"V1324 V1334", "CLARITY EPOS@23|SHARP UP600 700@28", ""},
    {"base model V1310 V1324 V1334", "EPSON GENERIC@24", ""},
    {"base model V1324", "SCHLUMBERGER@7", ""},
    {"base V1324 V1334", "SHARP ER-A410 420@27", ""},
    {"base", "SHARP UP600/700@28", ""},
    {"base model", "WEIGH SCALE@32", ""},
    {"model V1300", "SENSORS@50", ""},
    {"model", "UNIWELL@49|I-CNTRL INT JAVELIN VIPER@18|MERIT@18|PARAGON CLARITY SMARTPAD@23|RIVA@19", ""},
    {"model", "EASY2TOUCH@37|EUROPAD@37|POSIFLEX@37|OMRON@42|PAR@42|PROSPER@42|VECTRON@42|TEC@48", ""},
    {"model", "BLEEP@33|CASIO@34|DIGIPOS@35|GELLER@39|IBM@40|ICL@41|NCR@43|NIXDORF@44|SAMSUNG@45", ""},
    {"model", "TEAM POS 2000@47", ""},
    {"V1310", "POLE DISPLAY@53|VISHAY WEIGHBRIDGE@52", ""},
};

bool Serves(const FrameRow& row, const FirmwareId& firmware) {
  const auto holds = [&](const std::string& word) {
    return (" " + std::string(row.firmware) + " ").find(" " + word + " ") != std::string::npos;
  };
  if (firmware.IsV1400()) return holds(firmware.Number() < 7 ? "base" : "model");
  if (firmware.version == "V1300" && holds(firmware.Number() < 16 ? "V1300R15-" : "V1300R16+")) return true;
  return holds(firmware.version);
}

// By name: the frame and the title.
std::map<std::string, std::pair<int, std::string>> FramesOf(const FirmwareId& firmware) {
  std::map<std::string, std::pair<int, std::string>> frames;
  for (const auto& row : kFrames) {
    if (!Serves(row, firmware)) continue;
    for (auto rest = std::string(row.registers); !rest.empty();) {
      const auto part = rest.substr(0, rest.find('|'));
      rest.erase(0, part.size() + 1);
      const auto name = part.substr(0, part.find('@'));
      const int frame = LeadingNumber(part.substr(name.size() + 1));
      EXPECT_TRUE(frames.emplace(name, std::pair(frame, row.title.empty() ? name : row.title)).second)
          << part;
    }
  }
  return frames;
}

TEST(OptionFrames, EveryRegisterOfEveryFirmwareShowsItsOwn) {
  std::set<std::string> expected_anywhere, seen;
  for (const auto& entry : FirmwareTable()) {
    if (!entry.in_menu) continue;
    const FirmwareId firmware{std::string(entry.version), std::string(entry.release)};
    const auto expected = FramesOf(firmware);
    for (const auto& [name, frame] : expected) expected_anywhere.insert(firmware.version + " " + name);
    Installed program(firmware);
    const auto& form = program.app.frmMain;
    for (const auto& name : form.ComboReg.items) {
      SCOPED_TRACE(firmware.Joined() + " " + name);
      ASSERT_EQ(program.Register(name), Outcome::kDone);
      const auto found = expected.find(name);
      if (found == expected.end()) {
        EXPECT_EQ(program.Frames(), "");
        continue;
      }
      seen.insert(firmware.version + " " + name);
      const auto& [frame, title] = found->second;
      auto shown = program.Frames();
      if (frame == 49) shown = shown.substr(0, 2);  // its companion is the model's matter
      EXPECT_EQ(shown, std::to_string(frame));
      EXPECT_EQ(form.frmAddress[static_cast<std::size_t>(frame)].caption, title);
    }
  }
  EXPECT_EQ(seen, expected_anywhere);
}

struct OfferRow {
  FirmwareId firmware;
  const char *name, *array;
  std::string offered;
};

TEST(OptionFrames, ElementsFollowTheFirmwareAndTheRegister) {
  const std::string ncr = "NCR 2113, 3110|NCR 745X [POLE]|NCR JRNL PRINTER|NCR RCPT PRINTER|NCR SLIP PRINTER";
  const std::string gas = "PC G-SITE|TCRG/2|TCR15G [ OLD FMT ]|TCR15G [ NEW FMT ]|PASSPORT";
  const std::string gas_late = gas + "|PASSPORT (XML FMT)";
  const std::string micros = "LOCAL VSS|MICROS IDN NETWORK|MICROS ISN NETWORK";
  const std::string epson =
      "STANDARD|PRINTER WITH POLE|DOUBLE CHAR PRINTER|POLE DISPLAY|POLE DISPLAY 20|POLE VIA PRINTER|"
      "RECIEPT PRINTER ONLY|JOURNAL PRINTER ONLY|SLIP PRINTER ONLY";
  const std::string scales = "AVERY|MOLENS|LEON LD5204";
  const std::string scales_r4 = "AVERY 2ND HEADER|AVERY PC OUTPUT|MOLENS|LEON LD5204";
  const std::string scales_r7 =
      "AVERY 2ND HEADER|AVERY PC OUTPUT|DE LA RUE 2800|LEON LD5204|LEON ENG. LD52XX|MOLENS|PINAL|RITEWEIGH|"
      "TOLEDO 8142 DIRECT OUTPUT";
  const std::string nucleus = "STANDARD (Both)|PRINTER WITH POLE|POLE VIA PRINTER";
  const std::string jcm = "Gold 4800/4850|Gold G-225|Gold G-381|Gold G-556";
  const std::string vectron = "COLOUR TOUCH|POS MINI/32|VARIO";
  const OfferRow rows[] = {
      {{"V1400", "R1"}, "WEIGH SCALE", "OpWEIGHS", scales},
      {{"V1400", "R2"}, "WEIGH SCALE", "OpWEIGHS", scales},
      {{"V1400", "R4"}, "WEIGH SCALE", "OpWEIGHS", scales_r4},
      {{"V1400", "R4"}, "NCR", "OpNCR", ncr},
      {{"V1400", "R4"}, "GILBARCO", "OpGilbraco", gas},
      {{"V1400", "R4"}, "EPSON GENERIC", "OpRI_QT2", epson},
      {{"V1400", "R6"}, "WEIGH SCALE", "OpWEIGHS", scales_r4 + "|PINAL"},
      {{"V1400", "R6"}, "NCR", "OpNCR", ncr + "|NCR 5972 (TAP)|NCR 5972 (EMULATE)"},
      {{"V1400", "R6"}, "GILBARCO", "OpGilbraco", gas_late},
      {{"V1400", "R6"}, "MICROS", "OpMicros", micros},
      {{"V1400", "R6"}, "EPSON GENERIC", "OpRI_QT2", epson + "|GRAPHIC FILTER"},
      {{"V1400", "R6"}, "NUCLEUS PRINTER", "OpNUCP", nucleus},
      {{"V1400", "R7"}, "WEIGH SCALE", "OpWEIGHS", scales_r7},
      {{"V1400", "R7"}, "MICROS", "OpMicros", micros + "|MICROS 3700 V4.X"},
      {{"V1400", "R12"}, "WEIGH SCALE", "OpWEIGHS", scales_r7},
      {{"V1400", "R12"}, "GILBARCO", "OpGilbraco", gas_late},
      {{"V1400", "R12"}, "OMRON", "JCMOp", "PROLOGIC|RS5550/5555"},
      {{"V1400", "R12"}, "JCM", "JCMOp", jcm},
      {{"V1400", "R12"}, "PAR", "JCMOp", "POS 400|VIAGRO"},
      {{"V1400", "R12"}, "VECTRON", "JCMOp", vectron},
      {{"V1400", "R12"}, "PROSPER", "JCMOp", "ET7626|ET7826"},
      {{"V1400", "R12"}, "JCM", "JCMOp", jcm},
      {{"V1400", "R12"}, "VECTRON", "JCMOp", vectron},
      {{"V1300", "R21"}, "GILBARCO", "OpGilbraco", gas},
      {{"V1300", "R23"}, "GILBARCO", "OpGilbraco", gas_late},
      {{"V1300", "R27"}, "NCR", "OpNCR", ncr},
      {{"V1300", "R27"}, "MICROS", "OpMicros", micros},
      {{"V1300", "R27"}, "IBM3151 TERMINAL", "ComboDIPMIXED", "RECEIPT|JOURNAL|MIXED"},
      {{"V1300", "R27"}, "IBM3151 TERMINAL", "ComboDIPMIXED", "RECEIPT|JOURNAL|MIXED|RECEIPT|JOURNAL|MIXED"},
      {{"V1400", "R4"}, "IBM3151 TERMINAL", "ComboDIPMIXED", "RECEIPT|JOURNAL|MIXED"},
      {{"V1400", "R4"}, "SCHLUMBERGER", "ComboDIPMIXED", "RECEIPT|C .D. U|CDU(2L)"},
      {{"V1400", "R4"}, "SCHLUMBERGER", "ComboDIPMIXED", "RECEIPT|C .D. U|CDU(2L)"},
      {{"V1310", "R1"}, "NCR", "OpNCR", ncr},
      {{"V1310", "R1"}, "GILBARCO", "OpGilbraco", gas_late},
      {{"V1310", "R1"}, "WEIGH SCALE", "OpNUCP", scales},
      {{"V1324", "R23"}, "EPSON GENERIC", "OpRI_QT2", epson},
      {{"V1324", "R24"}, "EPSON GENERIC", "OpRI_QT2", epson + "|GRAPHIC FILTER"},
      {{"V1324", "R24"}, "WEIGH SCALE", "OpNUCP", scales},
      {{"V1324", "R24"}, "NUCLEUS PRINTER", "OpNUCP", nucleus},
  };
  std::optional<Installed> program;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.firmware.Joined() + " " + row.name);
    if (!program || program->app.firmware != row.firmware) program.emplace(row.firmware);
    ASSERT_EQ(program->Register(row.name), Outcome::kDone);
    EXPECT_EQ(program->Offered(row.array), row.offered);
  }
}

TEST(OptionFrames, OnlyEasy2TouchSetsItsModelByte) {
  const std::tuple<const char*, const char*, const char*> rows[] = {{"EASY2TOUCH", "TS600/TS700", "01"},
                                                                    {"EUROPAD", "EP300/EP3000", "07"},
                                                                    {"POSIFLEX", "EPOS/PST6000", "07"}};
  Installed program({"V1400", "R12"});
  for (const auto& [name, caption, stored] : rows) {
    program.SetByte(name, program.Ext2(), "07");
    ASSERT_EQ(program.Register(name), Outcome::kDone);
    EXPECT_EQ(program.Offered("EASYOP"), caption);
    EXPECT_EQ(program.Selected("EASYOP"), 0);
    EXPECT_EQ(program.app.image[FieldId::REGTYPE_EXT2], stored) << name;
  }
}

TEST(OptionFrames, OdometerAsksForOneLine) {
  for (const FirmwareId& firmware : {FirmwareId{"V1400", "R12"}, {"V1324", "R17"}}) {
    Installed program(firmware);
    program.Pick("ComboTD(0)", 0);
    program.Pick("ComboTD(5)", 0);
    ASSERT_EQ(program.Pick("ComboDIP(1)", 6), Outcome::kDone);
    ASSERT_EQ(program.Register("ODOMETER"), Outcome::kDone);
    EXPECT_EQ(program.Selected("ComboDIP(1)"), 0) << firmware.Joined();
    EXPECT_EQ(program.app.image[FieldId::DSPLINES_BAK], "01");
  }
}

TEST(OptionFrames, UniwellFrameSharesOneListOrTheOther) {
  Installed base({"V1400", "R6"});
  base.Register("UNIWELL UN4025");
  EXPECT_TRUE(base.Control("ComboUni").visible);
  EXPECT_FALSE(base.Control("ComboUniFor14R7up").visible);

  Installed program({"V1400", "R7"});
  for (const char* name : {"MERIT", "I-CNTRL INT JAVELIN VIPER", "UNIWELL"}) {
    SCOPED_TRACE(name);
    program.SetByte(name, program.Ext2(), "01");
    for (int byte = 0; byte < 3; ++byte) program.SetByte(name, kTciAddress + byte, ByteToHex(byte + 3));
    ASSERT_EQ(program.Register(name), Outcome::kDone);
    EXPECT_FALSE(program.Control("ComboUni").visible);
    EXPECT_TRUE(program.Control("ComboUniFor14R7up").visible);
    EXPECT_EQ(program.Selected("ComboUniFor14R7up"), 1);
    EXPECT_EQ(program.Selected("ComboUNI_ID(2)"), 3);
    EXPECT_EQ(program.Selected("ComboUNI_ID(1)"), 4);
    EXPECT_EQ(program.Selected("ComboUNI_ID(0)"), 5);
  }
  EXPECT_EQ(program.Control("frmAddress(18)").caption, "");
}

}  // namespace
}  // namespace ovl::testing
