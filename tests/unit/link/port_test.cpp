// The serial port: its dialog, its loss, and the baud scan.
#include "link/port.h"

#include <functional>
#include <tuple>

#include "core/messages.h"
#include "unit/link/states.h"

namespace ovl::testing {
namespace {

TEST(PortSettings, StartWithTheSameValuesExceptThePort) {
  InState program(State::kClosed);
  auto& app = program.app;
  auto& dialog = app.frmSettSR;
  program.Click("cmdConnect");
  EXPECT_FALSE(app.frmMain.form.enabled);
  EXPECT_EQ(dialog.form.focus, &dialog.cmdSET);
  EXPECT_EQ(dialog.Comport_Select.position, 0);
  const std::pair<const char*, int> picks[] = {
      {"Comport_Select", 4}, {"OpBaud", 7}, {"OpParity", 2}, {"OpDataBits", 0}};
  for (const auto& [name, position] : picks) {
    const auto requests = dialog.form.focus_requests;
    EXPECT_EQ(program.Pick(name, position), core::Outcome::kDone);
    EXPECT_GT(dialog.form.focus_requests, requests) << name;
  }
  app.frmMain.CmdUpDow[controls::kRemote].enabled = false;
  program.Click("cmdSET");
  EXPECT_TRUE(app.frmMain.CmdUpDow[controls::kRemote].enabled);
  EXPECT_EQ(app.frmMain.lbConnectting.caption, "Connected at COM 5: 38400,E,7,1");
  const auto& comm = app.frmMain.MSComm1;
  EXPECT_EQ(std::tuple(comm.SThreshold, comm.RThreshold, comm.InputLen), std::tuple(1, 1, 1));
  program.Click("cmdDisConnect");

  program.Click("cmdConnect");
  EXPECT_EQ(dialog.Comport_Select.position, 4);
  EXPECT_EQ(std::tuple(dialog.OpBaud.chosen, dialog.OpDataBits.chosen, dialog.OpParity.chosen),
            std::tuple(3, 1, 0));
  program.Pick("OpParity", 1);
  program.Click("cmdSET");
  EXPECT_EQ(program.opened, (std::vector<std::string>{"COM5:38400,E,7,1", "COM5:9600,O,8,1"}));
}

TEST(Scan, KeepsParityAndDataBitsClearsTheLineAndComesToTheTop) {
  InState program(State::kClosed);
  auto& app = program.app;
  std::vector<std::string> on_top;
  app.platform.SetWindowPos = [&](std::string_view form) { on_top.emplace_back(form); };
  program.Click("cmdConnect");
  program.Pick("OpBaud", 9);
  program.Pick("OpParity", 1);
  program.Pick("OpDataBits", 0);
  int cleared = 0;
  app.platform.serial.clear_output = [&] { ++cleared; };
  program.Click("BaudrateCMD");
  EXPECT_EQ(on_top, std::vector<std::string>{"frmScanBProgress"});
  EXPECT_TRUE(app.frmScanBProgress.form.top_most);
  program.Tick(app.frmSettSR.BaudRateScan, 2);
  EXPECT_EQ(program.opened,
            (std::vector<std::string>{"COM1:9600,O,7,1", "COM1:9600,O,7,1", "COM1:1200,O,7,1"}));
  EXPECT_EQ(cleared, 2);
  program.Tick(app.frmSettSR.BaudRateScan, 9);
  const auto& bar = app.frmScanBProgress.ScanProgressBar1;
  EXPECT_EQ(bar.value, bar.maximum);
}

TEST(Scan, EscapeCancelsIt) {
  InState program(State::kClosed);
  program.Scan();
  auto& app = program.app;
  const core::KeyEvent escape{&app.frmScanBProgress.form, core::Key::kEscape};
  EXPECT_EQ(core::Dispatch(app, escape), core::Outcome::kDone);
  EXPECT_FALSE(app.ScanActive || app.frmScanBProgress.form.loaded || app.frmSettSR.BaudRateScan.enabled);
  EXPECT_FALSE(app.frmMain.MSComm1.PortOpen);
}

// Other faults of the line are part of the random events of ovl-reference-model.
TEST(LostDevice, IsReportedInTheBoxAndInTheStatusBarUntilAPortOpens) {
  const auto enq = [](InState& program) { program.Tick(program.app.frmMain.Time_handcheck, kEnqAt); };
  const auto upload = [](InState& program) { program.Press("CmdUpDow(0)"); };
  const std::tuple<const char*, State, std::function<void(InState&)>> rows[] = {
      {"opened", State::kClosed, &InState::OpenPort},
      {"asked", State::kHeld, enq},
      {"upload", State::kHeld, upload}};
  for (const auto& [name, from, act] : rows) {
    SCOPED_TRACE(name);
    InState program(from);
    program.line_error = program.open_error = "Input/output error";
    act(program);
    EXPECT_TRUE(program.TakeBox().text.ends_with("Input/output error"));
    EXPECT_EQ(program.app.StatusNote, "Comport 1: Input/output error");
    program.open_error = std::nullopt;
    link::OpenPort(program.app);
    EXPECT_EQ(program.app.StatusNote, "");
    // Disconnect shows no reason in a message box, so only the status bar has it.
    link::Disconnect(program.app);
    EXPECT_EQ(program.app.StatusNote, "Comport 1: Input/output error");
  }
}

TEST(Boxes, OfTheLinkHaveNoIcon) {
  for (const auto& box : core::BoxTable())
    EXPECT_TRUE(box.box < core::Box::kPortFailed || box.icon == core::BoxIcon::kNone) << box.topic;
}

}  // namespace
}  // namespace ovl::testing
