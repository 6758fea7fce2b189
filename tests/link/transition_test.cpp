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

TEST(Transitions, TheDownloadRunsThroughToItsSecondAcknowledgement) {
  InState program(State::kDownloadStream);
  program.DrainAll();
  ExpectState(program.app, State::kTransferDone);
  EXPECT_TRUE(program.app.FinalAckExpected);
  EXPECT_EQ(program.app.PendingOutput, "");
  program.Unit(kAck);
  ExpectState(program.app, State::kTransferDone);
  EXPECT_FALSE(program.app.FinalAckExpected);
}

TEST(Transitions, RemoteHeldFallsWithTheFirstCharacterOfTheHistory) {
  InState program(State::kReadingHistory);
  program.Unit("a");
  EXPECT_FALSE(program.app.RemoteHeld);
  EXPECT_TRUE(program.app.HistoryPending);
  EXPECT_TRUE(program.Control("CmdUpDow(0)").enabled);
  EXPECT_EQ(program.app.frmMain.lbRemoteAccess.caption, "ACCESS");
}

TEST(Failures, AGarbledCharacterClosesEveryStateButTheScan) {
  for (const auto state : kStates) {
    SCOPED_TRACE(NameOf(state));
    InState program(state);
    program.Unit("?");
    if (state == State::kClosed || state == State::kScanning) {
      ExpectState(program.app, state);
      EXPECT_TRUE(program.NoBoxLeft());
      EXPECT_EQ(program.TakeSent(), "");
      continue;
    }
    ExpectState(program.app, State::kClosed);
    EXPECT_EQ(program.app.LinkMode, 255);
    EXPECT_FALSE(program.app.DownloadActive);
    EXPECT_EQ(program.TakeSent(), kCan);
    ExpectBox(program, "", kParityText);
  }
}

TEST(Failures, AGarbledCharacterSelectsTheFirstRegister) {
  InState program(State::kHeld, kFirmware, {"TCPIP"});
  program.Pick("ComboReg", 1);
  ASSERT_EQ(program.app.frmMain.ComboReg.position, 1);
  program.Unit("?");
  EXPECT_EQ(program.app.frmMain.ComboReg.position, 0);
}

TEST(Failures, ARefusalCountsOnlyWhileRemoteModeIsTheMode) {
  const std::vector<State> unmoved = {State::kOpen,           State::kUploading,    State::kDownloadCommand,
                                      State::kDownloadStream, State::kTransferDone, State::kScanning};
  for (const auto state : unmoved) {
    SCOPED_TRACE(NameOf(state));
    InState program(state);
    program.Unit(kNak);
    ExpectState(program.app, state);
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.TakeSent(), "");
  }
  InState open(State::kSettingClock);
  open.Unit(kAck);
  open.TakeBox();
  open.Unit(kNak);
  ExpectState(open.app, State::kClosed);
  ExpectBox(open, kFailTitle, kFailText);
}

TEST(Failures, ARefusalInsideAnUploadIsCollected) {
  InState program(State::kUploading);
  program.Unit(std::string("$20") + kNak + "00");
  EXPECT_EQ(program.app.StreamBuffer, std::string("$20") + kNak + "00");
  ExpectState(program.app, State::kUploading);
}

TEST(Failures, LeaveStandingWhatNobodyClears) {
  struct Row {
    const char* name;
    State from;
    Act act;
    bool time, history, reset;
    bool bar;
  };
  const auto silence = Ticks(&MainForm::Timer_Operating, kSilence);
  const std::vector<Row> rows = {
      {"clock refused", State::kSettingClock, Arrives(kNak), true, false, false, false},
      {"clock silent", State::kSettingClock, silence, true, false, false, false},
      {"clock garbled", State::kSettingClock, Arrives("?"), true, false, false, false},
      {"history refused", State::kReadingHistory, Arrives(kNak), false, true, false, false},
      {"history garbled", State::kReadingHistory, Arrives("ab?"), false, true, false, false},
      {"reset refused", State::kResetting, Arrives(kNak), false, false, true, false},
      {"upload silent", State::kUploading, silence, false, false, false, true},
      {"upload garbled", State::kUploading, Arrives("?"), false, false, false, true},
      {"download silent", State::kDownloadCommand, silence, false, false, false, true},
      {"stream garbled", State::kDownloadStream, Arrives("?"), false, false, false, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    InState program(row.from);
    row.act(program);
    const auto& app = program.app;
    EXPECT_EQ(app.SetTimePending, row.time);
    EXPECT_EQ(app.HistoryPending, row.history);
    EXPECT_EQ(app.MasterResetPending, row.reset);
    EXPECT_FALSE(app.DownloadRequested);
    EXPECT_FALSE(app.DownloadActive);
    EXPECT_EQ(app.frmMain.vbalProgressBar1.visible, row.bar);
    EXPECT_EQ(app.frmMain.Label64[0].visible || app.frmMain.Label64[1].visible, row.bar);
  }
}

TEST(Failures, ACommandCutOffHalfWayIsForgotten) {
  InState program(State::kHeld);
  program.Click("CmdUpDow(1)");
  program.Drain(1);
  program.Tick(program.app.frmMain.Timer_Operating, kSilence);
  ExpectState(program.app, State::kClosed);
  EXPECT_FALSE(program.app.DownloadRequested);
  OpenPort(program);
  program.TakeSent();
  program.DrainAll();
  EXPECT_EQ(program.TakeSent(), "");
  EXPECT_EQ(program.app.LinkMode, 255);
}

// What had been done when the box came up; nothing else gets in while it stands.
TEST(Failures, TellAfterTheLinkIsDown) {
  struct Row {
    State from;
    Act act;
    std::string sent;
    std::string timers;
  };
  const std::vector<Row> rows = {
      {State::kSettingClock, Arrives("?"), kCan, ""},
      {State::kSettingClock, Arrives(kNak), kCan, "Timer_Operating"},
      {State::kAsked, Ticks(&MainForm::General_timer, 1), kCan, ""},
      {State::kUploading, Ticks(&MainForm::Timer_Operating, kSilence), "", ""},
      {State::kHeld, Ticks(&MainForm::Time_handcheck, kTimeOut), kEnq, "Time_handcheck"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(NameOf(row.from));
    InState program(row.from);
    int boxes = 0;
    program.app.platform.show_message = [&](const MessageBox&) {
      ++boxes;
      EXPECT_FALSE(program.app.frmMain.MSComm1.PortOpen);
      EXPECT_EQ(program.TakeSent(), row.sent);
      EXPECT_EQ(RunningTimers(program.app), row.timers);
      EXPECT_EQ(program.app.frmMain.lbRemoteAccess.caption, "No Access");
      EXPECT_EQ(program.Click("cmdConnect"), Outcome::kBusy);
      EXPECT_EQ(program.Tick(program.app.frmMain.Timer), Outcome::kBusy);
    };
    row.act(program);
    EXPECT_EQ(boxes, 1);
    ExpectState(program.app, State::kClosed);
  }
}

TEST(Wire, AUnitThatAnswersIsAskedEverySixSeconds) {
  InState program(State::kHeld);
  auto& timer = program.app.frmMain.Time_handcheck;
  for (int round = 0; round < 3; ++round) {
    program.Tick(timer, 4);
    EXPECT_EQ(program.TakeSent(), "");
    program.Tick(timer);
    EXPECT_EQ(program.TakeSent(), kEnq);
    program.Unit(kFormFeed);
    EXPECT_EQ(program.app.HandcheckCount, 5);
    program.Tick(timer);
    EXPECT_EQ(program.app.HandcheckCount, 0);
    program.DrainAll();
    EXPECT_EQ(program.TakeSent(), "");
    ExpectState(program.app, State::kHeld);
  }
}

TEST(Wire, AnAnswerIsSeenLateAndOnlyIfNothingFollowsIt) {
  InState program(State::kHeld);
  auto& timer = program.app.frmMain.Time_handcheck;
  program.Unit(kFormFeed);
  program.Tick(timer, 4);
  EXPECT_EQ(program.app.HandcheckCount, 4);
  program.Tick(timer);
  program.Unit(std::string(kFormFeed) + "x");
  program.Tick(timer, 20);
  EXPECT_EQ(program.app.HandcheckCount, 25);
  program.Unit(kFormFeed);
  program.Tick(timer);
  EXPECT_EQ(program.app.HandcheckCount, 0);
  program.Tick(timer, 4);
  program.TakeSent();
  program.Tick(timer, kTimeOut - 5);
  EXPECT_EQ(program.TakeSent(), kEnq);
  EXPECT_EQ(program.app.HandcheckCount, 29);
  ExpectState(program.app, State::kHeld);
  program.Unit(kFormFeed);
  program.Tick(timer);
  ExpectBox(program, kTimeOutTitle, kTimeOutText);
  ExpectState(program.app, State::kClosed);
}

TEST(Wire, ASecondGrantStartsTheKeepAliveCountAnew) {
  InState program(State::kHeld);
  program.Tick(program.app.frmMain.Time_handcheck, 3);
  program.Unit(kAck);
  EXPECT_EQ(program.app.HandcheckCount, 0);
  ExpectState(program.app, State::kHeld);
}

TEST(Wire, AnythingBehindTheGrantHidesItFromTheTick) {
  InState program(State::kAsked);
  program.Unit(std::string(kAck) + "x");
  EXPECT_TRUE(program.app.RemoteHeld);
  program.Tick(program.app.frmMain.General_timer);
  ExpectState(program.app, State::kClosed);
  EXPECT_EQ(program.TakeSent(), kCan);
  ExpectBox(program, kFailTitle, kFailText);
}

TEST(Wire, AGrantBehindTheTickFindsThePortClosed) {
  InState program(State::kAsked);
  program.Tick(program.app.frmMain.General_timer);
  program.TakeBox();
  program.Unit(kAck);
  EXPECT_EQ(Dispatch(program.app, ReceivedEvent{}), Outcome::kRefused);
  ExpectState(program.app, State::kClosed);
}

TEST(Wire, AnOldGrantIsNoAnswerToANewRequest) {
  InState program(State::kHeld);
  program.Unit(kAck);
  program.Click("CmdUpDow(4)");
  program.Click("CmdUpDow(4)");
  program.Tick(program.app.frmMain.General_timer);
  ExpectState(program.app, State::kClosed);
  ExpectBox(program, kFailTitle, kFailText);
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

TEST(Wire, TrafficInEitherDirectionFeedsTheWatchdog) {
  InState program(State::kUploading);
  auto& watchdog = program.app.frmMain.Timer_Operating;
  program.Tick(watchdog, kSilence - 1);
  program.Unit("x");
  program.Tick(watchdog, kSilence - 1);
  program.Drain(1);
  EXPECT_EQ(program.app.OperatingCount, 0);
  program.Tick(watchdog, kSilence - 1);
  ExpectState(program.app, State::kUploading);
  program.Tick(watchdog);
  ExpectState(program.app, State::kClosed);
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
