// What a choice in an option frame writes, which selections it forces, and what else it shows.
#include <gtest/gtest.h>

#include <algorithm>

#include "registers/selection_driver.h"
#include "support/firmware_facts.h"
#include "support/register_facts.h"
#include "unit/registers/register_program.h"

namespace ovl::testing {
namespace {

// A byte without its choice hides the frame.
void ExpectShown(Installed& program, image::FieldId field, const std::string& control) {
  const auto frame = program.Frames();
  const auto* array = std::get_if<controls::OptionArray*>(&program.app.registry.Find(control)->control);
  const auto size = array != nullptr ? (*array)->elements.size() : program.ListOf(control).items.size();
  const int choices = static_cast<int>(size);
  for (const int choice : {choices - 1, choices, 0}) {
    if (choice > 0xFF) continue;
    program.app.image[field] = codecs::ByteToHex(choice);
    registers::ShowRegisterOptions(program.app);
    EXPECT_EQ(program.Frames(), choice == choices ? "" : frame) << choice;
    EXPECT_TRUE(choice == choices || program.Selected(control) == choice) << choice;
  }
}

void ExpectStored(Installed& program, image::FieldId field, const std::string& control, int choices) {
  program.Reveal(control);
  for (int position = 0; position < choices; ++position) {
    program.Fill(position == 0xEE ? "11" : "EE");
    ASSERT_EQ(program.Pick(control, position), core::Outcome::kDone);
    EXPECT_EQ(program.Written(), Installed::NameOf(field) + "=" + codecs::ByteToHex(position));
  }
  EXPECT_EQ(program.Effect(control, choices), "refused");
}

TEST(OptionControls, EachShowsItsByteAndAPlainOneStoresOnlyThat) {
  ProgramForRows programs;
  for (const auto& row : OptionControls()) {
    const auto& [firmware, register_name, plain_choices] = row.example;
    if (firmware.version.empty()) continue;
    auto& program = programs.Of(firmware);
    SCOPED_TRACE(row.name + " of " + register_name);
    if (!register_name.empty()) {
      ASSERT_EQ(program.Register(register_name), core::Outcome::kDone);
      ExpectShown(program, row.fields.at(0), row.name);
    }
    if (plain_choices > 0) ExpectStored(program, row.fields.at(0), row.name, plain_choices);
    EXPECT_TRUE(program.NoBoxLeft());
  }
}

// The positions that a choice forces on other lists. kLeft: the list keeps its position.
struct ForcedPositions {
  static constexpr int kLeft = -1;
  int interface_position = kLeft, receive = kLeft, transmit = kLeft, parity = kLeft, data_bits = kLeft,
      report_output = kLeft, title = kLeft;
};

constexpr ForcedPositions kPanasonicOn = {.receive = 3, .transmit = 3, .report_output = 1};
constexpr ForcedPositions kPanasonicOff = {.receive = 3, .transmit = 3, .report_output = 0};
constexpr ForcedPositions kNorandOn = {.receive = 2, .transmit = 1, .report_output = 1};
constexpr ForcedPositions kNorandOff = {.receive = 2, .transmit = 2, .report_output = 0};
constexpr ForcedPositions kMicrelec = {.receive = 5, .transmit = 1, .parity = 1, .data_bits = 0};
constexpr ForcedPositions kMicrelec9500 = {.receive = 3, .transmit = 1, .parity = 0, .data_bits = 0};
constexpr ForcedPositions kTci = {
    .interface_position = 0, .receive = 0, .transmit = 1, .parity = 0, .data_bits = 1};
constexpr ForcedPositions kWaynePos = {.interface_position = 1, .receive = 10, .transmit = 3};
constexpr ForcedPositions kWayneTerminal = {.interface_position = 0, .receive = 3, .transmit = 3};
constexpr ForcedPositions kWaynePrinter = {.interface_position = 0, .receive = 10, .transmit = 3};

struct ForcingChoice {
  const char* control;
  int position;
  ForcedPositions forced;
  int flags_from_none, flags_from_all;  // COMMCFG_BAK after the pick, if no flag or each flag was set before
  const char* written;
};

constexpr const char* kForcedLists[] = {"ComboCOMM(0)", "ComboCOMM(1)",    "ComboCOMM(2)", "ComboCOMM(3)",
                                        "ComboCOMM(4)", "ComboExcepRe(0)", "ComboTD(5)"};

void ExpectForced(Installed& program, const ForcedPositions& forced) {
  const int positions[] = {forced.interface_position, forced.receive,       forced.transmit, forced.parity,
                           forced.data_bits,          forced.report_output, forced.title};
  for (std::size_t list = 0; list < std::size(kForcedLists); ++list)
    EXPECT_EQ(program.Selected(kForcedLists[list]), positions[list]) << kForcedLists[list];
}

TEST(OptionControls, SomeForceTheLineSettingsOfTheirProtocol) {
  const ForcingChoice rows[] = {
      {"ComboSICOM", 255, {.receive = 10, .transmit = 3}, 0x00, 0xFF, "RX=0A TX=03 MINOR=FF"},
      {"ComboTk500(1)", 0, {.receive = 10, .transmit = 3}, 0x00, 0xFF, "RX=0A TX=03 MINOR=00"},
      {"ComboTk500(1)", 1, {.receive = 5, .transmit = 5}, 0x00, 0xFF, "RX=05 TX=05 MINOR=01"},
      {"ComboTE2200(1)", 0, {.receive = 10, .transmit = 3}, 0x00, 0xFF, "RX=0A TX=03 MINOR=00"},
      {"ComboTE2200(1)", 1, {.receive = 5, .transmit = 5}, 0x00, 0xFF, "RX=05 TX=05 MINOR=01"},
      {"ComboTEC(1)", 0, {.receive = 8, .transmit = 3}, 0x00, 0xFF, "RX=08 TX=03 MINOR=00"},
      {"ComboTEC(1)", 1, {.receive = 2, .transmit = 2}, 0x00, 0xFF, "RX=02 TX=02 MINOR=01"},
      {"OpDYWAYE", 1, {.receive = 10, .transmit = 3}, 0x00, 0xFF, "RX=0A TX=03 MINOR=01"},
      {"OpDYWAYE", 2, {.receive = 3, .transmit = 3}, 0x00, 0xFF, "RX=03 TX=03 MINOR=02"},
      {"OpSHARPUP600", 0, {.receive = 10, .transmit = 3}, 0x00, 0xFF, "RX=0A TX=03 MINOR=00"},
      {"OpSHARPUP600", 1, {.receive = 3, .transmit = 3}, 0x00, 0xFF, "RX=03 TX=03 MINOR=01"},
      {"ComboPana(1)", 0, kPanasonicOn, 0x10, 0xFF, "RX=03 TX=01 MINOR=00 TIMESTAMP_ENA=00"},
      {"ComboPana(1)", 1, kPanasonicOff, 0x00, 0xEF, "RX=03 TX=03 MINOR=01 TIMESTAMP_ENA=00"},
      {"ComboWoring", 0, kNorandOn, 0x10, 0xFF, "RX=02 TX=01 MINOR=00 TIMESTAMP_ENA=00"},
      {"ComboWoring", 1, kNorandOff, 0x00, 0xEF, "RX=02 TX=02 MINOR=01 TIMESTAMP_ENA=00"},
      {"OpMicrelec", 2, kMicrelec, 0x03, 0xFB, "RX=04 TX=01 UNITADDR=02 MINOR=00"},
      {"OpMicrelec9500", 3, kMicrelec9500, 0x00, 0xF8, "RX=03 TX=01 UNITADDR=03 MINOR=01"},
      {"ComboTCI_ID(0)", 0, kTci, 0x04, 0xFC, "IOCFG_BAK=0E RX=00 TX=01 TCIADDBAK_3=00"},
      {"ComboTCI_ID(1)", 7, kTci, 0x04, 0xFC, "IOCFG_BAK=0E RX=00 TX=01 TCIADDBAK_2=07"},
      {"ComboTCI_ID(2)", 9, kTci, 0x04, 0xFC, "IOCFG_BAK=0E RX=00 TX=01 TCIADDBAK_1=09"},
      {"ComboUNI_ID(1)", 4, {}, 0x00, 0xFF, "TCIADDBAK_2=04"},
      {"POSOP", 1, kWaynePos, 0x00, 0xFF, "IOCFG_BAK=1D RX=0A TX=03 MINOR=00 EXT2=01"},
      {"TEROP", 7, kWayneTerminal, 0x00, 0xFF, "IOCFG_BAK=0E RX=03 TX=03 MINOR=01 EXT1=00 EXT2=07"},
      {"PRNOP", 1, kWaynePrinter, 0x00, 0xFF, "IOCFG_BAK=0E RX=0A TX=03 MINOR=01 EXT1=01 EXT2=01"},
      {"SECUOP", 0, kWaynePrinter, 0x00, 0xFF, "IOCFG_BAK=0E RX=0A TX=03 MINOR=01 EXT1=02"},
      {"ComboTITLEDIP", 1, {.title = 1}, 0x00, 0xFF, "GTITLE_NF_BAK=01 DSPCFG_BAK=FE"},
      {"ComboTITLEDIP", 0, {.title = 0}, 0x00, 0xFF, "GTITLE_NF_BAK=00"},
  };
  Installed program(kLatest);
  program.Pick("ComboDIP(1)", 6);  // enough lines for a title
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.control) + " " + std::to_string(row.position));
    program.Reveal(row.control);
    for (const int before : {0x00, 0xFF}) {
      for (const char* list : kForcedLists) program.ListOf(list).position = ForcedPositions::kLeft;
      program.Fill("EE", {{F::COMMCFG_BAK, codecs::ByteToHex(before)}});
      ASSERT_EQ(program.Pick(row.control, row.position), core::Outcome::kDone);
      const int after = before == 0 ? row.flags_from_none : row.flags_from_all;
      EXPECT_EQ(program.app.image[F::COMMCFG_BAK], codecs::ByteToHex(after));
      program.app.image[F::COMMCFG_BAK] = codecs::ByteToHex(before);
      EXPECT_EQ(program.Written(), row.written);
      ExpectForced(program, row.forced);
    }
  }
  Installed other({"V1310", "R1"});  // AUTO is 8 there
  for (const char* control :
       {"ComboSICOM", "ComboTk500(1)", "ComboTE2200(1)", "ComboTEC(1)", "OpDYWAYE", "OpSHARPUP600"})
    EXPECT_EQ(other.Effect(control, 0), "RX=08 TX=03 MINOR=00") << control;
}

TEST(OptionControls, TheStoredFieldDependsOnTheFirmware) {
  for (const auto& firmware : EveryFirmware()) {
    Installed program(firmware, Images::kFirstRegister);
    const int release = firmware.Number();
    const bool v1300 = firmware.version == "V1300", v1400 = firmware.IsV1400();
    // The tenth model of SHARP came later and took the code 5 from its neighbours.
    const bool first_sharp = (v1300 && release < 26) || (firmware.version == "V1324" && release < 25);
    const std::tuple<const char*, int, std::string> rows[] = {
        {"OpNIXDORF", 2, release < 7 ? "MINOR" : "EXT2"},
        {"OpRI_QT2", 11, v1400 && release >= 7 ? "EXT2" : "MINOR"},
        {"OpSharp", 10, v1400 ? "" : "MINOR"},
        {"OpGilbraco", 6, v1300 || firmware.version == "V1310" ? "MINOR" : ""}};
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

using Names = std::vector<const char*>;

// A choice of a model, and the controls of its frame that it shows or hides.
struct ModelChoice {
  const char* array;
  int model;
  Names shown, hidden;
  const char* option = nullptr;  // one of those shown, which takes its position from REGTYPE_EXT2
  firmware::FirmwareId firmware = kLatest;
};

const firmware::FirmwareId kV1300R26{"V1300", "R26"}, kV1300R27{"V1300", "R27"};
const Names kXml = {"Label84", "Label85", "ComboXML"};

// The XML format needs a board that the other firmware lack.
const std::vector<ModelChoice> kModelChoices = {
    {"IBMOP", 8, {"IBMFrame", "Combo4610TF6"}, {"RDSCombo", "IBMCombo", "Label82(0)"}, "Combo4610TF6"},
    {"IBMOP", 0, {"IBMFrame", "Label82(0)", "IBMCombo"}, {"RDSCombo", "Combo4610TF6"}, "IBMCombo"},
    {"IBMOP", 4, {"IBMFrame", "Label82(0)", "RDSCombo"}, {"IBMCombo", "Combo4610TF6"}, "RDSCombo"},
    {"IBMOP", 1, {}, {"IBMFrame", "RDSCombo", "IBMCombo", "Combo4610TF6"}},
    {"IBMOP", 0, {"IBMFrame", "IBMCombo"}, {}, "IBMCombo"},
    {"IBMOP", 7, {}, {"IBMFrame"}},
    {"ICLOP", 1, {"POS5000", "POS50OP"}, {"POS2000"}, "POS50OP"},
    {"ICLOP", 0, {"POS2000", "TEAMOP"}, {"POS5000"}, "TEAMOP"},
    {"NCROP", 1, {"NCRFrame", "JRNLRCPT_SLP_OP"}, {}, "JRNLRCPT_SLP_OP"},
    {"NCROP", 0, {}, {"NCRFrame"}},
    {"NIXDORF14OP", 1, {"NIXDORFrm", "NIXDORF14OPSelect"}, {"BEETLEFrm"}, "NIXDORF14OPSelect"},
    {"NIXDORF14OP", 0, {"BEETLEFrm", "BEETLEOp"}, {"NIXDORFrm"}, "BEETLEOp"},
    {"OpGilbraco", 5, kXml, {}, "ComboXML", kV1300R27},
    {"OpGilbraco", 5, kXml, {}, "ComboXML", {"V1310", "R1"}},
    {"OpGilbraco", 4, {}, kXml, nullptr, kV1300R27},
    {"OpGilbraco", 5, {}, kXml, nullptr, kV1300R26},
};

void ExpectVisible(Installed& program, const Names& controls, bool visible) {
  for (const auto* control : controls) EXPECT_EQ(program.Control(control).visible, visible) << control;
}

TEST(OptionControls, AChoiceShowsAndHidesTheControlsOfItsModel) {
  ProgramForRows programs;
  for (const auto& row : kModelChoices) {
    auto& program = programs.Of(row.firmware);
    SCOPED_TRACE(std::string(row.array) + " " + std::to_string(row.model));
    program.Reveal(row.array);
    for (const int stored : {0, 1, 0xEE}) {  // no list has the last
      EXPECT_EQ(program.Effect(row.array, row.model, {{F::REGTYPE_EXT2, codecs::ByteToHex(stored)}}),
                "MINOR=" + codecs::ByteToHex(row.model));
      ExpectVisible(program, row.shown, true);
      ExpectVisible(program, row.hidden, false);
      EXPECT_TRUE(row.option == nullptr || program.Selected(row.option) == std::min(stored, 1)) << stored;
    }
  }
}

TEST(OptionControls, APickOfTheRegisterShowsOrHidesItsInnerFramesForEveryModel) {
  Installed program(kLatest);
  struct Row {
    const char* register_name;
    Names shown, hidden;
  };
  const Row rows[] = {
      {"ICL", {"POS2000", "POS5000"}, {}},
      {"NCR", {}, {"NCRFrame"}},
      {"NIXDORF", {"BEETLEFrm", "NIXDORFrm"}, {}},
      {"IBM", {}, {"IBMFrame"}},
  };
  for (const auto& row : rows) {
    program.SetByte(row.register_name, program.Minor(), "01");
    ASSERT_EQ(program.Register(row.register_name), core::Outcome::kDone);
    EXPECT_NE(program.Frames(), "") << row.register_name;
    ExpectVisible(program, row.shown, true);
    ExpectVisible(program, row.hidden, false);
  }
}

TEST(OptionControls, SomeUniwellModelsShowTheSecondFrame) {
  Installed program(kLatest);
  program.Register("UNIWELL");
  std::string with_second;
  for (int model = 0; model < 13; ++model) {
    EXPECT_EQ(program.Effect("UNIWOP", model), "MINOR=" + codecs::ByteToHex(model));
    if (program.Frames() == "49 18") with_second += " " + std::to_string(model);
  }
  EXPECT_EQ(with_second, " 1 2 6 7 10");
  program.SetByte("UNIWELL", program.Minor(), "01");
  program.SetByte("UNIWELL", program.Ext2(), "02");  // the list lacks it
  program.Register("UNIWELL");
  EXPECT_EQ(program.Frames(), "");
}

TEST(OptionControls, ArraysOfOneFrameExcludeEachOther) {
  Installed program(kLatest);
  const std::vector<std::string> frames[] = {{"POSOP", "TEROP", "PRNOP", "SECUOP"},
                                             {"OpMicrelec", "OpMicrelec9500"}};
  for (const auto& arrays : frames) {
    for (const auto& chosen : arrays) {
      ASSERT_EQ(program.Pick(chosen, 0), core::Outcome::kDone);
      for (const auto& name : arrays)
        EXPECT_EQ(program.Selected(name), name == chosen ? 0 : -1) << chosen << name;
    }
  }
}

}  // namespace
}  // namespace ovl::testing
