#include "core/actions.h"
#include "link/states.h"

namespace ovl::testing {
namespace {

TEST(PortSettings, StartAtTheSameValuesButForThePort) {
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
    EXPECT_EQ(program.Pick(name, position), Outcome::kDone);
    EXPECT_GT(dialog.form.focus_requests, requests) << name;
  }
  program.Click("cmdSET");
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

TEST(PortSettings, APortThatStandsOpenIsClosedFirst) {
  InState program(State::kHeld);
  auto& main = program.app.frmMain;
  main.cmdConnect.visible = true;
  program.Click("cmdConnect");
  EXPECT_EQ(program.TakeSent(), kCan);
  EXPECT_EQ(main.cmdConnect.caption + ", " + main.lbConnectting.caption, "Set Comport, Not Connected");
  EXPECT_EQ(main.lbRemoteAccess.caption, "No Access");
  program.Scan();
  ExpectState(program.app, State::kScanning);
  ShowForm(program.app, program.app.frmSettSR.form);
  program.Click("BaudrateCMD");
  EXPECT_EQ(program.opened, std::vector<std::string>(3, "COM1:9600,N,8,1"));
}

TEST(Scan, TriesEveryRateInVainUntilALinkWasAskedFor) {
  InState program(State::kClosed);
  auto& app = program.app;
  std::vector<std::string> on_top;
  app.platform.SetWindowPos = [&](std::string_view form) { on_top.emplace_back(form); };
  program.Click("cmdConnect");
  program.Pick("OpBaud", 9);
  program.Pick("OpParity", 1);
  program.Pick("OpDataBits", 0);
  program.Click("BaudrateCMD");
  EXPECT_EQ(on_top, std::vector<std::string>{"frmScanBProgress"});
  EXPECT_TRUE(app.frmScanBProgress.form.top_most);
  std::vector<std::string> expected = {"COM1:9600,O,7,1"};
  EXPECT_EQ(program.TakeSent(), kRequest);
  for (const std::string rate :
       {"9600", "1200", "2400", "4800", "14400", "19200", "28800", "38400", "57600", "115200"}) {
    SCOPED_TRACE(rate);
    ExpectState(app, State::kScanning);
    program.Unit(std::string(kAck) + "?" + kNak + kAck);
    program.Tick(app.frmSettSR.BaudRateScan);
    EXPECT_EQ(app.frmScanBProgress.ScanProgressBar1.value, static_cast<int>(expected.size()) - 1);
    expected.push_back("COM1:" + rate + ",O,7,1");
    EXPECT_EQ(program.opened, expected);
    EXPECT_EQ(app.frmMain.lbConnectting.caption, "Connected at COM 1: " + rate + ",O,7,1");
    EXPECT_EQ(program.TakeSent(), kRequest);
  }
  program.Tick(app.frmSettSR.BaudRateScan);
  EXPECT_EQ(program.TakeSent(), kCan);
  ExpectBox(program, {"", "No Response From The Device"});
  EXPECT_TRUE(program.NoBoxLeft());
  ExpectState(app, State::kClosed);
  EXPECT_FALSE(app.frmScanBProgress.form.loaded);
  EXPECT_TRUE(app.frmMain.form.enabled);
}

}  // namespace
}  // namespace ovl::testing
