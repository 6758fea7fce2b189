// Which acts undo takes back, under which names, and what it leaves alone. That image and settings are
// exactly as before is the random walk's to find out.
#include "acts/act_history.h"

#include <gtest/gtest.h>

#include <sstream>

#include "images/default_images.h"
#include "script/parser.h"
#include "script/runner.h"
#include "support/harness.h"

namespace ovl::testing {
namespace {

class ActHistoryTest : public ::testing::Test {
 protected:
  ActHistoryTest() : session_(output_, output_) {
    images::WriteDefaultImages(folder_.Path().string(), kFirmware);
    Do("folder " + script::Quoted(folder_.Path().string()) +
       "\nsetting Version V1400\nsetting Release R12\nclock \"2026-03-05 11:08:09\"\nstart");
  }

  void Do(const std::string& script) {
    std::istringstream lines(script);
    std::ostringstream errors;
    EXPECT_EQ(script::RunScript(session_, lines, "script", errors), script::ExitStatus::kDone)
        << errors.str();
  }

  std::string NextUndo() {
    session_.History().Observe();
    const auto* name = session_.History().NextUndo();
    return name == nullptr ? "none" : name->English();
  }

  void Upload(int seed) {
    Do("click cmdConnect\nclick frmSettSR.cmdSET\nclick CmdUpDow(4)\nunit hex 06\nclick "
       "CmdUpDow(0)\ndrain\nunit " +
       script::Quoted(PatternStream(kFirmware, seed)) + "\nclick frmOK_buttom.Command1");
  }

  const firmware::FirmwareId kFirmware{"V1400", "R12"};
  const TemporaryFolder folder_;
  std::ostringstream output_;
  script::Session session_;
};

TEST_F(ActHistoryTest, NamesAnActInTheWordsOfTheForm) {
  const auto file = "answer " + script::Quoted(folder_.File("shop12.bin")) + "\nclick ";
  const std::pair<std::string, const char*> acts[] = {
      {"pick ComboReg 40", "Register"},
      {"pick ComboALM(3) 5", "ALARM DURATION"},
      {"click cmdSetExcpstr\ntype frmSetEXCPSTR.Text1 \"VOID\"\nclick frmSetEXCPSTR.cmdSET",
       "EXCEPTION SETUP"},
      {"click DemoMode", "Demo On Power Up"},
      {"set SITE_NO_BAK 7F", "SITE_NO_BAK"},
      {file + "menuSave\n" + file + "OpenMenu", "Open shop12.bin"},
      {"answer cancel\nclick OpenMenu", "Open"},
  };
  EXPECT_EQ(NextUndo(), "none");
  for (const auto& [script, name] : acts) {
    Do(script);
    EXPECT_EQ(NextUndo(), name);
  }
}

TEST_F(ActHistoryTest, ACancelledOpenIsTakenBackWithWhatItLeavesSet) {
  Do("answer cancel\nclick OpenMenu\nexpect var UploadApplying true\nundo\nexpect var UploadApplying false");
  Do("pick ComboReg 5\nexpect field REGTYPE 05");
}

TEST_F(ActHistoryTest, AnUploadIsOneActAndComesBackWithItsName) {
  Upload(3);
  EXPECT_EQ(NextUndo(), "Upload");
  EXPECT_EQ(session_.History().Origin(), "Uploaded 11:08");
  const auto uploaded = session_.App().image;
  Do("undo\nexpect field REGTYPE 00");
  EXPECT_EQ(session_.App().image, session_.App().known_image);
  EXPECT_EQ(session_.History().Origin(), "GENERIC");
  Do("redo");
  EXPECT_EQ(session_.App().image, uploaded);
  EXPECT_EQ(session_.App().image, session_.App().known_image);
}

TEST_F(ActHistoryTest, ANewActRemovesWhatCouldBeRedone) {
  Do("pick ComboALM(3) 5\npick ComboALM(3) 6\nundo\npick ComboALM(3) 7");
  EXPECT_EQ(session_.History().NextRedo(), nullptr);
  Do("undo\nexpect ComboALM(3) 5");
}

TEST_F(ActHistoryTest, SaveIsNothingToUndoAndKeepsWhatCanBeRedone) {
  Do("pick ComboALM(3) 5\npick ComboALM(3) 6\nundo");
  Do("answer " + script::Quoted(folder_.File("saved.bin")) + "\nclick menuSave");
  EXPECT_EQ(NextUndo(), "ALARM DURATION");
  Do("redo\nexpect ComboALM(3) 6\nundo\nexpect ComboALM(3) 5");
}

TEST_F(ActHistoryTest, OnlyTheLast200ActsCanBeTakenBack) {
  for (int act = 0; act < 201; ++act) Do("pick ComboALM(3) " + std::to_string(act % 2 + 4));
  Do("undo 200\nexpect ComboALM(3) 4");
  EXPECT_EQ(NextUndo(), "none");
}

TEST_F(ActHistoryTest, NothingIsTakenBackWhileAWindowOrATransferHoldsTheSettings) {
  Do("pick ComboALM(3) 5\nclick cmdSetExcpstr");
  EXPECT_EQ(NextUndo(), "none");
  Do("close frmSetEXCPSTR");
  EXPECT_EQ(NextUndo(), "ALARM DURATION");
  Do("click cmdConnect\nclick frmSettSR.cmdSET\nclick CmdUpDow(4)\nunit hex 06\nclick "
     "CmdUpDow(0)\ndrain\nunit \"$\"");
  EXPECT_EQ(NextUndo(), "none");
}

// The unit keeps what it was sent, whatever is undone here.
TEST_F(ActHistoryTest, UndoDoesNotPretendThatADownloadWasTakenBack) {
  Upload(3);
  Do("pick ComboALM(3) 5");
  session_.App().known_image = session_.App().image;  // as at the end of a complete download
  Do("undo 2");
  EXPECT_NE(session_.App().image, session_.App().known_image);
}

}  // namespace
}  // namespace ovl::testing
