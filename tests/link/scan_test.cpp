#include <gtest/gtest.h>

#include "core/actions.h"
#include "link/states.h"

namespace ovl::testing {
namespace {

constexpr const char* kNoResponse = "No Response From The Device";
const std::vector<std::string> kRates = {"9600",  "1200",  "2400",  "4800",  "14400",
                                         "19200", "28800", "38400", "57600", "115200"};

std::string Opened(const std::string& rate, const char* rest = ",N,8,1") {
  return "COM1:" + rate + rest;
}

void TickScan(Harness& program, int count = 1) {
  program.Tick(program.app.frmSettSR.BaudRateScan, count);
}

void ExpectNoScanForms(const Application& app) {
  EXPECT_FALSE(app.frmSettSR.form.loaded);
  EXPECT_FALSE(app.frmScanBProgress.form.loaded);
  EXPECT_TRUE(app.frmMain.form.enabled);
  EXPECT_EQ(app.ScanIndex, 0);
}

TEST(PortSettings, StartAtTheSameValuesButForThePort) {
  Harness program({"V1400", "R12"});
  program.Start();
  program.Click("cmdConnect");
  auto& app = program.app;
  auto& dialog = app.frmSettSR;
  EXPECT_FALSE(app.frmMain.form.enabled);
  EXPECT_EQ(dialog.form.focus, &dialog.cmdSET);
  EXPECT_EQ(app.PortNumber, 1);
  EXPECT_EQ(app.PortBaud + app.PortParity + app.PortDataBits, "9600N8");

  const std::vector<std::pair<const char*, int>> picks = {
      {"Comport_Select", 4}, {"OpBaud", 7}, {"OpParity", 2}, {"OpDataBits", 0}};
  for (const auto& [name, position] : picks) {
    const auto requests = dialog.form.focus_requests;
    EXPECT_EQ(program.Pick(name, position), Outcome::kDone);
    EXPECT_GT(dialog.form.focus_requests, requests) << name;
    EXPECT_EQ(dialog.form.focus, &dialog.cmdSET);
  }
  program.Click("cmdSET");
  ExpectState(app, State::kOpen);
  EXPECT_EQ(app.frmMain.lbConnectting.caption, "Connected at COM 5: 38400,E,7,1");
  EXPECT_EQ(app.frmMain.MSComm1.SThreshold, 1);
  EXPECT_EQ(app.frmMain.MSComm1.RThreshold, 1);
  EXPECT_EQ(app.frmMain.MSComm1.InputLen, 1);
  Disconnect(program);

  program.Click("cmdConnect");
  EXPECT_EQ(dialog.Comport_Select.position, 4);
  EXPECT_EQ(dialog.OpBaud.chosen, 3);
  EXPECT_EQ(dialog.OpDataBits.chosen, 1);
  EXPECT_EQ(dialog.OpParity.chosen, 0);
  program.Pick("OpParity", 1);
  program.Click("cmdSET");
  EXPECT_EQ(program.opened, (std::vector<std::string>{"COM5:38400,E,7,1", "COM5:9600,O,8,1"}));
}

TEST(PortSettings, APortThatDoesNotOpenIsToldAndTheDialogGoes) {
  InState program(State::kClosed);
  program.open_error = "No such file or directory";
  OpenPort(program);
  ExpectBox(program, "", "           No such file or directory");
  ExpectState(program.app, State::kClosed);
  ExpectNoScanForms(program.app);
  program.open_error.reset();
  OpenPort(program);
  ExpectState(program.app, State::kOpen);
}

TEST(PortSettings, ClosingTheWindowOpensNothing) {
  InState program(State::kClosed);
  program.Click("cmdConnect");
  EXPECT_EQ(program.Click("CmdUpDow(4)"), Outcome::kRefused);
  Dispatch(program.app, CloseEvent{&program.app.frmSettSR.form});
  ExpectState(program.app, State::kClosed);
  ExpectNoScanForms(program.app);
  EXPECT_TRUE(program.opened.empty());
}

TEST(Connect, ThatFindsThePortOpenClosesIt) {
  InState program(State::kHeld);
  program.app.frmMain.cmdConnect.visible = true;
  program.Click("cmdConnect");
  EXPECT_EQ(program.TakeSent(), kCan);
  EXPECT_FALSE(program.app.frmMain.MSComm1.PortOpen);
  EXPECT_EQ(RunningTimers(program.app), "");
  EXPECT_EQ(program.app.frmMain.cmdConnect.caption, "Set Comport");
  EXPECT_EQ(program.app.frmMain.lbConnectting.caption, "Not Connected");
  EXPECT_EQ(program.app.frmMain.lbRemoteAccess.caption, "No Access");
  EXPECT_FALSE(program.app.frmSettSR.form.loaded);
}

TEST(Scan, AfterAFreshStartTriesEveryRateInVain) {
  InState program(State::kClosed);
  constexpr const char* kRest = ",O,7,1";
  auto& app = program.app;
  std::vector<std::string> on_top;
  app.platform.SetWindowPos = [&](std::string_view form) { on_top.emplace_back(form); };
  program.Click("cmdConnect");
  const std::vector<std::pair<const char*, int>> picks = {{"OpBaud", 9}, {"OpParity", 1}, {"OpDataBits", 0}};
  for (const auto& [name, position] : picks) program.Pick(name, position);
  program.Click("BaudrateCMD");
  EXPECT_EQ(on_top, std::vector<std::string>{"frmScanBProgress"});
  std::vector<std::string> expected = {Opened("9600", kRest)};
  EXPECT_EQ(program.TakeSent(), kRequest);

  for (int place = 0; place < 10; ++place) {
    SCOPED_TRACE(place);
    ExpectState(app, State::kScanning);
    program.DrainAll();
    EXPECT_EQ(program.TakeSent(), kRequest);
    program.Unit(std::string(kAck) + "?" + kNak + kAck);
    TickScan(program);
    const auto& rate = kRates[static_cast<std::size_t>(place)];
    expected.push_back(Opened(rate, kRest));
    EXPECT_EQ(program.opened, expected);
    EXPECT_EQ(app.frmScanBProgress.ScanProgressBar1.value, place);
    EXPECT_EQ(app.frmMain.lbConnectting.caption, "Connected at COM 1: " + rate + kRest);
    EXPECT_EQ(app.PortBaud, rate);
    EXPECT_EQ(program.TakeSent(), kRequest);
    EXPECT_TRUE(program.NoBoxLeft());
  }
  EXPECT_EQ(app.ScanIndex, 10);
  TickScan(program);
  EXPECT_EQ(program.TakeSent(), kCan);
  ExpectBox(program, "", kNoResponse);
  ExpectState(app, State::kClosed);
  EXPECT_EQ(app.LinkMode, 255);
  ExpectNoScanForms(app);
}

TEST(Scan, FindsTheUnitOnceALinkWasGrantedBefore) {
  const std::vector<std::pair<int, std::string>> places = {
      {0, "9600"}, {1, "9600"}, {5, "14400"}, {10, "115200"}};
  for (const auto& [ticks, rate] : places) {
    SCOPED_TRACE(rate);
    InState program(State::kScanning);
    TickScan(program, ticks);
    program.TakeSent();
    program.DrainAll();
    EXPECT_EQ(program.TakeSent(), "");
    program.Unit("noise?");
    program.Unit(kNak);
    ExpectState(program.app, State::kScanning);
    program.Unit(kAck);
    ExpectState(program.app, State::kHeld);
    EXPECT_EQ(program.app.PortBaud, rate);
    EXPECT_EQ(program.app.frmMain.lbConnectting.caption, "Connected at COM 1: " + rate + ",N,8,1");
    ExpectNoScanForms(program.app);
    EXPECT_TRUE(program.NoBoxLeft());
  }
}

TEST(Scan, FindsTheUnitAfterATimeOutButNotAfterAFailure) {
  const std::vector<std::pair<Act, State>> rows = {{Ticks(&MainForm::Time_handcheck, kTimeOut), State::kHeld},
                                                   {Arrives(kNak), State::kScanning}};
  for (const auto& [end_of_link, found] : rows) {
    InState program(State::kHeld);
    end_of_link(program);
    program.Click("cmdConnect");
    program.Click("BaudrateCMD");
    program.Unit(kAck);
    ExpectState(program.app, found);
  }
}

TEST(Scan, ClosesAPortThatStandsOpen) {
  InState program(State::kOpen);
  ShowForm(program.app, program.app.frmSettSR.form);
  program.Click("BaudrateCMD");
  ExpectState(program.app, State::kScanning);
  EXPECT_EQ(program.opened, (std::vector<std::string>{Opened("9600"), Opened("9600")}));
}

TEST(Scan, WithoutAPortLeavesTheDialogStanding) {
  InState program(State::kClosed);
  program.open_error = "Permission denied";
  program.Click("cmdConnect");
  program.Click("BaudrateCMD");
  ExpectBox(program, "", "           Permission denied");
  ExpectState(program.app, State::kClosed);
  EXPECT_TRUE(program.app.frmSettSR.form.visible);
  EXPECT_FALSE(program.app.frmScanBProgress.form.loaded);
  EXPECT_FALSE(program.app.frmMain.form.enabled);
}

TEST(Scan, CanBeCancelled) {
  InState program(State::kScanning);
  TickScan(program, 4);
  EXPECT_EQ(program.Click("CmdUpDow(4)"), Outcome::kRefused);
  program.TakeSent();
  program.Click("frmScanBProgress.Command1");
  EXPECT_EQ(program.TakeSent(), kCan);
  ExpectState(program.app, State::kClosed);
  ExpectNoScanForms(program.app);
  program.Click("CmdUpDow(4)");
  ExpectBox(program, "", "        Please Select Comport.");
}

TEST(Scan, WhoseWindowIsClosedLeavesThePortOpen) {
  InState program(State::kScanning);
  TickScan(program, 4);
  Dispatch(program.app, CloseEvent{&program.app.frmScanBProgress.form});
  ExpectState(program.app, State::kOpen);
  ExpectNoScanForms(program.app);
  EXPECT_EQ(program.Tick(program.app.frmSettSR.BaudRateScan), Outcome::kRefused);
}

TEST(Scan, ThatLosesItsPortTellsItAtEveryRateAndPutsTheFormRight) {
  for (const bool cancelled : {false, true}) {
    InState program(State::kScanning);
    TickScan(program, 3);
    program.open_error = "No such device";
    for (int place = 3; place < 10; ++place) {
      TickScan(program);
      ExpectBox(program, "", "           No such device");
      EXPECT_FALSE(program.app.frmMain.MSComm1.PortOpen);
      EXPECT_TRUE(program.app.ScanActive);
    }
    program.TakeSent();
    if (cancelled) {
      program.Click("frmScanBProgress.Command1");
    } else {
      TickScan(program);
      ExpectBox(program, "", kNoResponse);
    }
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.TakeSent(), "");
    ExpectState(program.app, State::kClosed);
    ExpectNoScanForms(program.app);
  }
}

}  // namespace
}  // namespace ovl::testing
