#include "support/state_table.h"

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

}  // namespace

const char* NameOf(State state) {
  return RowOf(state).name;
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

std::string DifferenceFrom(State state, const Application& app) {
  const auto& row = RowOf(state);
  const auto& main = app.frmMain;
  std::string found;
  const auto expect = [&](bool met, const char* what) {
    if (!met) found.append(found.empty() ? "" : ", ").append(what);
  };
  expect(main.MSComm1.PortOpen == row.open, "PortOpen");
  expect(row.link_mode == kAnyMode || row.link_mode == app.LinkMode, "LinkMode");
  expect(app.RemoteHeld == row.held, "RemoteHeld");
  expect(app.ScanActive == (state == State::kScanning), "ScanActive");
  expect(RunningTimers(app) == row.timers, "timers");
  expect(main.Timer.enabled, "Timer");
  for (const auto action : {0U, 1U, 2U, 3U, 5U}) {
    expect(main.CmdUpDow[action].enabled == row.actions, "CmdUpDow");
  }
  expect(main.CmdUpDow[4].enabled == row.remote, "CmdUpDow(4)");
  expect(main.cmdConnect.visible != row.open && main.cmdDisConnect.visible == row.open, "cmdConnect visible");
  expect(main.cmdConnect.enabled == row.connect.value_or(main.cmdConnect.enabled), "cmdConnect enabled");
  expect(main.cmdConnect.caption == (row.open ? "Disconnect" : "Set Comport"), "cmdConnect caption");
  expect(main.lbConnectting.caption.substr(0, 13) == (row.open ? "Connected at " : "Not Connected"),
         "lbConnectting");
  expect(main.lbRemoteAccess.caption == (row.access ? "ACCESS" : "No Access"), "lbRemoteAccess");
  expect(main.Picture1[0].visible != row.access && main.Picture1[3].visible == row.access, "Picture1");
  return found;
}

}  // namespace ovl::testing
