// What a choice in an option frame writes, which selections it forces, and what else it shows.
#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <vector>

#include "catalogue/firmware.h"
#include "support/installed.h"

namespace ovl::testing {
namespace {

std::vector<FirmwareId> EveryFirmware() {
  std::vector<FirmwareId> firmware;
  for (const auto& entry : FirmwareTable()) {
    if (entry.in_menu) firmware.push_back({std::string(entry.version), std::string(entry.release)});
  }
  return firmware;
}

TEST(OptionMembers, APlainOneWritesItsPositionToOneByteAndNothingElse) {
  const std::pair<const char*, const char*> members[] = {
      {"M",
       "BleepOP 2 DIGIOP 4 FUJIOP 2 GELLEROP 17 JCMOp 4 OpA410 4 OpBEETLE 2 OpDelta 4 OpEDA 2 OpNCR 7 OpNUCP "
       "3 "
       "OpPoleDisplay 2 OpSun 2 OpVerifone 4 OpVWEIGHBRIDGE 2 OpWEIGHS 9 SamOP 14 ComboAddress 256 ComboAddr "
       "17 "
       "ComboDisplay 2 ComboDeviceADD 18 ComboDIPMIXED 3 ComboNE134 256 ComboUni 2"},
      {"X",
       "BEETLEOp 2 JRNLRCPT_SLP_OP 3 NIXDORF14OPSelect 2 POS50OP 2 TEAMOP 2 TEAMPOSOP 2 Combo1 2 "
       "Combo4610TF6 2 "
       "IBMCombo 3 RDSCombo 2 ST6105C 2 ComboUniFor14R7up 2 ComboXML 2"},
      {"UNITADDR", "ComboCLARITYEPOS 256"},
      {"GTITLE_NF_BAK", "ComboDeviceGas 3 ComboPana(0) 2"},
      {"DV_ADDRIND_BAK", "ComboCONSOLEID 9"},
  };
  for (const auto& firmware : EveryFirmware()) {
    Installed program(firmware, Images::kFirstRegister);
    program.ListOf("ComboDIPMIXED").items = {"RECEIPT", "JOURNAL", "MIXED"};
    for (const auto& [field, controls] : members) {
      std::istringstream list(controls);
      std::string control;
      for (int choices = 0; list >> control >> choices;) {
        SCOPED_TRACE(firmware.Joined() + " " + control);
        program.Reveal(control);
        for (int position = 0; position < choices; ++position) {
          program.Fill(position == 0xEE ? "11" : "EE");
          ASSERT_EQ(program.Pick(control, position), Outcome::kDone);
          EXPECT_EQ(program.Written(), field + ("=" + ByteToHex(position)));
        }
        EXPECT_EQ(program.Effect(control, choices), "refused");
      }
    }
  }
}

// The line flags are a row of bits, so what they become is told for none and for all of them set before.
struct Member {
  const char* control;
  int position;
  const char* written;           // AUTO: the code of that speed in the firmware
  const char* forced = "-----";  // ComboCOMM(0) to ComboCOMM(4): the position, "A" for AUTO, "-" left alone
  const char *flags_from_00 = "00", *flags_from_FF = "FF";
  int report = -1;  // ComboExcepRe(0), if forced
};

constexpr Member kMembers[] = {
    {"ComboSICOM", 0, "RX=AUTO TX=03 M=00", "-A3--"},
    {"ComboSICOM", 255, "RX=AUTO TX=03 M=FF", "-A3--"},
    {"ComboTk500(0)", 0, ""},
    {"ComboTk500(1)", 0, "RX=AUTO TX=03 M=00", "-A3--"},
    {"ComboTk500(1)", 1, "RX=05 TX=05 M=01", "-55--"},
    {"ComboTE2200(0)", 0, ""},
    {"ComboTE2200(1)", 0, "RX=AUTO TX=03 M=00", "-A3--"},
    {"ComboTE2200(1)", 1, "RX=05 TX=05 M=01", "-55--"},
    {"ComboTEC(0)", 0, ""},
    {"ComboTEC(1)", 0, "RX=08 TX=03 M=00", "-83--"},
    {"ComboTEC(1)", 1, "RX=02 TX=02 M=01", "-22--"},
    {"OpDYWAYE", 0, "RX=AUTO TX=03 M=00", "-A3--"},
    {"OpDYWAYE", 1, "RX=AUTO TX=03 M=01", "-A3--"},
    {"OpDYWAYE", 2, "RX=03 TX=03 M=02", "-33--"},
    {"OpDYWAYE", 9, "RX=03 TX=03 M=09", "-33--"},
    {"OpSHARPUP600", 0, "RX=AUTO TX=03 M=00", "-A3--"},
    {"OpSHARPUP600", 1, "RX=03 TX=03 M=01", "-33--"},
    {"ComboPana(1)", 0, "RX=03 TX=01 M=00 TIMESTAMP_ENA=00", "-33--", "10", "FF", 1},
    {"ComboPana(1)", 1, "RX=03 TX=03 M=01 TIMESTAMP_ENA=00", "-33--", "00", "EF", 0},
    {"ComboWoring", 0, "RX=02 TX=01 M=00 TIMESTAMP_ENA=00", "-21--", "10", "FF", 1},
    {"ComboWoring", 1, "RX=02 TX=02 M=01 TIMESTAMP_ENA=00", "-22--", "00", "EF", 0},
    {"OpMicrelec", 0, "RX=04 TX=01 UNITADDR=00 M=00", "-5110", "03", "FB"},
    {"OpMicrelec", 2, "RX=04 TX=01 UNITADDR=02 M=00", "-5110", "03", "FB"},
    {"OpMicrelec9500", 3, "RX=03 TX=01 UNITADDR=03 M=01", "-3100", "00", "F8"},
    {"ComboTCI_ID(0)", 0, "IOCFG_BAK=0E RX=00 TX=01 TCIADDBAK_3=00", "00101", "04", "FC"},
    {"ComboTCI_ID(1)", 7, "IOCFG_BAK=0E RX=00 TX=01 TCIADDBAK_2=07", "00101", "04", "FC"},
    {"ComboTCI_ID(2)", 9, "IOCFG_BAK=0E RX=00 TX=01 TCIADDBAK_1=09", "00101", "04", "FC"},
    {"ComboUNI_ID(0)", 0, "TCIADDBAK_3=00"},
    {"ComboUNI_ID(1)", 4, "TCIADDBAK_2=04"},
    {"ComboUNI_ID(2)", 9, "TCIADDBAK_1=09"},
};
constexpr Member kDresserWayneMembers[] = {
    {"POSOP", 1, "IOCFG_BAK=1D RX=0A TX=03 M=00 X=01", "1A3--"},
    {"TEROP", 7, "IOCFG_BAK=0E RX=03 TX=03 M=01 E=00 X=07", "033--"},
    {"PRNOP", 1, "IOCFG_BAK=0E RX=0A TX=03 M=01 E=01 X=01", "0A3--"},
    {"SECUOP", 0, "IOCFG_BAK=0E RX=0A TX=03 M=01 E=02", "0A3--"},
};

void ExpectMember(Installed& program, int automatic, const Member& row) {
  const std::string_view forced = row.forced;
  const auto line = [](std::size_t member) { return "ComboCOMM(" + std::to_string(member) + ")"; };
  program.Reveal(row.control);
  for (const std::string flags : {"00", "FF"}) {
    for (std::size_t member = 0; member < forced.size(); ++member) {
      if (forced[member] != '-') program.Pick(line(member), forced[member] == '0' ? 1 : 0);
    }
    if (row.report >= 0) program.Pick("ComboExcepRe(0)", 1 - row.report);
    program.Fill("EE", {{FieldId::COMMCFG_BAK, flags}});
    ASSERT_EQ(program.Pick(row.control, row.position), Outcome::kDone);
    EXPECT_EQ(program.app.image[FieldId::COMMCFG_BAK], flags == "00" ? row.flags_from_00 : row.flags_from_FF);
    program.app.image[FieldId::COMMCFG_BAK] = flags;
    std::string written = row.written;
    if (const auto place = written.find("AUTO"); place != std::string::npos) {
      written.replace(place, 4, ByteToHex(automatic));
    }
    EXPECT_EQ(program.Written(), written);
    for (std::size_t member = 0; member < forced.size(); ++member) {
      if (forced[member] == '-') continue;
      EXPECT_EQ(program.Selected(line(member)), forced[member] == 'A' ? automatic : forced[member] - '0')
          << line(member);
    }
    EXPECT_TRUE(row.report < 0 || program.Selected("ComboExcepRe(0)") == row.report);
  }
}

// Older firmware have another code for RS-232.
std::string WithInterface(std::string written, const FirmwareId& firmware) {
  const int number = firmware.Number();
  const bool old = firmware.IsV1400() ? number <= 6
                                      : (firmware.version == "V1300" && number < 26) ||
                                            (firmware.version == "V1324" && number < 25);
  const auto place = written.find("IOCFG_BAK=0E");
  if (old && place != std::string::npos) written.replace(place, 12, "IOCFG_BAK=0A");
  return written;
}

TEST(OptionMembers, SomeForceTheLineThatTheirProtocolDictates) {
  for (const auto& firmware : EveryFirmware()) {
    Installed program(firmware);
    for (const auto& row : kMembers) {
      SCOPED_TRACE(firmware.Joined() + " " + row.control + " " + std::to_string(row.position));
      auto of_firmware = row;
      const auto written = WithInterface(row.written, firmware);
      of_firmware.written = written.c_str();
      ExpectMember(program, firmware.IsV1400() ? 10 : 8, of_firmware);
    }
  }
  for (const char* release : {"R7", "R11", "R12"}) {
    Installed program({"V1400", release});
    for (const auto& row : kDresserWayneMembers) {
      SCOPED_TRACE(std::string(release) + " " + row.control);
      ExpectMember(program, 10, row);
    }
  }
}

TEST(OptionMembers, TheTitleSwitchTakesTheTitlerAlong) {
  for (const auto& firmware : EveryFirmware()) {
    SCOPED_TRACE(firmware.Joined());
    Installed program(firmware, Images::kFirstRegister);
    program.Reveal("ComboTITLEDIP");
    program.Pick("ComboDIP(1)", 6);
    program.Pick("ComboTD(5)", 0);
    EXPECT_EQ(program.Effect("ComboTITLEDIP", 1), "GTITLE_NF_BAK=01 DSPCFG_BAK=FE");
    EXPECT_EQ(program.Selected("ComboTD(5)"), 1);
    EXPECT_EQ(program.Effect("ComboTITLEDIP", 0, {{FieldId::DSPCFG_BAK, "FF"}}),
              "GTITLE_NF_BAK=00 DSPCFG_BAK=EF");
    EXPECT_EQ(program.Selected("ComboTD(5)"), 0);
  }
}

// The byte that a member writes in a firmware: none, or its name.
struct Target {
  const char* control;
  int choices;
  std::string field;
  bool sharp_codes = false;  // the tenth model came later and took the code 5 from its neighbours
};

std::vector<Target> TargetsOf(const FirmwareId& firmware) {
  const int release = firmware.Number();
  const bool v1300 = firmware.version == "V1300", v1400 = firmware.IsV1400();
  const bool first_sharp = (v1300 && release < 26) || (firmware.version == "V1324" && release < 25);
  return {
      {"OpNIXDORF", 2, release < 7 ? "M" : "X"},
      {"OpRI_QT2", 11, v1400 && release >= 7 ? "X" : "M"},
      {"OpSharp", 10, v1400 ? "" : "M", !v1400 && !first_sharp},
      {"OpGilbraco", 6, v1300 || firmware.version == "V1310" ? "M" : ""},
  };
}

TEST(OptionMembers, TheTargetDependsOnTheFirmware) {
  for (const auto& firmware : EveryFirmware()) {
    Installed program(firmware, Images::kFirstRegister);
    for (const auto& [control, choices, field, sharp_codes] : TargetsOf(firmware)) {
      SCOPED_TRACE(firmware.Joined() + " " + control);
      program.Reveal(control);
      for (int element = 0; element < choices; ++element) {
        const int moved = element < 5 ? element : (element == 9 ? 5 : element + 1);
        const auto effect = program.Effect(control, element);
        EXPECT_EQ(effect, field.empty() ? "" : field + "=" + ByteToHex(sharp_codes ? moved : element));
      }
    }
  }
}

TEST(OptionMembers, TheXmlChoiceIsOfferedForItsProtocolAlone) {
  for (const FirmwareId& firmware : {FirmwareId{"V1300", "R27"}, {"V1310", "R1"}}) {
    SCOPED_TRACE(firmware.Joined());
    Installed program(firmware);
    ASSERT_EQ(program.Register("GILBARCO"), Outcome::kDone);
    for (const bool xml : {true, false, true}) {
      for (const char* stored : {"01", "EE"}) {  // the list lacks the second
        EXPECT_EQ(program.Effect("OpGilbraco", xml ? 5 : 4, {{FieldId::REGTYPE_EXT2, stored}}),
                  xml ? "M=05" : "M=04");
        EXPECT_EQ(program.Selected("ComboXML"), 1);
        for (const char* name : {"Label84", "Label85", "ComboXML"}) {
          EXPECT_EQ(program.Control(name).visible, xml) << name;
        }
      }
    }
    EXPECT_EQ(program.Control("Label84").caption, "DESCRIPTION/XML");
    EXPECT_EQ(program.Control("Label85").caption, "*** MAKE SURE HAVE UART DAUGHTER BOARD INSTALLED ***");
  }
}

// A choice that brings other controls of its frame along; the member, if there is one, takes the position X.
struct Bringer {
  const char* control;
  int position;
  const char* member;
  std::vector<const char*> shown, hidden;
};

void ExpectBrought(Installed& program, const Bringer& row) {
  program.Reveal(row.control);
  for (const int stored : {0, 1, 0xEE}) {
    EXPECT_EQ(program.Effect(row.control, row.position, {{FieldId::REGTYPE_EXT2, ByteToHex(stored)}}),
              "M=" + ByteToHex(row.position));
    for (const char* name : row.shown) EXPECT_TRUE(program.Control(name).visible) << name;
    for (const char* name : row.hidden) EXPECT_FALSE(program.Control(name).visible) << name;
    EXPECT_TRUE(row.member == nullptr || program.Selected(row.member) == std::min(stored, 1)) << stored;
  }
}

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
  for (const auto& firmware : EveryFirmware()) {
    Installed program(firmware, Images::kFirstRegister);
    for (const auto& row : rows) {
      SCOPED_TRACE(firmware.Joined() + " " + row.control + " " + std::to_string(row.position));
      ExpectBrought(program, row);
    }
  }
}

TEST(OptionMembers, SomeUniwellModelsShowTheSecondFrame) {
  int firmware_with_models = 0;
  for (const auto& firmware : EveryFirmware()) {
    SCOPED_TRACE(firmware.Joined());
    Installed program(firmware);
    if (program.Register("UNIWELL") != Outcome::kDone || program.Frames().rfind("49", 0) != 0) continue;
    ++firmware_with_models;
    for (int model = 0; model < 13; ++model) {
      EXPECT_EQ(program.Effect("UNIWOP", model), "M=" + ByteToHex(model));
      const bool second = model == 1 || model == 2 || model == 6 || model == 7 || model == 10;
      EXPECT_EQ(program.Frames(), second ? "49 18" : "49") << model;
    }
  }
  EXPECT_EQ(firmware_with_models, 3);  // V1400 from R7 on
}

TEST(OptionMembers, ArraysOfOneFrameExcludeEachOther) {
  const std::vector<std::vector<const char*>> frames = {{"POSOP", "TEROP", "PRNOP", "SECUOP"},
                                                        {"OpMicrelec", "OpMicrelec9500"}};
  Installed program({"V1400", "R12"});
  for (const auto& frame : frames) {
    for (const char* chosen : frame) {
      ASSERT_EQ(program.Pick(chosen, 0), Outcome::kDone);
      for (const char* name : frame)
        EXPECT_EQ(program.Selected(name), name == chosen ? 0 : -1) << chosen << name;
    }
  }
}

}  // namespace
}  // namespace ovl::testing
