#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "image/files.h"
#include "parser.h"
#include "runner.h"
#include "simulated_line.h"
#include "simulated_time.h"
#include "statements.h"
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

TEST(Parser, PrintsWhatItReadsBackTheSame) {
  std::string every;
  for (int byte = 0; byte < 256; ++byte) every += static_cast<char>(static_cast<unsigned char>(byte));
  EXPECT_EQ(SplitWords(Quoted(every)).at(0).text, every);
  EXPECT_EQ(Quoted("a\"\\\r\n\t\x18\x80"), R"("a\"\\\r\n\t\x18\x80")");
  for (const std::string text : {"", "FF", "two words", "a#b", "a\"b", "\x06"}) {
    const auto words = SplitWords(AsWord(text));
    ASSERT_EQ(words.size(), 1U) << AsWord(text);
    EXPECT_EQ(words[0].text, text);
  }
}

TEST(SimulatedTime, TicksInTheOrderInWhichTimersComeDue) {
  Registry registry;
  ::ovl::Form form;
  form.name = "form";
  Timer slow, fast, idle;
  slow.interval = 250;
  fast.interval = 100;
  idle.interval = 0;
  registry.Add(form, "slow", slow);
  registry.Add(form, "fast", fast);
  registry.Add(form, "idle", idle);
  for (auto* timer : {&slow, &fast, &idle}) timer->enabled = true, ++timer->starts;

  SimulatedTime time;
  std::vector<std::pair<SimulatedTime::Milliseconds, std::string>> ticks;
  const auto note = [&](Timer& timer) {
    ticks.emplace_back(time.Now(), registry.NameOf(&timer));
    if (time.Now() == 300) ++slow.starts;  // restarted by a handler
    if (time.Now() == 500 && &timer == &fast) fast.enabled = false;
    return true;
  };
  time.Advance(registry, 99, note);
  EXPECT_TRUE(ticks.empty());
  time.Advance(registry, 901, note);
  const decltype(ticks) expected = {{100, "fast"}, {200, "fast"}, {250, "slow"}, {300, "fast"},
                                    {400, "fast"}, {500, "fast"}, {550, "slow"}, {800, "slow"}};
  EXPECT_EQ(ticks, expected);
  EXPECT_EQ(time.Now(), 1000);
}

TEST(SimulatedTime, ClockMovesAcrossTheEndOfTheYear) {
  SimulatedTime time;
  time.MoveTo(5000);
  time.SetClock(*ParseClock("2027-12-31 23:59:59"));
  time.MoveTo(6999);
  EXPECT_EQ(time.Clock().year, 2028);
  EXPECT_EQ(time.Clock().month, 1);
  EXPECT_EQ(time.Clock().day, 1);
  EXPECT_EQ(time.Clock().second, 0);
  for (const auto* wrong : {"2026-02-29 00:00:00", "2026-13-01 00:00:00", "2026-01-01 24:00:00",
                            "2026-1-1 0:0:0", "2026-01-01 00:00:00 ", "2026-01-01T00:00:00"}) {
    EXPECT_FALSE(ParseClock(wrong)) << wrong;
  }
}

TEST(SimulatedLine, LosesWhatMeetsNoOpenPort) {
  SimulatedLine line;
  const auto operations = line.Operations();
  line.Arrive('a');
  EXPECT_FALSE(line.TakeReceived());
  ASSERT_FALSE(operations.open({1, "9600,N,8,1"}));
  line.Arrive('b');
  EXPECT_TRUE(line.TakeReceived());
  line.KeepReceived();
  EXPECT_TRUE(line.TakeReceived());
  EXPECT_EQ(operations.read(), "b");
  EXPECT_EQ(operations.read(), "");

  EXPECT_FALSE(line.TakeDrained());
  operations.write("xy");
  operations.write("z");
  EXPECT_TRUE(line.TakeDrained());
  EXPECT_FALSE(line.TakeDrained());
  operations.write("x");
  line.Arrive('c');
  operations.close();
  EXPECT_FALSE(line.TakeDrained());
  EXPECT_FALSE(line.TakeReceived());
}

TEST(SimulatedLine, ALostDeviceStaysDeadUntilItIsOpenedAgain) {
  SimulatedLine line;
  const auto operations = line.Operations();
  ASSERT_FALSE(operations.open({}));
  line.Unplug();
  EXPECT_TRUE(operations.write("x"));
  EXPECT_TRUE(operations.open({}));
  line.Restore();
  EXPECT_TRUE(operations.write("x"));
  ASSERT_FALSE(operations.open({}));
  EXPECT_FALSE(operations.write("x"));
  line.Refuse("");
  EXPECT_EQ(operations.open({}), std::optional<std::string>(""));
}

// A program folder with the default image of one register, and scripts run in it.
class Script : public ::testing::Test {
 protected:
  Script() {
    const FirmwareId firmware{"V1400", "R12"};
    std::filesystem::create_directories(folder_.File("V1400/R12"));
    WriteWhole(folder_.File("V1400/R12/GENERIC.bin"), ovl::testing::PatternStream(firmware) + "\r\n");
  }

  ExitStatus Run(const std::string& lines) {
    output_.str({});
    errors_.str({});
    Session session(output_, errors_);
    session.SetFolder(folder_.Path().string() + "/");
    std::istringstream script(lines);
    return RunScript(session, script, "test.ovl", errors_);
  }

  ExitStatus RunStarted(const std::string& lines) {
    return Run("setting Version \"V1400\"\nsetting Release \"R12\"\nstart\n" + lines);
  }

  std::string Printed() const { return output_.str(); }
  std::string Errors() const { return errors_.str(); }

  TemporaryFolder folder_;

 private:
  std::ostringstream output_, errors_;
};

TEST_F(Script, PrintsControlsFieldsAndVariables) {
  ASSERT_EQ(RunStarted("show ComboReg\nshow CmdUpDow(4)\nshow CmdUpDow(0)\nshow OpBaud\nshow OpBaud(1)\n"
                       "show CheckTD\nshow vbalProgressBar1\nshow frmSettSR\nshow Label64(1)\n"),
            ExitStatus::kDone)
      << Errors();
  EXPECT_EQ(Printed(),
            "ComboReg = 0 \"GENERIC\" visible enabled\n"
            "CmdUpDow(4) = - \"Remote\" visible enabled\n"
            "CmdUpDow(0) = - \"Upload\" visible disabled\n"
            "OpBaud = -1 \"\" visible enabled\n"
            "OpBaud(1) = 0 \"2400\" visible enabled\n"
            "CheckTD = 1 \"Use Current Time Date\" visible enabled\n"
            "vbalProgressBar1 = 0 \"\" hidden enabled\n"
            "frmSettSR = - \"Communication Setting\" hidden enabled\n"
            "Label64(1) = - \"Uploading . . .\" hidden enabled\n");

  ASSERT_EQ(RunStarted(
                "set IPADDRESS(2) 0A\nset UNITADDR \"\"\nfield IPADDRESS(2)\nfield ALMNORMAL_BAK\n"
                "set ALMNORMAL_BAK(1) 01\nset ALMNORMAL_BAK(2) 02\nfield ALMNORMAL_BAK\nfield UNITADDR\n"
                "field IGSCFG_BAK\nvar LinkMode\nvar PanelsReady\nvar LastReceived\nvar UploadCommandText\n"),
            ExitStatus::kDone)
      << Errors();
  EXPECT_NE(Printed().find("ALMNORMAL_BAK(1) = 01\nALMNORMAL_BAK(2) = 02\nUNITADDR = \"\"\n"
                           "IGSCFG_BAK = \" ........ATM INTERFACE\"\nLinkMode = 255\nPanelsReady = true\n"
                           "LastReceived = \"\"\nUploadCommandText = \"/LU\\r\"\n"),
            std::string::npos)
      << Printed();
}

TEST_F(Script, PrintsBoxesRefusalsSentTextsAndTheEnd) {
  ASSERT_EQ(
      RunStarted("click CmdUpDow(4)\nclick CmdUpDow(0)\npick OpBaud 3\ntype ComboReg \"x\"\n"
                 "click cmdConnect\npick OpBaud \"1200\"\nclick cmdSET\nclick CmdUpDow(4)\nsent\nsent\n"
                 "unit hex 15\nsent\nlist OpParity\necho \"one  two\"\nclose frmMain\nsent\necho last\n"),
      ExitStatus::kDone)
      << Errors();
  EXPECT_EQ(Printed(),
            "box \"\" \"        Please Select Comport.\"\n"
            "refused CmdUpDow(0)\n"
            "refused OpBaud\n"
            "\"~~~SOH_REQUEST_EOT~~~k\"\n"
            "\"\"\n"
            "box \"- Connection Fail -\" \"                            !!! Remote Connection Fail. !!!\\n"
            "Cable Disconnected Or Communication Setting Wrong ,Try Again\"\n"
            "\"\\x18\"\n"
            "\"NONE\"\n\"ODD\"\n\"EVEN\"\n"
            "one  two\n"
            "ended\n"
            "\"\"\n"
            "last\n");
}

TEST_F(Script, AFailedExpectationNamesThePlace) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"expect ComboReg 1", "expected ComboReg 1, found 0"},
      {"expect ComboReg \"CASIO\"", "expected ComboReg \"CASIO\", found \"GENERIC\""},
      {"expect visible cmdDisConnect", "expected cmdDisConnect to be visible, found hidden"},
      {"expect unchecked CheckTD", "expected CheckTD to be unchecked, found checked"},
      {"expect var RemoteHeld true", "expected RemoteHeld = true, found false"},
      {"expect count OpParity 4", "expected 4 entries of OpParity, found 3"},
      {"expect sent \"x\"", "expected sent \"x\", found \"\""},
      {"expect box \"x\"", "expected box \"x\", found no box"},
      {"expect ended", "expected the program to have ended, found it running"},
      {"expect list OpParity \"NONE\"",
       "expected the entries of OpParity to be \"NONE\", found \"NONE\" \"ODD\" \"EVEN\""},
  };
  for (const auto& [statement, message] : cases) {
    EXPECT_EQ(RunStarted(statement + "\necho never"), ExitStatus::kExpectationFailed) << statement;
    EXPECT_EQ(Errors(), "test.ovl:4: " + message + "\n");
    EXPECT_EQ(Printed(), "") << statement;
  }
}

TEST_F(Script, WrongStatementsAreToldWithTheirPlace) {
  for (const auto* statement : {"pick NoSuch 1",
                                "pick ComboReg 111",
                                "pick ComboReg -1",
                                "pick ComboReg \"no such\"",
                                "pick ComboReg GENERIC",
                                "pick cmdConnect 0",
                                "click ComboReg",
                                "click Label64(0)",
                                "click OpDVR",
                                "type cmdConnect \"x\"",
                                "key ComboReg Space",
                                "close ComboReg",
                                "tick ComboReg",
                                "tick Timer x",
                                "tick Timer -1",
                                "unit 06",
                                "unit hex",
                                "unit hex 6",
                                "drain -1",
                                "wait x",
                                "clock \"2026-02-30 00:00:00\"",
                                "port down",
                                "list Timer",
                                "field NOFIELD",
                                "field EXCPSTRS(25)",
                                "field EXCPSTRS(0)",
                                "set IPADDRESS 00",
                                "var NoSuch",
                                "upload",
                                "download x",
                                "expect Timer 1",
                                "expect checked Timer",
                                "expect no sent",
                                "expect box",
                                "expect field IPADDRESS 00",
                                "frobnicate",
                                "\"click\" cmdConnect",
                                "click cmdConnect twice",
                                "store memory",
                                "stream /no/such/folder/file",
                                "echo"}) {
    EXPECT_EQ(RunStarted(statement), ExitStatus::kWrongStatement) << statement;
    EXPECT_EQ(Errors().substr(0, 12), "test.ovl:4: ") << statement;
  }
  EXPECT_EQ(Run("\n# before the start\nshow ComboReg"), ExitStatus::kWrongStatement);
  EXPECT_EQ(Errors(), "test.ovl:3: the program was not started\n");
  EXPECT_EQ(RunStarted("click NoSuch(1)"), ExitStatus::kWrongStatement);
  EXPECT_NE(Errors().find("NoSuch(1)"), std::string::npos);
}

TEST_F(Script, AfterTheEndOnlyQuestionsAndAnotherStartFollow) {
  EXPECT_EQ(
      RunStarted("click menuExit\nexpect ended\nexpect no box\nsent\necho x\nstart\nexpect ComboReg 0\n"),
      ExitStatus::kDone)
      << Errors();
  for (const auto* statement :
       {"click cmdConnect", "wait 1", "show ComboReg", "setting Version \"V1300\"", "port ok"}) {
    EXPECT_EQ(RunStarted(std::string("click menuExit\n") + statement), ExitStatus::kProgramEnded)
        << statement;
  }
  EXPECT_EQ(
      Run("start\nexpect box \"Registry Error.\" \"Please ReInstall Ovalon PC Software\"\nexpect ended\n"),
      ExitStatus::kDone)
      << Errors();
}

TEST_F(Script, LineBreaksOfBoxesCompareAlike) {
  const std::string lost = "click cmdConnect\nclick cmdSET\nclick CmdUpDow(4)\nunit hex 15\nexpect box ";
  const std::string first = "\"                            !!! Remote Connection Fail. !!!";
  const std::string second = "Cable Disconnected Or Communication Setting Wrong ,Try Again\"\n";
  for (const auto* line_break : {"\\n", "\\r\\n", "\\r"}) {
    EXPECT_EQ(RunStarted(lost + first + line_break + second), ExitStatus::kDone) << line_break;
  }
  EXPECT_EQ(RunStarted(lost + first + "\\n\\n" + second), ExitStatus::kExpectationFailed);
  EXPECT_EQ(RunStarted(lost + "\"another title\" " + first + "\\n" + second), ExitStatus::kExpectationFailed);
}

TEST_F(Script, AStreamInAFileEndsEveryLineAlikeAndLookingChangesNothing) {
  const auto path = folder_.File("a folder.txt");
  ASSERT_EQ(RunStarted("var SYSCFG\nstream \"" + path + "\"\nstream\nvar SYSCFG\n"), ExitStatus::kDone)
      << Errors();
  const auto written = ReadWhole(path);
  ASSERT_TRUE(written.ends_with("#\r\n")) << written;
  EXPECT_EQ(written.find('\n'), 70U);
  EXPECT_NE(Printed().find(Quoted(written.substr(0, written.size() - 2)) + "\n"), std::string::npos);
  EXPECT_EQ(Printed().substr(0, Printed().find('\n')), "SYSCFG = \"\"");
  EXPECT_EQ(Printed().substr(Printed().rfind("SYSCFG")), "SYSCFG = \"\"\n");
}

TEST_F(Script, DumpsTheImageByNamesUnderItsHeadings) {
  const auto path = folder_.File("dump.txt");
  ASSERT_EQ(RunStarted("set RX_BAUDRATE 03\nset EXCPSTRS(24) AB\ndump \"" + path + "\"\ndump\n"),
            ExitStatus::kDone)
      << Errors();
  const auto text = ReadWhole(path);
  EXPECT_EQ(text.find("::SYSCFG::\r\nEXECENTRY = "), 0U);
  EXPECT_NE(text.find("\r\nRX_BAUDRATE = 03\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\n::SYSFIXED::\r\nREGTYPE = 00\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\n::SYSSTR::\r\nONSCRNTITL = "), std::string::npos);
  EXPECT_NE(text.find("\r\nEXCPSTRS(24) = AB\r\n"), std::string::npos);
  EXPECT_EQ(text.find("IGSCFG_BAK"), std::string::npos);
  EXPECT_EQ(ReadWhole(folder_.File("V1400/SaveReport.Bin")), text);
}

TEST_F(Script, ComparesFilesFieldByField) {
  const auto first = folder_.File("first.bin");
  const auto second = folder_.File("second.bin");
  ASSERT_EQ(RunStarted("set TX_BAUDRATE 01\nset ALMNORMAL_BAK(2) 00\nstream \"" + first +
                       "\"\nset TX_BAUDRATE 0A\nset ALMNORMAL_BAK(2) FF\nstream \"" + second + "\"\ndiff \"" +
                       first + "\" \"" + second + "\"\ndiff \"" + first + "\" \"" + first + "\"\n"),
            ExitStatus::kDone)
      << Errors();
  EXPECT_EQ(Printed(), "TX_BAUDRATE: 01 -> 0A\nALMNORMAL_BAK(2): 00 -> FF\nno difference\n");
  WriteWhole(second, "noise");
  EXPECT_EQ(RunStarted("diff \"" + first + "\" \"" + second + "\"\n"), ExitStatus::kWrongStatement);
  EXPECT_EQ(RunStarted("diff \"" + first + "\" missing.bin\n"), ExitStatus::kWrongStatement);
}

TEST_F(Script, WarnsOfWhatOpeningAFileWouldDo) {
  const auto path = folder_.File("some.bin");
  const auto inspect = [&](const std::string& stream) {
    WriteWhole(path, stream);
    EXPECT_EQ(RunStarted("inspect \"" + path + "\"\n"), ExitStatus::kDone) << Errors();
    return Printed();
  };
  EXPECT_EQ(inspect(ovl::testing::PatternStream({"V1400", "R12"}, 1, 110) + "\r\n"),
            "fits V1400R11: register 110 \"WEIGH SCALE\"\nfits V1400R12: register 110 \"WEIGH SCALE\"\n"
            "opening it under V1400R12 loads it\n");
  EXPECT_EQ(inspect(ovl::testing::PatternStream({"V1400", "R4"}, 1, 5)),
            "fits V1400R1: register 5 \"ANSI\"\nfits V1400R2: register 5 \"ANSI\"\n"
            "fits V1400R4: register 5 \"ANSI\"\nopening it under V1400R12 ends the program\n");
  EXPECT_NE(inspect(ovl::testing::PatternStream({"V1310", "R1"}, 1, 200))
                .find("fits V1310R1: register 200 is not in its list\n"),
            std::string::npos);
  EXPECT_EQ(inspect("noise"), "fits no firmware\nopening it under V1400R12 refuses it and keeps the image\n");
}

TEST_F(Script, DrainFollowsWhatIsWritten) {
  ASSERT_EQ(
      RunStarted("click cmdConnect\nclick cmdSET\ndrain 3\nclick CmdUpDow(4)\nunit hex 06\nwait 300\n"
                 "expect sent \"~~~SOH_REQUEST_EOT~~~k\"\nclick CmdUpDow(0)\ndrain 1\nexpect sent \"/L\"\n"
                 "drain\nexpect sent \"U\\r\"\ndrain 5\nexpect sent \"\"\n"),
      ExitStatus::kDone)
      << Errors();
}

TEST(Help, NamesEveryStatement) {
  const auto help = HelpText();
  for (const auto& statement : Statements()) {
    EXPECT_NE(help.find("\n" + std::string(statement.forms)), std::string::npos) << statement.word;
  }
}

}  // namespace
}  // namespace ovl::script
