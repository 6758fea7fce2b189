// What a choice in an option frame writes, which selections it forces, and what else it shows.
#include <gtest/gtest.h>

#include <span>

#include "registers/selection_driver.h"
#include "support/installed.h"
#include "unit/registers/rows.h"

namespace ovl::testing {
namespace {

// A register, the field that one of its options shows (M and X are the two extensions), and the option. One
// that does nothing but store its position has the number of its choices. "-": only some models show it.
constexpr const char* kOptions[] = {
    "V1400R12|ADDRESSABLE OVL M ComboAddress=256|ADS M ComboDisplay=2|BLEEP M BleepOP=2|CASIO M CASIOOP|"
    "CLARITY EPOS UNITADDR ComboCLARITYEPOS=256|DELTA SONO 3.1 M OpDelta=4|DIGIPOS M DIGIOP=4|"
    "EDACOM M OpEDA=2|EPSON GENERIC X OpRI_QT2|FUJITSU M FUJIOP=2|FUJITSU X Combo1=2|"
    "GASBOY GTITLE_NF_BAK ComboDeviceGas=3|GASBOY M ComboDeviceADD=18|GELLER M GELLEROP=17|"
    "GILBARCO M OpGilbraco|IBM M IBMOP|IBM X IBMCombo=3|ICL M ICLOP|ICL X TEAMOP=2|JCM M JCMOp=4|"
    "MERIT TCIADDBAK_1 ComboUNI_ID(2)|MERIT X ComboUniFor14R7up=2|MICRELEC UNITADDR OpMicrelec|"
    "MICROS M OpMicros|NCR M NCROP|NCR X JRNLRCPT_SLP_OP=3|NIXDORF M NIXDORF14OP|NIXDORF X BEETLEOp=2|"
    "NORAND 1200 DV_ADDRIND_BAK ComboCONSOLEID=9|NORAND 1200 GTITLE_NF_BAK ComboTITLEDIP|"
    "NORAND 1200 M ComboWoring|OMEGA 2000 X OpNIXDORF|PANASONIC GTITLE_NF_BAK ComboPana(0)=2|"
    "PANASONIC M ComboPana(1)|RIVA M OpVerifone=4|SAMSUNG M SamOP=14|SCHLUMBERGER M ComboDIPMIXED=3|"
    "SENSORS X ST6105C=2|SHARP M SharpOP|SICOM M ComboSICOM|SUNTRONIC M OpSun=2|"
    "TCI TCIADDBAK_1 ComboTCI_ID(2)|TCI TCIADDBAK_2 ComboTCI_ID(1)|TCI TCIADDBAK_3 ComboTCI_ID(0)|"
    "TEAM POS 2000 X TEAMPOSOP=2|TEC M TECOP|UNIWELL M UNIWOP|UNIWELL TCIADDBAK_2 ComboUNI_ID(1)|"
    "UNIWELL X ComboUniFor14R7up=2|WEIGH SCALE M OpWEIGHS=9|- X NIXDORF14OPSelect=2|- X POS50OP=2|"
    "- X Combo4610TF6=2|- X RDSCombo=2|- X ComboXML=2",
    "V1400R4|DRESSER WAYNE M OpDYWAYE|EPSON GENERIC M OpRI_QT2|NCR M OpNCR=7|OMEGA 2000 M OpNIXDORF|"
    "SHARP M OpSharp|SHARP UP600/700 M OpSHARPUP600|UNIWELL UN4025 M ComboUni=2|UP3000/3300 M ComboAddr=17",
    "V1310R1|CASIO TK-T500 M ComboTk500(1)|CASIO TE-2200 M ComboTE2200(1)|NE134 COUNTER M ComboNE134=256|"
    "NIXDORF BEETLE M OpBEETLE=2|POLE DISPLAY M OpPoleDisplay=2|TEC SLIP PRINTER EMULATE M ComboTEC(1)|"
    "VISHAY WEIGHBRIDGE M OpVWEIGHBRIDGE=2|WEIGH SCALE M OpNUCP=3",
    "V1324R26|BEETLE 50 PRINTERS M OpBEETLE=2|NUCLEUS PRINTER M OpNUCP=3|SHARP ER-A410 420 M OpA410=4"};

// A byte without its choice hides the frame.
void ExpectShown(Installed& program, const std::string& field, const std::string& control) {
  const auto frame = program.Frames();
  const auto* array = std::get_if<controls::OptionArray*>(&program.app.registry.Find(control)->control);
  const auto size = array != nullptr ? (*array)->elements.size() : program.ListOf(control).items.size();
  const auto id = field == "M"   ? F::REGTYPE_MINOR
                  : field == "X" ? F::REGTYPE_EXT2
                                 : image::FindField(field)->id;
  const int choices = static_cast<int>(size);
  for (const int choice : {choices - 1, choices, 0}) {
    if (choice > 0xFF) continue;
    program.app.image[id] = codecs::ByteToHex(choice);
    registers::ShowRegisterOptions(program.app);
    EXPECT_EQ(program.Frames(), choice == choices ? "" : frame) << choice;
    EXPECT_TRUE(choice == choices || program.Selected(control) == choice) << choice;
  }
}

void ExpectStored(Installed& program, const std::string& field, const std::string& control, int choices) {
  program.Reveal(control);
  for (int position = 0; position < choices; ++position) {
    program.Fill(position == 0xEE ? "11" : "EE");
    ASSERT_EQ(program.Pick(control, position), core::Outcome::kDone);
    EXPECT_EQ(program.Written(), field + "=" + codecs::ByteToHex(position));
  }
  EXPECT_EQ(program.Effect(control, choices), "refused");
}

TEST(OptionMembers, EachShowsItsByteAndAPlainOneWritesItAndNothingElse) {
  for (const auto* options : kOptions) {
    const auto [firmware, rows] = FirmwareAndRows(options, '|');
    Installed program(firmware);
    for (const auto& row : rows) {
      SCOPED_TRACE(row);
      const auto words = NameAndTwoWords(row);
      const auto control = Split(words[2], '=');
      if (words[0] != "-") {
        ASSERT_EQ(program.Register(words[0]), core::Outcome::kDone);
        ExpectShown(program, words[1], control[0]);
      }
      if (control.size() > 1) ExpectStored(program, words[1], control[0], codecs::LeadingNumber(control[1]));
    }
    EXPECT_TRUE(program.NoBoxLeft());
  }
}

// The first two entries and the last.
constexpr const char* kNumbers =
    "ComboAddress ANY 1 255|ComboSICOM ANY 1 255|ComboCLARITYEPOS ALL 1 255|ComboNE134 0 1 255|"
    "ComboTCPIP(0) 0 1 255|ComboTCPIP(7) 0 1 255|ComboAddr ANY 1 16|ComboDeviceADD ANY 01 17|"
    "ComboCONSOLEID ANY 1 8|ComboTCI_ID(0) 0 1 9|ComboUNI_ID(2) 0 1 9|ComboMICROSADD ANY 00 15";

TEST(OptionMembers, ListsOfNumbersHaveTheirHeadAndTheirDigits) {
  Installed program(kLatest, Images::kFirstRegister);
  for (const auto& row : Split(kNumbers, '|')) {
    const auto name = row.substr(0, row.find(' '));
    const auto& items = program.ListOf(name).items;
    EXPECT_EQ(name + " " + items[0] + " " + items[1] + " " + items.back(), row);
  }
}

constexpr const char* kForced[] = {"ComboCOMM(0)", "ComboCOMM(1)",    "ComboCOMM(2)", "ComboCOMM(3)",
                                   "ComboCOMM(4)", "ComboExcepRe(0)", "ComboTD(5)"};

// A control and a position; the places of the forced lists, "-" is left alone; the line flags, with none and
// with all of them set before; what is written beside.
constexpr const char* kMembers =
    "ComboSICOM;255;-A3----;00FF;RX=0A TX=03 M=FF|ComboTk500(1);0;-A3----;00FF;RX=0A TX=03 M=00|"
    "ComboTk500(1);1;-55----;00FF;RX=05 TX=05 M=01|ComboTE2200(1);0;-A3----;00FF;RX=0A TX=03 M=00|"
    "ComboTE2200(1);1;-55----;00FF;RX=05 TX=05 M=01|ComboTEC(1);0;-83----;00FF;RX=08 TX=03 M=00|"
    "ComboTEC(1);1;-22----;00FF;RX=02 TX=02 M=01|OpDYWAYE;1;-A3----;00FF;RX=0A TX=03 M=01|"
    "OpDYWAYE;2;-33----;00FF;RX=03 TX=03 M=02|OpSHARPUP600;0;-A3----;00FF;RX=0A TX=03 M=00|"
    "OpSHARPUP600;1;-33----;00FF;RX=03 TX=03 M=01|"
    "ComboPana(1);0;-33--1-;10FF;RX=03 TX=01 M=00 TIMESTAMP_ENA=00|"
    "ComboPana(1);1;-33--0-;00EF;RX=03 TX=03 M=01 TIMESTAMP_ENA=00|"
    "ComboWoring;0;-21--1-;10FF;RX=02 TX=01 M=00 TIMESTAMP_ENA=00|"
    "ComboWoring;1;-22--0-;00EF;RX=02 TX=02 M=01 TIMESTAMP_ENA=00|"
    "OpMicrelec;2;-5110--;03FB;RX=04 TX=01 UNITADDR=02 M=00|"
    "OpMicrelec9500;3;-3100--;00F8;RX=03 TX=01 UNITADDR=03 M=01|"
    "ComboTCI_ID(0);0;00101--;04FC;IOCFG_BAK=0E RX=00 TX=01 TCIADDBAK_3=00|"
    "ComboTCI_ID(1);7;00101--;04FC;IOCFG_BAK=0E RX=00 TX=01 TCIADDBAK_2=07|"
    "ComboTCI_ID(2);9;00101--;04FC;IOCFG_BAK=0E RX=00 TX=01 TCIADDBAK_1=09|"
    "ComboUNI_ID(1);4;-------;00FF;TCIADDBAK_2=04|POSOP;1;1A3----;00FF;IOCFG_BAK=1D RX=0A TX=03 M=00 X=01|"
    "TEROP;7;033----;00FF;IOCFG_BAK=0E RX=03 TX=03 M=01 E=00 X=07|"
    "PRNOP;1;0A3----;00FF;IOCFG_BAK=0E RX=0A TX=03 M=01 E=01 X=01|"
    "SECUOP;0;0A3----;00FF;IOCFG_BAK=0E RX=0A TX=03 M=01 E=02|"
    "ComboTITLEDIP;1;------1;00FF;GTITLE_NF_BAK=01 DSPCFG_BAK=FE|"
    "ComboTITLEDIP;0;------0;00FF;GTITLE_NF_BAK=00";

std::string Forced(Installed& program) {
  constexpr std::string_view kPlaces = "-0123456789A";
  std::string places;
  for (const char* list : kForced) places += kPlaces.at(static_cast<std::size_t>(program.Selected(list) + 1));
  return places;
}

TEST(OptionMembers, SomeForceTheLineThatTheirProtocolDictates) {
  Installed program(kLatest);
  program.Pick("ComboDIP(1)", 6);  // lines enough for a title
  auto& flags = program.app.image[F::COMMCFG_BAK];
  for (const auto& row : Split(kMembers, '|')) {
    SCOPED_TRACE(row);
    const auto cells = Split(row, ';');
    std::string flags_after;
    program.Reveal(cells[0]);
    for (const char* before : {"00", "FF"}) {
      for (const char* list : kForced) program.ListOf(list).position = -1;
      program.Fill("EE", {{F::COMMCFG_BAK, before}});
      ASSERT_EQ(program.Pick(cells[0], codecs::LeadingNumber(cells[1])), core::Outcome::kDone);
      flags_after += std::exchange(flags, before);
      EXPECT_EQ(Forced(program) + ";" + program.Written(), cells[2] + ";" + cells[4]);
    }
    EXPECT_EQ(flags_after, cells[3]);
  }
  Installed other({"V1310", "R1"});  // AUTO is 8 there
  for (const char* control :
       {"ComboSICOM", "ComboTk500(1)", "ComboTE2200(1)", "ComboTEC(1)", "OpDYWAYE", "OpSHARPUP600"})
    EXPECT_EQ(other.Effect(control, 0), "RX=08 TX=03 M=00") << control;
}

TEST(OptionMembers, TheTargetDependsOnTheFirmware) {
  for (const auto& firmware : EveryFirmware()) {
    Installed program(firmware, Images::kFirstRegister);
    const int release = firmware.Number();
    const bool v1300 = firmware.version == "V1300", v1400 = firmware.IsV1400();
    // The tenth model of SHARP came later and took the code 5 from its neighbours.
    const bool first_sharp = (v1300 && release < 26) || (firmware.version == "V1324" && release < 25);
    const std::tuple<const char*, int, std::string> rows[] = {
        {"OpNIXDORF", 2, release < 7 ? "M" : "X"},
        {"OpRI_QT2", 11, v1400 && release >= 7 ? "X" : "M"},
        {"OpSharp", 10, v1400 ? "" : "M"},
        {"OpGilbraco", 6, v1300 || firmware.version == "V1310" ? "M" : ""}};
    for (const auto& [control, choices, field] : rows) {
      SCOPED_TRACE(control);
      program.Reveal(control);
      for (int element = 0; element < choices; ++element) {
        const bool coded = choices == 10 && !first_sharp && element >= 5;
        const int code = !coded ? element : element == 9 ? 5 : element + 1;
        EXPECT_EQ(program.Effect(control, element),
                  field.empty() ? "" : field + "=" + codecs::ByteToHex(code));
      }
    }
  }
}

// A choice, and what it brings along of the other controls of its frame: "!" is hidden. The last that is
// shown takes the position X.
constexpr const char* kBringers[] = {
    "V1400R12|IBMOP 8 !RDSCombo !IBMCombo !Label82(0) IBMFrame Combo4610TF6|"
    "IBMOP 0 !RDSCombo !Combo4610TF6 IBMFrame Label82(0) IBMCombo|"
    "IBMOP 8 !RDSCombo !IBMCombo !Label82(0) IBMFrame Combo4610TF6|"
    "IBMOP 4 !IBMCombo !Combo4610TF6 IBMFrame Label82(0) RDSCombo|"
    "IBMOP 1 !IBMFrame !RDSCombo !IBMCombo !Combo4610TF6|IBMOP 0 IBMFrame IBMCombo|IBMOP 7 !IBMFrame|"
    "ICLOP 1 !POS2000 POS5000 POS50OP|ICLOP 0 !POS5000 POS2000 TEAMOP|NCROP 1 NCRFrame JRNLRCPT_SLP_OP|"
    "NCROP 0 !NCRFrame|NCROP 1 NCRFrame JRNLRCPT_SLP_OP|NCROP 11 !NCRFrame|"
    "NIXDORF14OP 1 !BEETLEFrm NIXDORFrm NIXDORF14OPSelect|NIXDORF14OP 0 !NIXDORFrm BEETLEFrm BEETLEOp",
    // The XML format needs a board that other firmware lack.
    "V1300R27|OpGilbraco 5 Label84 Label85 ComboXML|OpGilbraco 4 !Label84 !Label85 !ComboXML",
    "V1310R1|OpGilbraco 5 Label84 Label85 ComboXML|OpGilbraco 4 !Label84 !Label85 !ComboXML",
    "V1300R26|OpGilbraco 5 !Label84 !Label85 !ComboXML"};

void ExpectSeen(Installed& program, std::span<const std::string> controls) {
  for (const auto& control : controls) {
    const bool hidden = control[0] == '!';
    EXPECT_EQ(program.Control(control.substr(hidden ? 1 : 0)).visible, !hidden) << control;
  }
}

TEST(OptionMembers, AChoiceBringsTheControlsOfItsModelAlong) {
  for (const auto* bringers : kBringers) {
    const auto [firmware, rows] = FirmwareAndRows(bringers, '|');
    Installed program(firmware, Images::kFirstRegister);
    for (const auto& row : rows) {
      SCOPED_TRACE(row);
      const auto words = Split(row, ' ');
      const int position = codecs::LeadingNumber(words[1]);
      program.Reveal(words[0]);
      for (const int stored : {0, 1, 0xEE}) {  // no list has the last
        EXPECT_EQ(program.Effect(words[0], position, {{F::REGTYPE_EXT2, codecs::ByteToHex(stored)}}),
                  "M=" + codecs::ByteToHex(position));
        ExpectSeen(program, std::span(words).subspan(2));
        const auto& member = words.back();
        EXPECT_TRUE(member[0] == '!' || program.Selected(member) == std::min(stored, 1)) << stored;
      }
    }
  }
}

TEST(OptionMembers, APickOfTheRegisterShowsOrHidesAFrameInsideWhateverTheModel) {
  Installed program(kLatest);
  for (const auto& [name, frames] : {std::pair{"ICL", "POS2000 POS5000"},
                                     {"NCR", "!NCRFrame"},
                                     {"NIXDORF", "BEETLEFrm NIXDORFrm"},
                                     {"IBM", "!IBMFrame"}}) {
    program.SetByte(name, program.Minor(), "01");
    ASSERT_EQ(program.Register(name), core::Outcome::kDone);
    EXPECT_NE(program.Frames(), "") << name;
    ExpectSeen(program, Split(frames, ' '));
  }
}

TEST(OptionMembers, SomeUniwellModelsShowTheSecondFrame) {
  Installed program(kLatest);
  program.Register("UNIWELL");
  std::string with_second;
  for (int model = 0; model < 13; ++model) {
    EXPECT_EQ(program.Effect("UNIWOP", model), "M=" + codecs::ByteToHex(model));
    if (program.Frames() == "49 18") with_second += " " + std::to_string(model);
  }
  EXPECT_EQ(with_second, " 1 2 6 7 10");
  program.SetByte("UNIWELL", program.Minor(), "01");
  program.SetByte("UNIWELL", program.Ext2(), "02");  // the list lacks it
  program.Register("UNIWELL");
  EXPECT_EQ(program.Frames(), "");
}

TEST(OptionMembers, ArraysOfOneFrameExcludeEachOther) {
  Installed program(kLatest);
  for (const auto& frame : {"POSOP TEROP PRNOP SECUOP", "OpMicrelec OpMicrelec9500"}) {
    for (const auto& chosen : Split(frame, ' ')) {
      ASSERT_EQ(program.Pick(chosen, 0), core::Outcome::kDone);
      for (const auto& name : Split(frame, ' '))
        EXPECT_EQ(program.Selected(name), name == chosen ? 0 : -1) << chosen << name;
    }
  }
}

}  // namespace
}  // namespace ovl::testing
