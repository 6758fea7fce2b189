#include "link/states.h"

#include <gtest/gtest.h>

namespace ovl::testing {
namespace {

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

void ExpectState(const Application& app, State state) {
  EXPECT_EQ(DifferenceFrom(state, app), "")
      << "from " << NameOf(state) << ", mode " << app.LinkMode << ", timers " << RunningTimers(app);
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
