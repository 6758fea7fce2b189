#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "acts/backup.h"
#include "images/default_images.h"
#include "script/commands.h"
#include "script/inspection.h"
#include "script/parser.h"
#include "script/runner.h"
#include "script/simulated_line.h"
#include "script/simulated_time.h"
#include "support/firmware_facts.h"
#include "support/harness.h"

namespace ovl::script {
namespace {

using ovl::testing::TemporaryFolder;

std::vector<std::string> Texts(std::string_view line) {
  std::vector<std::string> texts;
  for (const auto& word : SplitWords(line)) texts.push_back((word.quoted ? "'" : "") + word.text);
  return texts;
}

TEST(Parser, SplitsWordsTextsAndComments) {
  using Words = std::vector<std::string>;
  EXPECT_EQ(Texts("  pick\tComboCOMM(3) \"a # b\" # note"), (Words{"pick", "ComboCOMM(3)", "'a # b"}));
  EXPECT_EQ(Texts(R"(unit "\"\\\r\n\t\x06\xfF")"), (Words{"unit", "'\"\\\r\n\t\x06\xFF"}));
  EXPECT_EQ(Texts("type Title_Text \"\"\r"), (Words{"type", "Title_Text", "'"}));
  EXPECT_TRUE(Texts("# \"unclosed").empty());
  EXPECT_TRUE(Texts(" \t").empty());
}

TEST(Parser, RefusesBrokenTexts) {
  for (const auto* line : {R"(echo "open)", R"(echo "end\)", R"(echo "\q")", R"(echo "\x4")",
                           R"(echo "\xG0")", R"(echo "a""b")", R"(echo a"b")", R"(echo "a"b)"}) {
    EXPECT_THROW(SplitWords(line), Stop) << line;
  }
}

TEST(Parser, AQuotedTextIsReadBackUnchanged) {
  std::string every;
  for (int byte = 0; byte < 256; ++byte) every += static_cast<char>(static_cast<unsigned char>(byte));
  EXPECT_EQ(SplitWords(Quoted(every)).at(0).text, every);
  EXPECT_EQ(Quoted("a\"\\\r\n\t\x18\x80"), R"("a\"\\\r\n\t\x18\x80")");
  for (const std::string text : {"", "FF", "two words", "a#b", "a\"b", "\x06"}) {
    EXPECT_EQ(SplitWords(AsWord(text)).at(0).text, text) << AsWord(text);
  }
}

TEST(SimulatedTime, TimersTickInTheOrderInWhichTheyAreDue) {
  controls::Registry registry;
  ::ovl::controls::Form form;
  form.name = "form";
  controls::Timer slow, fast, idle;
  const std::vector<std::tuple<controls::Timer*, const char*, int>> timers{
      {&slow, "slow", 250}, {&fast, "fast", 100}, {&idle, "idle", 0}};
  for (const auto& [timer, name, interval] : timers) {
    registry.Add(form, name, *timer);
    timer->interval = interval;
    timer->enabled = true;
    ++timer->starts;
  }
  SimulatedTime time;
  std::string ticks;
  const auto note = [&](controls::Timer& timer) {
    ticks += std::to_string(time.Now()) + " " + registry.NameOf(&timer) + ", ";
    if (time.Now() == 300) ++slow.starts;  // restarted by a handler
    if (time.Now() == 500 && &timer == &fast) fast.enabled = false;
    return true;
  };
  time.Advance(registry, 800, note);
  EXPECT_EQ(ticks, "100 fast, 200 fast, 250 slow, 300 fast, 400 fast, 500 fast, 550 slow, 800 slow, ");
  EXPECT_EQ(time.Now(), 800);
}

TEST(SimulatedTime, ClockMovesAcrossTheEndOfTheYear) {
  SimulatedTime time;
  time.MoveTo(5000);
  time.SetClock(*ParseClock("2027-12-31 23:59:59"));
  time.MoveTo(6999);
  const auto clock = time.Clock();
  EXPECT_EQ((std::vector{clock.year, clock.month, clock.day, clock.second}), (std::vector{2028, 1, 1, 0}));
  for (const auto* wrong : {"2026-02-29 00:00:00", "2026-13-01 00:00:00", "2026-01-01 24:00:00",
                            "2026-1-1 0:0:0", "2026-01-01 00:00:00 ", "2026-01-01T00:00:00"}) {
    EXPECT_FALSE(ParseClock(wrong)) << wrong;
  }
}

TEST(SimulatedLine, LosesCharactersForAClosedPortAndFailsUntilItIsOpenedAgain) {
  SimulatedLine line;
  const auto operations = line.Operations();
  line.Arrive('a');
  EXPECT_TRUE(operations.write("x").Ok());
  EXPECT_FALSE(line.TakeReceived() || line.TakeDrained());
  ASSERT_TRUE(operations.open({1, "9600,N,8,1"}).Ok());
  line.Arrive('b');
  EXPECT_TRUE(line.TakeReceived());
  line.KeepReceived();
  EXPECT_TRUE(line.TakeReceived());
  EXPECT_EQ(operations.read(), "b");
  EXPECT_EQ(operations.read(), "");

  EXPECT_TRUE(operations.write("").Ok());
  EXPECT_FALSE(line.TakeDrained());
  for (const auto* text : {"xy", "z"}) EXPECT_TRUE(operations.write(text).Ok());
  EXPECT_TRUE(line.TakeDrained());
  EXPECT_FALSE(line.TakeDrained());
  EXPECT_TRUE(operations.write("x").Ok());
  line.Arrive('c');
  operations.close();
  EXPECT_FALSE(line.TakeReceived() || line.TakeDrained());

  ASSERT_TRUE(operations.open({}).Ok());
  line.Unplug();
  line.Arrive('d');
  EXPECT_FALSE(line.TakeReceived());
  EXPECT_FALSE(operations.write("x").Ok() || operations.open({}).Ok());
  line.Restore();
  EXPECT_FALSE(operations.write("x").Ok());
  EXPECT_TRUE(operations.open({}).Ok() && operations.write("x").Ok());
  line.Refuse("");
  EXPECT_FALSE(operations.open({}).Ok());
}

// Runs scripts in a program folder with the default image of one register.
class Script : public ::testing::Test {
 protected:
  Script() {
    const firmware::FirmwareId firmware{"V1400", "R12"};
    std::filesystem::create_directories(folder_.File("V1400/R12"));
    ovl::testing::WriteFile(folder_.File("V1400/R12/GENERIC.bin"),
                            ovl::testing::PatternStream(firmware) + "\r\n");
  }

  // What the script prints, and its exit status if it failed.
  std::string Run(const std::string& lines) {
    std::ostringstream output, errors;
    Session session(output, errors);
    session.SetFolder(folder_.Path().string() + "/");
    std::istringstream script(lines);
    const auto status = RunScript(session, script, "test.ovl", errors);
    if (status != ExitStatus::kDone) errors << "exit " << static_cast<int>(status);
    return output.str() + errors.str();
  }

  std::string RunStarted(const std::string& lines) {
    return Run("setting Version \"V1400\"\nsetting Release \"R12\"\nstart\n" + lines);
  }

  TemporaryFolder folder_;
};

TEST_F(Script, PrintsControlsFieldsAndVariables) {
  EXPECT_EQ(
      RunStarted(
          "show ComboReg\nshow CmdUpDow(4)\nshow CmdUpDow(0)\nshow OpBaud\nshow OpBaud(1)\nshow CheckTD\n"
          "show vbalProgressBar1\nshow frmSettSR\nshow Label64(1)\nclick cmdConnect\nshow OpParity\n"
          "tick Timer_Operating 3\nvar OperatingCount\nset UNITADDR \"\"\nfield UNITADDR\nfield IGSCFG_BAK\n"
          "set IPADDRESS(2) 0A\nfield IPADDRESS(2)\nset ALMNORMAL_BAK(1) 01\nset ALMNORMAL_BAK(2) 02\n"
          "field ALMNORMAL_BAK\nvar PanelsReady\nvar LastReceived\nvar UploadCommandText\nclick cmdSET\n"
          "answer cancel\nclick OpenMenu\nvar StatusNote\ndrain 0\nclick cmdTitle\n"
          "type frmSetEXCPSTR.Text1 \"A B\"\nkey frmSetEXCPSTR.Text1 Enter\nshow Title_Text\n"),
      "ComboReg = 0 \"GENERIC\" visible enabled\nCmdUpDow(4) = - \"Remote\" visible enabled\n"
      "CmdUpDow(0) = - \"Upload\" visible disabled\nOpBaud = -1 \"\" visible enabled\n"
      "OpBaud(1) = 0 \"2400\" visible enabled\nCheckTD = 1 \"Use Current Time Date\" visible enabled\n"
      "vbalProgressBar1 = 0 \"\" hidden enabled\nfrmSettSR = - \"Communication Setting\" hidden enabled\n"
      "Label64(1) = - \"Uploading . . .\" hidden enabled\nOpParity = 0 \"NONE\" visible enabled\n"
      "OperatingCount = 0\nUNITADDR = \"\"\nIGSCFG_BAK = \" ........ATM INTERFACE\"\nIPADDRESS(2) = 0A\n"
      "ALMNORMAL_BAK(1) = 01\nALMNORMAL_BAK(2) = 02\nPanelsReady = true\nLastReceived = \"\"\n"
      "UploadCommandText = \"/LU\\r\"\nStatusNote = \"" +
          folder_.File("*.bin: Operation canceled\"\nTitle_Text = - \"A B\" visible enabled\n"));
}

TEST_F(Script, PrintsBoxesRefusalsSentTextsAndTheEnd) {
  EXPECT_EQ(RunStarted("click CmdUpDow(4)\nclick CmdUpDow(0)\npick OpBaud 3\ntype ComboReg \"x\"\n"
                       "click cmdConnect\npick OpBaud \"1200\"\nclick cmdSET\nclick CmdUpDow(4)\nsent\nsent\n"
                       "unit hex 15\nsent\nlist OpParity\necho \"one  two\"\nclose frmMain\nsent\n"
                       "echo last\nstart\nclick menuExit"),
            "box \"\" \"        Please Select Comport.\"\nrefused CmdUpDow(0)\nrefused OpBaud\n"
            "\"~~~SOH_REQUEST_EOT~~~k\"\n\"\"\n"
            "box \"- Connection Fail -\" \"                            !!! Remote Connection Fail. !!!\\n"
            "Cable Disconnected Or Communication Setting Wrong ,Try Again\"\n"
            "\"\\x18\"\n\"NONE\"\n\"ODD\"\n\"EVEN\"\none  two\nended\n\"\"\nlast\nended\n");
}

TEST_F(Script, ChecksFilesAndTheConfiguration) {
  const auto good = folder_.File("good.bin"), bad = folder_.File("bad \"\xD6\".bin"),
             missing = folder_.File("no");
  const firmware::FirmwareId firmware{"V1400", "R12"};
  ovl::testing::WriteFile(folder_.File("V1400/R12/GENERIC.bin"),
                          acts::ReopenableFile(images::FactoryImage(firmware), firmware).value());
  EXPECT_EQ(RunStarted("check\nstream \"" + good + "\"\nclick DemoMode\npick ComboTD(4) 1\ncheck\n" +
                       "stream " + Quoted(bad) + "\n"),
            "no findings\nwarning: demo-on: The unit starts its demo after power up.\n"
            "note: clock-locked: T/D LOCKING is ON, but T/D DISPLAY is OFF.\n");
  using Options = std::vector<command_line::Given>;
  const auto checked = [](Options options, std::vector<std::string> words) {
    words.insert(words.begin(), "check");
    const auto command = CommandOf({command_line::Wish::kRun, {}, std::move(options), std::move(words)});
    std::ostringstream output, errors;
    const auto status = command.run(output, errors);
    return std::to_string(static_cast<int>(status)) + '\n' + output.str() + errors.str();
  };
  const auto of = [](const char* name) { return Options{{0, name}}; };
  const auto lines = bad + ": warning: demo-on: The unit starts its demo after power up.\n" + bad +
                     ": note: clock-locked: T/D LOCKING is ON, but T/D DISPLAY is OFF.\n";
  EXPECT_EQ(checked(of("V1400R12"), {good}), "0\n");
  EXPECT_EQ(checked(of("V1400 R12"), {good, bad}), "1\n" + lines);
  EXPECT_EQ(checked(of("V1400R12"), {missing, bad}),
            "2\n" + lines + missing + ": No such file or directory\n");
  EXPECT_EQ(checked(of("V1400R7"), {good}),
            "2\n" + good + ": not a configuration of V1400R7. It fits V1400R11, V1400R12\n");
  EXPECT_EQ(checked(of("V1400R99"), {good}), "2\nV1400R99: there is no such firmware\n");
  const auto json = checked({{0, "V1400R12"}, {1, {}}}, {good, bad, missing});
  EXPECT_NE(json.find("good.bin\", \"firmware\": \"V1400R12\", \"findings\": []},\n"), std::string::npos)
      << json;
  EXPECT_NE(json.find("bad \\\"\xC3\x96\\\".bin\""), std::string::npos) << json;
  EXPECT_NE(json.find("\"problem\": \"" + missing + ": No such file"), std::string::npos) << json;
  EXPECT_NE(json.find("{\"severity\": \"warning\", \"id\": \"demo-on\", \"words\": \"The unit starts its "
                      "demo after power up.\", \"tab\": \"REMOTE\", \"setting\": \"Demo On Power Up\", "
                      "\"control\": \"DemoMode\", \"list\": \"\", \"number\": 0}"),
            std::string::npos)
      << json;
}

TEST_F(Script, AFailedExpectationNamesThePlace) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"ComboReg 1", "ComboReg 1, found 0"},
      {"ComboReg \"CASIO\"", "ComboReg \"CASIO\", found \"GENERIC\""},
      {"visible cmdDisConnect", "cmdDisConnect to be visible, found hidden"},
      {"hidden cmdConnect", "cmdConnect to be hidden, found visible"},
      {"unchecked CheckTD", "CheckTD to be unchecked, found checked"},
      {"var RemoteHeld true", "RemoteHeld = true, found false"},
      {"count OpParity 4", "4 entries of OpParity, found 3"},
      {"sent \"x\"", "sent \"x\", found \"\""},
      {"box \"x\"", "box \"x\", found no box"},
      {"ended", "the program to have ended, found it running"},
      {"list OpParity \"NONE\"", "the entries of OpParity to be \"NONE\", found \"NONE\" \"ODD\" \"EVEN\""},
  };
  for (const auto& [expectation, message] : cases) {
    EXPECT_EQ(RunStarted("expect " + expectation + "\necho x"),
              "test.ovl:4: expected " + message + "\nexit 1");
  }
  EXPECT_TRUE(RunStarted("click CmdUpDow(4)\nexpect box \"title\" \"        Please Select Comport.\"")
                  .ends_with("found box \"\" \"        Please Select Comport.\"\nexit 1"));
}

TEST_F(Script, WrongStatementsAreReportedWithTheirPlace) {
  struct Row {
    const char* problem;
    std::vector<std::string> statements;
  };
  const Row rows[] = {
      {"unknown name", {"frobnicate", "pick NoSuch 1", "click NoSuch(1)", "field NOFIELD", "var NoSuch"}},
      {"unknown entry", {"pick ComboReg 999", "pick ComboReg -1", "pick ComboReg \"no such\""}},
      {"unknown entry of a field", {"field EXCPSTRS(25)", "field EXCPSTRS(0)"}},
      {"entry of a field is missing", {"set IPADDRESS 00", "expect field IPADDRESS 00"}},
      {"quotes", {"pick ComboReg GENERIC", "pick \"ComboReg\" 0", "\"click\" cmdConnect"}},
      {"wrong kind of control", {"pick cmdConnect 0", "click ComboReg", "click Label64(0)", "click OpDVR"}},
      {"wrong kind of control", {"type cmdConnect \"x\"", "key ComboReg Space", "close ComboReg"}},
      {"wrong kind of control", {"tick ComboReg", "list Timer", "expect Timer 1", "expect checked Timer"}},
      {"wrong number", {"tick Timer x", "tick Timer -1", "drain -1", "wait x", "wait 1x"}},
      {"wrong digits", {"unit 06", "unit hex", "unit hex 6"}},
      {"wrong word", {"clock \"2026-02-30 00:00:00\"", "port down", "expect no sent", "store memory"}},
      {"one word too many or too few", {"click cmdConnect twice", "expect box", "echo", "backup"}},
      {"no real port", {"upload", "download x"}},
      {"no such file",
       {"stream /no/such/folder/file", "diff missing.bin missing.bin", "backup /no/such/folder/file"}},
  };
  for (const auto& [problem, statements] : rows) {
    for (const auto& statement : statements) {
      const auto message = RunStarted(statement);
      EXPECT_TRUE(message.starts_with("test.ovl:4: ") && message.ends_with("\nexit 2"))
          << problem << ", " << statement << ": " << message;
    }
  }
  EXPECT_EQ(Run("\n# before the start\nshow ComboReg"), "test.ovl:3: the program was not started\nexit 2");
}

TEST_F(Script, AfterTheEndAStatementThatNeedsTheProgramEndsTheScript) {
  for (const std::string word : {"click", "wait", "show", "setting", "port"}) {
    EXPECT_EQ(RunStarted("click menuExit\n" + word + " x"),
              "ended\ntest.ovl:5: the program has ended, but " + word + " needs it\nexit 3");
  }
}

TEST(Texts, AllKindsOfLineBreaksAreEqual) {
  for (const auto* line_break : {"\n", "\r\n", "\r"}) {
    EXPECT_TRUE(ReadTheSame(std::string("one") + line_break + "two", "one\ntwo"));
    EXPECT_FALSE(ReadTheSame(std::string("one") + line_break + "two", "one\n\ntwo"));
  }
}

TEST_F(Script, AStreamFileHasEqualLineEndsAndReadingItChangesNothing) {
  const auto path = folder_.File("a folder.txt");
  const auto printed = RunStarted("var SYSCFG\nstream \"" + path + "\"\nstream\nvar SYSCFG\n");
  const auto written = ovl::testing::ReadFile(path);
  ASSERT_TRUE(written.ends_with("#\r\n")) << written;
  EXPECT_EQ(written.find('\n'), 70U);
  EXPECT_EQ(printed, "SYSCFG = \"\"\n" + Quoted(written.substr(0, written.size() - 2)) + "\nSYSCFG = \"\"\n");
}

TEST_F(Script, DumpsTheImageByNamesUnderItsHeadings) {
  const auto path = folder_.File("dump.txt");
  EXPECT_EQ(RunStarted("set RX_BAUDRATE 03\nset EXCPSTRS(24) AB\ndump \"" + path + "\"\ndump\n"), "");
  const auto text = ovl::testing::ReadFile(path);
  EXPECT_TRUE(text.starts_with("::SYSCFG::\r\nEXECENTRY = "));
  for (const auto* line : {"RX_BAUDRATE = 03\r\n", "::SYSFIXED::\r\nREGTYPE = 00\r\n",
                           "::SYSSTR::\r\nONSCRNTITL = ", "EXCPSTRS(24) = AB\r\n"}) {
    EXPECT_NE(text.find(std::string("\r\n") + line), std::string::npos) << line;
  }
  EXPECT_EQ(text.find("IGSCFG_BAK"), std::string::npos);
  EXPECT_EQ(ovl::testing::ReadFile(folder_.File("V1400/SaveReport.Bin")), text);
}

TEST_F(Script, ComparesFilesAndTheConfigurationInWords) {
  const auto first = "\"" + folder_.File("first.bin") + "\"";
  const auto second = "\"" + folder_.File("second.bin") + "\"";
  EXPECT_EQ(RunStarted("set TX_BAUDRATE 01\nset ALMNORMAL_BAK(2) 00\nstream " + first +
                       "\nset TX_BAUDRATE 03\nset ALMNORMAL_BAK(2) 40\nstream " + second + "\ndiff " + first +
                       " " + second + "\ndiff " + first + " " + first + "\ndiff " + second),
            "ALARM OUTPUTS: Alarm 15, NORMAL STATE: \"NO\" -> \"NC\"\n"
            "COMMUNICATION: TX BAUDRATE: \"2400\" -> \"9600\"\n"
            "no difference\nno difference\n");
  // The window of a register does not open, and nothing is taken while another window waits.
  ovl::testing::WriteFile(folder_.File("micros.toml"),
                          "format = 1\n[\"REGISTER SELECT\"]\nRegister = \"MICROS\"\n[\"Other bytes\"]\n"
                          "REGTYPE_MINOR = \"01\"\n");
  const auto import = "import \"" + folder_.File("micros.toml") + "\"\n";
  EXPECT_EQ(RunStarted(import + "expect hidden frmMicros\nexpect ComboReg \"MICROS\"\nfield REGTYPE_MINOR\n"),
            "REGTYPE_MINOR = 01\n");
  EXPECT_EQ(RunStarted("click cmdConnect\n" + import), "refused import\n");
  ovl::testing::WriteFile(folder_.File("second.bin"), "noise");
  EXPECT_TRUE(RunStarted("diff " + first + " " + second).ends_with("exit 2"));
}

TEST_F(Script, PrintsChangesInWordsAndCopiesExceptionsAndAlarms) {
  EXPECT_EQ(RunStarted("changes\n"), "no changes\n");
  const auto printed = RunStarted(
      "pick ComboExcp(0) 2\nclick cmdSetExcpstr\ntype Text1 \"A \\\"B\\\" \\xE4\"\nkey Text1 Enter\n"
      "copy exception 3 5 6\nshow TextException\nchanges\n");
  for (const auto* line : {"EXCEPTION REPORT: Exception 3, text: ", "EXCEPTION REPORT: Exception 5, text: ",
                           "EXCEPTION REPORT: Exception 6, text: "}) {
    EXPECT_NE(printed.find(line), std::string::npos) << printed;
  }
  EXPECT_NE(printed.find(" -> \"A \\\"B\\\" \xC3\xA4\"\n"), std::string::npos) << printed;
  EXPECT_EQ(RunStarted("click cmdConnect\ncopy alarm 1 2\n"), "refused copy\n");
  for (const auto* wrong : {"copy exception 1 25", "copy alarm 1 17", "copy alarm 0 1", "copy alarm 1 5 4",
                            "copy 1 2", "changes now"}) {
    EXPECT_TRUE(RunStarted(wrong).ends_with("exit 2")) << wrong;
  }
}

TEST_F(Script, ABackupBringsBackWhatWasPicked) {
  const auto path = "\"" + folder_.File("a backup.bin") + "\"";
  EXPECT_EQ(RunStarted("pick ComboCOMM(3) 2\nbackup " + path + "\npick ComboCOMM(3) 0\nanswer " + path +
                       "\nclick OpenMenu\nexpect ComboCOMM(3) 2\nexpect no box\n"),
            "");
}

TEST_F(Script, WarnsOfTheEffectOfOpeningAFile) {
  const auto inspect = [&](const firmware::FirmwareId& firmware, int code) {
    ovl::testing::WriteFile(folder_.File("some.bin"), ovl::testing::PatternStream(firmware, 1, code));
    return RunStarted("inspect \"" + folder_.File("some.bin") + "\"\n");
  };
  // A file fits each firmware with the same form of stream.
  const auto fits = [](const firmware::FirmwareId& firmware, const std::string& register_text) {
    std::string lines;
    for (const auto& facts : ovl::testing::AllFirmwareFacts()) {
      if (facts.stream == ovl::testing::FactsOf(firmware).stream)
        lines += "fits " + facts.id.Joined() + ": register " + register_text + "\n";
    }
    return lines;
  };
  EXPECT_EQ(inspect({"V1400", "R12"}, 110),
            fits({"V1400", "R12"}, "110 \"WEIGH SCALE\"") + "opening it under V1400R12 loads it\n");
  EXPECT_EQ(inspect({"V1400", "R4"}, 5),
            fits({"V1400", "R4"}, "5 \"ANSI\"") + "opening it under V1400R12 ends the program\n");
  EXPECT_EQ(inspect({"V1400", "R6"}, 5),
            fits({"V1400", "R6"}, "5 \"ANSI\"") +
                "opening it under V1400R12 loads it with settings in the wrong place\n");
  const auto unlisted = inspect({"V1310", "R1"}, 200);
  EXPECT_NE(unlisted.find("fits V1310R1: register 200 is not in its list\n"), std::string::npos) << unlisted;
  EXPECT_EQ(unlisted.find("fits V1410"), std::string::npos) << "the menu does not offer it";
  ovl::testing::WriteFile(folder_.File("some.bin"), "noise");
  EXPECT_EQ(RunStarted("inspect \"" + folder_.File("some.bin") + "\"\n"),
            "fits no firmware\nopening it under V1400R12 refuses it and keeps the image\n");
}

}  // namespace
}  // namespace ovl::script
