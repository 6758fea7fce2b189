// Every rule of the checks: acts that bring its finding, where it leads, and acts after which it is gone.
#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "files/files.h"
#include "image/report.h"
#include "registers/register_catalogue.h"
#include "registers/register_table.h"
#include "support/firmware_facts.h"
#include "unit/checks/check_acts.h"

namespace ovl::testing {
namespace {

const firmware::FirmwareId kSeventh{"V1400", "R7"}, kReduced{"V1300", "R27"};

struct Row {
  const char* id;
  std::string bring;
  const char* words;
  const char* control;
  std::string gone;
  int slot = 0;
  firmware::FirmwareId firmware = kLatest;
};

std::string Range(const std::string& first, const std::string& second) {
  return "click cmdSetRange\ntype Range_Hi \"" + first + "\"\ntype Range_Low \"" + second +
         "\"\nclick frmSetRange.cmdSetRange\n";
}

// Stores a whole slot, for bytes that no pick stores.
std::string Stored(const std::string& slot) {
  return "set EXCPSTRS(3) " + slot + "\n";
}

std::vector<Row> StoredRows() {
  const auto with_letter = "0000000A" + std::string(12, '0');
  const auto text = Slot(0x01, kZeros, "VOID"), full = Slot(0x01, kZeros, std::string(40, 'X'));
  const auto longer = text.substr(0, 22) + "05" + text.substr(24);
  return {
      {"download-shifted", "pick ComboDIP(0) \"10\"\n",
       "BLNKRTS_BAK has this number of bytes: 1. V1400R7 reads 0", "ComboDIP(0)", "undo\n", 0, kSeventh},
      {"download-shifted", "set EXCPSTRS(5) " + text + "00\n", "EXCPSTRS(5) has this number of bytes: 54",
       "cmdSetExcpstr", "set EXCPSTRS(5) " + text + "\n", 5},
      {"options-hidden", "pick ComboReg \"BLEEP\"\nset REGTYPE_MINOR 7F\n",
       "The options of BLEEP are hidden: REGTYPE_MINOR contains 7F", "ComboReg", "set REGTYPE_MINOR 00\n"},
      {"value-without-entry", "set IOCFG_BAK 0A\n", "INTERFACE TYPE contains byte 0A", "ComboCOMM(0)",
       "set IOCFG_BAK 0E\n"},
      {"value-without-entry", "set FLAGDWLIND F2\n", "FLAG DURATION contains byte F2", "ComboALM(5)",
       "set FLAGDWLIND F1\n"},
      {"value-without-entry", "set ALMSTRUCT_BAK(16) 1DFF0000\n", "Alarm 16, ALARM TRIGGER contains byte 1D",
       "ComboALM(1)", "set ALMSTRUCT_BAK(16) 1CFF0000\n", 16},
      {"value-without-entry", Stored(Slot(0x0D, kZeros, "VOID")), "Exception 3, OPERATOR contains byte 0D",
       "ComboExcp(5)", Stored(Slot(0x09, kZeros, "VOID")), 3},
      {"value-without-entry", "set HIST_REG 01\nset HIST_DEST_ID 00\n", "DEST ID contains byte 00",
       "ComboKLM4011(0)", "set HIST_REG 00\n"},
      {"value-without-entry", "set HIST_REG 02\n", "DVR Selection contains byte 02", "OpDVR",
       "set HIST_REG 01\n", 0, kOld},
      {"value-without-entry", "set NET_TYPE 02\nset NET_ADDRESS 01\nset NET_PROTOCOL 07\n",
       "Network Settings, PROTOCOL contains byte 07", "ComboCOMM(11)", "set NET_TYPE 00\n"},
      {"value-without-entry", "pick ComboReg \"MICROS\"\npick OpMicros 1\nset DEVICE_INDEX_BAK 02\n",
       "MICROS, DEVICE contains byte 02", "cmdMicros", "pick OpMicros 0\n"},
      {"value-without-entry", "pick ComboReg \"NCR\"\nset REGTYPE_MINOR 05\n", "NCR, Model contains byte 05",
       "OpNCR", "set REGTYPE_MINOR 04\n", 0, kOld},
      {"value-without-entry", "pick ComboReg \"DRESSER WAYNE\"\nset REGTYPE_MINOR 05\n",
       "DRESSER WAYNE, Point of sale contains byte 05", "POSOP", "set REGTYPE_MINOR 00\n"},
      {"not-as-picked", "set DAYLIGHT_BAK 03\n",
       "DAYLIGHT SAVING shows \"CANADA\", but DAYLIGHT_BAK contains byte 03, and a pick of \"CANADA\" stores "
       "byte 04",
       "ComboTD(3)", "set DAYLIGHT_BAK 04\n"},
      {"not-as-picked", "set BLNKVAL 00\nset BLNKIND 00\n",
       "SCREEN BLANK shows \"NONE\", but BLNKIND contains byte 00", "ComboDIP(0)", "set BLNKIND 0B\n"},
      {"not-as-picked", "set ALMSTRUCT_BAK(2) 1CFF0500\n",
       "Alarm 2, ALARM DURATION shows \"1\", but ALMSTRUCT_BAK(2) contains bytes FF 05", "ComboALM(3)",
       "set ALMSTRUCT_BAK(2) 1CF10400\n", 2},
      {"not-as-picked", "set DECIMAL_POINT_BAK 07\n", "Decimal separator shows \",\"", "cmdSetRange",
       "set DECIMAL_POINT_BAK 01\n"},
      {"not-as-picked", "pick ComboReg \"MICRELEC\"\nset REGTYPE_MINOR 02\n",
       "MICRELEC, Printer, 9500 shows \"JOURNAL\", but REGTYPE_MINOR contains byte 02", "OpMicrelec9500",
       "set REGTYPE_MINOR 01\n"},
      {"image-of-other-register", "pick ComboReg \"IBM\"\nset GPS_CONFIG_BAK 05\n",
       "GPS_CONFIG_BAK is 05, but the default image of IBM has 00", "ComboReg", "pick ComboReg \"IBM\"\n"},
      {"range-digits", Stored(Slot(0x01, with_letter, "VOID")), "The range of exception 3 is not a number",
       "cmdSetRange", Stored(text), 3},
      {"free-with-text", Stored(Slot(0x11, kZeros, "VOID")), "Exception 3 has the text \"VOID\"",
       "cmdSetExcpstr", Stored(text), 3},
      {"text-length", Stored(longer), "stored with the length 5, but its length is 4", "cmdSetExcpstr",
       Stored(full), 3},
      {"scroll-matching-alone", "set EXCPSTRS(3) " + Slot(0x42, kZeros.substr(8), "VOID") + "\n",
       "Exception 3 has SCROLL MATCHING", "ComboExcp(4)",
       "set EXCPSTRS(3) " + Slot(0x40, kZeros.substr(8), "VOID") + "\n", 3, kReduced},
      {"scroll-matching-alone", Stored(Slot(0x42, kZeros, "VOID")), "Exception 3 has SCROLL MATCHING",
       "ComboExcp(1)", Stored(Slot(0x40, kZeros, "VOID")), 3},
  };
}

std::vector<Row> LineRows() {
  return {
      {"no-ip-address", "pick ComboReg \"TCPIP\"\n", "The IP address of TCPIP is 0.0.0.0.", "ComboTCPIP(4)",
       "pick ComboTCPIP(7) 1\n"},
      {"no-ip-address", "pick ComboReg \"TCPIP\"\n", "The IP address of TCPIP is 0.0.0.0.", "ComboTCPIP(0)",
       "set IPADDRESS(4) 01\n", 0, kOld},
      {"slave-without-address", "pick ComboCOMM(9) \"SLAVE\"\n",
       "TYPE of the network is SLAVE, but its ADDRESS is N/A.", "ComboCOMM(10)",
       "pick ComboCOMM(10) \"1\"\n"},
      {"not-as-forced", "pick ComboReg \"TCI\"\npick ComboCOMM(3) \"EVEN\"\n",
       "PARITY is EVEN, but the options of TCI set it to NONE.", "ComboCOMM(3)",
       "pick ComboCOMM(3) \"NONE\"\n"},
      {"not-as-forced", "pick ComboReg \"PANASONIC\"\npick ComboExcepRe(0) \"OFF\"\n",
       "OUTPUT is OFF, but the options of PANASONIC set it to ON.", "ComboExcepRe(0)",
       "pick ComboExcepRe(0) \"ON\"\n", 0, kReduced},
      {"not-as-forced", "pick ComboReg \"ODOMETER\"\npick ComboDIP(1) \"2\"\n",
       "DISPLAY LINE is 2, but the options of ODOMETER set it to 1.", "ComboDIP(1)",
       "pick ComboDIP(1) \"1\"\n"},
      {"network-speed", "set NET_TYPE 01\nset NET_PROTOCOL 01\nset NET_BAUDRATE 03\n",
       "stored with the BAUD RATE 9600, but its PROTOCOL REGCOM 57.6K needs 57600", "ComboCOMM(11)",
       "set NET_BAUDRATE 08\n"},
      {"network-address", "set NET_TYPE 03\nset NET_ADDRESS 05\n",
       "stored with the ADDRESS 5, but the tab shows N/A for its TYPE GENERIC", "ComboCOMM(9)",
       "set NET_ADDRESS 00\n"},
      {"network-address", "set NET_TYPE 01\nset NET_ADDRESS 11\nset NET_BAUDRATE 03\n",
       "stored with the ADDRESS byte 11, but the tab shows N/A for its TYPE MASTER", "ComboCOMM(10)",
       "set NET_TYPE 02\nset NET_ADDRESS 10\n"},
  };
}

std::vector<Row> ExceptionRows() {
  const std::string used = Exception(3, "REFUND"), report = "pick ComboExcepRe(0) \"ON\"\n";
  const std::string sent = "pick ComboExcp(2) 1\n";
  const std::string second = Exception(7, "REFUND") + "pick ComboExcp(3) 1\n";
  return {
      {"range-order", used + "pick ComboExcp(5) \"IN\"\n" + Range("500", "499"),
       "In the range of exception 3 the first value is above the second.", "cmdSetRange", Range("500", "500"),
       3},
      {"blank-exception", "pick ComboExcp(0) 2\npick ComboExcp(1) \"ON\"\n",
       "Exception 3 has an action or is not marked as free", "cmdSetExcpstr", "pick ComboExcp(1) \"OFF\"\n",
       3},
      {"exception-without-effect", used, "Exception 3, \"REFUND\", has no effect", "ComboExcp(2)",
       "pick ComboExcp(3) \"ON\"\n", 3},
      {"exception-without-effect", Exception(13, "X") + "pick ComboALM(1) \"1-12\"\n", "Exception 13",
       "ComboExcp(2)", "pick ComboALM(1) \"13-24\"\n", 13},
      {"exception-twice", used + second,
       "Exception 7 has the same text, operator and range as exception 3: \"REFUND\".", "cmdSetExcpstr",
       Exception(3, "REFUNDS"), 7},
      {"exception-twice",
       used + "pick ComboExcp(5) \"IN\"\n" + Range("1", "2") + second + "pick ComboExcp(5) \"IN\"\n" +
           Range("1", "2"),
       "Exception 7", "cmdSetExcpstr", Range("1", "3"), 7},
      {"matches-everything", Exception(3, "???"), "The text of exception 3 is only \"?\"", "cmdSetExcpstr",
       Exception(3, "??X"), 3},
      {"blank-in-front", Exception(3, " VOID"), "The text of exception 3 begins with a blank",
       "cmdSetExcpstr", Exception(3, "VOID "), 3},
      {"display-off", used + "pick ComboExcp(1) \"ON\"\npick ComboDIP(6) \"OFF\"\n",
       "DISPLAY of exception 3 is ON, but DISPLAY of the text display is OFF.", "ComboDIP(6)",
       "pick ComboExcp(1) \"OFF\"\n"},
      {"report-off",
       used + sent + Exception(4, "X") + sent + Exception(5, "Y") + sent + Exception(7, "Z") + sent,
       "OUTPUT of exceptions 3 to 5 and 7 is ON, but OUTPUT of the exception report is OFF.",
       "ComboExcepRe(0)", report},
      {"stamp-without-report", "pick ComboExcepRe(1) \"ON\"\n", "TIME STAMP is ON", "ComboExcepRe(1)",
       report},
      {"duplicates-without-report", "pick ComboExcepRe(2) \"ON\"\n", "DUPLICATE LINE is ON",
       "ComboExcepRe(2)", report},
      {"range-without-operator", used + Range("0", "1"), "Exception 3 has a range, but its OPERATOR is NONE",
       "ComboExcp(5)", "pick ComboExcp(5) \"OUT\"\n", 3},
      {"operator-without-range", used + "pick ComboExcp(5) \"IN\"\n", "Exception 3 compares the amount",
       "cmdSetRange", Range("0", "1"), 3},
  };
}

std::vector<Row> PanelRows() {
  const std::string text = Text("cmdSetTrigger", "DOOR");
  return {
      {"alarm-without-exception", Alarm(2) + "pick ComboALM(1) \"13-24\"\n",
       "Only free exceptions trigger alarm 2 (EX. 13-24), so nothing triggers it.", "ComboALM(1)",
       Exception(24, "VOID"), 2},
      {"alarm-without-exception", Alarm(2) + "pick ComboALM(1) \"5\"\npick ComboALM(6) \"MANUAL\"\n",
       "Only free exceptions trigger alarm 2 (EX. 5), so only VIDEO LOSS triggers it.", "ComboALM(1)",
       Exception(5, "VOID"), 2},
      {"text-never-comes", Alarm(2) + text + "pick ComboTrigger(1) \"ON\"\n",
       "Alarm 2 has a text to show or to send", "ComboALM(1)", "pick ComboALM(6) \"1S\"\n", 2},
      {"blank-trigger-text", Alarm(2) + "pick ComboTrigger(0) \"ON\"\n",
       "The trigger text of alarm 2 is empty or only blanks.", "cmdSetTrigger", text, 2},
      {"text-unused", Alarm(2) + text + "pick ComboALM(1) \"RTS\"\n",
       "The trigger text of alarm 2 is neither shown nor sent.", "ComboTrigger(1)",
       "pick ComboTrigger(1) \"ON\"\n", 2},
      {"trigger-text-display-off",
       Alarm(2) + text + "pick ComboALM(6) \"1S\"\npick ComboTrigger(0) \"ON\"\npick ComboDIP(6) \"OFF\"\n",
       "DISPLAY TEXT of alarm 2 is ON, but DISPLAY of the text display is OFF.", "ComboDIP(6)",
       "pick ComboTrigger(0) \"OFF\"\npick ComboTrigger(1) \"ON\"\n"},
      {"delay-without-rts", Alarm(2) + "pick ComboTrigger(2) \"1S\"\n",
       "Alarm 2 has a delay after the RTS line, but its ALARM TRIGGER is NONE.", "ComboTrigger(2)",
       "pick ComboALM(1) \"RTS\"\n", 2},
      {"flag-without-duration", "pick ComboALM(4) \"FLASH\"\n",
       "FLAG TYPE is FLASH, but FLAG DURATION is 000.", "ComboALM(5)", "pick ComboALM(5) \"002\"\n"},
      {"too-few-lines", "pick ComboTD(0) \"ON\"\nset DSPLINES_BAK 01\n", "DISPLAY LINE is 1, but",
       "ComboDIP(1)", "set DSPLINES_BAK 02\n"},
      {"title-empty", "pick ComboTD(5) \"ON\"\n", "TITLER is ON, but the title is empty.", "cmdTitle",
       Text("cmdTitle", "X")},
      {"demo-on", "click DemoMode\n", "starts its demo", "DemoMode", "click DemoMode\n"},
      {"title-off", Text("cmdTitle", "X"), "There is a title, but TITLER is OFF.", "ComboTD(5)",
       "pick ComboTD(5) \"ON\"\n"},
      {"clock-locked", "pick ComboTD(4) \"ON\"\n", "T/D LOCKING is ON, but T/D DISPLAY is OFF.", "ComboTD(0)",
       "pick ComboTD(0) \"ON\"\n"},
  };
}

void ExpectRow(const Row& row) {
  SCOPED_TRACE(std::string(row.id) + " " + row.firmware.Joined() + "\n" + row.bring);
  AdviceProgram program(row.firmware);
  EXPECT_TRUE(FindingsIn(program, row.id).empty());
  program.Run(row.bring);
  const auto image = program.App().image;
  const auto findings = FindingsIn(program, row.id);
  ASSERT_EQ(findings.size(), 1U);
  const auto& finding = findings.front();
  EXPECT_NE(finding.words.English().find(row.words), std::string::npos) << finding.words;
  EXPECT_EQ(finding.control, row.control);
  EXPECT_EQ(finding.slot, row.slot);
  EXPECT_EQ(finding.list.empty(), row.slot == 0);
  EXPECT_TRUE(program.App().image == image) << "a check changes nothing";
  program.Run(row.gone);
  EXPECT_TRUE(FindingsIn(program, row.id).empty()) << row.gone;
}

TEST(Checks, FindWhatEachRuleIsAboutAndNotWhatIsNextToIt) {
  std::set<std::string_view> tried = {"default-image-of-other"};  // its own test is below
  for (const auto& rows : {StoredRows(), LineRows(), ExceptionRows(), PanelRows()}) {
    for (const auto& row : rows) {
      ExpectRow(row);
      tried.insert(row.id);
    }
  }
  for (const auto& rule : checks::RuleNames()) EXPECT_EQ(tried.count(rule.id), 1U) << rule.id;
}

TEST(Checks, FindADefaultImageThatSelectsAnotherRegister) {
  AdviceProgram program(kLatest);
  program.Run("pick ComboReg \"BLEEP\"\n");
  EXPECT_TRUE(FindingsIn(program, "default-image-of-other").empty());
  const auto folder = program.App().platform.program_folder + "/V1400/R12/";
  const auto own = ReadFile(folder + "BLEEP.bin");
  WriteFile(folder + "BLEEP.bin", ReadFile(folder + "CASIO.bin"));
  const auto findings = FindingsIn(program, "default-image-of-other");
  WriteFile(folder + "BLEEP.bin", own);
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings.front().words,
            "The default image of BLEEP in the program folder is that of CASIO, so a pick of BLEEP selects "
            "CASIO.");
}

// A new unit needs an installer only for the address of TCPIP. Registers with options also show whether a
// rule takes an option that is not on the screen for one without an entry.
TEST(Checks, FindNothingInADefaultImage) {
  const auto found_in = [](AdviceProgram& program) {
    std::string found;
    for (const auto& finding : checks::FindingsOf(program.App(), program.App().image)) found += finding.id;
    return found;
  };
  for (const auto& firmware : EveryFirmware()) {
    AdviceProgram program(firmware, AdviceProgram::Images::kFirstRegister);
    EXPECT_EQ(found_in(program), "") << firmware.Joined();
  }
  for (const auto& firmware : {kLatest, kOld}) {
    AdviceProgram program(firmware);
    for (const auto& row : registers::RegisterTable()) {
      const int position = registers::RegisterIndexOf(program.App(), row.key);
      if (position < 0 || !firmware::IsInReleases(firmware, row.Served())) continue;
      program.Run("pick ComboReg " + std::to_string(position) + "\n");
      const bool needs_address =
          row.frame == controls::OptionFrame::kTcpip || row.frame == controls::OptionFrame::kOldTcpip;
      EXPECT_EQ(found_in(program), needs_address ? "no-ip-address" : "") << row.key;
    }
  }
}

TEST(Checks, OfTheCompactFirmwareLeaveOutWhatItsFormDoesNotOffer) {
  const std::string hidden = "set DSPCFG_BAK 10\nset LANGUAGE_BAK 07\nset DSPLINES_BAK 00\n";
  AdviceProgram full(kSeventh), compact({"V1410", "R1"});
  for (auto* program : {&full, &compact}) program->Run(hidden + Exception(1, "X"));
  EXPECT_EQ(FindingsIn(full, "value-without-entry").size(), 2U);
  EXPECT_EQ(FindingsIn(full, "title-empty").size(), 1U);
  const auto findings = checks::FindingsOf(compact.App(), compact.App().image);
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings.front().id, "exception-without-effect");
}

// This firmware stores the printer in another byte than it reads, so a load shows the first one again.
TEST(Checks, TakeAPickThatALoadDoesNotShowForAsItShouldBe) {
  AdviceProgram program(kLatest);
  program.Run("pick ComboReg \"TKMAXX\"\npick OpNIXDORF 1\n");
  EXPECT_TRUE(FindingsIn(program, "not-as-picked").empty());
}

// Also for bytes that no panel stores, and for an image that ended early.
TEST(Checks, OfAnyBytesHaveWordsAndLeadToAControl) {
  std::size_t found = 0;
  for (const auto& firmware : EveryFirmware()) {
    AdviceProgram program(firmware, AdviceProgram::Images::kFirstRegister);
    for (int seed = 1; seed <= 3; ++seed) {
      SCOPED_TRACE(firmware.Joined() + " seed " + std::to_string(seed));
      const auto stream = files::JoinLines(RawPatternStream(firmware, seed, 23 * seed));
      auto image = image::DecodeStream(stream, firmware).value();
      if (seed == 3) image.at(EXCPSTRS, 9) = "4", image[REGTYPE].clear(), image.at(ALMSTRUCT_BAK, 2) = "1";
      for (const auto& finding : checks::FindingsOf(program.App(), image)) {
        ++found;
        EXPECT_EQ(finding.words.English().find("%1"), std::string::npos) << finding.words;
        EXPECT_NE(program.App().registry.Find(finding.control), nullptr) << finding.control;
        EXPECT_FALSE(finding.place.empty() || finding.caption.empty()) << finding.words;
        EXPECT_EQ(finding.slot == 0, finding.list.empty()) << finding.words;
      }
    }
  }
  EXPECT_GT(found, 1000U);
}

// The rows of the page have four cells, in the order of the table: id, kind, when, what to do.
TEST(Checks, TheHelpExplainsEveryRule) {
  std::ifstream file(OVL_SOURCE_FOLDER "/help/checks.md");
  std::set<std::string> explained, wanted;
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with("| `")) continue;
    std::istringstream cells(line.substr(1));
    std::string id, kind, when, to_do;
    ASSERT_TRUE(std::getline(cells, id, '|') && std::getline(cells, kind, '|') &&
                std::getline(cells, when, '|') && std::getline(cells, to_do, '|'));
    EXPECT_TRUE(when.size() > 20 && to_do.size() > 10) << line;
    explained.insert(id + kind);
  }
  for (const auto& rule : checks::RuleNames())
    wanted.insert(" `" + std::string(rule.id) + "`  " + std::string(checks::NameOf(rule.severity)) + " ");
  EXPECT_EQ(explained, wanted);
}

}  // namespace
}  // namespace ovl::testing
