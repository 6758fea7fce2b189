// What the pick of a register does: which option frame each register of each firmware shows, under which
// title, and what the frame offers; and images that hold odd bytes, name another register, or are not there.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/configuration.h"
#include "image/record_stream.h"
#include "registers/selection_driver.h"
#include "support/installed.h"
#include "unit/registers/rows.h"

namespace ovl::testing {
namespace {

// REGTYPE_MINOR, REGTYPE_EXT1 and REGTYPE_EXT2.
std::string OptionBytes(const core::Application& app) {
  return app.image[F::REGTYPE_MINOR] + app.image[F::REGTYPE_EXT1] + app.image[F::REGTYPE_EXT2];
}
core::Outcome PickWith(Installed& program, const std::string& name, const std::string& option_bytes) {
  program.SetByte(name, program.Minor(), option_bytes.substr(0, 2));
  program.SetByte(name, program.Ext1(), option_bytes.substr(2, 2));
  program.SetByte(name, program.Ext2(), option_bytes.substr(4));
  return program.Register(name);
}

TEST(RegisterPick, ACodeOutsideTheListLeavesTheListAndStillShowsTheFrame) {
  Installed program(kLatest);
  program.SetByte("ADS", program.Code(), "F0");
  ASSERT_EQ(program.Register("ADS"), core::Outcome::kDone);
  EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "ADS");
  EXPECT_EQ(program.app.image[F::REGTYPE], "F0");
  EXPECT_EQ(program.Frames(), "1");
  ASSERT_EQ(program.Register("BLEEP"), core::Outcome::kDone);
  EXPECT_EQ(program.Frames(), "33");

  Installed without_list({"V1400", "R13"}, Images::kOwn);
  ASSERT_EQ(without_list.Start(), core::Outcome::kDone);
  registers::ShowRegisterOptions(without_list.app);
  EXPECT_EQ(without_list.Frames(), "");
}

TEST(RegisterPick, DresserWayneChoosesByThreeBytes) {
  const std::tuple<const char*, std::string_view, int> rows[] = {
      {"020000", "", -1},     {"010700", "", -1},     {"000001", "POSOP", 1},
      {"010007", "TEROP", 7}, {"010100", "PRNOP", 0}, {"010200", "SECUOP", 0}};
  Installed program(kLatest);
  for (const auto& [bytes, chosen, element] : rows) {
    SCOPED_TRACE(bytes);
    ASSERT_EQ(PickWith(program, "DRESSER WAYNE", bytes), core::Outcome::kDone);
    EXPECT_EQ(program.Frames(), "36");
    for (const auto* name : {"POSOP", "TEROP", "PRNOP", "SECUOP"})
      EXPECT_TRUE(chosen.empty() || program.Selected(name) == (name == chosen ? element : -1)) << name;
    EXPECT_EQ(OptionBytes(program.app), bytes);
  }
}

TEST(RegisterPick, ForcedSpeedsReachTheImageOnAPickAndNotInAWholeLoad) {
  for (const firmware::FirmwareId& firmware : {firmware::FirmwareId{"V1310", "R1"}, {"V1400", "R6"}}) {
    Installed program(firmware);
    const std::string name = "CASIO TE-2200";
    program.SetByte(name, program.Minor(), "01");
    program.SetByte(name, kReceiveSpeed, "00");
    for (const bool whole : {false, true, false}) {
      EXPECT_EQ(whole ? program.Open(program.PathOf(name)) : program.Register(name), core::Outcome::kDone);
      EXPECT_EQ(program.app.image[F::RX_BAUDRATE], whole ? "00" : "05") << firmware.Joined();
      EXPECT_EQ(program.Selected("ComboCOMM(1)"), whole ? 0 : 5);
    }
  }
}

// What is read and what the choice then writes go by different tables in some firmware.
TEST(RegisterPick, AStoredCodeDriftsWhereReaderAndWriterDiffer) {
  constexpr const char* kDrifts[] = {
      "V1400R6|EPSON GENERIC 030000 000000",
      "V1324R24|EPSON GENERIC 030000 000000",
      "V1334R1|EPSON GENERIC 030002 020002",
      "V1310R1|EPSON GENERIC 030002 030002|SHARP 050000 060000",
      "V1300R23|SHARP 050000 050000",
      "V1324R26|OMEGA 2000 010000 010001",
      "V1400R7|EPSON GENERIC 030002 030002|OMEGA 2000 050001 050001|TKMAXX 010000 010001",
      "V1400R7|EASY2TOUCH 000007 000001|EUROPAD 000007 000007|POSIFLEX 000007 000007"};
  for (const auto* drifts : kDrifts) {
    const auto [firmware, rows] = FirmwareAndRows(drifts, '|');
    for (const auto& row : rows) {
      Installed program(firmware);
      const auto words = NameAndTwoWords(row);
      ASSERT_EQ(PickWith(program, words[0], words[1]), core::Outcome::kDone) << row;
      EXPECT_EQ(OptionBytes(program.app), words[2]) << row;
    }
  }
}

TEST(RegisterPick, AnImageOfAnotherRegisterLeadsThere) {
  Installed program(kLatest);
  const auto code = [&](const char* name) { return codecs::ByteToHex(program.CodeOf(name)); };
  program.SetByte("ADS", program.Code(), code("BLEEP"));
  program.SetByte("BLEEP", kUnitAddress, "77");
  const auto expect = [&](const char* picked, const char* shown, const char* frame) {
    SCOPED_TRACE(picked);
    ASSERT_EQ(program.Register(picked), core::Outcome::kDone);
    EXPECT_EQ(program.app.frmMain.ComboReg.Text(), shown);
    EXPECT_EQ(program.app.image[F::REGTYPE], code(shown));
    EXPECT_EQ(program.Frames(), frame);
  };
  expect("ADS", "BLEEP", "33");
  EXPECT_EQ(program.app.image[F::UNITADDR], "77");
  program.SetByte("BLEEP", program.Code(), code("ADS"));  // each names the other
  expect("ADS", "ADS", "1");
  expect("BLEEP", "BLEEP", "33");
  expect("GENERIC", "GENERIC", "");
  EXPECT_TRUE(program.NoBoxLeft());
}

TEST(RegisterPick, WithoutItsImageTheProgramEnds) {
  Installed program(kLatest);
  const std::string path = program.PathOf("ADS"), reason = "No such file or directory";
  std::filesystem::remove(path);
  EXPECT_EQ(program.Register("ADS"), core::Outcome::kEnded);
  EXPECT_EQ(program.TakeBox().text,
            std::string(19, ' ') + reason + "\nPlease ReInstall Ovalon PC Software !!");
  EXPECT_EQ(program.app.StatusNote, path + ": " + reason);
  EXPECT_EQ(program.Register("GENERIC"), core::Outcome::kEnded);
  EXPECT_TRUE(program.NoBoxLeft());
}

TEST(RegisterPick, AfterAnOpenedFileTheNextPickCounts) {
  Installed program(kLatest);
  const auto kept = program.folder.File("kept.bin");
  program.SetByte("ADS", kUnitAddress, "77");
  std::filesystem::rename(program.PathOf("ADS"), kept);
  ASSERT_EQ(program.Open(kept),
            core::Outcome::kDone);  // the list follows without asking for the default image
  EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "ADS");
  EXPECT_EQ(program.app.image[F::UNITADDR], "77");
  EXPECT_EQ(program.Frames(), "1");
  ASSERT_EQ(program.Register("BLEEP"), core::Outcome::kDone);
  EXPECT_EQ(program.app.image[F::UNITADDR], "00");
}

// "base" and "model" are the two register lists of V1400. A register is its name, its frame, and the frame's
// title where that is not the name.
constexpr const char* kFrames[] = {
    "base model V1300 V1310 V1324 V1334|TCPIP@30 IP AND INFORMATION CONFIG",
    "base model V1300 V1310 V1334|ADDRESSABLE OVL@0 SET ADDRESS",
    "base model V1300|ADS@1 ADS SET DISPLAY|DELTA SONO 3.1@2 DELTA SETTING|EDACOM@4 SET MODEL|"
    "GASBOY@5 GASBOY SETTING|MICRELEC@8 MICRELEC MODE|NORAND 1200@12 NORAND|TCI@17 TCI ADDRESS|SICOM@15",
    "base V1300 V1310 V1324|DRESSER WAYNE@3 DRESSER WAYNE SETTING",
    "V1324 V1334|EDACOM@4 EDACOM MODEL SETTING |BEETLE 50 PRINTERS@11 Beetle/50 Printers SETTING|"
    "CLARITY EPOS@23|SHARP UP600 700@28",
    "base V1300|FUJITSU 9920@1 FUJITSU 9920 SET DISPLAY|UNIWELL UN4025@18 UNIWELL",
    "base model V1300 V1310|GILBARCO@6 GILBRACO|MICROS@9|PANASONIC@13|SUNTRONIC@16|VERIFONE@19",
    "base V1300 V1310|IBM RDS@1 IBM RDS SET DISPLAY|NCR@10 NCR MODEL|SHARP@14 SHARP MODEL|IBM3151 TERMINAL@7",
    "base|BEETLE 50 PRINTERS@11 NIXDORF BEETLE|UP3000/3300@20 UP3000/UP3300|SHARP UP600/700@28",
    "V1300 V1310|UP3000 3300@20 UP3000/UP3300|NIXDORF BEETLE@11",
    "base model|CLARITY EPOS@23 CLARITY EPOS SETTING|WEIGH SCALE@32",
    "base V1324 V1334|NIXDORF BEETLE@25 NIXDORF BEETLE SETTING|"
    "SHARP 750 ER-01PU@1  SHARP 750 ER-01PU SET DISPLAY|SHARP ER-A410 420@27",
    "base V1324|NUCLEUS PRINTER@26 NUCLEUS PRINTER SETTING",
    "base model V1324|OMEGA 2000@25 OMEGA 2000 SETTING|SCHLUMBERGER@7",
    "base model V1324 V1334|SPEDI CCTV@0 SPEDI CCTV SET ADDRESS|TKMAXX@25 TKMAXX SETTING",
    "V1310 V1324 V1334|WEIGH SCALE@26 WEIGH SCALE SETTING",
    "base V1310 V1324 V1334|CASIO TK-T500@22|CASIO TE-2200@29|TEC SLIP PRINTER EMULATE@31",
    "base model V1310 V1324 V1334|EPSON GENERIC@24",
    "model V1300|SENSORS@50",
    "model|DRESSER WAYNE@36 DRESSER WAYNE SETTING|FUJITSU@38 FUJITSU SETTINGS|SHARP@46 SHARP MODEL|"
    "JCM@42 JMC|UNIWELL@49|I-CNTRL INT JAVELIN VIPER@18|MERIT@18|PARAGON CLARITY SMARTPAD@23|RIVA@19|"
    "EASY2TOUCH@37|EUROPAD@37|POSIFLEX@37|OMRON@42|PAR@42|PROSPER@42|VECTRON@42|TEC@48|BLEEP@33|CASIO@34|"
    "DIGIPOS@35|GELLER@39|IBM@40|ICL@41|NCR@43|NIXDORF@44|SAMSUNG@45|TEAM POS 2000@47",
    "V1310|NE134 COUNTER@51 SET ADDRESS|POLE DISPLAY@53|VISHAY WEIGHBRIDGE@52"};

// Frame and title.
std::string ExpectedFrame(const firmware::FirmwareId& firmware, const std::string& name) {
  if (name == "TCPIP" && firmware.version == "V1300" && firmware.Number() < 16) return "21 SET IP ADDRESS";
  const auto list = !firmware.IsV1400() ? firmware.version : firmware.Number() < 7 ? "base" : "model";
  for (const auto* row : kFrames) {
    const auto parts = Split(row, '|');
    if (parts[0].find(list) == std::string::npos) continue;
    for (const auto& part : parts) {
      if (part.rfind(name + "@", 0) != 0) continue;
      const auto frame = part.substr(name.size() + 1);
      return frame.find(' ') == std::string::npos ? frame + " " + name : frame;
    }
  }
  return {};
}

std::string ShownFrame(Installed& program) {
  const auto frame = program.Frames();
  return frame.empty() ? frame : frame + " " + program.Control("frmAddress(" + frame + ")").caption;
}

TEST(OptionFrames, EveryRegisterOfEveryFirmwareShowsItsOwnAndKeepsItsDefaultImage) {
  for (const auto& firmware : EveryFirmware()) {
    Installed program(firmware);
    auto& app = program.app;
    const auto names = app.frmMain.ComboReg.items;
    for (const auto& name : names) {
      SCOPED_TRACE(name);
      ASSERT_EQ(program.Register(name), core::Outcome::kDone);
      EXPECT_EQ(app.image[image::FieldId::REGTYPE], codecs::ByteToHex(program.CodeOf(name)));
      EXPECT_EQ(ShownFrame(program), ExpectedFrame(firmware, name));
      program.Mark();
      ASSERT_EQ(program.Register(name), core::Outcome::kDone);
      EXPECT_EQ(program.Written(), "");
      EXPECT_EQ(app.frmMain.ComboReg.Text(), name);
      ASSERT_EQ(program.Open(program.PathOf(name)), core::Outcome::kDone);
      EXPECT_EQ(SectionsToStream(app) + "\r\n", ReadFile(program.PathOf(name)));
    }
    EXPECT_TRUE(program.NoBoxLeft());
  }
}

// What a list or an array offers, or how many entries that is.
constexpr const char* kOffers[] = {
    "V1400R2;WEIGH SCALE OpWEIGHS=AVERY|MOLENS|LEON LD5204",
    "V1400R4;WEIGH SCALE OpWEIGHS=AVERY 2ND HEADER|AVERY PC OUTPUT|MOLENS|LEON LD5204;NCR OpNCR=5;"
    "MICROS OpMicros=3;GILBARCO OpGilbraco=5;EPSON GENERIC OpRI_QT2=9;"
    "IBM3151 TERMINAL ComboDIPMIXED=RECEIPT|JOURNAL|MIXED;SCHLUMBERGER ComboDIPMIXED=RECEIPT|C .D. U|"
    "CDU(2L);SCHLUMBERGER ComboDIPMIXED=3",
    "V1400R6;WEIGH SCALE OpWEIGHS=AVERY 2ND HEADER|AVERY PC OUTPUT|MOLENS|LEON LD5204|PINAL;"
    "NCR OpNCR=NCR 2113, 3110|NCR 745X [POLE]|NCR JRNL PRINTER|NCR RCPT PRINTER|NCR SLIP PRINTER|"
    "NCR 5972 (TAP)|NCR 5972 (EMULATE);GILBARCO OpGilbraco=6;EPSON GENERIC OpRI_QT2=10;MICROS OpMicros=3;"
    "NUCLEUS PRINTER OpNUCP=STANDARD (Both)|PRINTER WITH POLE|POLE VIA PRINTER",
    "V1400R7;WEIGH SCALE OpWEIGHS=AVERY 2ND HEADER|AVERY PC OUTPUT|DE LA RUE 2800|LEON LD5204|"
    "LEON ENG. LD52XX|MOLENS|PINAL|RITEWEIGH|TOLEDO 8142 DIRECT OUTPUT;EPSON GENERIC OpRI_QT2=10;"
    "MICROS OpMicros=LOCAL VSS|MICROS IDN NETWORK|MICROS ISN NETWORK|MICROS 3700 V4.X",
    "V1400R12;GILBARCO OpGilbraco=PC G-SITE|TCRG/2|TCR15G [ OLD FMT ]|TCR15G [ NEW FMT ]|PASSPORT|"
    "PASSPORT (XML FMT);OMRON JCMOp=PROLOGIC|RS5550/5555;JCM JCMOp=Gold 4800/4850|Gold G-225|Gold G-381|"
    "Gold G-556;PAR JCMOp=POS 400|VIAGRO;VECTRON JCMOp=COLOUR TOUCH|POS MINI/32|VARIO;PROSPER JCMOp=ET7626|"
    "ET7826;JCM JCMOp=4;EASY2TOUCH EASYOP=TS600/TS700;EUROPAD EASYOP=EP300/EP3000;"
    "POSIFLEX EASYOP=EPOS/PST6000;NIXDORF NIXDORF14OP=BEETLE/50 PRINTERS|NIXDORF BEETLE;"
    "NIXDORF BEETLEOp=REMOTE SLIP|OPERATOR DISPLAY;NCR NCROP=NCR 2113, 3110|NCR 7059|NCR 745X (POLE)|"
    "NCR JRNL PRINTER|NCR RCPT PRINTER|NCR SLIP PRINTER|NCR7454WS/7197|NCR7456|NCR 5972 (TAP)|"
    "NCR 5972 (EMULATE)|CRSOSS 7474|REALPOS 30;SAMSUNG SamOP=46XX|48XX|49XX|51XX|65XX|SRP350|ER-380|ER-420M|"
    "ER5200|ER650|SER65XX|SER7000|SPS1000|SPS2000;GELLER GELLEROP=604|CRS3000|CX-200|CX-300|ET6600|ET6800|"
    "EX300|FX400|ML-780 / 790|MP2|MP2-T|MP3|MZ1|NT2324|NT3412|SX-590 / 780|SX680;UNIWELL UNIWOP=UNIWELL|"
    "UN4025|DX890/915|SX-330|SX6600-03 OR 05|SX6750|SX700/7000/800/850|SX875/8000/8500|UX40/41/43|UX50|UX60|"
    "UX70/7000/7500|UX-M750;TEC TECOP=MA-516|FS-1650|MA-1350|MA-1400|MA-1450|MA-1650|MA-1700|SL-9000-N|"
    "ST-5600/ST-5601/ST-6500|TEC SLIP PRINTER EMULATE|OVL-DRS;IBM IBMOP=IBM3151 TERMINAL|4614|46XX|4840-532|"
    "RDS|REDWOOD 538|SURE POS / 500|EXTERNAL CUSTOM DISPLAY|4610TF6;CASIO CASIOOP=230ER|240CR|CE2300|"
    "CE3400/3405/3410/3415|CE3700/3710|CE4000/4200|CE4615|CE4700|CE6000/6100/7000|IM800|QT2000|"
    "QT2100 REM DISPLAY|QT6000/6100|QT7000|SA1000|SA2000|SA5000|TE2000|TE2200|TE3000|TE4000|TE4500|TE7000|"
    "TE8000F/8500F|TK1200|TK1300|TK2100|TK2200/2600|TK2300/2700|TK2300 LCD VERSION|TK3200|TK6000 / 6500|"
    "TK7000 / 7500|TK-T500|VIDEO SYSTEM;SHARP SharpOP=ER-1772S|ER-1875|ER-1911/ 1920/1 /1970|2590|"
    "ER-2905/2908|ER-2910|ER-3100/3110/3115|ER-3100,3110|ER-3220,3221,3250|ER-3310,3311,3550|A310|A330|"
    "A410,420|A440/A460/A470|A-460,A-470|A-510/A550/A570/A610|A-550,A-570|A-610,A-650|A-750|"
    "A-750/A-770 ER-01PU|A-770|UP600/700|UP300/3300|UP5000|UP600/700 KITCHEN PRINTER|UP-X300|A-520,A-530;"
    "DRESSER WAYNE TEROP=TERMINAL 1|TERMINAL 2|TERMINAL 3|TERMINAL 4|TERMINAL 5|TERMINAL 6|TERMINAL 7|"
    "TERMINAL 8;ICL ICLOP=POS 2000/4000|POS 5000;FUJITSU FUJIOP=9920|G2220;BLEEP BleepOP=TS5000|TS7000;"
    "DIGIPOS DIGIOP=PRINTER/CUSTOMER DISPLAY|2000|MILLENIUM|SNA SOFTWARE;EDACOM OpEDA=E9010|E90;"
    "SUNTRONIC OpSun=890, 891, 960|2000",
    "V1300R21;GILBARCO OpGilbraco=5",
    "V1300R23;GILBARCO OpGilbraco=6",
    "V1300R27;NCR OpNCR=5;MICROS OpMicros=3;IBM3151 TERMINAL ComboDIPMIXED=3;"
    "IBM3151 TERMINAL ComboDIPMIXED=RECEIPT|JOURNAL|MIXED|RECEIPT|JOURNAL|MIXED",
    "V1310R1;NCR OpNCR=5;GILBARCO OpGilbraco=6;EPSON GENERIC OpRI_QT2=9;WEIGH SCALE OpNUCP=AVERY|MOLENS|"
    "LEON LD5204;SHARP OpSharp=2590|3100,3110|3220,3221,3250|3310,3311,3550|A-460, A-470|A-550, A-570|"
    "A-610, A-650|A-750|A-770|A-520, A-530;DRESSER WAYNE OpDYWAYE=JOURNAL PRINTER|RECEIPT PRINTER|"
    "TERMINAL 1|TERMINAL 2|TERMINAL 3|TERMINAL 4|TERMINAL 5|TERMINAL 6|TERMINAL 7|TERMINAL 8",
    "V1324R23;EPSON GENERIC OpRI_QT2=9",
    "V1324R24;EPSON GENERIC OpRI_QT2=10;WEIGH SCALE OpNUCP=AVERY|MOLENS|LEON LD5204;"
    "NUCLEUS PRINTER OpNUCP=STANDARD (Both)|PRINTER WITH POLE|POLE VIA PRINTER",
    "V1334R1;EPSON GENERIC OpRI_QT2=STANDARD|PRINTER WITH POLE|DOUBLE CHAR PRINTER|POLE DISPLAY|"
    "POLE DISPLAY 20|POLE VIA PRINTER|RECIEPT PRINTER ONLY|JOURNAL PRINTER ONLY|SLIP PRINTER ONLY|"
    "GRAPHIC FILTER|ESSO POLE DISPLAY"};

TEST(OptionFrames, WhatIsOfferedFollowsTheFirmwareAndTheRegister) {
  for (const auto* offers : kOffers) {
    const auto [firmware, rows] = FirmwareAndRows(offers, ';');
    Installed program(firmware);
    for (const auto& row : rows) {
      SCOPED_TRACE(row);
      const auto parts = Split(row, '=');
      const auto place = parts[0].rfind(' ');
      ASSERT_EQ(program.Register(parts[0].substr(0, place)), core::Outcome::kDone);
      const auto offered = program.Offered(parts[0].substr(place + 1));
      EXPECT_TRUE(offered == parts[1] || std::to_string(Split(offered, '|').size()) == parts[1]) << offered;
    }
  }
}

TEST(OptionFrames, OdometerAsksForOneLine) {
  Installed program(kLatest);
  for (const auto& [list, position] : {std::pair{"ComboTD(0)", 0}, {"ComboTD(5)", 0}, {"ComboDIP(1)", 6}})
    ASSERT_EQ(program.Pick(list, position), core::Outcome::kDone);
  ASSERT_EQ(program.Register("ODOMETER"), core::Outcome::kDone);
  EXPECT_EQ(program.Selected("ComboDIP(1)"), 0);
  EXPECT_EQ(program.app.image[image::FieldId::DSPLINES_BAK], "01");
}

TEST(OptionFrames, UniwellFrameSharesOneListOrTheOther) {
  Installed base({"V1400", "R6"}), models({"V1400", "R7"});
  for (const std::string name : {"UNIWELL UN4025", "MERIT", "UNIWELL"}) {
    const bool of_models = name != "UNIWELL UN4025";
    auto& program = of_models ? models : base;
    ASSERT_EQ(program.Register(name), core::Outcome::kDone);
    EXPECT_EQ(program.Control("ComboUni").visible, !of_models);
    EXPECT_EQ(program.Control("ComboUniFor14R7up").visible, of_models) << name;
  }
  EXPECT_EQ(models.Control("frmAddress(18)").caption, "");
}

}  // namespace
}  // namespace ovl::testing
