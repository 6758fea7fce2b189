#include "link/states.h"

#include <gtest/gtest.h>

#include <optional>

namespace ovl::testing {
namespace {

constexpr int kAnyMode = -1;

struct StateRow {
  const char* name;
  bool open;
  int link_mode;
  bool held;
  const char* timers;
  bool actions;  // the five buttons that need remote mode
  bool remote;
  std::optional<bool> connect;  // enabled, where the state fixes it
  bool access;
};

const StateRow& RowOf(State state) {
  static const std::array<StateRow, kStates.size()> rows = {{
      {"Closed", false, kAnyMode, false, "", false, true, true, false},
      {"Open", true, kAnyMode, false, "", false, true, {}, false},
      {"Asked", true, 0, false, "General_timer", false, true, {}, false},
      {"Held", true, 0, true, "Time_handcheck", true, true, {}, true},
      {"Uploading", true, 1, true, "Timer_Operating", false, false, false, true},
      {"DownloadCommand", true, 2, true, "Timer_Operating", false, false, false, true},
      {"DownloadStream", true, 2, true, "", false, false, false, true},
      {"TransferDone", true, kAnyMode, false, "", false, false, false, false},
      {"SettingClock", true, 0, true, "Timer_Operating", true, true, {}, true},
      {"ReadingHistory", true, 0, true, "", true, true, {}, true},
      {"Resetting", true, 0, true, "", true, true, {}, true},
      {"Scanning", true, kAnyMode, false, "BaudRateScan", false, true, {}, false},
  }};
  return rows.at(static_cast<std::size_t>(state));
}

void StartScan(Harness& program) {
  Hold(program);
  Disconnect(program);
  program.Click("cmdConnect");
  program.Click("BaudrateCMD");
}

void FromHeld(Harness& program, State state) {
  Hold(program);
  switch (state) {
    case State::kUploading:
      return Press("CmdUpDow(0)")(program);
    case State::kDownloadCommand:
      return Press("CmdUpDow(1)")(program);
    case State::kDownloadStream:
      Press("CmdUpDow(1)")(program);
      return program.Unit(kAck);
    case State::kTransferDone:
      RunDownload(program);
      return;
    case State::kSettingClock:
      return Press("CmdUpDow(2)")(program);
    case State::kReadingHistory:
      return Press("CmdUpDow(3)")(program);
    case State::kResetting:
      return Press("CmdUpDow(5)")(program);
    default:
      return;
  }
}

}  // namespace

const char* NameOf(State state) {
  return RowOf(state).name;
}

InState::InState(State state, const FirmwareId& firmware, const std::vector<std::string>& further_registers)
    : Harness(firmware, further_registers) {
  EXPECT_EQ(Start(), Outcome::kDone);
  app.frmMain.CmdUpDow[kMasterReset].visible = true;
  if (state == State::kClosed) return;
  OpenPort(*this);
  if (state == State::kOpen) return;
  if (state == State::kAsked) {
    Click("CmdUpDow(4)");
  } else if (state == State::kScanning) {
    StartScan(*this);
  } else {
    FromHeld(*this, state);
  }
  TakeSent();
  EXPECT_TRUE(NoBoxLeft());
}

void OpenPort(Harness& program) {
  EXPECT_EQ(program.Click("cmdConnect"), Outcome::kDone);
  EXPECT_EQ(program.Click("cmdSET"), Outcome::kDone);
}

void Hold(Harness& program) {
  EXPECT_EQ(program.Click("CmdUpDow(4)"), Outcome::kDone);
  program.Unit(kAck);
  program.Tick(program.app.frmMain.General_timer);
  EXPECT_EQ(program.app.LastReceived, "");
  EXPECT_EQ(program.TakeSent(), kRequest);
}

void Disconnect(Harness& program) {
  EXPECT_EQ(program.Click("cmdDisConnect"), Outcome::kDone);
}

void PressOk(Harness& program) {
  EXPECT_EQ(program.Click("frmOK_buttom.Command1"), Outcome::kDone);
}

void RunUpload(Harness& program, std::string_view answer) {
  Press("CmdUpDow(0)")(program);
  EXPECT_EQ(program.TakeSent(), "/LU\r");
  program.Unit(answer);
}

std::string RunDownload(Harness& program) {
  Press("CmdUpDow(1)")(program);
  EXPECT_EQ(program.TakeSent(), "/LD\r");
  program.Unit(kAck);
  program.DrainAll();
  return program.TakeSent();
}

std::string RunningTimers(const Application& app) {
  std::string names;
  const auto add = [&](const Timer& timer, const char* name) {
    if (timer.enabled) names += (names.empty() ? "" : " ") + std::string(name);
  };
  add(app.frmMain.General_timer, "General_timer");
  add(app.frmMain.Time_handcheck, "Time_handcheck");
  add(app.frmMain.Timer_Operating, "Timer_Operating");
  add(app.frmSettSR.BaudRateScan, "BaudRateScan");
  return names;
}

void ExpectState(const Application& app, State state) {
  const auto& row = RowOf(state);
  SCOPED_TRACE(std::string("state ") + row.name);
  const auto& main = app.frmMain;
  EXPECT_EQ(main.MSComm1.PortOpen, row.open);
  EXPECT_TRUE(row.link_mode == kAnyMode || row.link_mode == app.LinkMode) << app.LinkMode;
  EXPECT_EQ(app.RemoteHeld, row.held);
  EXPECT_EQ(app.ScanActive, state == State::kScanning);
  EXPECT_EQ(RunningTimers(app), row.timers);

  for (const auto action : {kUpload, kDownload, kSetTime, kLoadHistory, kMasterReset}) {
    EXPECT_EQ(main.CmdUpDow[static_cast<std::size_t>(action)].enabled, row.actions) << "action " << action;
  }
  EXPECT_EQ(main.CmdUpDow[kRemote].enabled, row.remote);
  EXPECT_EQ(main.cmdConnect.visible, !row.open);
  EXPECT_EQ(main.cmdDisConnect.visible, row.open);
  EXPECT_EQ(main.cmdConnect.enabled, row.connect.value_or(main.cmdConnect.enabled));
  EXPECT_EQ(main.cmdConnect.caption, row.open ? "Disconnect" : "Set Comport");
  EXPECT_EQ(main.lbConnectting.caption.substr(0, 13), row.open ? "Connected at " : "Not Connected");
  EXPECT_EQ(main.lbRemoteAccess.caption, row.access ? "ACCESS" : "No Access");
  EXPECT_EQ(main.Picture1[0].visible, !row.access);
  EXPECT_EQ(main.Picture1[3].visible, row.access);
}

void ExpectBox(Harness& program, std::string_view title, std::string_view text) {
  const auto box = program.TakeBox();
  EXPECT_EQ(box.title, title);
  EXPECT_EQ(box.text, text);
  EXPECT_EQ(box.icon, BoxIcon::kNone);
}

Act Press(const char* button) {
  return [button](Harness& program) {
    EXPECT_EQ(program.Click(button), Outcome::kDone) << button;
    program.DrainAll();
  };
}

Act Arrives(const std::string& text) {
  return [text](Harness& program) { program.Unit(text); };
}

Act Ticks(Timer MainForm::*timer, int count) {
  return [timer, count](Harness& program) { program.Tick(program.app.frmMain.*timer, count); };
}

}  // namespace ovl::testing
