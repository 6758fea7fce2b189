// What a choice in an option frame writes, which selections it forces, and what else it shows.
#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <vector>

#include "support/installed.h"

namespace ovl::testing {
namespace {

constexpr int kAuto = 99;  // wherever the firmware's speed list has "AUTO"
constexpr const char* kM = "REGTYPE_MINOR";
constexpr const char* kX = "REGTYPE_EXT2";

int AutoOf(const FirmwareId& firmware) {
  return firmware.IsV1400() ? 10 : 8;
}

std::string WithAuto(std::string text, const FirmwareId& firmware) {
  if (const auto place = text.find("AUTO"); place != std::string::npos) {
    text.replace(place, 4, ByteToHex(AutoOf(firmware)));
  }
  return text;
}

struct PlainMember {
  const char* control;
  const char* field;
  int choices;
};

constexpr PlainMember kPlain[] = {
    {"BleepOP", kM, 2},
    {"DIGIOP", kM, 4},
    {"FUJIOP", kM, 2},
    {"GELLEROP", kM, 17},
    {"JCMOp", kM, 4},
    {"OpA410", kM, 4},
    {"OpBEETLE", kM, 2},
    {"OpDelta", kM, 4},
    {"OpEDA", kM, 2},
    {"OpNCR", kM, 7},
    {"OpNUCP", kM, 3},
    {"OpPoleDisplay", kM, 2},
    {"OpSun", kM, 2},
    {"OpVerifone", kM, 4},
    {"OpVWEIGHBRIDGE", kM, 2},
    {"OpWEIGHS", kM, 9},
    {"SamOP", kM, 14},
    {"ComboAddress", kM, 256},
    {"ComboAddr", kM, 17},
    {"ComboDisplay", kM, 2},
    {"ComboDeviceADD", kM, 18},
    {"ComboDIPMIXED", kM, 3},
    {"ComboNE134", kM, 256},
    {"ComboUni", kM, 2},
    {"BEETLEOp", kX, 2},
    {"JRNLRCPT_SLP_OP", kX, 3},
    {"NIXDORF14OPSelect", kX, 2},
    {"POS50OP", kX, 2},
    {"TEAMOP", kX, 2},
    {"TEAMPOSOP", kX, 2},
    {"Combo1", kX, 2},
    {"Combo4610TF6", kX, 2},
    {"IBMCombo", kX, 3},
    {"RDSCombo", kX, 2},
    {"ST6105C", kX, 2},
    {"ComboUniFor14R7up", kX, 2},
    {"ComboXML", kX, 2},
    {"ComboCLARITYEPOS", "UNITADDR", 256},
    {"ComboDeviceGas", "GTITLE_NF_BAK", 3},
    {"ComboPana(0)", "GTITLE_NF_BAK", 2},
    {"ComboCONSOLEID", "DV_ADDRIND_BAK", 9},
};

TEST(OptionMembers, APlainOneWritesItsPositionToOneByteAndNothingElse) {
  for (const FirmwareId& firmware : {FirmwareId{"V1400", "R12"}, {"V1324", "R26"}}) {
    Installed program(firmware);
    ASSERT_EQ(program.Start(), Outcome::kDone);
    ASSERT_EQ(program.Register("SCHLUMBERGER"), Outcome::kDone);
    for (const auto& member : kPlain) {
      SCOPED_TRACE(firmware.Joined() + " " + member.control);
      program.Reveal(member.control);
      for (int position = 0; position < member.choices; ++position) {
        program.Fill(position == 0xEE ? "11" : "EE");
        ASSERT_EQ(program.Pick(member.control, position), Outcome::kDone);
        EXPECT_EQ(program.Written(), std::string(member.field) + "=" + ByteToHex(position));
      }
      program.Mark();
      EXPECT_EQ(program.Pick(member.control, member.choices), Outcome::kRefused);
      EXPECT_EQ(program.Written(), "");
    }
  }
}

// The line flags are a row of bits, so what they become is told for none and for all of them set before.
struct Member {
  const char* control;
  int position;
  const char* written;
  std::array<int, 5> line;  // ComboCOMM(0) to ComboCOMM(4); -1: left alone
  const char* flags_from_00 = "00";
  const char* flags_from_FF = "FF";
  int report = -1;  // ComboExcepRe(0)
};

// Puts every selection that is to be forced to another position first, so that the force shows.
void Disarrange(Installed& program, const Member& row) {
  for (std::size_t member = 0; member < row.line.size(); ++member) {
    if (row.line[member] >= 0) {
      program.Pick("ComboCOMM(" + std::to_string(member) + ")", row.line[member] == 0 ? 1 : 0);
    }
  }
  if (row.report >= 0) program.Pick("ComboExcepRe(0)", 1 - row.report);
}

void ExpectMember(Installed& program, const FirmwareId& firmware, const Member& row) {
  SCOPED_TRACE(firmware.Joined() + " " + row.control + " " + std::to_string(row.position));
  program.Reveal(row.control);
  for (const char* flags : {"00", "FF"}) {
    Disarrange(program, row);
    program.Fill("EE");
    program.app.image[FieldId::COMMCFG_BAK] = flags;
    program.Mark();
    ASSERT_EQ(program.Pick(row.control, row.position), Outcome::kDone);
    const auto& form = program.app.frmMain;
    EXPECT_EQ(program.app.image[FieldId::COMMCFG_BAK],
              flags == std::string_view("00") ? row.flags_from_00 : row.flags_from_FF);
    program.app.image[FieldId::COMMCFG_BAK] = flags;
    EXPECT_EQ(program.Written(), WithAuto(row.written, firmware));
    for (std::size_t member = 0; member < row.line.size(); ++member) {
      if (row.line[member] < 0) continue;
      EXPECT_EQ(form.ComboCOMM[member].position,
                row.line[member] == kAuto ? AutoOf(firmware) : row.line[member])
          << "ComboCOMM(" << member << ")";
    }
    if (row.report >= 0) {
      EXPECT_EQ(form.ComboExcepRe[0].position, row.report);
    }
  }
}

TEST(OptionMembers, ForceTheLineThatTheirProtocolDictates) {
  const char* tap = "RX_BAUDRATE=AUTO TX_BAUDRATE=03 REGTYPE_MINOR=00";
  const char* fast = "RX_BAUDRATE=05 TX_BAUDRATE=05 REGTYPE_MINOR=01";
  const std::array<int, 5> automatic = {-1, kAuto, 3, -1, -1}, both9600 = {-1, 3, 3, -1, -1},
                           both19200 = {-1, 5, 5, -1, -1}, terminal = {0, 0, 1, 0, 1},
                           none = {-1, -1, -1, -1, -1};
  const Member rows[] = {
      {"ComboSICOM", 0, tap, automatic},
      {"ComboSICOM", 255, "RX_BAUDRATE=AUTO TX_BAUDRATE=03 REGTYPE_MINOR=FF", automatic},
      {"ComboTk500(0)", 0, "", none},
      {"ComboTE2200(0)", 0, "", none},
      {"ComboTEC(0)", 0, "", none},
      {"ComboTk500(1)", 0, tap, automatic},
      {"ComboTk500(1)", 1, fast, both19200},
      {"ComboTE2200(1)", 0, tap, automatic},
      {"ComboTE2200(1)", 1, fast, both19200},
      {"ComboTEC(1)", 0, "RX_BAUDRATE=08 TX_BAUDRATE=03 REGTYPE_MINOR=00", {-1, 8, 3, -1, -1}},
      {"ComboTEC(1)", 1, "RX_BAUDRATE=02 TX_BAUDRATE=02 REGTYPE_MINOR=01", {-1, 2, 2, -1, -1}},
      {"OpDYWAYE", 0, tap, automatic},
      {"OpDYWAYE", 1, "RX_BAUDRATE=AUTO TX_BAUDRATE=03 REGTYPE_MINOR=01", automatic},
      {"OpDYWAYE", 2, "RX_BAUDRATE=03 TX_BAUDRATE=03 REGTYPE_MINOR=02", both9600},
      {"OpDYWAYE", 9, "RX_BAUDRATE=03 TX_BAUDRATE=03 REGTYPE_MINOR=09", both9600},
      {"OpSHARPUP600", 0, tap, automatic},
      {"OpSHARPUP600", 1, "RX_BAUDRATE=03 TX_BAUDRATE=03 REGTYPE_MINOR=01", both9600},
      {"ComboPana(1)", 0, "RX_BAUDRATE=03 TX_BAUDRATE=01 REGTYPE_MINOR=00 TIMESTAMP_ENA=00", both9600, "10",
       "FF", 1},
      {"ComboPana(1)", 1, "RX_BAUDRATE=03 TX_BAUDRATE=03 REGTYPE_MINOR=01 TIMESTAMP_ENA=00", both9600, "00",
       "EF", 0},
      {"ComboWoring",
       0,
       "RX_BAUDRATE=02 TX_BAUDRATE=01 REGTYPE_MINOR=00 TIMESTAMP_ENA=00",
       {-1, 2, 1, -1, -1},
       "10",
       "FF",
       1},
      {"ComboWoring",
       1,
       "RX_BAUDRATE=02 TX_BAUDRATE=02 REGTYPE_MINOR=01 TIMESTAMP_ENA=00",
       {-1, 2, 2, -1, -1},
       "00",
       "EF",
       0},
      {"OpMicrelec",
       0,
       "RX_BAUDRATE=04 TX_BAUDRATE=01 UNITADDR=00 REGTYPE_MINOR=00",
       {-1, 5, 1, 1, 0},
       "03",
       "FB"},
      {"OpMicrelec",
       2,
       "RX_BAUDRATE=04 TX_BAUDRATE=01 UNITADDR=02 REGTYPE_MINOR=00",
       {-1, 5, 1, 1, 0},
       "03",
       "FB"},
      {"OpMicrelec9500",
       3,
       "RX_BAUDRATE=03 TX_BAUDRATE=01 UNITADDR=03 REGTYPE_MINOR=01",
       {-1, 3, 1, 0, 0},
       "00",
       "F8"},
      {"ComboTCI_ID(0)", 0, "IOCFG_BAK=0E RX_BAUDRATE=00 TX_BAUDRATE=01 TCIADDBAK_3=00", terminal, "04",
       "FC"},
      {"ComboTCI_ID(1)", 7, "IOCFG_BAK=0E RX_BAUDRATE=00 TX_BAUDRATE=01 TCIADDBAK_2=07", terminal, "04",
       "FC"},
      {"ComboTCI_ID(2)", 9, "IOCFG_BAK=0E RX_BAUDRATE=00 TX_BAUDRATE=01 TCIADDBAK_1=09", terminal, "04",
       "FC"},
      {"ComboUNI_ID(0)", 0, "TCIADDBAK_3=00", none},
      {"ComboUNI_ID(1)", 4, "TCIADDBAK_2=04", none},
      {"ComboUNI_ID(2)", 9, "TCIADDBAK_1=09", none},
  };
  const Member only_v1400[] = {
      {"POSOP",
       1,
       "IOCFG_BAK=1D RX_BAUDRATE=0A TX_BAUDRATE=03 REGTYPE_MINOR=00 REGTYPE_EXT2=01",
       {1, 10, 3, -1, -1}},
      {"TEROP",
       7,
       "IOCFG_BAK=0E RX_BAUDRATE=03 TX_BAUDRATE=03 REGTYPE_MINOR=01 REGTYPE_EXT1=00 REGTYPE_EXT2=07",
       {0, 3, 3, -1, -1}},
      {"PRNOP",
       1,
       "IOCFG_BAK=0E RX_BAUDRATE=0A TX_BAUDRATE=03 REGTYPE_MINOR=01 REGTYPE_EXT1=01 REGTYPE_EXT2=01",
       {0, 10, 3, -1, -1}},
      {"SECUOP",
       0,
       "IOCFG_BAK=0E RX_BAUDRATE=0A TX_BAUDRATE=03 REGTYPE_MINOR=01 REGTYPE_EXT1=02",
       {0, 10, 3, -1, -1}},
  };
  for (const FirmwareId& firmware : {FirmwareId{"V1400", "R12"}, {"V1300", "R27"}, {"V1310", "R1"}}) {
    Installed program(firmware);
    ASSERT_EQ(program.Start(), Outcome::kDone);
    for (const auto& row : rows) ExpectMember(program, firmware, row);
    if (!firmware.IsV1400()) continue;
    for (const auto& row : only_v1400) ExpectMember(program, firmware, row);
  }
}

TEST(OptionMembers, TheTitleSwitchTakesTheTitlerAlong) {
  for (const FirmwareId& firmware : {FirmwareId{"V1400", "R12"}, {"V1300", "R14"}}) {
    Installed program(firmware);
    ASSERT_EQ(program.Start(), Outcome::kDone);
    ASSERT_EQ(program.Register("NORAND 1200"), Outcome::kDone);
    program.Pick("ComboDIP(1)", 6);
    program.Pick("ComboTD(5)", 0);
    program.Fill("EE");
    ASSERT_EQ(program.Pick("ComboTITLEDIP", 1), Outcome::kDone);
    EXPECT_EQ(program.Written(), "GTITLE_NF_BAK=01 DSPCFG_BAK=FE");
    EXPECT_EQ(program.app.frmMain.ComboTD[5].position, 1);
    ASSERT_EQ(program.Pick("ComboTITLEDIP", 0), Outcome::kDone);
    EXPECT_EQ(program.Written(), "GTITLE_NF_BAK=00");
    EXPECT_EQ(program.app.frmMain.ComboTD[5].position, 0);
  }
}

TEST(OptionMembers, TheTargetDependsOnTheFirmware) {
  struct Row {
    FirmwareId firmware;
    const char* control;
    const char* field;  // nullptr: nothing is written
    std::vector<int> codes;
  };
  const std::vector<int> two = {0, 1}, eleven = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, six = {0, 1, 2, 3, 4, 5};
  const std::vector<int> sharp = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, sharp_late = {0, 1, 2, 3, 4, 6, 7, 8, 9, 5};
  const Row rows[] = {
      {{"V1400", "R4"}, "OpSharp", nullptr, sharp},   {{"V1400", "R6"}, "OpNIXDORF", kM, two},
      {{"V1400", "R6"}, "OpRI_QT2", kM, eleven},      {{"V1400", "R6"}, "OpGilbraco", nullptr, six},
      {{"V1400", "R7"}, "OpNIXDORF", kX, two},        {{"V1400", "R7"}, "OpRI_QT2", kX, eleven},
      {{"V1400", "R12"}, "OpSharp", nullptr, sharp},  {{"V1400", "R12"}, "OpGilbraco", nullptr, six},
      {{"V1300", "R23"}, "OpSharp", kM, sharp},       {{"V1300", "R26"}, "OpSharp", kM, sharp_late},
      {{"V1300", "R26"}, "OpGilbraco", kM, six},      {{"V1300", "R27"}, "OpGilbraco", kM, six},
      {{"V1300", "R27"}, "OpRI_QT2", kM, eleven},     {{"V1310", "R1"}, "OpRI_QT2", kM, eleven},
      {{"V1310", "R1"}, "OpSharp", kM, sharp_late},   {{"V1310", "R1"}, "OpGilbraco", kM, six},
      {{"V1324", "R24"}, "OpSharp", kM, sharp},       {{"V1324", "R24"}, "OpNIXDORF", kX, two},
      {{"V1324", "R25"}, "OpSharp", kM, sharp_late},  {{"V1324", "R25"}, "OpRI_QT2", kM, eleven},
      {{"V1324", "R25"}, "OpGilbraco", nullptr, six}, {{"V1334", "R1"}, "OpNIXDORF", kM, two},
      {{"V1334", "R1"}, "OpRI_QT2", kM, eleven},      {{"V1334", "R1"}, "OpSharp", kM, sharp_late},
      {{"V1334", "R1"}, "OpGilbraco", nullptr, six},
  };
  std::optional<Installed> program;
  for (const auto& row : rows) {
    if (!program || !(program->app.firmware == row.firmware)) {
      program.emplace(row.firmware);
      ASSERT_EQ(program->Start(), Outcome::kDone);
    }
    program->Reveal(row.control);
    for (std::size_t element = 0; element < row.codes.size(); ++element) {
      SCOPED_TRACE(row.firmware.Joined() + " " + row.control + " " + std::to_string(element));
      program->Fill("EE");
      ASSERT_EQ(program->Pick(row.control, static_cast<int>(element)), Outcome::kDone);
      EXPECT_EQ(program->Written(),
                row.field == nullptr ? "" : std::string(row.field) + "=" + ByteToHex(row.codes[element]));
    }
  }
}

TEST(OptionMembers, TheXmlChoiceIsOfferedForItsProtocolAlone) {
  for (const FirmwareId& firmware : {FirmwareId{"V1300", "R27"}, {"V1310", "R1"}}) {
    SCOPED_TRACE(firmware.Joined());
    Installed program(firmware);
    ASSERT_EQ(program.Start(), Outcome::kDone);
    ASSERT_EQ(program.Register("GILBARCO"), Outcome::kDone);
    const auto expect_xml = [&](bool shown) {
      for (const char* name : {"Label84", "Label85", "ComboXML"}) {
        EXPECT_EQ(program.Control(name).visible, shown) << name;
      }
    };
    program.Fill("EE");
    program.app.image[FieldId::REGTYPE_EXT2] = "01";
    program.Mark();
    program.Pick("OpGilbraco", 5);
    EXPECT_EQ(program.Written(), "REGTYPE_MINOR=05");
    EXPECT_EQ(program.ListOf("ComboXML").position, 1);
    EXPECT_EQ(program.Control("Label84").caption, "DESCRIPTION/XML");
    EXPECT_EQ(program.Control("Label85").caption, "*** MAKE SURE HAVE UART DAUGHTER BOARD INSTALLED ***");
    expect_xml(true);
    program.Pick("OpGilbraco", 4);
    expect_xml(false);

    program.Fill("EE");
    program.Pick("OpGilbraco", 5);
    EXPECT_EQ(program.Written(), "REGTYPE_MINOR=05");
    EXPECT_EQ(program.ListOf("ComboXML").position, 1) << "a stored byte that the list lacks";
    expect_xml(true);
  }
}

// A choice that brings other controls of its frame along: `member`, if there is one, takes the position X.
struct Bringer {
  const char* control;
  int position;
  const char* member;
  std::vector<const char*> shown, hidden;
};

TEST(OptionMembers, AChoiceBringsTheControlsOfItsModelAlong) {
  const Bringer rows[] = {
      {"IBMOP", 8, "Combo4610TF6", {"IBMFrame", "Combo4610TF6"}, {"RDSCombo", "IBMCombo", "Label82(0)"}},
      {"IBMOP", 0, "IBMCombo", {"IBMFrame", "IBMCombo", "Label82(0)"}, {"RDSCombo", "Combo4610TF6"}},
      {"IBMOP", 8, "Combo4610TF6", {"IBMFrame", "Combo4610TF6"}, {"RDSCombo", "IBMCombo", "Label82(0)"}},
      {"IBMOP", 4, "RDSCombo", {"IBMFrame", "RDSCombo", "Label82(0)"}, {"IBMCombo", "Combo4610TF6"}},
      {"IBMOP", 1, nullptr, {}, {"IBMFrame", "RDSCombo", "IBMCombo", "Combo4610TF6"}},
      {"IBMOP", 0, "IBMCombo", {"IBMFrame", "IBMCombo"}, {"RDSCombo", "Combo4610TF6"}},
      {"IBMOP", 7, nullptr, {}, {"IBMFrame"}},
      {"ICLOP", 1, "POS50OP", {"POS5000"}, {"POS2000"}},
      {"ICLOP", 0, "TEAMOP", {"POS2000"}, {"POS5000"}},
      {"NCROP", 1, "JRNLRCPT_SLP_OP", {"NCRFrame"}, {}},
      {"NCROP", 0, nullptr, {}, {"NCRFrame"}},
      {"NCROP", 11, nullptr, {}, {"NCRFrame"}},
      {"NIXDORF14OP", 1, "NIXDORF14OPSelect", {"NIXDORFrm"}, {"BEETLEFrm"}},
      {"NIXDORF14OP", 0, "BEETLEOp", {"BEETLEFrm"}, {"NIXDORFrm"}},
  };
  Installed program({"V1400", "R12"});
  ASSERT_EQ(program.Start(), Outcome::kDone);
  for (const auto& row : rows) {
    program.Reveal(row.control);
    for (const char* stored : {"00", "01", "EE"}) {
      SCOPED_TRACE(std::string(row.control) + " " + std::to_string(row.position) + " X " + stored);
      program.Fill("EE");
      program.app.image[FieldId::REGTYPE_EXT2] = stored;
      program.Mark();
      ASSERT_EQ(program.Pick(row.control, row.position), Outcome::kDone);
      EXPECT_EQ(program.Written(), "REGTYPE_MINOR=" + ByteToHex(row.position));
      for (const char* name : row.shown) EXPECT_TRUE(program.Control(name).visible) << name;
      for (const char* name : row.hidden) EXPECT_FALSE(program.Control(name).visible) << name;
      if (row.member == nullptr || stored == std::string_view("EE")) continue;
      const auto& control = program.app.registry.Find(row.member)->control;
      const auto* list = std::get_if<List*>(&control);
      EXPECT_EQ(list != nullptr ? (*list)->position : program.ArrayOf(row.member).chosen, HexToInt(stored));
    }
  }
}

TEST(OptionMembers, UniwellModelsWithATerminalNumberShowTheSecondFrame) {
  Installed program({"V1400", "R7"});
  ASSERT_EQ(program.Start(), Outcome::kDone);
  ASSERT_EQ(program.Register("UNIWELL"), Outcome::kDone);
  const std::vector<bool> second = {false, true,  true,  false, false, false, true,
                                    true,  false, false, true,  false, false};
  for (std::size_t model = 0; model < second.size(); ++model) {
    program.Fill("EE");
    ASSERT_EQ(program.Pick("UNIWOP", static_cast<int>(model)), Outcome::kDone);
    EXPECT_EQ(program.Written(), "REGTYPE_MINOR=" + ByteToHex(static_cast<int>(model)));
    EXPECT_EQ(program.Control("frmAddress(18)").visible, second[model]) << model;
    EXPECT_TRUE(program.Control("frmAddress(49)").visible);
  }
}

TEST(OptionMembers, ArraysOfOneFrameExcludeEachOther) {
  const std::vector<std::vector<const char*>> frames = {{"POSOP", "TEROP", "PRNOP", "SECUOP"},
                                                        {"OpMicrelec", "OpMicrelec9500"}};
  Installed program({"V1400", "R12"});
  ASSERT_EQ(program.Start(), Outcome::kDone);
  for (const auto& frame : frames) {
    for (const char* chosen : frame) {
      ASSERT_EQ(program.Pick(chosen, 0), Outcome::kDone);
      for (const char* name : frame) {
        EXPECT_EQ(program.ArrayOf(name).chosen, name == std::string_view(chosen) ? 0 : -1) << chosen << name;
      }
    }
  }
}

}  // namespace
}  // namespace ovl::testing
