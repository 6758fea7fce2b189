// Every condition of the advice table: the acts that bring its line, the words, the action, and the acts
// after which the line is gone.
#include "acts/advice.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "firmware/firmware_table.h"
#include "firmware/traits.h"
#include "support/firmware_facts.h"
#include "unit/acts/advice_rows.h"

namespace ovl::testing {
namespace {

const firmware::FirmwareId kV1300{"V1300", "R23"}, kV1334{"V1334", "R1"};

TEST(AdviceOnFiles, APickAfterACancelledOpenIsSwallowed) {
  const std::string cancel = "answer cancel\nclick OpenMenu\n", pick = "pick ComboReg \"ADS\"\n";
  const char* next = "The next pick in the register list has no effect";
  const AdviceRow rows[] = {
      {"next-pick-swallowed", cancel, "Open was cancelled. The next pick", "REGISTER SELECT", pick},
      {"next-pick-swallowed", "answer \"/no/file.bin\"\nclick OpenMenu\n",
       "Open failed: /no/file.bin: No such file or directory. The next pick", "REGISTER SELECT", pick},
      {"next-pick-swallowed", cancel, next, "REGISTER SELECT", "answer \"IMAGE\"\nclick OpenMenu\n"},
      {"pick-swallowed", cancel + pick,
       "The list shows ADS, but the options and the configuration are still those of GENERIC. Pick ADS "
       "again.",
       "REGISTER SELECT", pick},
      {"pick-swallowed", cancel + pick, "Pick ADS again.", "REGISTER SELECT",
       "answer \"IMAGE\"\nclick OpenMenu\n"},
  };
  for (const auto& row : rows) Expect(row);

  AdviceProgram program(kLatest);
  program.Run(pick + "pick ComboReg \"GENERIC\"\nexpect no advice \"still those of\"\n" + cancel +
              "pick ComboReg \"GENERIC\"\nexpect no advice \"still those of\"\n");
}

TEST(AdviceOnFiles, SaysWhatASavedFileIsGoodForUnderEachFirmware) {
  for (const auto& entry : firmware::FirmwareTable()) {
    SCOPED_TRACE(entry.Id().Joined());
    AdviceProgram program(entry.Id(), AdviceProgram::Images::kFirstRegister);
    program.Run("pick ComboALM(1) \"RTS\"\npick ComboExcp(0) 23\n");
    const auto before = program.App().image;
    program.Run("answer \"FILE\"\nclick menuSave\n");
    const auto saved = program.Line("saved-file");
    program.Run(
        "click cmdSetExcpstr\ntype frmSetEXCPSTR.Text1 \"X\"\nclick frmSetEXCPSTR.cmdSET\nanswer "
        "\"FILE\"\nclick OpenMenu\n");
    const bool reopens = firmware::SavedFileReopens(program.App().firmware);
    EXPECT_EQ(program.App().image == before, reopens);
    EXPECT_EQ(saved.words.empty(), reopens);
    EXPECT_TRUE(reopens || saved.caption == "Save Backup...") << saved.words;
    EXPECT_EQ(program.Line("file-misread").words.empty() && program.Line("file-refused").words.empty(),
              reopens);
  }
}

TEST(AdviceOnFiles, NamesAFileThatDoesNotFitTheFirmware) {
  const std::string save_and_open = "answer \"FILE\"\nclick menuSave\nanswer \"FILE\"\nclick OpenMenu\n";
  const std::string open_image = "answer \"IMAGE\"\nclick OpenMenu\n";
  const AdviceRow rows[] = {
      {"file-misread", save_and_open,
       "file.bin does not have the format of V1400R12, so the register options and all settings after "
       "them are in the wrong place. Do not download them.",
       "", open_image},
      {"file-misread",
       save_and_open,
       "Files that \"Save\" writes under this firmware have this format.",
       "",
       kOpenPort + kHold + kUpload + "unit \"STREAM\"\n",
       {"V1400", "R7"}},
      {"file-refused", save_and_open,
       "file.bin is not a configuration that V1334R1 can open. Nothing has changed.", "", open_image, kV1334},
      {"file-misread", save_and_open, "are in the wrong place", "", "undo\n"},
      {"saved-file", "answer \"FILE\"\nclick menuSave\n",
       "file.bin does not open again correctly: under V1400R12, \"Open\" reads its settings in the wrong "
       "place. Use \"Save Backup...\"",
       "Save Backup...", open_image},
      {"saved-file", "answer \"FILE\"\nclick menuSave\n", "file.bin does not open again", "Save Backup...",
       "backup \"FILE\"\n"},
      {"saved-file", "answer \"FILE\"\nclick menuSave\n", "under V1334R1, \"Open\" refuses it",
       "Save Backup...", open_image, kV1334},
  };
  for (const auto& row : rows) Expect(row);
  AdviceProgram program(kLatest);
  program.Run("answer cancel\nclick menuSave\nexpect no advice \"does not open again\"\n");
}

TEST(AdviceOnRegisters, NamesTheByteThatHidesTheOptions) {
  const std::string reopen = "stream \"FILE\"\nanswer \"FILE\"\nclick OpenMenu\n";
  const AdviceRow rows[] = {
      {"options-hidden",
       "pick ComboReg \"IBM\"\npick IBMOP 0\npick IBMCombo \"MIXED\"\npick IBMOP 4\n" + reopen,
       "The options of IBM are hidden: REGTYPE_EXT2 contains 02, which is not in its list. Pick IBM again",
       "REGISTER SELECT", "pick ComboReg \"IBM\"\n"},
      {"options-hidden", "pick ComboReg \"TCI\"\nset TCIADDBAK_2 1F\n" + reopen, "TCIADDBAK_2 contains 1F",
       "REGISTER SELECT", "pick ComboReg \"ADS\"\n"},
      {"options-hidden", "pick ComboReg \"DELTA SONO 3.1\"\nset REGTYPE_MINOR 7F\n" + reopen,
       "The options of DELTA SONO 3.1 are hidden: REGTYPE_MINOR contains 7F", "REGISTER SELECT",
       "pick ComboReg \"DELTA SONO 3.1\"\n", kV1300},
  };
  for (const auto& row : rows) Expect(row);
}

TEST(AdviceOnRegisters, NamesWhatAPickStoredOnOtherTabs) {
  const std::string on = "pick ComboExcepRe(0) \"ON\"\npick ComboCOMM(4) \"7\"\n";
  for (const auto& firmware : {kLatest, kV1300}) {
    Expect({"other-tabs-changed", on + "pick ComboReg \"ADS\"\n",
            "The pick of ADS also changed COMMUNICATION: DATA BITS 8; EXCEPTION REPORT: OUTPUT OFF. Check "
            "these tabs",
            "", "pick ComboReg \"ADS\"\n", firmware});
  }
  Expect({"other-tabs-changed", on + "pick ComboReg \"ADS\"\n", "EXCEPTION REPORT: OUTPUT OFF", "",
          kOpenPort + kHold + kDownload + "drain\nunit hex 06\n"});
  Expect({"other-tabs-changed", "pick ComboReg \"MICRELEC\"\n",
          "COMMUNICATION: PARITY EVEN, DATA BITS 7, RX BAUDRATE 14400, TX BAUDRATE 2400. Check", "",
          "pick ComboReg \"MICRELEC\"\n"});
  Expect({"other-tabs-changed", "pick ComboReg \"ODOMETER\"\n", "TEXT SETUP: DISPLAY LINE 1", "",
          "answer \"IMAGE\"\nclick OpenMenu\n"});
}

TEST(AdviceOnRegisters, AnUnknownFirmwareIsPickedInTheMenu) {
  AdviceProgram program(kLatest);
  program.Run("setting Release \"R99\"\nstart\n");
  const auto line = program.Line("unknown-firmware");
  EXPECT_NE(line.words.English().find("does not know the firmware V1400R99"), std::string::npos)
      << line.words;
  EXPECT_EQ(line.caption, "Version");
  EXPECT_EQ(line.action, acts::AdviceAction::kPickVersion);
  program.Run("setting Release \"R12\"\nstart\nexpect no advice \"does not know\"\n");
}

TEST(AdviceOnRegisters, TheFirstStepsGoWithTheFirstUploadOrOpen) {
  for (const auto& begin : {kOpenPort + kHold + kUpload + "unit \"STREAM\"\n",
                            std::string("answer \"IMAGE\"\nclick OpenMenu\n")}) {
    AdviceProgram program(kLatest);
    const auto line = program.Line("first-steps");
    EXPECT_EQ(line.words,
              "The tabs show default settings, not those of the unit. On REMOTE, press Set Comport, Remote, "
              "Upload.");
    EXPECT_EQ(line.caption, "REMOTE");
    program.Run("answer cancel\nclick OpenMenu\nexpect advice \"On REMOTE, press\"\n" + begin);
    EXPECT_EQ(program.Line("first-steps").words, "");
  }
  AdviceProgram program(kLatest);
  program.Run(kOpenPort + "expect advice \"On REMOTE, press Remote, Upload.\"\n" + kHold +
              "expect advice \"On REMOTE, press Upload.\"\n");
}

TEST(AdviceOnSettings, NamesTheSlotsThatDoNothing) {
  const auto range = [](const std::string& first, const std::string& second) {
    return "click cmdSetRange\ntype Range_Hi \"" + first + "\"\ntype Range_Low \"" + second +
           "\"\nclick frmSetRange.cmdSetRange\n";
  };
  const auto text = [](const std::string& button, const std::string& words) {
    return "click " + button + "\ntype frmSetEXCPSTR.Text1 \"" + words + "\"\nclick frmSetEXCPSTR.cmdSET\n";
  };
  for (const auto& firmware : {kLatest, kV1300}) {
    const AdviceRow rows[] = {
        {"range-order", range("9", "8") + "pick ComboExcp(0) 23\n" + range("2", "1"), "exceptions 1 and 24",
         "Set RANGE", range("1", "2") + "pick ComboExcp(0) 0\n" + range("0", "0"), firmware},
        {"alarm-without-exception",
         "pick ComboALM(1) \"13-24\"\npick ComboALM(0) 15\npick ComboALM(1) \"1\"\n",
         "alarms 1 (13-24) and 16 (1)", "ALARM TRIGGER",
         "pick ComboALM(1) \"RTS\"\npick ComboExcp(0) 12\n" + text("cmdSetExcpstr", "X"), firmware},
        {"blank-text", "pick ComboExcp(1) \"ON\"\n", "The text is empty or only blanks: exception 1.",
         "Set Exception String", text("cmdSetExcpstr", "REFUND"), firmware},
        {"blank-text", "pick ComboALM(0) 1\npick ComboTrigger(0) \"ON\"\n", "the trigger text of alarm 2.",
         "Set Trigger Text", text("cmdSetTrigger", "DOOR"), firmware},
    };
    for (const auto& row : rows) Expect(row);
  }
}

TEST(Advice, ADismissedLineComesBackOnlyWithItsCondition) {
  AdviceProgram program(kLatest);
  program.Run("pick ComboALM(1) \"3\"\n");
  program.Advisor().Dismiss(acts::AdviceId::kAlarmWithoutException);
  program.Run(
      "expect no advice \"alarm 1\"\nwait 1000\npick ComboALM(2) 1\nexpect no advice \"alarm 1\"\n"
      "pick ComboALM(1) \"NONE\"\npick ComboALM(1) \"3\"\nexpect advice \"alarm 1 (3)\"\n");
  program.Run("port fail \"No such device\"\n" + kOpenPort);
  program.Advisor().Dismiss(acts::AdviceId::kPortRefused);
  program.Run("wait 1000\nexpect no advice \"did not open\"\n" + kOpenPort +
              "expect advice \"did not open\"\n");
}

TEST(Advice, TheMostImportantLineComesFirst) {
  AdviceProgram program(kLatest);
  program.Run("pick ComboALM(1) \"3\"\nanswer cancel\nclick OpenMenu\n" + kHalfUpload + kLose);
  std::string names;
  for (const auto& line : program.Advisor().Lines()) names += std::string(line.name) + " ";
  EXPECT_EQ(names, "device-lost next-pick-swallowed alarm-without-exception first-steps ");
  program.Run("tick Timer_Operating 6\n");
  EXPECT_EQ(program.Advisor().Lines().front().name, "upload-broke");
}

TEST(Advice, ChangesNothing) {
  AdviceProgram watched(kLatest);
  watched.Run("pick ComboReg \"IBM\"\nanswer cancel\nclick OpenMenu\n");
  const auto image = watched.App().image;
  const auto note = watched.App().StatusNote;
  EXPECT_FALSE(watched.Advisor().Lines().empty());
  EXPECT_TRUE(watched.App().image == image && watched.App().UploadApplying &&
              watched.App().StatusNote == note);
}

// The rows of the page have three cells, in the order of the table: name, what happened, what to do.
TEST(Advice, TheHelpExplainsEveryConditionInOrder) {
  std::ifstream file(OVL_SOURCE_FOLDER "/help/advice.md");
  std::vector<std::string> names, wanted;
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with("| `")) continue;
    std::istringstream cells(line.substr(1));
    std::string name, happened, to_do;
    ASSERT_TRUE(std::getline(cells, name, '|') && std::getline(cells, happened, '|') &&
                std::getline(cells, to_do, '|'));
    EXPECT_TRUE(happened.size() > 20 && to_do.size() > 20) << line;
    names.push_back(name.substr(2, name.size() - 4));
  }
  for (const auto& row : acts::AdviceTable()) wanted.emplace_back(row.name);
  EXPECT_EQ(names, wanted);
}

}  // namespace
}  // namespace ovl::testing
