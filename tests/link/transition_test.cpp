#include <gtest/gtest.h>

#include "link/states.h"

namespace ovl::testing {
namespace {

const FirmwareId kFirmware = {"V1400", "R12"};

struct Transition {
  const char* name;
  State from;
  Act act;
  State to;
  int link_mode;
  std::string sent;
  std::string title, text;  // of the box; no text: none
};

Act Both(const Act& first, const Act& second) {
  return [=](Harness& program) {
    first(program);
    second(program);
  };
}

void ScanFromClosed(Harness& program) {
  program.Click("cmdConnect");
  EXPECT_EQ(program.Click("BaudrateCMD"), Outcome::kDone);
}

std::vector<Transition> Rows() {
  const auto silence = Ticks(&MainForm::Timer_Operating, kSilence);
  const auto granted = Both(Arrives(kAck), Ticks(&MainForm::General_timer, 1));
  const auto uploaded = Both(Arrives(PatternStream(kFirmware, 2)), PressOk);
  const auto fail = [](std::string sent, const char* name, State from, const Act& act) {
    return Transition{name, from, act, State::kClosed, 255, std::move(sent), kFailTitle, kFailText};
  };
  const auto parity = [](const char* name, State from) {
    return Transition{name, from, Arrives("?"), State::kClosed, 255, kCan, "", kParityText};
  };
  return {
      {"a good port", State::kClosed, OpenPort, State::kOpen, 255, "", "", ""},
      {"a scan", State::kClosed, ScanFromClosed, State::kScanning, 255, kRequest, "", ""},
      {"no port to ask on", State::kClosed, Press("CmdUpDow(4)"), State::kClosed, 255, "", "",
       "        Please Select Comport."},
      {"asked", State::kOpen, Press("CmdUpDow(4)"), State::kAsked, 0, kRequest, "", ""},
      {"closed by hand", State::kOpen, Press("cmdDisConnect"), State::kClosed, 255, kCan, "", ""},
      {"granted", State::kAsked, granted, State::kHeld, 0, "", "", ""},
      {"asked, closed by hand", State::kAsked, Press("cmdDisConnect"), State::kClosed, 0, kCan, "", ""},
      fail(kCan, "refused", State::kAsked, Arrives(kNak)),
      parity("asked, garbled", State::kAsked),
      fail(kCan, "no grant", State::kAsked, Ticks(&MainForm::General_timer, 1)),
      fail(kCan, "no grant but noise", State::kAsked,
           Both(Arrives("abc"), Ticks(&MainForm::General_timer, 1))),
      {"left", State::kHeld, Press("CmdUpDow(4)"), State::kOpen, 255, std::string(kCan) + kCan, "", ""},
      {"held, closed by hand", State::kHeld, Press("cmdDisConnect"), State::kClosed, 0, kCan, "", ""},
      {"upload", State::kHeld, Press("CmdUpDow(0)"), State::kUploading, 1, "/LU\r", "", ""},
      {"download", State::kHeld, Press("CmdUpDow(1)"), State::kDownloadCommand, 2, "/LD\r", "", ""},
      {"history", State::kHeld, Press("CmdUpDow(3)"), State::kReadingHistory, 0, "/LH\r\n\r", "", ""},
      {"reset", State::kHeld, Press("CmdUpDow(5)"), State::kResetting, 0, "/MR\r\n\r", "", ""},
      {"no answer to the keep-alive", State::kHeld, Ticks(&MainForm::Time_handcheck, kTimeOut),
       State::kClosed, 0, kEnq, kTimeOutTitle, kTimeOutText},
      fail(kCan, "held, refused", State::kHeld, Arrives(kNak)),
      parity("held, garbled", State::kHeld),
      {"uploaded", State::kUploading, uploaded, State::kOpen, 255, "", "", ""},
      fail("", "upload silent", State::kUploading, silence),
      parity("upload garbled", State::kUploading),
      {"download let in", State::kDownloadCommand, Arrives(kAck), State::kDownloadStream, 2, "$", "", ""},
      fail("", "download silent", State::kDownloadCommand, silence),
      parity("download command garbled", State::kDownloadCommand),
      {"last character out", State::kTransferDone, Arrives(kAck), State::kTransferDone, 2, "", "", ""},
      {"download confirmed", State::kTransferDone, PressOk, State::kOpen, 255, "", "", ""},
      {"clock set", State::kSettingClock, Arrives(kAck), State::kOpen, 0, "", "", "SET TIME DATE FINISHED."},
      {"clock, noise", State::kSettingClock, Arrives("x"), State::kSettingClock, 0, "", "", ""},
      fail(kCan, "clock refused", State::kSettingClock, Arrives(kNak)),
      fail("", "clock silent", State::kSettingClock, silence),
      {"history read", State::kReadingHistory, Arrives(kAck), State::kOpen, 0, "", "", ""},
      fail(kCan, "history refused", State::kReadingHistory, Arrives(kNak)),
      {"reset done", State::kResetting, Arrives(kAck), State::kOpen, 0, "", "", "       Master Reset Done."},
      {"reset failed", State::kResetting, Arrives("x"), State::kOpen, 0, "", "",
       "Cannot Master Reset to Device."},
      fail(kCan, "reset refused", State::kResetting, Arrives(kNak)),
      {"unit found", State::kScanning, Arrives(kAck), State::kHeld, 0, "", "", ""},
      {"scan cancelled", State::kScanning, Press("frmScanBProgress.Command1"), State::kClosed, 0, kCan, "",
       ""},
  };
}

TEST(Transitions, EveryRowLeadsWhereItShould) {
  for (const auto& row : Rows()) {
    SCOPED_TRACE(row.name);
    InState program(row.from);
    row.act(program);
    ExpectState(program.app, row.to);
    EXPECT_EQ(program.app.LinkMode, row.link_mode);
    EXPECT_EQ(program.TakeSent(), row.sent);
    if (!row.text.empty()) ExpectBox(program, row.title, row.text);
    EXPECT_TRUE(program.NoBoxLeft());
    if (row.to == State::kClosed && row.link_mode == 255) {
      EXPECT_EQ(program.app.LastReceived, "");
      EXPECT_EQ(program.app.PendingOutput, "");
      EXPECT_EQ(program.app.HandcheckCount, 0);
      EXPECT_EQ(program.app.OperatingCount, 0);
    }
  }
}

TEST(Failures, AGarbledCharacterSelectsTheFirstRegister) {
  InState program(State::kHeld, kFirmware, {"TCPIP"});
  program.Pick("ComboReg", 1);
  ASSERT_EQ(program.app.frmMain.ComboReg.position, 1);
  program.Unit("?");
  EXPECT_EQ(program.app.frmMain.ComboReg.position, 0);
}

TEST(Wire, ACommandGoesOutOneCharacterForEachDrainedEvent) {
  const std::vector<std::pair<const char*, std::string>> commands = {{"CmdUpDow(0)", "/LU\r"},
                                                                     {"CmdUpDow(1)", "/LD\r"},
                                                                     {"CmdUpDow(3)", "/LH\r\n\r"},
                                                                     {"CmdUpDow(5)", "/MR\r\n\r"}};
  for (const auto& [button, command] : commands) {
    SCOPED_TRACE(button);
    InState program(State::kHeld);
    program.app.FinalAckExpected = true;
    program.Click(button);
    EXPECT_FALSE(program.app.FinalAckExpected);
    for (const char character : command) {
      EXPECT_EQ(program.TakeSent(), std::string(1, character));
      program.Drain(1);
    }
    program.Drain(3);
    EXPECT_EQ(program.TakeSent(), "");
  }
}

TEST(LostDevice, TheKeepAliveTellsTheReasonAndThenTimesOut) {
  InState program(State::kHeld);
  program.line_error = kLost;
  program.Tick(program.app.frmMain.Time_handcheck, 5);
  ExpectBox(program, "", kLost);
  ExpectState(program.app, State::kHeld);
  program.Tick(program.app.frmMain.Time_handcheck, kTimeOut - 5);
  ExpectBox(program, kTimeOutTitle, kTimeOutText);
  ExpectState(program.app, State::kClosed);
}

TEST(LostDevice, EveryWayOutStillReachesItsEnd) {
  struct Row {
    State from;
    Act act;
    State to;
    const char* text;
  };
  const auto leave = [](Harness& program) { program.Click("CmdUpDow(4)"); };
  const auto unanswered = Both(Press("CmdUpDow(4)"), Ticks(&MainForm::General_timer, 1));
  const std::vector<Row> rows = {
      {State::kHeld, Press("cmdDisConnect"), State::kClosed, ""},
      {State::kUploading, Press("cmdDisConnect"), State::kClosed, ""},
      {State::kHeld, leave, State::kOpen, ""},
      {State::kHeld, Arrives(kNak), State::kClosed, kFailText},
      {State::kHeld, Arrives("?"), State::kClosed, kParityText},
      {State::kAsked, Ticks(&MainForm::General_timer, 1), State::kClosed, kFailText},
      {State::kOpen, unanswered, State::kClosed, kFailText},
      {State::kUploading, Ticks(&MainForm::Timer_Operating, kSilence), State::kClosed, kFailText},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(NameOf(row.from));
    InState program(row.from);
    program.line_error = kLost;
    row.act(program);
    ExpectState(program.app, row.to);
    EXPECT_EQ(program.TakeBox().text, row.text);
  }
}

}  // namespace
}  // namespace ovl::testing
